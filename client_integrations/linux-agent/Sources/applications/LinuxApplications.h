#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "applications/BrowserLauncher.h"
#include "applications/DesktopEntries.h"
#include "desktop/Applications.h"
#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// The part of `Applications` that X11 and Wayland share. An instance is a window. A location is
/// the id of a desktop file, and so is a bundle identifier, except that a browser has one bundle
/// identifier (`Browsers`) however its desktop file is named.
class LinuxApplications : public desktop::Applications {
 public:
  /// Both outlive this object.
  LinuxApplications(DesktopEntries& entries, desktop::MainLoop& loop)
      : entries_(entries), launcher_(entries, loop) {}

  [[nodiscard]] std::optional<desktop::InstalledApplication> preferredBrowser() const override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& url) const override;
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;
  void open(const std::string& url) override;

 protected:
  struct Window {
    std::uint64_t instance;
    WindowTraits traits;
    std::string document;  ///< made by `documentName`
  };
  /// Returns the application that the window belongs to.
  [[nodiscard]] desktop::RunningApplication applicationOf(const Window& window) const;

 private:
  DesktopEntries& entries_;
  BrowserLauncher launcher_;
};

}  // namespace quillseal::linux
