#pragma once

#include <cstdint>
#include <memory>

#include "wayland/WaylandConnection.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Gets what a compositor tells of windows.
class WindowObserver {
 public:
  virtual ~WindowObserver() = default;

  /// Of a window that is new, or is not what it was.
  virtual void told(const WaylandWindow& window) = 0;
  virtual void closed(std::uint64_t id) = 0;
};

/// A protocol by which a compositor names windows and activates them. The connection and the
/// observer outlive it. Main thread.
class WindowProtocol {
 public:
  virtual ~WindowProtocol() = default;

  /// Sends what is to have the window raised and given the keyboard.
  virtual void activate(std::uint64_t id) = 0;
};

/// wlr-foreign-toplevel-management, of wlroots.
[[nodiscard]] bool offersWlrootsWindows(const WaylandConnection& connection);

/// Null where it is not offered.
[[nodiscard]] std::unique_ptr<WindowProtocol> bindWlrootsWindows(
    const WaylandConnection& connection, WindowObserver& observer);

/// plasma-window-management, of KWin: only for programs whose desktop file asks for it.
[[nodiscard]] bool offersPlasmaWindows(const WaylandConnection& connection);

/// Null where it is not offered.
[[nodiscard]] std::unique_ptr<WindowProtocol> bindPlasmaWindows(const WaylandConnection& connection,
                                                                WindowObserver& observer);

}  // namespace quillseal::linux
