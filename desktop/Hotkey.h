#pragma once

#include <functional>
#include <string>

#include "desktop/KeyEvents.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// What the user should know about the hotkey.
struct HotkeyState {
  /// Its keys as the desktop names them, where they are not those that were asked for; else empty.
  std::string otherKeys;
  /// There is none: the user has refused or removed it, or, where the desktop can be asked again,
  /// it could not be registered. It may stay off until `Hotkey::askAgain`.
  bool isOff = false;

  bool operator==(const HotkeyState&) const = default;
};

/// A key combination that reaches this program whichever application is in front. Main thread.
class Hotkey {
 public:
  virtual ~Hotkey() = default;

  /// Calls `pressed` on the main thread for each press of `combination`, once per press however
  /// long the key is held, for the rest of the process. On failure (another program holds the
  /// combination, the desktop grants none) throws Error whose description tells the user what to
  /// do.
  virtual void registerHotkey(KeyPress combination, std::function<void()> pressed) = 0;

  /// The state as far as it is known. Does not block.
  [[nodiscard]] virtual HotkeyState state() const { return {}; }

  /// Calls `changed` whenever the state has changed as far as the desktop tells. The last observer
  /// replaces the one before. The ticket is dropped before this object is destroyed.
  [[nodiscard]] virtual Ticket observe(std::function<void()> /*changed*/) { return {}; }

  /// Looks for a change that the desktop does not report, and tells the observer of one. To be
  /// called before the user sees the settings.
  virtual void refresh() {}

  /// Tries again to get a hotkey that is off. Asks the user where the desktop does so, without
  /// waiting for the answer, and tells them why if there is still none.
  virtual void askAgain() {}
};

}  // namespace quillseal::desktop
