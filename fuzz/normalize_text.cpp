#include <cstdint>
#include <cstdlib>

#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

/// The canonical form of a well-formed text is well-formed and holds no character that it should
/// drop.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillseal;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  static_cast<void>(CryptoManager::normalizeText(bytes));

  const std::string normalized = CryptoManager::normalizeText(unicode::wellFormed(bytes));
  if (normalized.find_first_of("<> \t\r\n") != std::string::npos) std::abort();
  if (unicode::wellFormed(normalized) != normalized) std::abort();
  return 0;
}
