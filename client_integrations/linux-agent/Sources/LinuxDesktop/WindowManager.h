#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include <xcb/xcb.h>

#include "LinuxDesktop/DesktopEntries.h"

namespace quillseal {

/// The windows of the X session, asked and told by the conventions of the EWMH. Uses Qt's own
/// connection; main thread only. Works without an X server: nothing is found then.
class WindowManager {
 public:
  WindowManager();

  /// The window that has the focus by the window manager's word; 0 when it names none.
  [[nodiscard]] xcb_window_t activeWindow() const;

  /// The window that has the focus, or the topmost one of another process when the focus is with
  /// this one; 0 when there is none.
  [[nodiscard]] xcb_window_t topForeignWindow() const;

  /// The process that says it owns the window; 0 when none does.
  [[nodiscard]] std::uint32_t processOf(xcb_window_t window) const;

  [[nodiscard]] WindowTraits traitsOf(xcb_window_t window) const;

  /// Whether the program that shows the window has the primary selection.
  [[nodiscard]] bool hasPrimarySelection(xcb_window_t window) const;

  [[nodiscard]] bool exists(xcb_window_t window) const;

  /// Asks for the window to be raised and given the focus, as a pager would: window managers refuse
  /// the same wish from an ordinary program as focus stealing.
  void activate(xcb_window_t window) const;

  /// Ends the hold that a pressed hotkey has on the keyboard. Keys pressed afterwards by anyone
  /// reach the window in front.
  void releaseKeyboard() const;

 private:
  [[nodiscard]] xcb_atom_t atom(const char* name) const;
  [[nodiscard]] std::string property(xcb_window_t window, const char* name, xcb_atom_t type) const;
  [[nodiscard]] std::optional<std::uint32_t> number(xcb_window_t window, const char* name,
                                                    xcb_atom_t type) const;

  mutable std::map<std::string, xcb_atom_t, std::less<>> atoms_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
};

}  // namespace quillseal
