#pragma once

#include <QAbstractNativeEventFilter>
#include <optional>
#include <string>

#include "desktop/MainLoop.h"
#include "keyboard/ClaimedHotkey.h"
#include "x11/X11Keyboard.h"

namespace quillseal::linux {

/// The global hotkey, as a passive key grab on the root window.
class X11Hotkey : public ClaimedHotkey, private QAbstractNativeEventFilter {
 public:
  struct Services {
    desktop::MainLoop& loop;
    X11Keyboard* keyboard;  ///< null where there is no usable X server; outlives this object
    std::string obstacle;   ///< says why there is none
    Notify notify;
  };

  explicit X11Hotkey(Services services);
  ~X11Hotkey() override;

 private:
  void claim() override;
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
  /// The key code and modifiers (XCB_MOD_MASK_…) of the hotkey.
  struct Grab {
    xcb_keycode_t key = 0;
    unsigned modifiers = 0;
    unsigned numLock = 0;
    [[nodiscard]] bool operator==(const Grab&) const = default;
  };

  /// The grab for the hotkey in the present layout; nothing while that cannot be read.
  [[nodiscard]] std::optional<Grab> wantedGrab() const;
  [[nodiscard]] bool grab(const Grab& wanted);
  void followLayout();
  void awaitRelease();

  desktop::MainLoop& loop_;
  X11Keyboard* keyboard_;
  std::string obstacle_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  Grab grab_;  ///< the last one that was tried
  bool isGrabbed_ = false;
  bool down_ = false;
  xcb_timestamp_t lastRelease_ = 0;
  xcb_timestamp_t lastPress_ = 0;
  desktop::Ticket releasePolling_;
  desktop::Ticket following_;
};

}  // namespace quillseal::linux
