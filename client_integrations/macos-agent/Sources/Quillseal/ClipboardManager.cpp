#include "Quillseal/ClipboardManager.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/tasks/Async.h"

namespace quillseal::ClipboardManager {
namespace {

using namespace std::chrono_literals;

constexpr auto longestWaitForClipboard = 1000ms;
constexpr auto pollingInterval = 10ms;

bool isTerminal(const desktop::RunningApplication& application) {
  return application.categories.find("TerminalEmulator") != std::string::npos;
}

Placement placementOf(desktop::Delivery delivery) {
  switch (delivery) {
    case desktop::Delivery::delivered:
      return Placement::pasted;
    case desktop::Delivery::keyboardTaken:
      return Placement::keyboardTaken;
    case desktop::Delivery::keysHeld:
      return Placement::keysHeld;
    case desktop::Delivery::notAllowed:
      return Placement::notAllowed;
    case desktop::Delivery::notWritten:
      return Placement::notOnClipboard;
    case desktop::Delivery::documentChanged:
      return Placement::documentChanged;
    case desktop::Delivery::targetClosed:
      return Placement::sourceClosed;
    case desktop::Delivery::targetUnknown:
      return Placement::maybeTerminal;
    case desktop::Delivery::declined:
      break;
  }
  return Placement::sourceNotInFront;
}

std::string_view reasonOf(Placement placement) {
  switch (placement) {
    case Placement::sourceNotInFront:
      return "something else is in front of the source";
    case Placement::keyboardTaken:
      return "something else has the keyboard";
    case Placement::keysHeld:
      return "the keys of the hotkey are held";
    case Placement::notAllowed:
      return "the desktop lets no key be pressed";
    case Placement::leftLate:
      return "the clipboard took it late";
    case Placement::documentChanged:
      return "the source shows another document";
    case Placement::sourceClosed:
      return "the source has been closed";
    case Placement::sourceUnknown:
      return "the source is not known";
    case Placement::terminal:
      return "the source is a terminal";
    case Placement::maybeTerminal:
      return "the source may be a terminal";
    default:
      return "source app is the signing browser";
  }
}

/// Whether the desktop takes what was written.
Task<bool> isTaken(Services services) {
  const auto end = services.loop.now() + longestWaitForClipboard;
  while (services.loop.now() < end) {
    if (services.pasteboard.isWritten()) co_return true;
    co_await sleep(services.loop, pollingInterval);
  }
  co_return services.pasteboard.isWritten();
}

Placement placementWithoutPaste(AutoPaste autoPaste,
                                const std::optional<desktop::RunningApplication>& source) {
  if (autoPaste == AutoPaste::no) return Placement::leftAsAsked;
  if (!source) return Placement::sourceUnknown;
  return isTerminal(*source) ? Placement::terminal : Placement::leftLate;
}

Task<Placement> paste(Services services, const std::optional<desktop::RunningApplication>& source) {
  // The block has always more than one line.
  if (source && isTerminal(*source)) co_return Placement::terminal;
  if (source && !services.applications.isActive(*source)) {
    services.applications.activate(*source);
    co_await sleep(services.loop, AccessibilityManager::activationTime);
  }
  const desktop::KeyPress press{.key = desktop::Key::v, .modifiers = desktop::Modifiers::command};
  const desktop::Delivery delivery =
      co_await AccessibilityManager::press(services.keys, press, source);
  if (!source && delivery == desktop::Delivery::declined) co_return Placement::sourceUnknown;
  co_return placementOf(delivery);
}

Injected notOnClipboard(const Services& services, std::string cause) {
  services.log.write("[inject] the clipboard did not take the signed block" +
                     (cause.empty() ? std::string() : ": " + cause));
  return {.placement = Placement::notOnClipboard, .cause = std::move(cause)};
}

}  // namespace

Task<Injected> injectSignedContent(Services services, Injection injection,
                                   const CapturedContent& content) {
  const SignedBlock::Fields fields{.signatureId = injection.signatureId,
                                   .text = content.plainText,
                                   .html = content.htmlContent,
                                   .issued = injection.issuedDate,
                                   .scope = injection.scope,
                                   .server = injection.server};
  try {
    services.pasteboard.write(
        {.plainText = SignedBlock::plainText(fields), .html = SignedBlock::htmlDocument(fields)});
  } catch (const Error& error) {
    co_return notOnClipboard(services, error.what());
  }
  const bool isOnClipboard = co_await isTaken(services);
  if (!isOnClipboard) co_return notOnClipboard(services, {});
  Placement placement = placementWithoutPaste(injection.autoPaste, content.sourceApplication);
  std::optional<std::string> obstacle;
  if (injection.autoPaste == AutoPaste::yes) {
    try {
      placement = co_await paste(services, content.sourceApplication);
    } catch (const Error& error) {
      obstacle = error.what();
    }
  }
  if (!obstacle) {
    if (placement == Placement::notOnClipboard) co_return notOnClipboard(services, {});
    if (placement != Placement::pasted)
      services.log.write("[inject] signed block left on the clipboard; " +
                         std::string(reasonOf(placement)));
    co_return Injected{.placement = placement, .cause = {}};
  }
  throw Error(
      {.domain = "Quillseal",
       .code = 0,
       .description = "The text is signed and the signed block is on your clipboard, but it "
                      "could not be pasted. Paste it yourself. (" +
                      *obstacle + ")"});
}

}  // namespace quillseal::ClipboardManager
