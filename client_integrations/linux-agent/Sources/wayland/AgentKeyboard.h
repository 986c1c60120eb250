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

  /// Whether keys go to the active window. False while something else gets them of which the
  /// windows tell nothing, such as a locked screen.
  [[nodiscard]] virtual bool reachesActiveWindow() const = 0;

  /// Presses the keys in order and lets them go in reverse order. Knows the keys that copy, paste
  /// and select all.
  virtual void tap(std::span<const Keysym> chord) = 0;
};

/// Whether the compositor offers one.
[[nodiscard]] bool offersKeyboard(const WaylandConnection& connection);

/// One of the agent's own where the compositor offers that, else KWin's way to press keys on the
/// person's. Both arguments outlive it; `bus` is null where there is none.
[[nodiscard]] std::unique_ptr<AgentKeyboard> makeKeyboard(WaylandConnection& connection,
                                                          DesktopBus* bus);

}  // namespace quillseal::linux
