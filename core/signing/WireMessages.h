#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The JSON bodies that agent and signing server exchange. Pure functions.
namespace quillseal::wire {

struct EnrolRequest {
  std::string deviceId;
  std::string publicKey;  ///< the uncompressed P-256 point in base64
  std::string apiKey;
};

struct EnrolResponse {
  std::string status;
  std::string deviceId;
  std::optional<std::string> identity;  ///< nothing: signatures are an anonymous human's
};

struct SignRequest {
  std::string protocolVersion;
  std::string textDigest;
  std::string snapshotDigest;
  std::string issued;
  std::string scope;
  std::string method;
  std::string deviceId;
  std::string imageDigest;
  std::string expires;
  std::string commitment;
  std::string nonce;
  std::string timezone;             ///< IANA name
  std::int64_t timezoneOffset = 0;  ///< minutes, east positive
  std::string apiKey;
  std::string enclaveSignature;  ///< DER in base64
};

struct SignResponse {
  std::string signatureId;
};

struct DemoSignRequest {
  std::string textDigest;
  std::string issued;
  std::string scope;
  std::string imageDigest;
  std::string deviceId;
  std::string method;
  std::string expires;
  std::string commitment;
  std::string nonce;
  std::string timezone;             ///< IANA name
  std::int64_t timezoneOffset = 0;  ///< minutes, east positive
  std::string apiKey;
};

struct DemoSignResponse {
  std::string signatureId;
  bool demo = false;
};

struct HandoffCreateRequest {
  std::string textDigest;
  std::string snapshotDigest;
  std::string issued;
  std::string scope;
  std::string imageDigest;
  std::string apiKey;
};

struct HandoffCreateResponse {
  std::string handoffId;
  std::string url;  ///< the page to open in the browser
};

struct HandoffPollRequest {
  std::string handoffId;
  std::string apiKey;
};

struct HandoffPollResponse {
  std::string status;  ///< "complete", "expired" or any other word for "still open"
  std::optional<std::string> signatureId;
};

struct ErrorResponse {
  std::string error;  ///< for the user
};

/// The request as compact JSON, every key present and in the order of the fields. Throws Error when
/// a value is not well-formed UTF-8.
[[nodiscard]] std::string encoded(const EnrolRequest& request);
[[nodiscard]] std::string encoded(const SignRequest& request);
[[nodiscard]] std::string encoded(const DemoSignRequest& request);
[[nodiscard]] std::string encoded(const HandoffCreateRequest& request);
[[nodiscard]] std::string encoded(const HandoffPollRequest& request);

/// Parses a response. Throws JsonError, which names the key at fault. Unknown keys are ignored. One
/// specialisation for each response.
template <typename Response>
[[nodiscard]] Response decoded(std::string_view json);

template <>
EnrolResponse decoded(std::string_view json);
template <>
SignResponse decoded(std::string_view json);
template <>
DemoSignResponse decoded(std::string_view json);
template <>
HandoffCreateResponse decoded(std::string_view json);
template <>
HandoffPollResponse decoded(std::string_view json);
template <>
ErrorResponse decoded(std::string_view json);

}  // namespace quillseal::wire
