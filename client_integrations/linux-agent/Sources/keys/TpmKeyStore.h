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

/// The device key in the TPM 2.0: a P-256 key made by the TPM under its storage root key. What is
/// kept outside is a blob that only this TPM can load, and only until it is cleared. The TPM asks
/// for the PIN at every signature and locks itself after too many wrong ones; that lock holds only
/// where the TPM has a lockout password, so the store tells whether it does. The PIN itself never
/// travels to the TPM in clear, and the storage root key seen at creation must be there again at
/// each use, so that nothing between this process and the TPM can take its place unnoticed.
///
/// The TPM software stack writes warnings to standard error for every wrong PIN; a program sets
/// `TSS2_LOG=all+none` in its environment, before it starts threads, to keep them out.
class TpmKeyStore final : public KeyMedium {
 public:
  /// The resource-managed device of Linux.
  static constexpr const char* systemDevice = "device:/dev/tpmrm0";

  struct Options {
    std::filesystem::path path;         ///< of the blob; absolute, in a folder of its own
    std::string device = systemDevice;  ///< a TCTI and its argument; anything but "device:" is a
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
  /// Whether the lock against guessing holds.
  enum class Guard : std::uint8_t { unknown, lockoutPassword, none };

  /// From the attributes TPMA_PERMANENT of the TPM.
  void learnGuard(std::uint32_t permanentAttributes) const noexcept;
  [[nodiscard]] std::string_view guardSentence() const noexcept;

  PrivateFile file_;
  std::string device_;
  mutable std::atomic<Guard> guard_ = Guard::unknown;
  mutable std::unique_ptr<OpenedKey> opened_;  ///< while anybody keeps the readiness
  mutable std::weak_ptr<const void> readiness_;
};

}  // namespace quillseal::linux
