#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text/Error.h"
#include "desktop/Prompt.h"

namespace quillseal::desktop {

/// The device's signing key, a P-256 pair whose private half never leaves its store. Holding this
/// object holds no secret; the key may have been deleted meanwhile.
class DeviceKey {
 public:
  virtual ~DeviceKey() = default;

  /// The public half as the uncompressed point: 0x04, X, Y, 65 bytes. Nothing when it cannot be
  /// exported.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> publicKey() const = 0;

  /// An ECDSA signature over `digest` as it stands (no further hashing), DER-encoded per X9.62.
  /// Asks the person at the machine, with the prompt that the key was loaded with, and blocks
  /// meanwhile. On refusal, cancel or failure throws Error; its description is empty when the
  /// platform gives no words.
  [[nodiscard]] virtual std::vector<std::uint8_t> sign(
      const std::array<std::uint8_t, 32>& digest) = 0;
};

/// Why a store made no key, where that is for the agent to explain. The fields are the platform's.
class KeyStoreError : public Error {
 public:
  enum class Reason {
    missingEntitlement,  ///< the build is not signed with a developer identity
  };

  KeyStoreError(Reason reason, const Fields& fields) : Error(fields), reason_(reason) {}

  [[nodiscard]] Reason reason() const noexcept { return reason_; }

 private:
  Reason reason_;
};

/// Where the device key lives. All functions may block and are called on worker threads, also
/// concurrently. Nothing is cached, since readers are unplugged and lids are closed.
class KeyStore {
 public:
  /// The attributes by which the key is found and made.
  static constexpr std::string_view applicationTag = "ai.kestle.quillseal.signingkey";

  virtual ~KeyStore() = default;

  /// Whether this machine can hold such a key, now.
  [[nodiscard]] virtual bool isAvailable() const = 0;

  /// Makes the key, in the place of an earlier one. A store whose keys have a PIN or a passphrase
  /// asks for the new one first; when the person cancels, it throws Cancelled, and the earlier key
  /// is still there. Otherwise throws KeyStoreError where it has a reason for that, or Error with
  /// the platform's code, and its words or an empty description. A store that cannot tie the key to
  /// the person's presence throws "could not build access control".
  [[nodiscard]] virtual std::unique_ptr<DeviceKey> create() = 0;

  /// The key, or null when there is none. `prompt` is shown when it signs; without one the key is
  /// only looked up and its public half read.
  [[nodiscard]] virtual std::unique_ptr<DeviceKey> load(std::optional<Prompt> prompt) const = 0;

  /// Deletes the key, if there is one. Never fails.
  virtual void remove() noexcept = 0;

  /// What the user can do so that the store works or works better, as a sentence for the settings;
  /// empty when nothing is missing. Does not block.
  [[nodiscard]] virtual std::string advice() const { return {}; }
};

}  // namespace quillseal::desktop
