#pragma once

#include <optional>

#include "Desktop/Applications.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/BrowserLauncher.h"
#include "LinuxDesktop/DesktopEntries.h"
#include "LinuxDesktop/WindowManager.h"

namespace quillseal {

/// Applications by the windows of the X session and the desktop files of the machine. An instance
/// is a window; a location is the id of a desktop file, and so is a bundle identifier, but that of
/// a browser is the same under all the names that it may have. Terminals are in the category
/// "TerminalEmulator", also those whose desktop file does not say so.
class X11Applications : public desktop::Applications {
 public:
  /// All outlive this object.
  X11Applications(const WindowManager& windows, DesktopEntries& entries, desktop::MainLoop& loop)
      : windows_(windows), entries_(entries), launcher_(entries, loop) {}

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> applicationAt(
      const std::string& path) const override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& url) const override;
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;
  void open(const std::string& url) override;

 private:
  const WindowManager& windows_;
  DesktopEntries& entries_;
  BrowserLauncher launcher_;
};

}  // namespace quillseal
