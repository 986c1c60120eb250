#include "Quillseal/ClipboardManager.h"

#include <chrono>

#include "Quillseal/Async.h"

namespace quillseal::ClipboardManager {
namespace {

constexpr std::chrono::milliseconds activationTime{350};

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
  const auto& source = content.sourceApplication;
  if (source && !services.applications.isActive(*source)) {
    services.applications.activate(*source);
    co_await sleep(services.loop, activationTime);
  }
  const desktop::KeyPress paste{.key = desktop::Key::v, .modifiers = desktop::Modifiers::command};
  co_await AccessibilityManager::press(services.keys, paste);
}

}  // namespace quillseal::ClipboardManager
