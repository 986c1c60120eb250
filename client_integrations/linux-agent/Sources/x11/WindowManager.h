#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "applications/DesktopEntries.h"

namespace quillseal::linux {

/// The windows of the X session, asked and told by the conventions of the EWMH. Uses Qt's own
/// connection; main thread only. Works without an X server: nothing is found then.
class WindowManager {
 public:
  WindowManager();

  /// The window that has the focus by the window manager's word; 0 when it names none.
  [[nodiscard]] xcb_window_t activeWindow() const;

  /// Whether the window manager is one that names the active window, or says that none is.
  [[nodiscard]] bool namesActiveWindow() const;

  /// Whether keys that are pressed now go to the window, by the word of the window manager and of
  /// the X server, which is ahead of it while windows are switched.
  [[nodiscard]] bool hasKeyboard(xcb_window_t window) const;

  /// The window that has the focus, or when that is one of this process the topmost one of another
  /// that the person can see and write in; 0 when there is none.
  [[nodiscard]] xcb_window_t topForeignWindow() const;

  /// What the window shows: see `documentName`.
  [[nodiscard]] std::string documentOf(xcb_window_t window) const;

  /// The process that says it owns the window; 0 when none does.
  [[nodiscard]] std::uint32_t processOf(xcb_window_t window) const;

  [[nodiscard]] WindowTraits traitsOf(xcb_window_t window) const;

  /// Whether the program that shows the window has the primary selection.
  [[nodiscard]] bool hasPrimarySelection(xcb_window_t window) const;

  [[nodiscard]] bool exists(xcb_window_t window) const;

  /// Asks for the window to be raised and given the focus, as a pager would: window managers refuse
  /// the same wish from an ordinary program as focus stealing, and for a window on another
  /// workspace from a pager too, so that the workspace is switched first. A minimised window comes
  /// back.
  void activate(xcb_window_t window) const;

  /// Ends the hold that a pressed hotkey has on the keyboard. Keys pressed afterwards by anyone
  /// reach the window in front. False when another program holds the keyboard, such as an open menu
  /// or a locked screen: they reach that.
  [[nodiscard]] bool releaseKeyboard() const;

 private:
  /// A message to the window manager.
  struct Wish {
    const char* name;
    std::uint32_t first;
    std::uint32_t second;
  };
  void ask(xcb_window_t window, const Wish& wish) const;

  [[nodiscard]] xcb_window_t inputFocus() const;
  [[nodiscard]] bool isOfSameProgram(xcb_window_t one, xcb_window_t other) const;
  [[nodiscard]] bool isOwn(xcb_window_t window) const;
  [[nodiscard]] bool isInside(xcb_window_t inner, xcb_window_t outer) const;
  [[nodiscard]] bool isOnOtherWorkspace(xcb_window_t window) const;
  [[nodiscard]] bool isForWriting(xcb_window_t window) const;
  [[nodiscard]] std::vector<std::uint32_t> numbers(xcb_window_t window, const char* name,
                                                   xcb_atom_t type) const;
  [[nodiscard]] xcb_atom_t atom(const char* name) const;
  [[nodiscard]] std::string property(xcb_window_t window, const char* name, xcb_atom_t type) const;
  [[nodiscard]] std::optional<std::uint32_t> number(xcb_window_t window, const char* name,
                                                    xcb_atom_t type) const;

  mutable std::map<std::string, xcb_atom_t, std::less<>> atoms_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
};

}  // namespace quillseal::linux
