#pragma once

#include <deque>
#include <optional>
#include <string>

#include "applications/DesktopEntries.h"
#include "browsers/LeadingPage.h"
#include "desktop/Applications.h"
#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// Opens web pages in the browsers that are installed. Main thread.
class BrowserLauncher {
 public:
  /// Both outlive this object.
  BrowserLauncher(DesktopEntries& entries, desktop::MainLoop& loop)
      : entries_(entries), loop_(loop) {}

  [[nodiscard]] std::optional<desktop::InstalledApplication> chrome() const;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultFor(
      const std::string& url) const;

  /// With the application whose desktop file `location` names, or with the user's choice for such
  /// addresses when it is empty. The address goes by a page on this computer (LeadingPage), never
  /// on a command line. Throws Error.
  void open(const std::string& url, const std::string& location);

 private:
  struct OpenedPage {
    LeadingPage page;
    desktop::Ticket end;
  };

  [[nodiscard]] std::string pageFor(const std::string& url, const DesktopEntry& browser);

  DesktopEntries& entries_;
  desktop::MainLoop& loop_;
  std::deque<OpenedPage> pages_;  ///< oldest first
};

}  // namespace quillseal::linux
