#include <cstdint>
#include <cstdlib>

#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

/// Word count, distinctiveness and refusal agree with each other on any bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillseal;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::int64_t words = CryptoManager::countWords(text);
  if (words < 0 || words > static_cast<std::int64_t>(unicode::characterCount(text))) std::abort();

  const bool signable =
      words >= CryptoManager::alwaysDistinctWords ||
      (words >= CryptoManager::minimumWords && CryptoManager::isDistinctive(text));
  if (signable != CryptoManager::signingRefusal(text).empty()) std::abort();
  return 0;
}
