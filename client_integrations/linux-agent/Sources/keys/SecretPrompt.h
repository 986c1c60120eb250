#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "keys/SecretBytes.h"

namespace quillseal::linux {

/// The kind of secret that opens a device key. A PIN is checked by the TPM, which locks itself
/// after a few wrong ones. An unguarded PIN is checked by a TPM without a lockout password: every
/// program with access can reset the lock after each guess. A passphrase is all that protects a key
/// file. The last two must be long.
enum class SecretKind { pin, unguardedPin, passphrase };

/// Returns the text with a capital first letter, if that is one of ASCII, to begin a sentence.
[[nodiscard]] std::string capitalised(std::string_view text);

/// Returns "PIN" or "passphrase", for the middle of a sentence.
[[nodiscard]] std::string_view nameOf(SecretKind kind) noexcept;

/// Returns the rules for a new secret, as a sentence for the user.
[[nodiscard]] std::string_view rulesFor(SecretKind kind) noexcept;

/// Returns the rule that `secret` (UTF-8) breaks, as a sentence for the user; empty when it may be
/// used. Pure, so a form can call it at every key press.
[[nodiscard]] std::string_view objectionTo(SecretKind kind, const SecretBytes& secret) noexcept;

/// Asks the person for the secret of the existing key.
struct SecretRequest {
  SecretKind kind;
  std::string reason;       ///< what the key will be used for: "Sign “…” as …"
  std::string destination;  ///< the application that gets the text; may be empty
  std::string medium;       ///< where the key is, whole sentences
  std::string problem;      ///< why it is asked again; empty the first time
  int attempt = 1;          ///< from 1 to `attempts`
  int attempts = 1;
};

/// Asks the person to choose a secret for a new key.
struct NewSecretRequest {
  SecretKind kind;
  std::string medium;   ///< where the key will be, whole sentences
  std::string notice;   ///< other effects, such as a replaced key; may be empty
  std::string problem;  ///< why it is asked again; empty the first time
};

/// Asks the user for secrets. Called on any thread but the main one; blocks until the answer. An
/// implementation shows its window on the main thread, in front of all others, and returns nothing
/// when the user cancels or the agent is about to quit.
class SecretPrompt {
 public:
  SecretPrompt() = default;
  SecretPrompt(const SecretPrompt&) = delete;
  SecretPrompt& operator=(const SecretPrompt&) = delete;
  virtual ~SecretPrompt() = default;

  [[nodiscard]] virtual std::optional<SecretBytes> ask(const SecretRequest& request) = 0;

  /// Has the secret typed twice, shows `rulesFor(kind)` and accepts only a secret without
  /// `objectionTo`.
  [[nodiscard]] virtual std::optional<SecretBytes> askForNew(const NewSecretRequest& request) = 0;
};

}  // namespace quillseal::linux
