#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "desktop/KeyStore.h"
#include "keys/KeyMedium.h"
#include "keys/SecretPrompt.h"

namespace quillseal::linux {

/// The device key of a Linux desktop. Puts a new key into the first usable medium, finds an
/// existing one, and asks the user: three tries for a PIN or passphrase, and for a new one before
/// anything is deleted. The question says so when the new key replaces one in another medium.
class LinuxKeyStore final : public desktop::KeyStore {
 public:
  static constexpr int attempts = 3;

  /// `media`: at least one, in order of preference. `prompt` outlives the store.
  LinuxKeyStore(std::vector<std::unique_ptr<KeyMedium>> media, SecretPrompt& prompt);

  [[nodiscard]] bool isAvailable() const override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> create() override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> load(
      std::optional<desktop::Prompt> prompt) const override;
  void remove() noexcept override;
  [[nodiscard]] std::string advice() const override;

  /// Returns where the key is or, when there is none, where one would be made. Does not wait for a
  /// device, so the main thread may use it for its texts.
  [[nodiscard]] KeyPlace place() const;

  /// Describes that place and its protection in sentences for settings and log. Does not wait for a
  /// device.
  [[nodiscard]] std::string describe() const;

 private:
  class Key;

  [[nodiscard]] KeyMedium* holder() const noexcept;
  [[nodiscard]] const KeyMedium& evidentMedium() const;

  std::vector<std::unique_ptr<KeyMedium>> media_;
  SecretPrompt& prompt_;
  mutable std::mutex device_;  ///< held while a medium works, never while a person is asked
};

/// Where `makeKeyStore` looks for keys.
struct KeyStoreOptions {
  std::string folder;  ///< absolute; the key files go there
  /// Which TPM: empty for the system's own, "none" for no TPM, else the TCTI of a simulator,
  /// "swtpm:…" or "mssim:…", for trying out and for tests.
  std::string tpm;
};

/// Makes the store of this desktop: the TPM where it is usable, else a key file. Throws KeyFailure
/// when `tpm` is none of the allowed values.
[[nodiscard]] std::unique_ptr<LinuxKeyStore> makeKeyStore(const KeyStoreOptions& options,
                                                          SecretPrompt& prompt);

}  // namespace quillseal::linux
