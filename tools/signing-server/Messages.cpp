#include "Messages.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "Pages.h"
#include "Quillseal/CryptoManager.h"
#include "SignatureCheck.h"
#include "core/text/UnicodeText.h"

namespace quillseal::devserver {
namespace {

constexpr std::size_t digestDigits = 64;
constexpr std::size_t longestText = 1000;     // bytes of a scope or a method
constexpr std::size_t longestSignature = 72;  // bytes: DER of two 32-byte integers
constexpr std::size_t shortestNonce = 32;     // digits: 128 bits
constexpr std::size_t longestNonce = 128;
constexpr std::size_t longestZone = 64;
constexpr std::int64_t widestOffset = std::int64_t{18} * 60;  // minutes, as ISO 8601 zones reach

constexpr std::string_view lowerHexDigits = "0123456789abcdef";
constexpr std::string_view hexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view zoneCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_+-/";

bool isMadeOf(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

[[noreturn]] void refuse(std::string_view key, std::string_view demand) {
  throw JsonError("The key “" + std::string(key) + "” must be " + std::string(demand) + ".");
}

bool isDigest(std::string_view text) {
  return text.size() == digestDigits && isMadeOf(text, lowerHexDigits);
}

std::string digest(const JsonObject& body, std::string_view key) {
  const std::string& value = body.string(key);
  if (!isDigest(value)) refuse(key, "64 lower-case hexadecimal digits");
  return value;
}

std::string digestOrNothing(const JsonObject& body, std::string_view key) {
  const std::string& value = body.string(key);
  if (!value.empty() && !isDigest(value)) refuse(key, "empty or 64 lower-case hexadecimal digits");
  return value;
}

bool isDate(const std::string& text) {
  // Only an existing day in this format has an expiry date. The length check refuses white space.
  return text.size() == std::string_view("yyyy-MM-dd").size() &&
         !CryptoManager::expiryDateFor({.issued = text, .wordCount = 0}).empty();
}

std::string date(const JsonObject& body, std::string_view key) {
  const std::string& value = body.string(key);
  if (!isDate(value)) refuse(key, "an existing day as yyyy-MM-dd");
  return value;
}

std::string shortText(const JsonObject& body, std::string_view key) {
  const std::string& value = body.string(key);
  if (value.size() > longestText) refuse(key, "at most 1000 bytes long");
  return value;
}

/// In upper case, so that each device has one spelling; the canonical payload ignores case too.
std::string deviceId(const JsonObject& body) {
  constexpr std::string_view key = "device_id";
  constexpr std::string_view shape = "00000000-0000-0000-0000-000000000000";
  const std::string& value = body.string(key);
  const bool isUuid = std::equal(
      value.begin(), value.end(), shape.begin(), shape.end(), [](char character, char place) {
        return place == '-' ? character == '-'
                            : hexDigits.find(character) != std::string_view::npos;
      });
  if (!isUuid) refuse(key, "a UUID");
  return unicode::uppercased(value);
}

std::string commitment(const JsonObject& body) {
  constexpr std::string_view key = "commitment";
  const std::string& value = body.string(key);
  if (std::ranges::find(CryptoManager::commitmentTypes, value) ==
      CryptoManager::commitmentTypes.end()) {
    refuse(key, "statement, approval, authorship, receipt or draft");
  }
  return value;
}

std::string nonce(const JsonObject& body) {
  constexpr std::string_view key = "nonce";
  const std::string& value = body.string(key);
  if (value.size() < shortestNonce || value.size() > longestNonce || !isMadeOf(value, hexDigits)) {
    refuse(key, "32 to 128 hexadecimal digits");
  }
  return value;
}

std::string timezone(const JsonObject& body) {
  constexpr std::string_view key = "timezone";
  const std::string& value = body.string(key);
  if (value.empty() || value.size() > longestZone || !isMadeOf(value, zoneCharacters)) {
    refuse(key, "the name of a time zone");
  }
  return value;
}

std::int64_t utcOffset(const JsonObject& body) {
  constexpr std::string_view key = "tz_offset";
  const std::int64_t value = body.integer(key);
  if (value < -widestOffset || value > widestOffset) refuse(key, "at most 18 hours, in minutes");
  return value;
}

}  // namespace

Enrolment readEnrolment(const JsonObject& body) {
  constexpr std::string_view key = "public_key";
  Enrolment enrolment{.deviceId = deviceId(body), .publicKey = body.string(key)};
  const std::optional<std::string> point = decodedBase64(enrolment.publicKey);
  if (!point || !isPublicKey(*point)) {
    refuse(key, "an uncompressed point of the curve P-256 in base64");
  }
  return enrolment;
}

Attestation readAttestation(const JsonObject& body) {
  Attestation attestation{.textDigest = digest(body, "text_digest"),
                          .imageDigest = digest(body, "image_digest"),
                          .issued = date(body, "issued"),
                          .scope = shortText(body, "scope"),
                          .method = shortText(body, "method"),
                          .deviceId = deviceId(body),
                          .expires = date(body, "expires"),
                          .commitment = commitment(body),
                          .nonce = nonce(body),
                          .timezone = timezone(body),
                          .utcOffsetMinutes = utcOffset(body)};
  // Dates of this form sort as text.
  if (attestation.expires < attestation.issued) refuse("expires", "no earlier than “issued”");
  return attestation;
}

DeviceProof readDeviceProof(const JsonObject& body) {
  if (body.string("protocol") != "v2") refuse("protocol", "“v2”");
  constexpr std::string_view key = "enclave_signature";
  DeviceProof proof{.snapshotDigest = digestOrNothing(body, "snapshot_digest"),
                    .signature = body.string(key)};
  const std::optional<std::string> signature = decodedBase64(proof.signature);
  if (!signature || signature->empty() || signature->size() > longestSignature) {
    refuse(key, "a DER signature in base64");
  }
  return proof;
}

HandoffRequest readHandoffRequest(const JsonObject& body) {
  HandoffRequest request{.textDigest = digest(body, "text_digest"),
                         .snapshotDigest = digestOrNothing(body, "snapshot_digest"),
                         .imageDigest = digest(body, "image_digest"),
                         .issued = date(body, "issued"),
                         .scope = shortText(body, "scope")};
  if (!isDate(browserExpiry(request.issued)))
    refuse("issued", "a day that leaves one to expire on");
  return request;
}

std::string readTextDigest(const JsonObject& body) {
  return digest(body, "text_digest");
}

}  // namespace quillseal::devserver
