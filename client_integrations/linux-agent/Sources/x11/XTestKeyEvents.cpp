#include "x11/XTestKeyEvents.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "applications/WindowDocument.h"
#include "desktop/SigningHotkey.h"
#include "keyboard/KeyChords.h"

namespace quillseal::linux {
namespace {

using desktop::Delivery;
using std::chrono::milliseconds;

constexpr milliseconds releaseTimeout{400};
constexpr milliseconds polling{8};
// LibreOffice Writer pastes its own earlier copy when the key comes sooner after the clipboard's
// change.
constexpr milliseconds clipboardPropagation{150};
// Windows need time to come to the front, and web pages to restore their title.
constexpr milliseconds targetTimeout{1000};

}  // namespace

/// One key press. Waits in the main loop, which goes on serving clipboard and hotkey. Lives until
/// its ticket is dropped.
class XTestKeyEvents::Press : public std::enable_shared_from_this<Press> {
 public:
  struct Request {
    desktop::KeyPress press;
    std::optional<desktop::RunningApplication> target;
    std::function<void()> aboutToPress;
    std::function<void(Delivery)> done;
  };

  Press(const Services& services, Request request)
      : services_(services),
        request_(std::move(request)),
        window_(request_.target ? static_cast<xcb_window_t>(request_.target->instance) : 0),
        layout_(services.keyboard->layout()),
        earliest_(services.pasteboard.lastWrite() + clipboardPropagation),
        latest_(std::max(services.loop.now() + releaseTimeout, earliest_)) {}

  void begin() {
    timer_ = services_.loop.after(milliseconds{0}, [this] { step(); });
  }

  void withdraw() {
    request_.done = nullptr;
    timer_ = {};
  }

 private:
  void step() {
    const auto now = services_.loop.now();
    if (now < earliest_) return comeBackAfter(std::chrono::ceil<milliseconds>(earliest_ - now));
    if (now < latest_ && !heldKeys().empty()) return comeBackAfter(polling);
    Delivery delivery = deliveryNow();
    if (delivery == Delivery::delivered) {
      const WindowTraits traits = services_.windows.traitsOf(window_);
      if (copiesBySelecting(traits.windowClass) && request_.press.key == desktop::Key::c)
        return copySelected();
      delivery = press(traits);
    }
    const bool mayBecomeTarget =
        delivery != Delivery::delivered && delivery != Delivery::targetClosed && request_.target;
    if (mayBecomeTarget && now < latest_ + targetTimeout) return comeBackAfter(polling);
    finish(delivery);
  }

  void comeBackAfter(milliseconds delay) {
    timer_ = services_.loop.after(delay, [this] { step(); });
  }

  /// Returns whether a key pressed now would reach the target.
  [[nodiscard]] Delivery deliveryNow() const {
    const WindowManager& windows = services_.windows;
    // There was no active window when the target was determined, so one that is active now is not
    // the target.
    if (!request_.target)
      return windows.namesActiveWindow() ? Delivery::declined : Delivery::delivered;
    if (!windows.exists(window_)) return Delivery::targetClosed;
    if (!windows.hasKeyboard(window_)) return Delivery::declined;
    const bool isSame = isSameDocument(request_.target->document, windows.documentOf(window_));
    return isSame ? Delivery::delivered : Delivery::documentChanged;
  }

  Delivery press(const WindowTraits& traits) {
    const auto entry = services_.entries.forWindow(traits);
    const std::string categories = entry ? entry->categories : std::string();
    std::vector<xcb_keycode_t> keys;
    for (const Keysym symbol :
         chordFor(request_.press, {.categories = categories, .windowClass = traits.windowClass}))
      keys.push_back(layout_.keyFor(symbol));
    if (std::ranges::find(keys, 0) != keys.end()) keys.clear();
    if (!keys.empty()) {
      services_.keyboard->release(heldKeys());
      if (!services_.windows.releaseKeyboard()) return Delivery::keyboardTaken;
    }
    // Time has passed, and the released keys may have switched windows.
    const Delivery delivery = deliveryNow();
    if (delivery == Delivery::delivered) {
      aboutToPress();
      if (!keys.empty()) services_.keyboard->tap(keys);
    }
    return delivery;
  }

  void aboutToPress() const {
    if (request_.aboutToPress) request_.aboutToPress();
  }

  void copySelected() {
    const auto self = shared_from_this();  // `finish` may drop the last reference
    aboutToPress();
    if (!services_.windows.hasPrimarySelection(window_)) return finish(Delivery::delivered);
    timer_ = services_.pasteboard.copyPrimarySelection([this] { finish(Delivery::delivered); });
  }

  [[nodiscard]] std::vector<xcb_keycode_t> heldKeys() const {
    return services_.keyboard->heldKeys(layout_.keyFor(chordOf(desktop::signingHotkey).back()));
  }

  void finish(Delivery delivery) {
    const auto self = shared_from_this();  // the completion may drop the ticket
    if (const auto done = std::exchange(request_.done, nullptr)) done(delivery);
  }

  const Services& services_;
  Request request_;
  xcb_window_t window_;
  X11Keyboard::Layout layout_;
  desktop::MainLoop::TimePoint earliest_;
  desktop::MainLoop::TimePoint latest_;
  desktop::Ticket timer_;  // or the read of the selection
};

XTestKeyEvents::XTestKeyEvents(Services services) : services_(std::move(services)) {}

bool XTestKeyEvents::isTrusted() const {
  return services_.keyboard != nullptr;
}

void XTestKeyEvents::askForTrust() {
  services_.showLimits();
}

desktop::Ticket XTestKeyEvents::press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(Delivery)> done) {
  if (!isTrusted()) {
    done(Delivery::delivered);
    return {};
  }
  // Loads the desktop entries, which decide the keys to press: an exception reaches the caller from
  // here, but not from the main loop.
  static_cast<void>(services_.entries.withId({}));
  const auto pressing =
      std::make_shared<Press>(services_, Press::Request{.press = press,
                                                        .target = target,
                                                        .aboutToPress = std::move(aboutToPress),
                                                        .done = std::move(done)});
  pressing->begin();
  return desktop::Ticket([pressing] { pressing->withdraw(); });
}

}  // namespace quillseal::linux
