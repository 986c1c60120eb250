#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/text/StrictJson.h"

/// Parses request bodies strictly. Each function throws JsonError with a sentence that names the
/// key which is missing, has the wrong type or an invalid value. Pure functions.
namespace quillseal::devserver {

struct Enrolment {
  std::string deviceId;   ///< a UUID in upper case
  std::string publicKey;  ///< base64 of a point of P-256
};
[[nodiscard]] Enrolment readEnrolment(const JsonObject& body);

/// The statement of a signature of either kind about the text.
struct Attestation {
  std::string textDigest;
  std::string imageDigest;
  std::string issued;
  std::string scope;
  std::string method;
  std::string deviceId;  ///< a UUID in upper case
  std::string expires;
  std::string commitment;
  std::string nonce;
  std::string timezone;
  std::int64_t utcOffsetMinutes = 0;
};
[[nodiscard]] Attestation readAttestation(const JsonObject& body);

/// The additional fields of a device's signature.
struct DeviceProof {
  std::string snapshotDigest;  ///< may be empty
  std::string signature;       ///< base64
};
[[nodiscard]] DeviceProof readDeviceProof(const JsonObject& body);

struct HandoffRequest {
  std::string textDigest;
  std::string snapshotDigest;  ///< may be empty
  std::string imageDigest;
  std::string issued;
  std::string scope;
};
[[nodiscard]] HandoffRequest readHandoffRequest(const JsonObject& body);

/// Reads the key "text_digest".
[[nodiscard]] std::string readTextDigest(const JsonObject& body);

}  // namespace quillseal::devserver
