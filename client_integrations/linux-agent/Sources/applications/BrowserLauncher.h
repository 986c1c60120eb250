#pragma once

#include <deque>
#include <optional>
#include <string>

#include "applications/DesktopEntries.h"
#include "applications/RedirectPage.h"
#include "desktop/Applications.h"
#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// Opens web pages in installed browsers. Main thread.
class BrowserLauncher {
 public:
  /// Both outlive this object.
  BrowserLauncher(DesktopEntries& entries, desktop::MainLoop& loop)
      : entries_(entries), loop_(loop) {}

  [[nodiscard]] std::optional<desktop::InstalledApplication> chrome() const;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultFor(
      const std::string& url) const;

  /// Opens `url` in the application whose desktop file `location` names, or in the user's default
  /// for such URLs when `location` is empty. The command line names only a local page
  /// (RedirectPage), never the URL. Throws Error.
  void open(const std::string& url, const std::string& location);

 private:
  struct OpenedPage {
    RedirectPage page;
    desktop::Ticket end;
  };

  [[nodiscard]] std::string pageFor(const std::string& url, const DesktopEntry& browser);

  DesktopEntries& entries_;
  desktop::MainLoop& loop_;
  std::deque<OpenedPage> pages_;  ///< oldest first
};

}  // namespace quillseal::linux
