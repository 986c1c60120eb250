#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "keys/KeyFailure.h"
#include "keys/P256.h"
#include "keys/SecretPrompt.h"

namespace quillseal::linux {

/// The kind of place that holds a key.
enum class KeyPlace { tpm, tpmSimulator, keyFile };

/// A place that can hold the device key: the TPM, or an encrypted file. It shows no prompts;
/// `LinuxKeyStore` asks the user and chooses the place. A device that was added or removed is
/// noticed at the next call. Every function may block as long as the device does and may be called
/// on any thread, one call at a time. Functions marked "Does not wait" may run beside others; they
/// use the state that `obstacle` or `requireUsableKey` last found.
class KeyMedium {
 public:
  KeyMedium() = default;
  KeyMedium(const KeyMedium&) = delete;
  KeyMedium& operator=(const KeyMedium&) = delete;
  virtual ~KeyMedium() = default;

  /// Returns the kind of secret that opens the key, or a key made now. Does not wait for a device.
  [[nodiscard]] virtual SecretKind secretKind() const noexcept = 0;

  [[nodiscard]] virtual KeyPlace place() const noexcept = 0;

  /// Returns the place's name for the middle of a sentence: "the TPM of this computer".
  [[nodiscard]] virtual std::string name() const = 0;

  /// Describes the place and its protection in sentences for the user; without a key, for a key
  /// made now. Does not wait for a device.
  [[nodiscard]] virtual std::string describe() const = 0;

  /// Says what weakens that protection and how to correct it, in sentences for the user; empty when
  /// nothing is known. Does not wait for a device.
  [[nodiscard]] virtual std::string weakness() const { return {}; }

  /// Says why no key can be made or used here now, and what would help, in sentences for the user;
  /// empty when the place is usable.
  [[nodiscard]] virtual std::string obstacle() const = 0;

  /// The part of `obstacle` that can be found out without waiting for a device.
  [[nodiscard]] virtual std::string evidentObstacle() const = 0;

  /// Returns whether a key is stored here, usable or not.
  [[nodiscard]] virtual bool holdsKey() const noexcept = 0;

  /// Makes a new key that `secret` opens. Replaces an earlier key as the last step, once everything
  /// else has succeeded. Throws KeyFailure.
  virtual void create(const SecretBytes& secret) = 0;

  /// Returns the public key; needs no secret. Throws KeyFailure.
  [[nodiscard]] virtual P256::Point publicKey() const = 0;

  /// Keeps a key loaded. Dropping it counts as a call: one at a time, and before the medium is
  /// destroyed.
  using Readiness = std::shared_ptr<const void>;

  /// Throws KeyFailure when `sign` would fail with any secret, so that the user is not asked for
  /// one. While the result is kept, `sign` may be faster; it works without it too.
  [[nodiscard]] virtual Readiness requireUsableKey() const = 0;

  /// Signs a digest and returns the signature (DER); nothing when `secret` is wrong. Throws
  /// KeyFailure for every other failure.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> sign(
      const P256::Digest& digest, const SecretBytes& secret) const = 0;

  /// Deletes the key permanently. Does nothing when there is none.
  virtual void remove() noexcept = 0;
};

}  // namespace quillseal::linux
