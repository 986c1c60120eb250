#include "portal/PortalKeyEvents.h"

#include <chrono>
#include <string_view>
#include <utility>
#include <vector>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "applications/WindowDocument.h"
#include "core/tasks/Async.h"
#include "keyboard/KeyChords.h"
#include "portal/TaskTicket.h"

namespace quillseal::linux {
namespace {

using namespace std::chrono_literals;
using desktop::Delivery;
using desktop::Key;

constexpr auto polling = 8ms;
// A session that takes longer to open has asked the user, who may be elsewhere by then.
constexpr auto longestUnasked = 3s;
// A new session reports the clipboard as it is, which must not pass for a copy.
constexpr auto firstReport = 100ms;
// Windows need time to come to the front, and web pages to restore their title.
constexpr auto targetTimeout = 1000ms;
// People need longer to let go of four keys than of one.
constexpr auto releaseTimeout = 1400ms;
// The portal hands the selection on to the compositor, and that to programs.
constexpr auto clipboardPropagation = 100ms;

/// Ctrl+Insert and Shift+Insert mean the same in every layout.
std::vector<Keysym> chordIn(desktop::KeyPress press,
                            const std::optional<desktop::RunningApplication>& target) {
  std::vector<Keysym> chord = chordFor(
      press, {.categories = target ? std::string_view(target->categories) : "", .windowClass = {}});
  if (chord != chordOf(press)) return chord;  // in a terminal
  if (press.key == Key::c) return {XKB_KEY_Control_L, XKB_KEY_Insert};
  if (press.key == Key::v) return {XKB_KEY_Shift_L, XKB_KEY_Insert};
  return chord;
}

}  // namespace

bool PortalKeyEvents::isTrusted() const {
  return services_.remote.isOpen() || services_.remote.mayOpenUnasked();
}

void PortalKeyEvents::askForTrust() {
  asking_ = services_.remote.open([this](bool isOpen) {
    if (!isOpen) return services_.showLimits();
    services_.notify("Quillseal may now press keys. Select your text and sign again.");
  });
}

desktop::Ticket PortalKeyEvents::press(desktop::KeyPress press,
                                       const std::optional<desktop::RunningApplication>& target,
                                       std::function<void()> aboutToPress,
                                       std::function<void(Delivery)> done) {
  Request request{.press = press, .target = target, .aboutToPress = std::move(aboutToPress)};
  return runTask<Delivery>(services_.loop, deliverOrShowLimits(std::move(request)),
                           std::move(done));
}

Task<Delivery> PortalKeyEvents::deliverOrShowLimits(Request request) {
  const bool isPaste = request.press.key == Key::v;
  const Delivery delivery = co_await deliver(std::move(request));
  if (delivery == Delivery::notAllowed && !isPaste) services_.showLimits();
  co_return delivery;
}

Task<Delivery> PortalKeyEvents::deliver(Request request) {
  if (!request.target && request.press.key != Key::c) co_return Delivery::declined;
  // A terminal would paste the primary selection with Shift+Insert, and a shell run its lines.
  if (request.press.key == Key::v && request.target->categories.empty())
    co_return Delivery::targetUnknown;
  const Delivery ready = co_await readiness();
  if (ready != Delivery::delivered) co_return ready;
  if (request.press.key == Key::v) co_await sleep(services_.loop, clipboardPropagation);
  const auto end = services_.loop.now() + targetTimeout;
  while (deliveryNow(request) != Delivery::delivered && services_.loop.now() < end)
    co_await sleep(services_.loop, polling);
  const bool isReleased = co_await isHotkeyReleased();
  if (!isReleased) co_return Delivery::keysHeld;
  const Delivery delivery = co_await latestDelivery(request);
  if (delivery != Delivery::delivered) co_return delivery;
  if (request.aboutToPress) request.aboutToPress();
  services_.remote.tap(chordIn(request.press, request.target));
  co_return Delivery::delivered;
}

/// Opens the session that the user allows without being asked, if there is none. Returns why no key
/// can be pressed, if so.
Task<Delivery> PortalKeyEvents::readiness() {
  if (services_.remote.isOpen()) co_return Delivery::delivered;
  const auto start = services_.loop.now();
  const bool isOpen = co_await completionOf<bool>(
      [this](std::function<void(bool)> done) { return services_.remote.open(std::move(done)); });
  if (!isOpen) co_return Delivery::notAllowed;
  if (services_.loop.now() > start + longestUnasked) co_return Delivery::keyboardTaken;
  co_await sleep(services_.loop, firstReport);
  co_return Delivery::delivered;
}

Task<bool> PortalKeyEvents::isHotkeyReleased() {
  const auto end = services_.loop.now() + releaseTimeout;
  while (services_.isHotkeyHeld()) {
    if (services_.loop.now() > end) co_return false;
    co_await sleep(services_.loop, polling);
  }
  co_return true;
}

/// Decides on the latest state of the windows, since the other questions take time.
Task<Delivery> PortalKeyEvents::latestDelivery(const Request& request) {
  if (request.target && services_.isKeyboardTaken()) co_return Delivery::keyboardTaken;
  if (services_.catchUp) {
    co_await completionOf<void>(
        [this](std::function<void()> done) { return services_.catchUp(std::move(done)); });
  }
  co_return deliveryNow(request);
}

/// Returns whether a key pressed now would reach the target.
Delivery PortalKeyEvents::deliveryNow(const Request& request) const {
  if (!services_.remote.isOpen()) return Delivery::notAllowed;
  if (!request.target) return Delivery::delivered;
  if (request.press.key == Key::v && !services_.pasteboard.isWritten()) return Delivery::notWritten;
  const auto front = services_.applications.frontmost();
  if (!front || front->instance != request.target->instance) return Delivery::declined;
  if (!services_.applications.isActive(*request.target)) return Delivery::keyboardTaken;
  if (!isSameDocument(request.target->document, front->document)) return Delivery::documentChanged;
  return Delivery::delivered;
}

}  // namespace quillseal::linux
