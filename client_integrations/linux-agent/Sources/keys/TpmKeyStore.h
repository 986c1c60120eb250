#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "keys/KeyMedium.h"
#include "keys/PrivateFile.h"

namespace quillseal::linux {

/// The device key in the TPM 2.0: a P-256 key made by the TPM under its storage root key. Outside
/// the TPM there is only a blob that this TPM alone can load, until it is cleared. The TPM demands
/// the PIN at every signature and locks itself after too many wrong ones. That lock holds only
/// where the TPM has a lockout password, so the store reports whether it does. The PIN is never
/// sent to the TPM in clear, and each use checks that the storage root key is the one seen at
/// creation, so that nothing between this process and the TPM can impersonate it.
///
/// The TPM software stack writes a warning to standard error for every wrong PIN. To suppress them,
/// a program sets `TSS2_LOG=all+none` in its environment before it starts threads.
class TpmKeyStore final : public KeyMedium {
 public:
  /// The TPM device behind the kernel's resource manager.
  static constexpr const char* systemDevice = "device:/dev/tpmrm0";

  struct Options {
    std::filesystem::path path;         ///< of the blob; absolute, in a folder of its own
    std::string device = systemDevice;  ///< TCTI and argument; anything but "device:" is a
                                        ///< simulator and is described as one
  };
  explicit TpmKeyStore(Options options);
  ~TpmKeyStore() override;

  [[nodiscard]] SecretKind secretKind() const noexcept override;
  [[nodiscard]] KeyPlace place() const noexcept override;
  [[nodiscard]] std::string name() const override;
  [[nodiscard]] std::string describe() const override;
  [[nodiscard]] std::string weakness() const override;
  [[nodiscard]] std::string obstacle() const override;
  [[nodiscard]] std::string evidentObstacle() const override;
  [[nodiscard]] bool holdsKey() const noexcept override;
  void create(const SecretBytes& secret) override;
  [[nodiscard]] P256::Point publicKey() const override;
  [[nodiscard]] Readiness requireUsableKey() const override;
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> sign(
      const P256::Digest& digest, const SecretBytes& secret) const override;
  void remove() noexcept override;

 private:
  struct OpenedKey;
  /// What protects the lockout against a reset.
  enum class Guard : std::uint8_t { unknown, lockoutPassword, none };

  /// Learns the guard from the TPM's attributes (TPMA_PERMANENT).
  void learnGuard(std::uint32_t permanentAttributes) const noexcept;
  [[nodiscard]] std::string_view guardSentence() const noexcept;

  PrivateFile file_;
  std::string device_;
  mutable std::atomic<Guard> guard_ = Guard::unknown;
  mutable std::unique_ptr<OpenedKey> opened_;  ///< while a `Readiness` is kept
  mutable std::weak_ptr<const void> readiness_;
};

}  // namespace quillseal::linux
