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

/// What kind of place a key is in.
enum class KeyPlace { tpm, tpmSimulator, keyFile };

/// A place that can hold the device key: the TPM, or an encrypted file. It asks nobody anything;
/// `LinuxKeyStore` puts the questions and chooses the place. A device that came or went is noticed
/// at the next call. Every function may block for as long as the device takes and may be called on
/// any thread, one call at a time; those that say so do not wait, may be called beside others, and
/// go by what `obstacle` or `requireUsableKey` last saw of the device.
class KeyMedium {
 public:
  KeyMedium() = default;
  KeyMedium(const KeyMedium&) = delete;
  KeyMedium& operator=(const KeyMedium&) = delete;
  virtual ~KeyMedium() = default;

  /// What opens the key, or would open one made now. Does not wait for a device.
  [[nodiscard]] virtual SecretKind secretKind() const noexcept = 0;

  [[nodiscard]] virtual KeyPlace place() const noexcept = 0;

  /// The place in the middle of a sentence: "the TPM of this computer".
  [[nodiscard]] virtual std::string name() const = 0;

  /// What the place is and which protection it gives, as sentences for the user; of a key to come
  /// where there is none. Does not wait for a device.
  [[nodiscard]] virtual std::string describe() const = 0;

  /// What is known to weaken that protection and how to mend it, as sentences for the user; empty
  /// when nothing is. Does not wait for a device.
  [[nodiscard]] virtual std::string weakness() const { return {}; }

  /// Why no key can be made or used here now, and what would help, as sentences for the user; empty
  /// when the place is usable.
  [[nodiscard]] virtual std::string obstacle() const = 0;

  /// As much of `obstacle` as can be found out at once, without waiting for a device.
  [[nodiscard]] virtual std::string evidentObstacle() const = 0;

  /// Whether a key is kept here, usable or not.
  [[nodiscard]] virtual bool holdsKey() const noexcept = 0;

  /// Makes a new key that `secret` opens. An earlier key is replaced only when everything else has
  /// succeeded. Throws KeyFailure.
  virtual void create(const SecretBytes& secret) = 0;

  /// The public half; needs no secret. Throws KeyFailure.
  [[nodiscard]] virtual P256::Point publicKey() const = 0;

  /// Keeps a key at hand; dropped like every other call, one at a time and before the medium goes.
  using Readiness = std::shared_ptr<const void>;

  /// Finds what would make `sign` fail whatever the secret, so that nobody is asked for one in
  /// vain. `sign` may be quicker while the result is kept; it is right whether or not. Throws
  /// KeyFailure.
  [[nodiscard]] virtual Readiness requireUsableKey() const = 0;

  /// The signature (DER) over a finished digest; nothing when `secret` is wrong. Throws KeyFailure
  /// on everything else.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> sign(
      const P256::Digest& digest, const SecretBytes& secret) const = 0;

  /// Deletes the key for good. Harmless when there is none.
  virtual void remove() noexcept = 0;
};

}  // namespace quillseal::linux
