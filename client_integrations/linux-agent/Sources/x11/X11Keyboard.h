#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <xcb/xcb.h>

#include "keyboard/Keysym.h"

namespace quillseal::linux {

/// The keyboard of the X server: reports held keys, finds the key of a symbol, and presses keys.
///
/// Uses a separate connection, so that the pauses of a synthesised press delay nothing else. Main
/// thread only.
class X11Keyboard {
 public:
  /// A snapshot of the keyboard layouts.
  class Layout {
   public:
    /// Returns the key that gives `symbol` without Shift: in the active layout, else in another
    /// configured one, else in a Latin layout. 0 when none has it.
    [[nodiscard]] xcb_keycode_t keyFor(Keysym symbol) const;

    /// Returns the modifier bits (XCB_MOD_MASK_…) of the key of `symbol`; 0 when it is not a
    /// modifier.
    [[nodiscard]] std::uint16_t modifierMaskOf(Keysym symbol) const;

   private:
    friend class X11Keyboard;
    struct Map;
    std::shared_ptr<const Map> map_;  // null when the server did not answer
  };

  /// Null when there is no X server, or it lacks XTEST or XKEYBOARD.
  [[nodiscard]] static std::unique_ptr<X11Keyboard> open();
  ~X11Keyboard();
  X11Keyboard(const X11Keyboard&) = delete;
  X11Keyboard& operator=(const X11Keyboard&) = delete;

  /// Returns the modifier keys that are down now, on any keyboard, and `also` if it is down too. A
  /// lock key that is only on is not down.
  [[nodiscard]] std::vector<xcb_keycode_t> heldKeys(xcb_keycode_t also);

  /// Sends releases of these keys. The user may still hold them.
  void release(std::span<const xcb_keycode_t> keys);

  /// Presses the keys in order and releases them in reverse order.
  void tap(std::span<const xcb_keycode_t> keys);

  /// Takes some milliseconds: the server sends the whole keymap.
  [[nodiscard]] Layout layout();

  /// The event type with which XKEYBOARD reports layout changes.
  [[nodiscard]] std::uint8_t xkbEventType() const;

 private:
  struct State;
  explicit X11Keyboard(std::unique_ptr<State> state);

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
