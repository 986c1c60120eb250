#include "Cases.h"
#include "keys/SecretPrompt.h"

namespace quillseal::linux {
namespace {

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

}  // namespace
}  // namespace quillseal::linux
