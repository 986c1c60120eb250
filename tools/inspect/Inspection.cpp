#include "Inspection.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include <unicode/uchar.h>

#include "Quillseal/ConfirmationText.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/UnicodeText.h"

namespace quillseal::inspect {
namespace {

/// `text` with what could steer a terminal or forge a line of the report made visible.
std::string printable(std::string_view text) {
  constexpr std::uint32_t unprintable = U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
  std::string result;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t scalar = unicode::nextScalar(text, position);
    if ((U_GET_GC_MASK(static_cast<UChar32>(scalar)) & unprintable) == 0) {
      unicode::append(result, scalar);
    } else {
      std::array<char, sizeof "\\u{10FFFF}"> code{};
      const int length =
          std::snprintf(code.data(), code.size(), "\\u{%X}", static_cast<unsigned>(scalar));
      result.append(code.data(), static_cast<std::size_t>(length));
    }
  }
  return result;
}

std::string line(std::string_view label, std::string_view value) {
  constexpr std::size_t valueColumn = 14;
  std::string text{label};
  text.resize(valueColumn, ' ');
  return text.append(value).append("\n");
}

}  // namespace

Inspection inspect(const Capture& capture) {
  Inspection result;
  result.text = unicode::trimmed(capture.text);
  result.words = CryptoManager::countWords(result.text);
  result.normalized = CryptoManager::normalizeText(result.text);
  result.normalizedCharacters = unicode::characterCount(result.normalized);
  result.textDigest = CryptoManager::sha256Hex(result.normalized);
  result.distinctive = CryptoManager::isDistinctive(result.text);
  result.signingRefusal = CryptoManager::signingRefusal(result.text);
  result.imageURLs = CryptoManager::imageURLs(capture.html);
  result.imageDigest = CryptoManager::imageManifestDigest(result.imageURLs);
  result.expires =
      CryptoManager::expiryDateFor({.issued = capture.issued, .wordCount = result.words});
  result.promptSubject = promptSubject(result.text);
  return result;
}

std::string readableReport(const Inspection& inspection) {
  std::string report;
  report += line("Words", std::to_string(inspection.words));
  report += line("Characters", std::to_string(inspection.normalizedCharacters) + " normalised");
  report += line("Text digest", inspection.textDigest);
  report += line("Length", inspection.signingRefusal.empty() ? "long and specific enough"
                                                             : inspection.signingRefusal);
  report += line("Images", std::to_string(inspection.imageURLs.size()));
  for (const std::string& url : inspection.imageURLs)
    report += line("", printable(url));
  report += line("Image digest", inspection.imageDigest);
  report += line("Expires", inspection.expires.empty() ? "never valid: the issue date is no date"
                                                       : inspection.expires);
  report += line("Prompt", printable(inspection.promptSubject));
  return report;
}

}  // namespace quillseal::inspect
