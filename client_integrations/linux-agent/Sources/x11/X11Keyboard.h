#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <xcb/xcb.h>

namespace quillseal::linux {

/// An X keysym, as in X11/keysymdef.h.
using Keysym = std::uint32_t;

/// The keyboard of the X server: which keys are down, where a symbol is, and how to press it.
///
/// It has a connection of its own, so that the pauses of a synthesised key press hold up nothing
/// else. Main thread only.
class X11Keyboard {
 public:
  /// Where the keys are, as the layouts stand when it is made.
  class Layout {
   public:
    /// The key that gives `symbol` without Shift: in the layout in use if it has one, else in
    /// another configured layout, else where a Latin layout has it. 0 for a symbol that no layout
    /// has.
    [[nodiscard]] xcb_keycode_t keyFor(Keysym symbol) const;

    /// The modifier bits (XCB_MOD_MASK_…) that the key of `symbol` stands for; 0 when it is none.
    [[nodiscard]] std::uint16_t modifierMaskOf(Keysym symbol) const;

   private:
    friend class X11Keyboard;
    struct Map;
    std::shared_ptr<const Map> map_;  // null when the server did not tell
  };

  /// Null when there is no X server, or one without the XTEST and XKEYBOARD extensions.
  [[nodiscard]] static std::unique_ptr<X11Keyboard> open();
  ~X11Keyboard();
  X11Keyboard(const X11Keyboard&) = delete;
  X11Keyboard& operator=(const X11Keyboard&) = delete;

  /// The modifier keys that are down now, on any keyboard, and `also` when it is down too.
  /// Lock keys that are merely latched are not down.
  [[nodiscard]] std::vector<xcb_keycode_t> heldKeys(xcb_keycode_t also);

  /// Makes the server believe that these keys were let go. The person may still hold them.
  void release(std::span<const xcb_keycode_t> keys);

  /// Presses the keys in order and lets them go in reverse order.
  void tap(std::span<const xcb_keycode_t> keys);

  /// Takes some milliseconds, since the server is asked for everything it knows of the keys.
  [[nodiscard]] Layout layout();

  /// The type of the events by which the XKEYBOARD extension reports another layout.
  [[nodiscard]] std::uint8_t xkbEventType() const;

 private:
  struct State;
  explicit X11Keyboard(std::unique_ptr<State> state);

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
