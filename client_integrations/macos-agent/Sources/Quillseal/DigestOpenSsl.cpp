#include <limits>

#include <openssl/rand.h>
#include <openssl/sha.h>

#include "Quillseal/Digest.h"

namespace quillseal::digest {

std::array<std::uint8_t, 32> sha256(std::string_view message) {
  std::array<std::uint8_t, 32> result{};
  // The OpenSSL one-shot has no failure path for an in-memory message.
  ::SHA256(reinterpret_cast<const unsigned char*>(message.data()), message.size(), result.data());
  return result;
}

bool fillRandom(std::span<std::uint8_t> bytes) {
  if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return false;
  return ::RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1;
}

}  // namespace quillseal::digest
