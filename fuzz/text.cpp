#include <string>

#include "Fuzzer.h"
#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

/// On any bytes, word counting, distinctiveness and the refusal agree with each other. The
/// canonical form of a well-formed text is well-formed and holds nothing that it drops.
void quillseal::fuzz::check(std::string_view bytes) {
  const std::int64_t words = CryptoManager::countWords(bytes);
  require(words >= 0 && words <= static_cast<std::int64_t>(unicode::characterCount(bytes)));
  const bool signable =
      words >= CryptoManager::alwaysDistinctWords ||
      (words >= CryptoManager::minimumWords && CryptoManager::isDistinctive(bytes));
  require(signable == CryptoManager::signingRefusal(bytes).empty());

  static_cast<void>(CryptoManager::normalizeText(bytes));
  const std::string normalized = CryptoManager::normalizeText(unicode::wellFormed(bytes));
  require(normalized.find_first_of("<> \t\r\n") == std::string::npos);
  require(unicode::wellFormed(normalized) == normalized);
}
