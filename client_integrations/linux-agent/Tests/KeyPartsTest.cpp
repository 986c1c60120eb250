#include <array>
#include <cstddef>

#include <gmock/gmock.h>
#include <openssl/crypto.h>

#include "Cases.h"
#include "keys/P256.h"
#include "keys/SecretBytes.h"
#include "keys/SecretPrompt.h"
#include "keys/TpmFailure.h"

namespace quillseal::linux {
namespace {

using ::testing::HasSubstr;

std::vector<std::uint8_t> bytesOf(const std::string& hex) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t at = 0; at < hex.size(); at += 2)
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(hex.substr(at, 2), nullptr, 16)));
  return bytes;
}

TEST(P256, EncodesSignaturesInDer) {
  for (const auto& [r, s, signature] : testing::cases<std::string, std::string, std::string>())
    EXPECT_EQ(P256::derSignature({.first = bytesOf(r), .second = bytesOf(s)}), bytesOf(signature))
        << r;
}

TEST(P256, PadsCoordinates) {
  for (const auto& [x, y, expected] : testing::cases<std::string, std::string, std::string>()) {
    const auto point = P256::pointOf({.first = bytesOf(x), .second = bytesOf(y)});
    EXPECT_EQ(point ? std::vector(point->begin(), point->end()) : std::vector<std::uint8_t>(),
              bytesOf(expected));
  }
}

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

TEST(SecretPrompt, ObjectsToSecretsThatAreSoonGuessed) {
  for (const auto& [name, text, more, isAccepted] :
       testing::cases<std::string, std::string, std::size_t, bool>()) {
    const SecretKind kind = name == "PIN"          ? SecretKind::pin
                            : name == "passphrase" ? SecretKind::passphrase
                                                   : SecretKind::unguardedPin;
    const std::string secret = std::string(more, text.empty() ? '\0' : text.front()) + text;
    EXPECT_EQ(objectionTo(kind, SecretBytes(secret)).empty(), isAccepted) << secret;
  }
}

void expectFailure(const TpmFailure& failure, const std::string& problem, const std::string& part) {
  constexpr std::array names{"wrongSecret",  "lockedOut",     "busy",     "foreignKey",  "noDevice",
                             "noPermission", "ownerPassword", "disabled", "unsupported", "unknown"};
  EXPECT_EQ(names.at(static_cast<std::size_t>(failure.problem)), problem) << failure.message;
  EXPECT_THAT(failure.message, HasSubstr(part));
}

TEST(TpmFailure, UnderstandsEveryLayer) {
  for (const auto& [problem, part, codes] :
       testing::cases<std::string, std::string, std::vector<std::string>>())
    for (const std::string& code : codes)
      expectFailure(tpmFailureOf(static_cast<std::uint32_t>(std::stoul(code, nullptr, 16))),
                    problem, part);
}

TEST(TpmFailure, SaysWhyTheDeviceDoesNotOpen) {
  for (const auto& [problem, part, numbers] :
       testing::cases<std::string, std::string, std::vector<int>>())
    for (const int number : numbers)
      expectFailure(tpmFailureOf(DeviceError{.device = "/dev/tpmrm0", .number = number}), problem,
                    part);
}

}  // namespace
}  // namespace quillseal::linux
