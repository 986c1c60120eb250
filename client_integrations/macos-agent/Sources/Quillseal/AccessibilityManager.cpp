#include "Quillseal/AccessibilityManager.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "Quillseal/Async.h"
#include "Quillseal/UnicodeText.h"

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

/// Ends early when the desktop tells that the clipboard has changed.
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

Task<bool> waitForChange(Services services, std::int64_t changeCount) {
  const auto deadline = services.loop.now() + longestWaitForCopy;
  while (services.loop.now() < deadline) {
    if (services.pasteboard.changeCount() != changeCount) co_return true;
    co_await pollingPause(services);
  }
  co_return false;
}

Task<> fetch(desktop::Pasteboard& pasteboard) {
  co_await completionOf<void>([&pasteboard](std::function<void()> fetched) {
    return pasteboard.fetch(std::move(fetched));
  });
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
        return keys.press(press, target, std::move(done));
      });
  co_return delivery;
}

Task<std::optional<Captured>> copySelection(Services services) {
  desktop::Pasteboard& pasteboard = services.pasteboard;
  const std::int64_t changeCount = pasteboard.changeCount();
  co_await press(services.keys, {.key = Key::c, .modifiers = Modifiers::command}, std::nullopt);
  const bool hasChanged = co_await waitForChange(services, changeCount);
  if (!hasChanged) co_return std::nullopt;
  co_await sleep(services.loop, settleTime);

  co_await fetch(pasteboard);
  if (pasteboard.isConcealed()) co_return std::nullopt;
  std::optional<std::string> text = wellFormed(pasteboard.plainText());
  if (!text || unicode::trimmed(*text).empty()) co_return std::nullopt;
  co_return Captured{.plainText = *std::move(text),
                     .html = wellFormed(pasteboard.html()),
                     .rtf = pasteboard.rtf()};
}

Task<std::optional<CapturedContent>> captureSelectedContent(Services services) {
  if (!services.keys.isTrusted()) {
    if (!services.keys.isTrusted()) services.keys.askForTrust();
    services.log.write("[capture] Accessibility permission not granted");
    co_return std::nullopt;
  }
  // Taken before anything is pressed: the application in which the text was selected.
  std::optional<desktop::RunningApplication> source = frontApplication(services.applications);
  SigningScope::AppScope detected = detectAppScope(source);

  const std::int64_t changeCount = services.pasteboard.changeCount();
  std::optional<Captured> captured = co_await copySelection(services);
  // Whoever selected a secret did not mean to sign the whole document instead.
  if (services.pasteboard.changeCount() != changeCount) {
    co_await fetch(services.pasteboard);
    if (services.pasteboard.isConcealed()) co_return std::nullopt;
  }
  if (!captured) {
    services.log.write("[capture] no selection; selecting all");
    co_await press(services.keys, {.key = Key::a, .modifiers = Modifiers::command}, std::nullopt);
    co_await sleep(services.loop, pauseAfterSelectAll);
    captured = co_await copySelection(services);
  }
  if (!captured) {
    const std::string obstacle = services.keys.obstacle();
    if (!obstacle.empty()) services.log.write("[capture] key presses are held up: " + obstacle);
    co_return std::nullopt;
  }
  co_return CapturedContent{.plainText = std::move(captured->plainText),
                            .htmlContent = std::move(captured->html),
                            .rtfData = std::move(captured->rtf),
                            .sourceApp = std::move(detected.app),
                            .scope = std::move(detected.scope),
                            .sourceApplication = std::move(source)};
}

}  // namespace quillseal::AccessibilityManager
