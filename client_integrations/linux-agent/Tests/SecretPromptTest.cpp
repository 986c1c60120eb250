#include <string>

#include <gtest/gtest.h>

#include "keys/SecretPrompt.h"

namespace quillseal::linux {
namespace {

TEST(SecretPrompt, ObjectsToSecretsThatAreSoonGuessed) {
  struct Row {
    SecretKind kind;
    std::string secret;
    bool acceptable;
  };
  const Row rows[] = {
      {SecretKind::pin, "", false},
      {SecretKind::pin, "12345", false},
      {SecretKind::pin, "123456", true},
      {SecretKind::pin, "000000", false},
      {SecretKind::pin, "000001", true},
      // Five two-byte letters count as five characters.
      {SecretKind::pin, "äöüßé", false},
      {SecretKind::pin, "äöüßéè", true},
      {SecretKind::pin, std::string(1023, 'a') + "b", true},
      {SecretKind::pin, std::string(1024, 'a') + "b", false},
      {SecretKind::unguardedPin, "123456", false},
      {SecretKind::unguardedPin, "27182818284590", false},
      {SecretKind::unguardedPin, "2718-2818-4590", false},
      {SecretKind::unguardedPin, "2718281a", false},
      {SecretKind::unguardedPin, "abcabcabcabc", false},
      {SecretKind::unguardedPin, "a1b2c3d4e5", true},
      {SecretKind::unguardedPin, "тихий лист", true},
      {SecretKind::passphrase, "abcdefghijk", false},
      {SecretKind::passphrase, "abcdefghijkl", true},
      {SecretKind::passphrase, "abababababababab", false},
      {SecretKind::passphrase, "correct horse battery staple", true},
  };
  for (const Row& row : rows)
    EXPECT_EQ(objectionTo(row.kind, SecretBytes(row.secret)).empty(), row.acceptable) << row.secret;
}

}  // namespace
}  // namespace quillseal::linux
