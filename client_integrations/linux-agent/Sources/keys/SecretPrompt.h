#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "keys/SecretBytes.h"

namespace quillseal::linux {

/// What opens a device key. A PIN is checked by the TPM, which locks itself after a few wrong ones.
/// An unguarded PIN is checked by a TPM without a lockout password: every program with access to it
/// can undo the lock after each guess. A passphrase is all that protects a key file. The latter two
/// have to be long.
enum class SecretKind { pin, unguardedPin, passphrase };

/// "PIN" or "passphrase", as it reads in the middle of a sentence.
[[nodiscard]] std::string_view nameOf(SecretKind kind) noexcept;

/// The demands on a new secret, as a sentence for the user.
[[nodiscard]] std::string_view rulesFor(SecretKind kind) noexcept;

/// Which of the demands `secret` (UTF-8) does not meet, as a sentence for the user; empty when it
/// may be used. Pure, so that a form can call it at every key.
[[nodiscard]] std::string_view objectionTo(SecretKind kind, const SecretBytes& secret) noexcept;

/// Asks the person for the secret of the existing key.
struct SecretRequest {
  SecretKind kind;
  std::string reason;       ///< what the key is about to be used for: "Sign “…” as …"
  std::string destination;  ///< where the text is going; may be empty
  std::string medium;       ///< where the key is, whole sentences
  std::string problem;      ///< why the question comes again; empty the first time
  int attempt = 1;          ///< from 1 to `attempts`
  int attempts = 1;
};

/// Asks the person to choose a secret for a new key.
struct NewSecretRequest {
  SecretKind kind;
  std::string medium;   ///< where the key will be, whole sentences
  std::string notice;   ///< what else happens, such as a key that is replaced; may be empty
  std::string problem;  ///< why the question comes again; empty the first time
};

/// The questions that a key store puts to the person. Called on any thread but the main one; blocks
/// it until the answer. An implementation shows its window on the main thread, in front of all
/// others, and answers with nothing when the person cancels or the agent is about to quit.
class SecretPrompt {
 public:
  SecretPrompt() = default;
  SecretPrompt(const SecretPrompt&) = delete;
  SecretPrompt& operator=(const SecretPrompt&) = delete;
  virtual ~SecretPrompt() = default;

  [[nodiscard]] virtual std::optional<SecretBytes> ask(const SecretRequest& request) = 0;

  /// Has the secret typed twice, shows `rulesFor(kind)` and does not accept a secret to which
  /// there is an objection.
  [[nodiscard]] virtual std::optional<SecretBytes> askForNew(const NewSecretRequest& request) = 0;
};

}  // namespace quillseal::linux
