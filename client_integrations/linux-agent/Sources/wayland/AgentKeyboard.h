#pragma once

#include <memory>
#include <span>

#include "wayland/DesktopBus.h"
#include "wayland/WaylandConnection.h"
#include "x11/KeyChords.h"

namespace quillseal::linux {

/// A keyboard on which the agent presses keys. Main thread.
class AgentKeyboard {
 public:
  virtual ~AgentKeyboard() = default;

  /// Returns whether keys go to the active window. False while something that is not in the list of
  /// windows gets them, such as the screen lock.
  [[nodiscard]] virtual bool reachesActiveWindow() const = 0;

  /// Presses the keys in order and releases them in reverse order. Supports only the keys that
  /// copy, paste and select all.
  virtual void tap(std::span<const Keysym> chord) = 0;
};

/// Returns whether the compositor offers a protocol for one.
[[nodiscard]] bool offersKeyboard(const WaylandConnection& connection);

/// Makes a virtual keyboard where the compositor offers that, else one that presses keys on the
/// user's keyboard through KWin. Both arguments outlive it; `bus` is null where there is none.
[[nodiscard]] std::unique_ptr<AgentKeyboard> makeKeyboard(WaylandConnection& connection,
                                                          DesktopBus* bus);

}  // namespace quillseal::linux
