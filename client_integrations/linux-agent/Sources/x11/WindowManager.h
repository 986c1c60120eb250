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

/// The windows of the X session, through the conventions of the EWMH. Uses Qt's own connection;
/// main thread only. Without an X server it finds nothing.
class WindowManager {
 public:
  WindowManager();

  /// Returns the focused window according to the window manager; 0 when it names none.
  [[nodiscard]] xcb_window_t activeWindow() const;

  /// Returns whether the window manager reports the active window at all.
  [[nodiscard]] bool namesActiveWindow() const;

  /// Returns whether a key pressed now would go to the window. Both the window manager and the X
  /// server must say so: while windows are switched, the server is ahead.
  [[nodiscard]] bool hasKeyboard(xcb_window_t window) const;

  /// Returns the focused window. When it belongs to this process: the topmost window of another
  /// that is visible and takes text. 0 when there is none.
  [[nodiscard]] xcb_window_t topForeignWindow() const;

  /// Returns the `documentName` of the window.
  [[nodiscard]] std::string documentOf(xcb_window_t window) const;

  /// Returns the process that claims the window; 0 when none does.
  [[nodiscard]] std::uint32_t processOf(xcb_window_t window) const;

  [[nodiscard]] WindowTraits traitsOf(xcb_window_t window) const;

  /// Returns whether the window's program owns the primary selection.
  [[nodiscard]] bool hasPrimarySelection(xcb_window_t window) const;

  /// Returns the window that owns the clipboard; 0 when nobody does.
  [[nodiscard]] xcb_window_t clipboardOwner() const;

  [[nodiscard]] bool exists(xcb_window_t window) const;

  /// Asks for the window to be raised and focused, as a pager would: window managers refuse that
  /// from an ordinary program as focus stealing. They refuse it even from a pager for a window on
  /// another workspace, so the workspace is switched first. A minimised window is restored.
  void activate(xcb_window_t window) const;

  /// Ends the keyboard grab of a pressed hotkey, so that later keys reach the focused window. False
  /// when another program has grabbed the keyboard, such as an open menu or the screen lock, which
  /// then gets the keys.
  [[nodiscard]] bool releaseKeyboard() const;

 private:
  /// A client message to the window manager.
  struct ClientMessage {
    const char* name;
    std::uint32_t first;
    std::uint32_t second;
  };
  void send(xcb_window_t window, const ClientMessage& content) const;

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
