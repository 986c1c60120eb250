#pragma once

#include "desktop/KeyStore.h"
#include "desktop/Log.h"

namespace quillseal::mac {

/// A key in the Secure Enclave that only the fingers enrolled at its creation can use. It is stored
/// in the data-protection keychain, for which the program needs a keychain access group.
class MacKeyStore final : public desktop::KeyStore {
 public:
  /// `log` outlives this object; it records a key that could not be deleted.
  explicit MacKeyStore(desktop::Log& log) : log_(log) {}

  /// Returns whether `status` of a lookup means that there is no key. Any other failure leaves it
  /// unknown.
  [[nodiscard]] static bool meansNoKey(std::int64_t status) noexcept;

  [[nodiscard]] bool isAvailable() const override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> create() override;
  [[nodiscard]] std::unique_ptr<desktop::DeviceKey> load(
      std::optional<desktop::Prompt> prompt) const override;
  void remove() noexcept override;

 private:
  desktop::Log& log_;
};

}  // namespace quillseal::mac
