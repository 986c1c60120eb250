#include <limits>
#include <stdexcept>

#include <openssl/rand.h>
#include <openssl/sha.h>

#include "core/text/Digest.h"

namespace quillseal::digest {

std::array<std::uint8_t, 32> sha256(std::string_view message) {
  std::array<std::uint8_t, 32> result{};
  // Fails when no provider offers the algorithm, as a site-wide configuration can bring about.
  if (::SHA256(reinterpret_cast<const unsigned char*>(message.data()), message.size(),
               result.data()) == nullptr)
    throw std::runtime_error("OpenSSL offers no SHA-256; see its configuration file");
  return result;
}

bool fillRandom(std::span<std::uint8_t> bytes) {
  if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return false;
  return ::RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1;
}

}  // namespace quillseal::digest
