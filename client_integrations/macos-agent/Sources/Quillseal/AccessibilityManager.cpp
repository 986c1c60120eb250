#include "Quillseal/AccessibilityManager.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "core/tasks/Async.h"
#include "core/text/UnicodeText.h"

namespace quillseal::AccessibilityManager {
namespace {

using namespace std::chrono_literals;
using desktop::Key;
using desktop::Modifiers;

constexpr auto longestWaitForCopy = 1200ms;
constexpr auto pollingInterval = 30ms;
/// Sources write one flavour after the other; the change is seen with the first.
constexpr auto settleTime = 80ms;
constexpr auto pauseAfterSelectAll = 250ms;
/// What another program has copied can be read a moment before the desktop reports the change.
constexpr auto reportingTime = 80ms;

std::optional<std::string> wellFormed(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  return unicode::wellFormed(*text);
}

std::optional<desktop::RunningApplication> frontApplication(
    const desktop::Applications& applications) {
  std::optional<desktop::RunningApplication> front = applications.frontmost();
  if (front) {
    front->name = wellFormed(front->name);
    front->bundleIdentifier = wellFormed(front->bundleIdentifier);
  }
  return front;
}

/// Ends early when the desktop reports a change of the clipboard.
Task<> pollingPause(Services services) {
  co_await completionOf<void>([&services](const std::function<void()>& done) {
    const auto watch = std::make_shared<desktop::Ticket>(services.pasteboard.onNextChange(done));
    const auto timer =
        std::make_shared<desktop::Ticket>(services.loop.after(pollingInterval, done));
    return desktop::Ticket([watch, timer] {
      *watch = {};
      *timer = {};
    });
  });
}

// Counts polls, not time: a process that was stopped for seconds has polled nothing meanwhile, and
// learns of what was copied then only when it runs again.
Task<bool> waitForChange(Services services, std::int64_t changeCount) {
  for (auto looks = longestWaitForCopy / pollingInterval; looks > 0; --looks) {
    if (services.pasteboard.changeCount() != changeCount) co_return true;
    co_await pollingPause(services);
  }
  co_return services.pasteboard.changeCount() != changeCount;
}

/// The application in which the text is selected, brought to the front if possible.
Task<std::optional<desktop::RunningApplication>> sourceInFront(Services services) {
  std::optional<desktop::RunningApplication> source = frontApplication(services.applications);
  if (source && services.applications.isActive(*source)) co_return source;
  // A window of ours is in front, or has just closed, when nothing is in front for a moment.
  if (source) services.applications.activate(*source);
  co_await sleep(services.loop, activationTime);
  std::optional<desktop::RunningApplication> front = frontApplication(services.applications);
  // Asked again, since the desktop knows more about an application that has the keyboard.
  if (!source || (front && front->instance == source->instance)) co_return front;
  co_return source;
}

CopyOutcome outcomeOf(desktop::Delivery failure) {
  switch (failure) {
    case desktop::Delivery::keyboardTaken:
      return CopyOutcome::keyboardTaken;
    case desktop::Delivery::keysHeld:
      return CopyOutcome::keysHeld;
    case desktop::Delivery::notAllowed:
      return CopyOutcome::notAllowed;
    case desktop::Delivery::documentChanged:
      return CopyOutcome::documentChanged;
    case desktop::Delivery::targetClosed:
      return CopyOutcome::sourceClosed;
    default:
      return CopyOutcome::declined;
  }
}

/// The RTF of the copy with that change count.
Task<std::optional<std::string>> rtfOf(desktop::MainLoop& loop, desktop::Pasteboard& pasteboard,
                                       std::int64_t changeCount) {
  if (pasteboard.changeCount() != changeCount) co_return std::nullopt;
  std::optional<std::string> rtf = co_await completionOf<std::optional<std::string>>(
      [&pasteboard](std::function<void(std::optional<std::string>)> done) {
        return pasteboard.fetchRtf(std::move(done));
      });
  co_await sleep(loop, reportingTime);
  if (pasteboard.changeCount() != changeCount) co_return std::nullopt;
  co_return rtf;
}

Copy failed(CopyOutcome outcome) {
  Copy copy;
  copy.outcome = outcome;
  return copy;
}

}  // namespace

SigningScope::AppScope detectAppScope(
    const std::optional<desktop::RunningApplication>& application) {
  if (!application) return SigningScope::detectAppScope({.name = {}, .bundleIdentifier = {}});
  std::string identifier = application->bundleIdentifier.value_or("");
  identifier.append(" ").append(application->categories);
  return SigningScope::detectAppScope({.name = application->name, .bundleIdentifier = identifier});
}

Task<desktop::Delivery> press(desktop::KeyEvents& keys, desktop::KeyPress press,
                              const std::optional<desktop::RunningApplication>& target) {
  const auto delivery = co_await completionOf<desktop::Delivery>(
      [&keys, press, &target](std::function<void(desktop::Delivery)> done) {
        return keys.press(press, target, {}, std::move(done));
      });
  co_return delivery;
}

Task<Copy> copySelection(Services services,
                         const std::optional<desktop::RunningApplication>& source) {
  desktop::Pasteboard& pasteboard = services.pasteboard;
  // Read again when the keys are pressed: changes while the press waits for the release of the
  // hotkey are not copies of the selection.
  std::int64_t changeCount = pasteboard.changeCount();
  const auto delivery = co_await completionOf<desktop::Delivery>(
      [&services, &source, &changeCount](std::function<void(desktop::Delivery)> done) {
        return services.keys.press(
            {.key = Key::c, .modifiers = Modifiers::command}, source,
            [&services, &changeCount] { changeCount = services.pasteboard.changeCount(); },
            std::move(done));
      });
  if (delivery != desktop::Delivery::delivered) co_return failed(outcomeOf(delivery));
  const bool hasChanged = co_await waitForChange(services, changeCount);
  if (!hasChanged) co_return failed(CopyOutcome::unchanged);
  co_await sleep(services.loop, settleTime);

  co_await completionOf<void>([&pasteboard](std::function<void()> fetched) {
    return pasteboard.fetch(std::move(fetched));
  });
  changeCount = pasteboard.changeCount();
  if (pasteboard.isConcealed()) co_return failed(CopyOutcome::secret);
  std::optional<std::string> text = wellFormed(pasteboard.plainText());
  // A copy that may not be read does not mean that nothing was selected.
  if (!text && !pasteboard.readingObstacle().empty()) co_return failed(CopyOutcome::unreadable);
  if (!text || unicode::trimmed(*text).empty()) co_return failed(CopyOutcome::noText);
  co_return Copy{.outcome = CopyOutcome::copied,
                 .plainText = *std::move(text),
                 .html = wellFormed(pasteboard.html()),
                 .rtf = [&loop = services.loop, &pasteboard, changeCount] {
                   return rtfOf(loop, pasteboard, changeCount);
                 }};
}

Task<Capture> captureSelectedContent(Services services) {
  if (!services.keys.isTrusted()) {
    // Asked again, since the person may just have granted it.
    if (!services.keys.isTrusted()) services.keys.askForTrust();
    services.log.write("[capture] Accessibility permission not granted");
    co_return Capture{};
  }
  const std::optional<desktop::RunningApplication> source = co_await sourceInFront(services);
  Copy copy = co_await copySelection(services, source);
  // A person who selected a secret, or a text that this program may not read, did not mean to sign
  // the whole document instead.
  if (copy.outcome == CopyOutcome::unchanged || copy.outcome == CopyOutcome::noText) {
    services.log.write("[capture] no selection; selecting all");
    const desktop::KeyPress selectAll{.key = Key::a, .modifiers = Modifiers::command};
    const desktop::Delivery delivery = co_await press(services.keys, selectAll, source);
    if (delivery != desktop::Delivery::delivered) {
      copy = failed(outcomeOf(delivery));
    } else {
      co_await sleep(services.loop, pauseAfterSelectAll);
      copy = co_await copySelection(services, source);
    }
  }
  // Declined because no application was in front.
  if (!source && copy.outcome == CopyOutcome::declined) copy.outcome = CopyOutcome::unchanged;
  Capture capture;
  capture.outcome = copy.outcome;
  if (copy.outcome == CopyOutcome::copied) {
    SigningScope::AppScope detected = detectAppScope(source);
    capture.content = CapturedContent{.plainText = std::move(copy.plainText),
                                      .htmlContent = std::move(copy.html),
                                      .rtfData = std::move(copy.rtf),
                                      .sourceApp = std::move(detected.app),
                                      .scope = std::move(detected.scope),
                                      .sourceApplication = source};
    co_return capture;
  }
  const std::string obstacle = services.keys.obstacle();
  if (!obstacle.empty()) services.log.write("[capture] key presses are held up: " + obstacle);
  const std::string lock = services.pasteboard.readingObstacle();
  if (!lock.empty()) services.log.write("[capture] the clipboard may not be readable: " + lock);
  co_return capture;
}

}  // namespace quillseal::AccessibilityManager
