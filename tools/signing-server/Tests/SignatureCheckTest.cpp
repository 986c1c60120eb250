#include <gtest/gtest.h>

#include "Cases.h"
#include "Quillseal/CryptoManager.h"
#include "SignatureCheck.h"
#include "TestDevice.h"

namespace quillseal::devserver {
namespace {

TEST(SignatureCheck, TakesOnlyUncompressedPointsOfTheCurve) {
  const std::string point = decodedBase64(TestDevice().publicKey()).value();
  EXPECT_TRUE(isPublicKey(point));
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
      with(0, '\x06'),                              // hybrid, even
      with(0, '\x07'),                              // hybrid, odd
      '\x04' + std::string(64, '\xff'),             // coordinates above the prime
      '\x04' + std::string(64, '\0'),               // the origin
  };
  for (const std::string& other : cases)
    EXPECT_FALSE(isPublicKey(other)) << ::testing::PrintToString(other);
}

TEST(SignatureCheck, TakesOnlyWholeDigestsAndStrictDer) {
  const TestDevice device;
  const std::string point = decodedBase64(device.publicKey()).value();
  const std::string digest = CryptoManager::sha256Hex("message");
  const std::string signature = decodedBase64(device.sign(digest)).value();
  const auto check = [&point](const std::string& digestHex, const std::string& der) {
    return isSignedBy({.publicKey = point, .digestHex = digestHex, .signature = der});
  };
  EXPECT_TRUE(check(digest, signature));
  EXPECT_FALSE(isSignedBy({.publicKey = decodedBase64(TestDevice().publicKey()).value(),
                           .digestHex = digest,
                           .signature = signature}));
  // A digest has exactly 32 bytes; OpenSSL would truncate a longer one.
  for (const std::string& other : {std::string(), digest.substr(2), digest + "00", digest + "0",
                                   ' ' + digest, digest.substr(0, 62) + "zz"})
    EXPECT_FALSE(check(other, signature)) << other;
  std::string longForm = signature;
  longForm.insert(1, "\x81");  // the length in two bytes, which BER allows
  for (const std::string& other :
       {std::string(), signature + '\0', longForm, signature.substr(0, signature.size() - 1)})
    EXPECT_FALSE(check(digest, other)) << ::testing::PrintToString(other);
}

// Each a text and what it stands for, if anything.
TEST(SignatureCheck, ReadsBase64Strictly) {
  for (const auto& each : quillseal::testing::cases())
    EXPECT_EQ(decodedBase64(std::string(each[0])).value_or("none"), each[1]) << each;
}

}  // namespace
}  // namespace quillseal::devserver
