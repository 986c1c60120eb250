#pragma once

#include <functional>

#include "desktop/KeyEvents.h"

namespace quillseal::desktop {

/// A key combination that reaches this program whichever application is in front. Main thread.
class Hotkey {
 public:
  virtual ~Hotkey() = default;

  /// Calls `pressed` on the main thread for each press of `combination`, once per press however
  /// long the key is held, for the rest of the process. On failure (another program holds the
  /// combination, the desktop grants none) throws Error whose description tells the user what to
  /// do.
  virtual void registerHotkey(KeyPress combination, std::function<void()> pressed) = 0;
};

}  // namespace quillseal::desktop
