#pragma once

#include <span>

#include "keyboard/Keysym.h"

namespace quillseal::linux {

/// A keyboard on which the agent presses keys. Main thread.
class AgentKeyboard {
 public:
  virtual ~AgentKeyboard() = default;

  /// Whether keys can be pressed in this session at all.
  [[nodiscard]] virtual bool isUsable() const { return true; }

  /// Asks the desktop what the two below need to know, which may take two seconds. To be called
  /// before the compositor is asked for the active window, which may change meanwhile.
  virtual void prepare() = 0;

  /// Whether keys go to the active window. False while something that is no window gets them, such
  /// as the lock screen or the overview of all windows.
  [[nodiscard]] virtual bool reachesActiveWindow() const = 0;

  /// Releases the keys that the user holds, where they would affect the keys pressed next. That may
  /// bring another window to the front, as the end of Alt+Tab does.
  virtual void releaseHeldKeys() {}

  /// Presses the keys in order and releases them in reverse order. Supports only the keys that
  /// copy, paste and select all.
  virtual void tap(std::span<const Keysym> chord) = 0;
};

}  // namespace quillseal::linux
