#pragma once

#include <QAbstractNativeEventFilter>
#include <optional>
#include <string>

#include "desktop/Hotkey.h"
#include "desktop/MainLoop.h"
#include "x11/X11Keyboard.h"

namespace quillseal::linux {

/// The global hotkey, as a passive key grab on the root window.
class X11Hotkey : public desktop::Hotkey, private QAbstractNativeEventFilter {
 public:
  /// `keyboard` is null where there is no usable X server; `obstacle` then says why.
  X11Hotkey(desktop::MainLoop& loop, X11Keyboard* keyboard, std::string obstacle);
  ~X11Hotkey() override;

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
  /// The key code and modifiers (XCB_MOD_MASK_…) of the hotkey.
  struct Place {
    xcb_keycode_t key = 0;
    unsigned modifiers = 0;
    unsigned numLock = 0;
    [[nodiscard]] bool operator==(const Place&) const = default;
  };

  /// Nothing while the layout cannot be read.
  [[nodiscard]] std::optional<Place> place() const;
  [[nodiscard]] bool grab(const Place& place);
  void followLayout();
  void awaitRelease();

  desktop::MainLoop& loop_;
  X11Keyboard* keyboard_;
  std::string obstacle_;
  desktop::KeyPress combination_{};
  std::function<void()> pressed_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  Place place_;
  bool isGrabbed_ = false;
  bool down_ = false;
  xcb_timestamp_t lastRelease_ = 0;
  xcb_timestamp_t lastPress_ = 0;
  desktop::Ticket releasePolling_;
  desktop::Ticket following_;
};

}  // namespace quillseal::linux
