#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "applications/LinuxApplications.h"
#include "wayland/SwayIpc.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Returns the traits that identify the window's application.
[[nodiscard]] WindowTraits traitsOf(const WaylandWindow& window);

/// Finds applications by the compositor's list of windows and the installed desktop files.
class WaylandApplications : public LinuxApplications {
 public:
  /// All outlive this object.
  struct Services {
    WaylandWindows& windows;
    DesktopEntries& entries;
    desktop::MainLoop& loop;
  };

  /// `sway` is null where it does not run. Sway 1.7 reports processes and a changed app id only
  /// through this connection, not over Wayland.
  WaylandApplications(const Services& services, std::unique_ptr<SwayIpc> sway)
      : LinuxApplications(services.entries, services.loop),
        services_(services),
        sway_(std::move(sway)) {}

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;

  /// Also activates the browser's window: a running browser opens a URL without doing that.
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;
  using LinuxApplications::open;

 private:
  void bringToFront(const std::string& location);

  Services services_;
  std::unique_ptr<SwayIpc> sway_;
  desktop::Ticket bringing_;
};

}  // namespace quillseal::linux
