#include "Quillseal/ClipboardManager.h"

#include <optional>
#include <string>
#include <string_view>

#include "core/tasks/Async.h"

namespace quillseal::ClipboardManager {
namespace {

bool isTerminal(const desktop::RunningApplication& application) {
  return application.categories.find("TerminalEmulator") != std::string::npos;
}

Placement placementOf(desktop::Delivery delivery) {
  switch (delivery) {
    case desktop::Delivery::delivered:
      return Placement::pasted;
    case desktop::Delivery::documentChanged:
      return Placement::documentChanged;
    case desktop::Delivery::targetClosed:
      return Placement::sourceClosed;
    case desktop::Delivery::declined:
      break;
  }
  return Placement::sourceNotInFront;
}

std::string_view reasonOf(Placement placement) {
  switch (placement) {
    case Placement::sourceNotInFront:
      return "something else is in front of the source";
    case Placement::documentChanged:
      return "the source shows another document";
    case Placement::sourceClosed:
      return "the source has been closed";
    case Placement::sourceUnknown:
      return "the source is not known";
    case Placement::terminal:
      return "the source is a terminal";
    default:
      return "source app is the signing browser";
  }
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

}  // namespace

Task<Placement> injectSignedContent(Services services, Injection injection,
                                    const CapturedContent& content) {
  const SignedBlock::Fields fields{.signatureId = injection.signatureId,
                                   .text = content.plainText,
                                   .html = content.htmlContent,
                                   .issued = injection.issuedDate,
                                   .scope = injection.scope,
                                   .server = injection.server};
  services.pasteboard.write(
      {.plainText = SignedBlock::plainText(fields), .html = SignedBlock::htmlDocument(fields)});
  Placement placement = Placement::leftAsAsked;
  std::optional<std::string> obstacle;
  if (injection.autoPaste == AutoPaste::yes) {
    try {
      placement = co_await paste(services, content.sourceApplication);
    } catch (const Error& error) {
      obstacle = error.what();
    }
  }
  if (!obstacle) {
    if (placement != Placement::pasted)
      services.log.write("[inject] signed block left on the clipboard; " +
                         std::string(reasonOf(placement)));
    co_return placement;
  }
  throw Error(
      {.domain = "Quillseal",
       .code = 0,
       .description = "The text is signed and the signed block is on your clipboard, but it "
                      "could not be pasted. Paste it yourself. (" +
                      *obstacle + ")"});
}

}  // namespace quillseal::ClipboardManager
