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

/// The device key of a Linux desktop. Chooses where a new key goes (the first usable medium), finds
/// the one there is, and puts the questions: three tries for a PIN or passphrase, a new one before
/// anything is deleted. A key in one medium gives way to one in another only when the person has
/// been told so in that question.
class LinuxKeyStore final : public desktop::KeyStore {
 public:
  static constexpr int attempts = 3;

  /// `media` in the order of preference, at least one. `prompt` outlives the store.
  LinuxKeyStore(std::vector<std::unique_ptr<KeyMedium>> media, SecretPrompt& prompt);

  [[nodiscard]] bool isAvailable() const override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> create() override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> load(
      std::optional<desktop::Prompt> prompt) const override;
  void remove() noexcept override;
  [[nodiscard]] std::string advice() const override;

  /// Where the present key is or, when there is none, where one would be made. Does not wait for a
  /// device, so that texts can be worded with it on the main thread.
  [[nodiscard]] KeyPlace place() const;

  /// Where that key is, and which protection this gives, as sentences for settings and log. Does
  /// not wait for a device.
  [[nodiscard]] std::string describe() const;

 private:
  class Key;

  [[nodiscard]] KeyMedium* holder() const noexcept;
  [[nodiscard]] const KeyMedium& evidentMedium() const;

  std::vector<std::unique_ptr<KeyMedium>> media_;
  SecretPrompt& prompt_;
  mutable std::mutex device_;  ///< held while a medium works, never while a person is asked
};

/// Where `makeKeyStore` keeps and finds things.
struct KeyStoreOptions {
  std::string folder;  ///< absolute; the key files go there
  /// Which TPM: empty for the system's own, "none" for no TPM at all, else a simulator by its TCTI,
  /// "swtpm:…" or "mssim:…", for trying out and for tests.
  std::string tpm;
};

/// The store of this desktop: the TPM where it is usable, else a key file. Throws KeyFailure when
/// `tpm` names nothing that it may name.
[[nodiscard]] std::unique_ptr<LinuxKeyStore> makeKeyStore(const KeyStoreOptions& options,
                                                          SecretPrompt& prompt);

}  // namespace quillseal::linux
