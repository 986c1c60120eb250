#include "Inspection.h"

#include "Quillseal/CryptoManager.h"
#include "Quillseal/UnicodeText.h"

namespace quillseal::inspect {
namespace {

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
    report += line("", url);
  report += line("Image digest", inspection.imageDigest);
  report += line("Expires", inspection.expires.empty() ? "never valid: the issue date is no date"
                                                       : inspection.expires);
  return report;
}

}  // namespace quillseal::inspect
