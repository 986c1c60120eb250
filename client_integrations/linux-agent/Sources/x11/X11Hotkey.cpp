#include "x11/X11Hotkey.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "core/text/Error.h"
#include "keyboard/HeldHotkey.h"
#include "keyboard/KeyChords.h"
#include "x11/XcbHandles.h"

namespace quillseal::linux {
namespace {

// Subtypes of XKEYBOARD events, stored where other events have padding.
constexpr std::uint8_t newKeyboardNotify = 0;
constexpr std::uint8_t mapNotify = 1;

/// Shorter than any release between two presses.
constexpr std::chrono::milliseconds releasePolling{40};
/// Layout changes come in bursts, and one comes whenever the typing keyboard changes: every
/// signature causes some, since the agent's presses come from a virtual one.
constexpr std::chrono::milliseconds layoutSettles{150};

}  // namespace

X11Hotkey::X11Hotkey(Services services)
    : ClaimedHotkey(std::move(services.notify)),
      loop_(services.loop),
      keyboard_(services.keyboard),
      obstacle_(std::move(services.obstacle)) {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (keyboard_ == nullptr || x11 == nullptr) return;
  connection_ = x11->connection();
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
}

X11Hotkey::~X11Hotkey() {
  QCoreApplication::instance()->removeNativeEventFilter(this);
}

void X11Hotkey::claim() {
  if (connection_ == nullptr)
    throw Error({.domain = "X11Hotkey", .code = 1, .description = obstacle_});
  QCoreApplication::instance()->installNativeEventFilter(this);
  if (const auto wanted = wantedGrab()) isGrabbed_ = grab(*wanted);
  if (!isGrabbed_)
    throw Error(
        {.domain = "X11Hotkey",
         .code = 2,
         .description = "Another program already uses " + nameOf(combination()) +
                        ". Free it there and turn on the hotkey in the settings of Quillseal, or "
                        "bind the command "
                        "“quillseal --sign” to another shortcut in the keyboard settings of "
                        "your desktop. The menu item works in any case."});
  setState({});
}

std::optional<X11Hotkey::Grab> X11Hotkey::wantedGrab() const {
  const X11Keyboard::Layout layout = keyboard_->layout();
  std::vector<Keysym> chord = chordOf(combination());
  Grab wanted{.key = layout.keyFor(chord.back()),
              .modifiers = 0,
              .numLock = layout.modifierMaskOf(XKB_KEY_Num_Lock)};
  chord.pop_back();
  bool isKnown = wanted.key != 0;
  for (const Keysym modifier : chord) {
    const unsigned mask = layout.modifierMaskOf(modifier);
    wanted.modifiers |= mask;
    isKnown = isKnown && mask != 0;
  }
  // Without the modifiers, every program would lose the bare key.
  return isKnown ? std::optional(wanted) : std::nullopt;
}

bool X11Hotkey::grab(const Grab& wanted) {
  if (grab_.key != 0) xcb_ungrab_key(connection_, grab_.key, root_, XCB_MOD_MASK_ANY);
  grab_ = wanted;
  const unsigned lock = XCB_MOD_MASK_LOCK;
  bool granted = true;
  for (const unsigned ignored : {0U, lock, wanted.numLock, lock | wanted.numLock}) {
    const auto cookie = xcb_grab_key_checked(connection_, 1, root_,
                                             static_cast<std::uint16_t>(wanted.modifiers | ignored),
                                             wanted.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const x11::Reply<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
    granted = granted && error == nullptr;
  }
  if (!granted) {
    xcb_ungrab_key(connection_, wanted.key, root_, XCB_MOD_MASK_ANY);
    xcb_flush(connection_);
  }
  return granted;
}

void X11Hotkey::awaitRelease() {
  releasePolling_ = loop_.after(releasePolling, [this] {
    const std::vector<xcb_keycode_t> held = keyboard_->heldKeys(grab_.key);
    down_ = down_ && std::ranges::find(held, grab_.key) != held.end();
    if (down_) awaitRelease();
  });
}

void X11Hotkey::followLayout() {
  following_ = loop_.after(layoutSettles, [this] {
    const std::optional<Grab> now = wantedGrab();
    if (now && (*now != grab_ || !isGrabbed_)) isGrabbed_ = grab(*now);
    setState({.otherKeys = {}, .isOff = !isGrabbed_});
  });
}

bool X11Hotkey::nativeEventFilter(const QByteArray& /*eventType*/, void* message,
                                  qintptr* /*result*/) {
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  const std::uint8_t type = event->response_type & 0x7FU;
  if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
    // Press and release events have the same layout.
    const auto* key = reinterpret_cast<const xcb_key_press_event_t*>(event);
    if (key->detail != grab_.key || key->event != root_) return false;
    if (type == XCB_KEY_RELEASE) {
      down_ = false;
      lastRelease_ = key->time;
    } else {
      // A held key repeats as presses alone, or as releases and presses with the same time. The
      // final release is lost when a run releases the grab while the key is held. So the server is
      // polled until the key is up, and a key that has not repeated for long counts as released.
      const bool repeated = key->time == lastRelease_ ||
                            (down_ && key->time - lastPress_ < longestRepeatDelay.count());
      down_ = true;
      lastPress_ = key->time;
      if (!repeated) {
        loop_.post(pressed());
        awaitRelease();
      }
    }
    return true;
  }
  // The layout has changed, so the hotkey may be on another key.
  const bool newLayout = type == XCB_MAPPING_NOTIFY ||
                         (type == keyboard_->xkbEventType() &&
                          (event->pad0 == newKeyboardNotify || event->pad0 == mapNotify));
  if (newLayout) followLayout();
  return false;
}

}  // namespace quillseal::linux
