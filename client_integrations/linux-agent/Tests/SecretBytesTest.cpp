#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <openssl/crypto.h>

#include "keys/SecretBytes.h"

namespace quillseal::linux {
namespace {

TEST(SecretBytes, AreInLockedMemoryThatHoldsMoreThanASignatureNeeds) {
  lockMemoryOfSecrets();
  const std::size_t usedByOthers = CRYPTO_secure_used();
  std::vector<SecretBytes> secrets;
  for (int i = 0; i < 16; ++i)
    secrets.emplace_back(std::string(1024, 'x'));
  SecretBytes& secret = secrets.front();
  EXPECT_EQ(CRYPTO_secure_allocated(secret.bytes().data()), 1);
  EXPECT_EQ(secret.text(), std::string(1024, 'x'));
  secret.shorten(2);
  const unsigned char* const bytes = secret.bytes().data();
  EXPECT_EQ(bytes[1023], 0);
  SecretBytes moved = std::move(secret);
  EXPECT_EQ(moved.text(), "xx");
  EXPECT_EQ(moved.bytes().data(), bytes);
  moved = SecretBytes();
  secrets.clear();
  EXPECT_EQ(CRYPTO_secure_used(), usedByOthers);
}

}  // namespace
}  // namespace quillseal::linux
