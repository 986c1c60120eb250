#include <string>
#include <string_view>

#include "Fuzzer.h"
#include "Quillseal/CryptoManager.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/SignedBlock.h"
#include "core/text/UnicodeText.h"

namespace {

constexpr std::string_view stampLink = "<a href=\"https://seal.example/verify/0a1b\"";

std::size_t count(std::string_view text, std::string_view part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
    ++found;
  return found;
}

std::string block(std::string_view text, std::optional<std::string_view> html,
                  std::string_view identifier = "0a1b") {
  return quillseal::SignedBlock::htmlDocument({.signatureId = identifier,
                                               .text = text,
                                               .html = html,
                                               .issued = "2025-01-30",
                                               .scope = "Document",
                                               .server = "https://seal.example"});
}

}  // namespace

/// Every image source is a non-empty, trimmed part of the HTML. Any capture gives a block that ends
/// with its own stamp. Plain text adds no tags but line breaks. A safe identifier cannot break out
/// of an attribute.
void quillseal::fuzz::check(std::string_view bytes) {
  for (const std::string& url : CryptoManager::imageURLs(bytes))
    require(!url.empty() && bytes.find(url) != std::string_view::npos);
  const std::string captured = unicode::wellFormed(bytes);

  const std::string ofHtml = block("", captured);
  require(ofHtml.rfind(stampLink) > ofHtml.rfind("&#x300F;") && ofHtml.ends_with("</html>"));
  require(unicode::wellFormed(ofHtml) == ofHtml);

  const std::string ofText = block(captured, std::nullopt);
  const std::string empty = block("", std::nullopt);
  require(count(ofText, "<") - count(ofText, "<br>") == count(empty, "<") - count(empty, "<br>"));
  require(count(ofText, stampLink) == 1 && count(ofText, "<!--EndFragment-->") == 1);

  if (SignedBlock::isSafeIdentifier(captured)) {
    require(unicode::isAscii(captured) &&
            captured.find_first_of("\"'`<>\\/?#&% \n") == std::string::npos);
    require(count(block("x", std::nullopt, captured), "<") == count(empty, "<"));
  }
  const HandoffPage::Fragment fragment = HandoffPage::fragmentFor(captured, captured);
  require(HandoffPage::isOpenable("https://seal.example/handoff#" + fragment.text));
}
