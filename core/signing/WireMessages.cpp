#include "core/signing/WireMessages.h"

#include <nlohmann/json.hpp>

#include "core/text/Error.h"
#include "core/text/StrictJson.h"

namespace quillseal::wire {
namespace {

std::string written(const nlohmann::ordered_json& object) {
  try {
    return object.dump();
  } catch (const nlohmann::json::type_error&) {
    throw Error({.domain = "Quillseal",
                 .code = 0,
                 .description = "The request cannot be sent, because it contains invalid UTF-8."});
  }
}

}  // namespace

std::string encoded(const EnrolRequest& request) {
  return written({{"device_id", request.deviceId},
                  {"public_key", request.publicKey},
                  {"api_key", request.apiKey}});
}

std::string encoded(const SignRequest& request) {
  return written({{"protocol", request.protocolVersion},
                  {"text_digest", request.textDigest},
                  {"snapshot_digest", request.snapshotDigest},
                  {"issued", request.issued},
                  {"scope", request.scope},
                  {"method", request.method},
                  {"device_id", request.deviceId},
                  {"image_digest", request.imageDigest},
                  {"expires", request.expires},
                  {"commitment", request.commitment},
                  {"nonce", request.nonce},
                  {"timezone", request.timezone},
                  {"tz_offset", request.timezoneOffset},
                  {"api_key", request.apiKey},
                  {"enclave_signature", request.enclaveSignature}});
}

std::string encoded(const DemoSignRequest& request) {
  return written({{"text_digest", request.textDigest},
                  {"issued", request.issued},
                  {"scope", request.scope},
                  {"image_digest", request.imageDigest},
                  {"device_id", request.deviceId},
                  {"method", request.method},
                  {"expires", request.expires},
                  {"commitment", request.commitment},
                  {"nonce", request.nonce},
                  {"timezone", request.timezone},
                  {"tz_offset", request.timezoneOffset},
                  {"api_key", request.apiKey}});
}

std::string encoded(const HandoffCreateRequest& request) {
  return written({{"text_digest", request.textDigest},
                  {"snapshot_digest", request.snapshotDigest},
                  {"issued", request.issued},
                  {"scope", request.scope},
                  {"image_digest", request.imageDigest},
                  {"api_key", request.apiKey}});
}

std::string encoded(const HandoffPollRequest& request) {
  return written({{"handoff_id", request.handoffId}, {"api_key", request.apiKey}});
}

template <>
EnrolResponse decoded(std::string_view json) {
  const JsonObject object = JsonObject::parse(json);
  return {.status = object.string("status"),
          .deviceId = object.string("device_id"),
          .identity = object.optionalString("identity")};
}

template <>
SignResponse decoded(std::string_view json) {
  return {.signatureId = JsonObject::parse(json).string("signature_id")};
}

template <>
DemoSignResponse decoded(std::string_view json) {
  const JsonObject object = JsonObject::parse(json);
  return {.signatureId = object.string("signature_id"), .demo = object.boolean("demo")};
}

template <>
HandoffCreateResponse decoded(std::string_view json) {
  const JsonObject object = JsonObject::parse(json);
  return {.handoffId = object.string("handoff_id"), .url = object.string("url")};
}

template <>
HandoffPollResponse decoded(std::string_view json) {
  const JsonObject object = JsonObject::parse(json);
  return {.status = object.string("status"), .signatureId = object.optionalString("signature_id")};
}

template <>
ErrorResponse decoded(std::string_view json) {
  return {.error = JsonObject::parse(json).string("error")};
}

}  // namespace quillseal::wire
