#include <algorithm>
#include <limits>

#include <CommonCrypto/CommonDigest.h>
#include <Security/SecRandom.h>

#include "core/text/Digest.h"

namespace quillseal::digest {

std::array<std::uint8_t, 32> sha256(std::string_view message) {
  std::array<std::uint8_t, CC_SHA256_DIGEST_LENGTH> result{};
  CC_SHA256_CTX context;
  CC_SHA256_Init(&context);
  // CC_LONG has 32 bits: a longer message is fed in pieces.
  while (!message.empty()) {
    const auto size = std::min<std::size_t>(message.size(), std::numeric_limits<CC_LONG>::max());
    CC_SHA256_Update(&context, message.data(), static_cast<CC_LONG>(size));
    message.remove_prefix(size);
  }
  CC_SHA256_Final(result.data(), &context);
  return result;
}

bool fillRandom(std::span<std::uint8_t> bytes) {
  return ::SecRandomCopyBytes(kSecRandomDefault, bytes.size(), bytes.data()) == errSecSuccess;
}

}  // namespace quillseal::digest
