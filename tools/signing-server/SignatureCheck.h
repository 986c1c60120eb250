#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Registry.h"

/// The cryptography of enrolment and signing. Pure functions, callable from any thread.
namespace quillseal::devserver {

/// The bytes of standard base64 (RFC 4648) with padding and without line breaks; nothing when
/// `text` is anything else.
[[nodiscard]] std::optional<std::string> decodedBase64(std::string_view text);

/// Whether `point` is an uncompressed point (0x04, X, Y: 65 bytes) on the curve P-256.
[[nodiscard]] bool isPublicKey(std::string_view point);

/// What `isSignedBy` checks.
struct SignatureClaim {
  std::string_view publicKey;  ///< as `isPublicKey` accepts it
  std::string_view digestHex;  ///< 64 hexadecimal digits
  std::string_view signature;  ///< DER (X9.62)
};

/// Whether the signature is one by the key over the digest's 32 bytes, taken as they are. False for
/// a malformed key, digest or signature.
[[nodiscard]] bool isSignedBy(const SignatureClaim& claim);

/// The digest of what the signature's fields say, which a device's signature is over.
[[nodiscard]] std::string canonicalDigest(const Signature& signature);

/// Whether the record's device signature is one by the record's key over the record's own fields.
[[nodiscard]] bool isGenuine(const Signature& signature);

/// Whether the record can be one that this server made: a device's is genuine, any other names no
/// person and holds no key, and its dates and its commitment exist. Of a record without a
/// signature, no more can be told.
[[nodiscard]] bool isConsistent(const Signature& signature);

/// Whether both are equal, in a time that depends on the lengths alone.
[[nodiscard]] bool equalSecrets(std::string_view left, std::string_view right);

}  // namespace quillseal::devserver
