#include "wayland/WaylandKeyEvents.h"

#include <chrono>
#include <memory>
#include <utility>
#include <vector>

#include "applications/WindowDocument.h"
#include "keyboard/KeyChords.h"
#include "wayland/WaylandReach.h"

namespace quillseal::linux {
namespace {

using desktop::Delivery;
using std::chrono::milliseconds;

constexpr milliseconds polling{8};
// Windows need time to come to the front, and web pages to restore their title.
constexpr milliseconds targetTimeout{1000};
// For programs under Xwayland, which use the X server's clipboard. Wayland programs are told of a
// new selection before the next key.
constexpr milliseconds clipboardPropagation{40};

}  // namespace

/// One key press. Waits in the main loop, which goes on serving clipboard and hotkey. Lives until
/// its ticket is dropped.
class WaylandKeyEvents::Press : public std::enable_shared_from_this<Press> {
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
        earliest_(services.pasteboard.lastWrite() + clipboardPropagation),
        latest_(std::max(services.loop.now(), earliest_) + targetTimeout) {}

  void begin() {
    const auto now = services_.loop.now();
    const auto delay =
        now < earliest_ ? std::chrono::ceil<milliseconds>(earliest_ - now) : milliseconds{0};
    comeBackAfter(delay);
  }

  void withdraw() {
    request_.done = nullptr;
    waiting_ = {};
  }

 private:
  void comeBackAfter(milliseconds delay) {
    areKeysReleased_ = false;  // the user may hold others by then
    waiting_ = services_.loop.after(delay, [this] {
      services_.keyboard.prepare();
      stepOnLatestState();
    });
  }

  /// Waits until the compositor has sent its latest state.
  void stepOnLatestState() {
    waiting_ = services_.connection.catchUp([this] { step(); });
  }

  void step() {
    const Delivery delivery = deliveryNow();
    const bool mayBecomeTarget = delivery != Delivery::delivered &&
                                 delivery != Delivery::targetClosed &&
                                 delivery != Delivery::notAllowed && request_.target;
    if (mayBecomeTarget && services_.loop.now() < latest_) return comeBackAfter(polling);
    if (delivery == Delivery::delivered) {
      if (!std::exchange(areKeysReleased_, true)) {
        services_.keyboard.releaseHeldKeys();
        return stepOnLatestState();
      }
      press();
    }
    const bool isPaste = request_.press.key == desktop::Key::v;
    if (delivery == Delivery::notAllowed && !isPaste) services_.showLimits();
    finish(delivery);
  }

  /// Returns whether a key pressed now would reach the target.
  [[nodiscard]] Delivery deliveryNow() const {
    if (!services_.connection.isAlive() || !services_.keyboard.isUsable())
      return Delivery::notAllowed;
    if (!request_.target) return Delivery::declined;
    if (request_.press.key == desktop::Key::v && !services_.pasteboard.isWritten())
      return Delivery::notWritten;
    const std::optional<WaylandWindow> window = services_.windows.withId(request_.target->instance);
    if (!window) return Delivery::targetClosed;
    if (!window->isActive)
      return services_.windows.active() ? Delivery::declined : Delivery::keyboardTaken;
    const std::string document = documentName({.title = window->title, .focus = 0});
    if (!isSameDocument(request_.target->document, document)) return Delivery::documentChanged;
    return services_.keyboard.reachesActiveWindow() ? Delivery::delivered : Delivery::keyboardTaken;
  }

  void press() {
    const auto window = services_.windows.withId(request_.target->instance);
    if (!window) return;
    // As found when the target was determined: sway knows more about it than this connection.
    const std::vector<Keysym> chord =
        chordFor(request_.press,
                 {.categories = request_.target->categories, .windowClass = window->applicationId});
    if (request_.aboutToPress) request_.aboutToPress();
    if (!chord.empty())
      services_.keyboard.tap(chord);
    else if (request_.press.key == desktop::Key::c && copiesBySelecting(window->applicationId))
      services_.pasteboard.takePrimarySelectionOf(window->id);
  }

  void finish(Delivery delivery) {
    const auto self = shared_from_this();  // the completion may drop the ticket
    if (const auto done = std::exchange(request_.done, nullptr)) done(delivery);
  }

  const Services& services_;
  Request request_;
  desktop::MainLoop::TimePoint earliest_;
  desktop::MainLoop::TimePoint latest_;
  bool areKeysReleased_ = false;
  desktop::Ticket waiting_;
};

bool WaylandKeyEvents::isTrusted() const {
  return reachesApplications(services_.connection) && services_.keyboard.isUsable();
}

desktop::Ticket WaylandKeyEvents::press(desktop::KeyPress press,
                                        const std::optional<desktop::RunningApplication>& target,
                                        std::function<void()> aboutToPress,
                                        std::function<void(Delivery)> done) {
  const auto pressing =
      std::make_shared<Press>(services_, Press::Request{.press = press,
                                                        .target = target,
                                                        .aboutToPress = std::move(aboutToPress),
                                                        .done = std::move(done)});
  pressing->begin();
  return desktop::Ticket([pressing] { pressing->withdraw(); });
}

}  // namespace quillseal::linux
