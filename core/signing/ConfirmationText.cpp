#include "core/signing/ConfirmationText.h"

#include "core/text/UnicodeText.h"
#include "core/text/Words.h"

namespace quillseal {
namespace {

constexpr std::size_t longestSubject = 48;
constexpr std::size_t longestShownText = 600;

std::string shownText(std::string_view text) {
  const std::size_t characters = unicode::characterCount(text);
  if (characters <= longestShownText) return std::string{text};
  return std::string{unicode::firstCharacters(text, longestShownText)}
      .append("\n\n… (")
      .append(std::to_string(characters))
      .append(" characters total)");
}

}  // namespace

std::string promptSubject(std::string_view text) {
  const std::string oneLine =
      unicode::replacingAll(unicode::replacingAll(text, "\n", " "), "\r", " ");
  const std::string_view trimmed = unicode::trimmed(oneLine);
  const std::string_view start = unicode::firstCharacters(trimmed, longestSubject);
  std::string subject = "“";
  subject += start;
  if (start.size() < trimmed.size()) subject += "…";
  subject += "” (" + std::to_string(wordCount(trimmed)) + " words)";
  return subject;
}

std::string confirmationText(const ConfirmationFields& fields) {
  std::string text = "You are about to cryptographically authorize the following text with your ";
  text.append(fields.proof).append(".\n\n").append(shownText(fields.text));
  text.append("\n\nContext: ").append(fields.scope);
  text.append("\nDate: ").append(fields.issued);
  text.append("\nSigning as: ")
      .append(fields.identity.empty() ? "anonymous human (no verified identity)" : fields.identity);
  text +=
      "\n\nOnly the text above is covered. Anything added around it afterwards is not signed.\n";
  if (fields.isDemo) {
    text +=
        "\n⚠️ DEMO MODE — this produces a demonstration record, not a real signature. It "
        "proves "
        "nothing.";
  }
  return text;
}

}  // namespace quillseal
