#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace quillseal::devserver {

/// A registered device.
struct Device {
  std::string deviceId;
  std::string publicKey;  ///< the uncompressed P-256 point in base64
  std::string identity;   ///< empty for none
};

enum class SignatureKind : std::uint8_t {
  device,         ///< verified with the key of a registered device
  demonstration,  ///< recorded without proof
  browser,        ///< "Sign" was pressed on the handoff page; no key was used
};

/// The permanent record of a signature. The text itself never reaches this server.
struct Signature {
  std::string id;
  SignatureKind kind = SignatureKind::device;
  std::string textDigest;
  std::string snapshotDigest;
  std::string imageDigest;
  std::string issued;
  std::string scope;
  std::string method;
  std::string identity;
  std::string deviceId;
  std::string expires;
  std::string commitment;
  std::string nonce;
  std::string timezone;
  std::int64_t utcOffsetMinutes = 0;
  std::string publicKey;        ///< for kind `device`: the key that verified it
  std::string deviceSignature;  ///< for kind `device`: DER in base64
  std::int64_t recordedAt = 0;  ///< seconds since 1970
};

enum class HandoffState : std::uint8_t { open, complete, declined };

/// A request to sign in the browser.
struct Handoff {
  std::string id;
  std::string textDigest;
  std::string snapshotDigest;
  std::string imageDigest;
  std::string issued;
  std::string scope;
  std::int64_t createdAt = 0;  ///< seconds since 1970
  HandoffState state = HandoffState::open;
  std::string signatureId;  ///< for state `complete`
};

/// The database file cannot be used. The message says why.
class RegistryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Devices, signatures and handoffs in one SQLite file. Any thread. When a writing call returns,
/// its record survives a crash of the process and of the machine. Every operation throws
/// RegistryError when the file fails.
class Registry {
 public:
  /// Opens `path` and creates it if needed; ":memory:" keeps everything in memory.
  explicit Registry(const std::string& path);
  ~Registry();
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;

  /// Registers the device, or updates the key and identity of a registered one.
  void enrol(const Device& device, std::int64_t now);
  [[nodiscard]] std::optional<Device> device(const std::string& deviceId) const;

  /// Stores a signature. Returns false and stores nothing when one with the same non-empty nonce
  /// exists.
  [[nodiscard]] bool record(const Signature& signature);
  [[nodiscard]] std::optional<Signature> signature(const std::string& id) const;

  void open(const Handoff& handoff);
  [[nodiscard]] std::optional<Handoff> handoff(const std::string& id) const;

  /// End an open handoff with `signature` or as declined. Return false and change nothing when it
  /// is not open.
  [[nodiscard]] bool complete(const std::string& handoffId, const Signature& signature);
  [[nodiscard]] bool decline(const std::string& handoffId);

 private:
  class Database;
  std::unique_ptr<Database> database_;
};

}  // namespace quillseal::devserver
