#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "desktop/Applications.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// Virtual key codes of the ANSI layout, as Carbon's Events.h numbers them.
enum class Key : std::uint16_t { a = 0, h = 4, c = 8, v = 9 };

/// The letter on the key, in lower case.
[[nodiscard]] constexpr char letterOf(Key key) {
  switch (key) {
    case Key::a:
      return 'a';
    case Key::c:
      return 'c';
    case Key::h:
      return 'h';
    case Key::v:
      return 'v';
  }
  return '?';
}

/// Modifiers, combined with `|`. The values are Core Graphics' event flags. `command` stands for
/// the key that shortcuts of applications use: Control on Linux.
enum class Modifiers : std::uint32_t {
  none = 0,
  control = 0x40000,
  option = 0x80000,
  command = 0x100000,
};

[[nodiscard]] constexpr Modifiers operator|(Modifiers a, Modifiers b) {
  return static_cast<Modifiers>(static_cast<std::uint32_t>(a) | static_cast<std::uint32_t>(b));
}
[[nodiscard]] constexpr bool contains(Modifiers all, Modifiers one) {
  return (static_cast<std::uint32_t>(all) & static_cast<std::uint32_t>(one)) != 0;
}

struct KeyPress {
  Key key;
  Modifiers modifiers = Modifiers::none;

  friend bool operator==(const KeyPress&, const KeyPress&) = default;
};

/// Whether a key press reached its target; if not, why no key was pressed.
enum class Delivery {
  delivered,
  declined,         ///< another window than the target would have got it
  keyboardTaken,    ///< something that is no other window has the keyboard, as a menu may
  keysHeld,         ///< the user held the keys of the hotkey for too long
  notAllowed,       ///< the desktop lets this program press none; unless it was to paste, the
                    ///< adapter has explained that
  notWritten,       ///< the target would have pasted something else than what was last written
  documentChanged,  ///< the target shows another document, tab or field than it did
  targetClosed,     ///< the target has ended
  targetUnknown,    ///< the key may do harm in the target, of which too little is known
};

/// Key presses sent to an application. Main thread.
class KeyEvents {
 public:
  virtual ~KeyEvents() = default;

  /// Whether the user allows this program to send key presses, at this moment.
  [[nodiscard]] virtual bool isTrusted() const = 0;

  /// Lets the system show its own request for that permission. Does not wait for the answer.
  virtual void askForTrust() = 0;

  /// What keeps key presses from reaching applications although this program is trusted, such as
  /// another program's secure input, in words for the log; empty when nothing is known to.
  [[nodiscard]] virtual std::string obstacle() const { return {}; }

  /// Presses and releases the key with exactly these modifiers in `target`, then calls `done`.
  /// Declines, with no key pressed, when the adapter knows immediately before the press that
  /// something else than `target` would get it, or that `target` is not what it was. Without a
  /// target the press goes to whatever is in front, or is declined where the adapter knew that
  /// nothing was.
  ///
  /// `aboutToPress`, unless empty, is called after all waiting and checking, immediately before the
  /// application can notice anything; not at all when the press is declined.
  ///
  /// The adapter sees to it that modifiers which the user still holds (those of the hotkey) do not
  /// take part, waiting for their release for 1.4 s at most; that every key it pressed is released
  /// again, on every path; and that the target has had time to learn of the last
  /// `Pasteboard::write`. A key press that the system discards is not reported. Throws Error if
  /// it is not known which keys the application expects.
  [[nodiscard]] virtual Ticket press(KeyPress press,
                                     const std::optional<RunningApplication>& target,
                                     std::function<void()> aboutToPress,
                                     std::function<void(Delivery)> done) = 0;
};

}  // namespace quillseal::desktop
