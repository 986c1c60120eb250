#pragma once

#include <cstdint>
#include <memory>

#include "wayland/WaylandConnection.h"
#include "wayland/WaylandWindow.h"

namespace quillseal::linux {

/// Receives a compositor's reports of windows.
class WindowObserver {
 public:
  virtual ~WindowObserver() = default;

  /// Called when a window is new or has changed.
  virtual void changed(const WaylandWindow& window) = 0;
  virtual void closed(std::uint64_t id) = 0;
};

/// A protocol through which a compositor lists and activates windows. The connection and the
/// observer outlive it. Main thread.
class WindowProtocol {
 public:
  virtual ~WindowProtocol() = default;

  /// Sends the request to raise and focus the window.
  virtual void activate(std::uint64_t id) = 0;
};

/// wlr-foreign-toplevel-management, of wlroots.
[[nodiscard]] bool offersWlrootsWindows(const WaylandConnection& connection);

/// Returns null where the protocol is not offered.
[[nodiscard]] std::unique_ptr<WindowProtocol> bindWlrootsWindows(
    const WaylandConnection& connection, WindowObserver& observer);

/// plasma-window-management, of KWin: only for programs whose desktop file asks for it.
[[nodiscard]] bool offersPlasmaWindows(const WaylandConnection& connection);

/// Null where it is not offered.
[[nodiscard]] std::unique_ptr<WindowProtocol> bindPlasmaWindows(const WaylandConnection& connection,
                                                                WindowObserver& observer);

}  // namespace quillseal::linux
