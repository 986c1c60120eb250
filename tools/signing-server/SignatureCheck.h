#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Registry.h"

/// The cryptography of enrolment and signing. Pure functions; any thread.
namespace quillseal::devserver {

/// Decodes standard base64 (RFC 4648) with padding and without line breaks; nothing for any other
/// text.
[[nodiscard]] std::optional<std::string> decodedBase64(std::string_view text);

/// Returns whether `point` is an uncompressed point (0x04, X, Y: 65 bytes) on the curve P-256.
[[nodiscard]] bool isPublicKey(std::string_view point);

/// What `isSignedBy` checks.
struct SignatureClaim {
  std::string_view publicKey;  ///< see `isPublicKey`
  std::string_view digestHex;  ///< 64 hexadecimal digits
  std::string_view signature;  ///< DER (X9.62)
};

/// Returns whether the key signed the digest's 32 bytes, without hashing them again. False for a
/// malformed key, digest or signature.
[[nodiscard]] bool isSignedBy(const SignatureClaim& claim);

/// Returns the digest of the record's fields, which a device signs.
[[nodiscard]] std::string canonicalDigest(const Signature& signature);

/// Returns whether the record's device signature was made by the record's key over the record's
/// fields.
[[nodiscard]] bool isGenuine(const Signature& signature);

/// Returns whether this server can have made the record: a device's signature is genuine; any other
/// kind names no person and holds no key; dates and commitment are valid. A record without a
/// signature allows no stronger check.
[[nodiscard]] bool isConsistent(const Signature& signature);

/// Compares in a time that depends only on the lengths.
[[nodiscard]] bool equalSecrets(std::string_view left, std::string_view right);

}  // namespace quillseal::devserver
