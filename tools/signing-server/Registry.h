#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace quillseal::devserver {

/// A device whose key this server knows.
struct Device {
  std::string deviceId;
  std::string publicKey;  ///< the uncompressed P-256 point in base64
  std::string identity;   ///< empty: nobody in particular
};

enum class SignatureKind : std::uint8_t {
  device,         ///< verified with the key of a registered device
  demonstration,  ///< recorded on the caller's word
  browser,        ///< "Sign" was pressed on the handoff page; no key took part
};

/// What is kept of a signature for good. The text itself never reaches this server.
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
  std::string publicKey;        ///< of kind `device`: the key it was verified with
  std::string deviceSignature;  ///< of kind `device`: DER in base64
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
  std::string signatureId;  ///< of state `complete`
};

/// The database file cannot be used; the message says why.
class RegistryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Devices, signatures and handoffs in one SQLite file. Callable from any thread. When a call that
/// writes returns, its record survives a crash of the process and of the machine. Every operation
/// throws RegistryError when the file fails.
class Registry {
 public:
  /// Opens `path`, creating it when it is absent; ":memory:" keeps everything in memory.
  explicit Registry(const std::string& path);
  ~Registry();
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;

  /// Registers the device, or gives a registered one its new key and identity.
  void enrol(const Device& device, std::int64_t now);
  [[nodiscard]] std::optional<Device> device(const std::string& deviceId) const;

  /// False, and nothing is kept, when a signature with the same nonce (not empty) exists.
  [[nodiscard]] bool record(const Signature& signature);
  [[nodiscard]] std::optional<Signature> signature(const std::string& id) const;

  void open(const Handoff& handoff);
  [[nodiscard]] std::optional<Handoff> handoff(const std::string& id) const;

  /// Ends an open handoff: by `signature`, or as declined. False, and nothing changes, when it is
  /// not open.
  [[nodiscard]] bool complete(const std::string& handoffId, const Signature& signature);
  [[nodiscard]] bool decline(const std::string& handoffId);

 private:
  class Database;
  std::unique_ptr<Database> database_;
};

}  // namespace quillseal::devserver
