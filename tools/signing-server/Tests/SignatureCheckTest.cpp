#include <gtest/gtest.h>

#include "EcdsaVectors.h"
#include "Quillseal/CryptoManager.h"
#include "SignatureCheck.h"

namespace quillseal::devserver {
namespace {

TEST(SignatureCheck, AnswersAsPublished) {
  const std::vector<EcdsaVector> vectors = ecdsaVectors();
  EXPECT_EQ(vectors.size(), 159U);
  for (const EcdsaVector& vector : vectors) {
    EXPECT_TRUE(isPublicKey(vector.publicKey)) << vector.name;
    EXPECT_EQ(isSignedBy({.publicKey = vector.publicKey,
                          .digestHex = CryptoManager::sha256Hex(vector.message),
                          .signature = vector.signature}),
              vector.isValid)
        << vector.name;
  }
}

TEST(SignatureCheck, TakesOnlyUncompressedPointsOfTheCurve) {
  const std::string point = ecdsaVectors().front().publicKey;
  const auto with = [&point](std::size_t at, char byte) {
    return std::string(point).replace(at, 1, 1, byte);
  };
  const std::string cases[] = {
      "",
      std::string(65, '\0'),                        // infinity, padded
      std::string(1, '\0'),                         // infinity (SEC 1, 2.3.3)
      point.substr(0, 64),                          // too short
      point + '\0',                                 // too long
      with(64, static_cast<char>(point[64] ^ 1)),   // not on the curve
      std::string(1, '\x03').append(point, 1, 32),  // compressed
      with(0, '\x07'),                              // hybrid
      '\x04' + std::string(64, '\xff'),             // coordinates above the prime
      '\x04' + std::string(64, '\0'),               // the origin
  };
  for (const std::string& other : cases)
    EXPECT_FALSE(isPublicKey(other)) << testing::PrintToString(other);
}

// A digest is 32 bytes and nothing else; OpenSSL itself would cut a longer one.
TEST(SignatureCheck, TakesOnlyWholeDigests) {
  const EcdsaVector vector = ecdsaVectors().front();
  const std::string digest = CryptoManager::sha256Hex(vector.message);
  const auto check = [&vector](const std::string& digestHex) {
    return isSignedBy(
        {.publicKey = vector.publicKey, .digestHex = digestHex, .signature = vector.signature});
  };
  EXPECT_EQ(check(digest), vector.isValid);
  for (const std::string& other : {std::string(), digest.substr(2), digest + "00", digest + "0",
                                   ' ' + digest, digest.substr(0, 62) + "zz"})
    EXPECT_FALSE(check(other)) << other;
}

TEST(SignatureCheck, ReadsBase64Strictly) {
  // RFC 4648, section 10.
  EXPECT_EQ(decodedBase64(""), "");
  EXPECT_EQ(decodedBase64("Zg=="), "f");
  EXPECT_EQ(decodedBase64("Zm8="), "fo");
  EXPECT_EQ(decodedBase64("Zm9vYmFy"), "foobar");
  for (const char* other :
       {"Zg", "Zg=", "Zg===", "====", "Z===", "Zg==Zg==", "Zm9v\n", " Zm9v", "Zm9v-_=="})
    EXPECT_EQ(decodedBase64(other), std::nullopt) << other;
}

}  // namespace
}  // namespace quillseal::devserver
