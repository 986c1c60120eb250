#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "applications/LinuxApplications.h"
#include "wayland/SwayIpc.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// What identifies the window's application among the installed ones.
[[nodiscard]] WindowTraits traitsOf(const WaylandWindow& window);

/// Applications by the windows that the compositor names and the desktop files of the machine.
class WaylandApplications : public LinuxApplications {
 public:
  /// All outlive this object.
  struct Services {
    WaylandWindows& windows;
    DesktopEntries& entries;
    desktop::MainLoop& loop;
  };

  /// `sway` is null where it does not run. Sway reports changes of an app
  /// id there only, not by the Wayland protocol (1.7).
  WaylandApplications(const Services& services, std::unique_ptr<SwayIpc> sway)
      : LinuxApplications(services.entries, services.loop),
        services_(services),
        sway_(std::move(sway)) {}

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;

  /// A browser that runs already opens an address without coming to the front, so that its window
  /// is called there.
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
