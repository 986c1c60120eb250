#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "keys/KeyMedium.h"
#include "keys/PrivateFile.h"

namespace quillseal::linux {

/// The parameters of scrypt, which set the cost of each guess (RFC 7914). The defaults take 16 MiB
/// and 0.2 to 0.8 seconds, as OWASP advises for passwords kept on a server. OpenSSL refuses to open
/// a file that needs more than 32 MiB.
struct ScryptCost {
  std::uint64_t n = 1U << 14U;  ///< a power of two
  std::uint64_t r = 8;
  std::uint64_t p = 5;
};

/// The device key in a file: a PKCS#8 PEM encrypted with AES-256 under a passphrase, followed by
/// the public key. OpenSSL can open it with the passphrase.
class FileKeyStore final : public KeyMedium {
 public:
  struct Options {
    std::filesystem::path path;  ///< absolute, in a folder of its own
    ScryptCost cost;
  };
  explicit FileKeyStore(Options options);

  [[nodiscard]] SecretKind secretKind() const noexcept override;
  [[nodiscard]] KeyPlace place() const noexcept override;
  [[nodiscard]] std::string name() const override;
  [[nodiscard]] std::string describe() const override;
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
  PrivateFile file_;
  ScryptCost cost_;
};

}  // namespace quillseal::linux
