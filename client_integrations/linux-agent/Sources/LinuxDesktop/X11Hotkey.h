#pragma once

#include <QAbstractNativeEventFilter>
#include <string>

#include "Desktop/Hotkey.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/X11Keyboard.h"

namespace quillseal {

/// The global hotkey by a passive grab of the key on the root window.
class X11Hotkey : public desktop::Hotkey, private QAbstractNativeEventFilter {
 public:
  /// `keyboard` is null where there is no usable X server; `obstacle` then tells why.
  X11Hotkey(desktop::MainLoop& loop, X11Keyboard* keyboard, std::string obstacle);
  ~X11Hotkey() override;

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
  [[nodiscard]] bool grab();
  void awaitRelease();

  desktop::MainLoop& loop_;
  X11Keyboard* keyboard_;
  std::string obstacle_;
  desktop::KeyPress combination_{};
  std::function<void()> pressed_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  xcb_keycode_t key_ = 0;
  bool down_ = false;
  xcb_timestamp_t lastRelease_ = 0;
  xcb_timestamp_t lastPress_ = 0;
  desktop::Ticket releasePolling_;
};

}  // namespace quillseal
