#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/tasks/Task.h"
#include "core/text/Error.h"
#include "desktop/KeyStore.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "desktop/Prompt.h"
#include "desktop/Wording.h"

namespace quillseal {

/// What can go wrong with the device key; the description is for the user.
class SecureEnclaveError : public Error {
 public:
  enum class Case {
    keyGenerationFailed,
    signingFailed,
    unsupported,
    keyMissing,
    publicKeyExportFailed,
  };

  /// `message` completes the description of the first two cases; the others have none.
  SecureEnclaveError(Case kind, const desktop::Wording& words, std::string_view message = {});

  [[nodiscard]] Case kind() const noexcept { return kind_; }

 private:
  Case kind_;
};

/// The device's signing key: one P-256 pair that can be used only by a person at the machine.
/// Nothing is kept here; each call asks the key store anew, on a worker thread. Failures of the
/// store are logged with its own code.
namespace SecureEnclaveManager {

struct Services {
  desktop::KeyStore& keyStore;
  desktop::Log& log;
  desktop::MainLoop& loop;
  desktop::Words& words;
};

using Key = std::shared_ptr<desktop::DeviceKey>;

/// Whether this machine can hold the key, now.
[[nodiscard]] Task<bool> isAvailable(Services services);

/// Makes the key in the place of an earlier one. Throws SecureEnclaveError, or Cancelled when the
/// person called it off and the earlier key is still there.
[[nodiscard]] Task<Key> createKey(Services services);

/// The key; throws `keyMissing` when there is none.
[[nodiscard]] Task<Key> loadKey(Services services);

/// Whether `loadKey` would find a key.
[[nodiscard]] Task<bool> hasKey(Services services);

/// The public half as the uncompressed point in base64.
[[nodiscard]] Task<std::string> exportPublicKey(Services services, Key key);

struct SigningRequest {
  std::string textHashHex;  ///< the digest as 64 hexadecimal characters, of either case
  desktop::Prompt prompt;
};

/// Signs the digest after the person has agreed; gives the DER signature in base64. A malformed
/// digest fails before anyone is asked.
[[nodiscard]] Task<std::string> sign(Services services, SigningRequest request);

/// Deletes the key, if there is one. Never fails.
[[nodiscard]] Task<> deleteKey(Services services);

/// Decodes hexadecimal; nothing when `text` is malformed.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> bytesFromHex(std::string_view text);

}  // namespace SecureEnclaveManager

}  // namespace quillseal
