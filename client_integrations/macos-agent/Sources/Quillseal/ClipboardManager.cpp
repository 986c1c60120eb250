#include "Quillseal/ClipboardManager.h"

#include <chrono>
#include <optional>
#include <string>

#include "Quillseal/Async.h"

namespace quillseal::ClipboardManager {
namespace {

constexpr std::chrono::milliseconds activationTime{350};

Task<> paste(Services services, const std::optional<desktop::RunningApplication>& source) {
  if (source && !services.applications.isActive(*source)) {
    services.applications.activate(*source);
    co_await sleep(services.loop, activationTime);
  }
  const desktop::KeyPress press{.key = desktop::Key::v, .modifiers = desktop::Modifiers::command};
  co_await AccessibilityManager::press(services.keys, press, std::nullopt);
}

}  // namespace

Task<> injectSignedContent(Services services, Injection injection, const CapturedContent& content) {
  const SignedBlock::Fields fields{.signatureId = injection.signatureId,
                                   .text = content.plainText,
                                   .html = content.htmlContent,
                                   .issued = injection.issuedDate,
                                   .scope = injection.scope,
                                   .server = injection.server};
  services.pasteboard.write(
      {.plainText = SignedBlock::plainText(fields), .html = SignedBlock::htmlDocument(fields)});
  if (injection.autoPaste == AutoPaste::no) {
    services.log.write(
        "[inject] signed block left on the clipboard; source app is the signing browser");
    co_return;
  }
  std::string obstacle;
  try {
    co_await paste(services, content.sourceApplication);
    co_return;
  } catch (const Error& error) {
    obstacle = error.what();
  }
  throw Error(
      {.domain = "Quillseal",
       .code = 0,
       .description = "The text is signed and the signed block is on your clipboard, but it "
                      "could not be pasted. Paste it yourself. (" +
                      obstacle + ")"});
}

}  // namespace quillseal::ClipboardManager
