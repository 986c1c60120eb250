#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

#include "Desktop/Applications.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/DesktopEntries.h"
#include "LinuxDesktop/LeadingPage.h"

namespace quillseal {

/// Opens web pages in the browsers that are installed. Main thread.
class BrowserLauncher {
 public:
  /// A longer address does not go onto a command line: Chromium that runs already takes 32 KiB with
  /// all arguments, and is killed by the one that brings more (kMaxMessageLength in its
  /// process_singleton_posix.cc). It goes by way of a page on this computer.
  static constexpr std::size_t longestArgument = 24'000;

  /// How long such a page is there for a browser that has to start first.
  static constexpr std::chrono::minutes pageLife{2};

  /// Both outlive this object.
  BrowserLauncher(DesktopEntries& entries, desktop::MainLoop& loop)
      : entries_(entries), loop_(loop) {}

  [[nodiscard]] std::optional<desktop::InstalledApplication> chrome() const;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultFor(
      const std::string& url) const;

  /// With the application whose desktop file `location` names, or with the user's choice for such
  /// addresses when it is empty. Throws Error.
  void open(const std::string& url, const std::string& location);

 private:
  struct OpenedPage {
    LeadingPage page;
    desktop::Ticket end;
  };

  [[nodiscard]] std::string pageFor(const std::string& url);

  DesktopEntries& entries_;
  desktop::MainLoop& loop_;
  std::deque<OpenedPage> pages_;  ///< oldest first
};

}  // namespace quillseal
