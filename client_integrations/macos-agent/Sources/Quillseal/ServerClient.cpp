#include "Quillseal/ServerClient.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <variant>

#include "Quillseal/BuiltInServer.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/Settings.h"
#include "core/tasks/Async.h"
#include "core/text/Error.h"
#include "core/text/StrictJson.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

constexpr std::chrono::seconds timeout{60};
constexpr const char* protocolVersion = "v2";
constexpr const char* signingMethod = "Touch ID";

/// NSCoderReadCorruptError of Foundation (FoundationErrors.h).
constexpr std::int64_t unreadableAnswer = 4864;

std::string trimmedOrFallback(const Settings::Text& setting, const desktop::Defaults& defaults) {
  const std::string stored = setting.value(defaults);
  const std::string_view trimmed = unicode::trimmed(stored);
  return std::string(trimmed.empty() ? setting.fallback() : trimmed);
}

/// A UUID of version 4 (RFC 9562) in upper case.
std::string randomUUID() {
  constexpr std::int64_t uuidBytes = 16;
  constexpr std::size_t versionDigit = 12;
  constexpr std::size_t variantDigit = 16;
  std::string digits = CryptoManager::randomHex(uuidBytes);
  if (digits.empty()) {
    throw Error({.domain = "Quillseal",
                 .code = 0,
                 .description = "The system's random source failed. Restart the computer and try "
                                "again."});
  }
  digits[versionDigit] = '4';
  digits[variantDigit] = "89ab"[static_cast<unsigned char>(digits[variantDigit]) % 4];
  for (const std::size_t hyphen : {20U, 16U, 12U, 8U})
    digits.insert(hyphen, 1, '-');
  return unicode::uppercased(digits);
}

std::int64_t wholeMinutes(const desktop::TimeZone& zone) {
  return zone.secondsFromGmt / 60;
}

/// The server's words, as many as fit an alert.
std::optional<std::string> refusalIn(const std::string& body) {
  constexpr std::size_t mostCharacters = 1000;
  try {
    const std::string words = wire::decoded<wire::ErrorResponse>(body).error;
    const std::string_view shown = unicode::firstCharacters(words, mostCharacters);
    return shown.size() < words.size() ? std::string(shown) + "…" : words;
  } catch (const JsonError&) {
    return std::nullopt;
  }
}

template <typename Request>
desktop::HttpPost postOf(const std::string& url, const Request& body) {
  return {.url = url,
          .headers = {{"Content-Type", "application/json"}},
          .body = wire::encoded(body),
          .timeout = timeout};
}

template <typename Response>
Response readAnswer(const desktop::HttpResponse& answer, const desktop::HttpTransport& http) {
  if (answer.status < 200 || answer.status > 299) {
    if (const std::optional<std::string> refusal = refusalIn(answer.body)) {
      throw Error({.domain = "Quillseal", .code = answer.status, .description = *refusal});
    }
    throw http.error(desktop::transport::badServerResponse);
  }
  try {
    return wire::decoded<Response>(answer.body);
  } catch (const JsonError& error) {
    throw Error({.domain = "NSCocoaErrorDomain",
                 .code = unreadableAnswer,
                 .description = "The server’s answer cannot be read. " + std::string(error.what()) +
                                " Check the server address in the settings."});
  }
}

}  // namespace

std::string ServerClient::effectiveServerURL(const desktop::Defaults& defaults) {
  return trimmedOrFallback(Settings::serverURL, defaults);
}

bool ServerClient::hasServer(const desktop::Defaults& defaults) {
  return BuiltInServer::isChosen() || effectiveServerURL(defaults) != BuiltInServer::url();
}

std::string ServerClient::effectiveAPIKey(const desktop::Defaults& defaults) {
  return trimmedOrFallback(Settings::apiKey, defaults);
}

std::string ServerClient::hardwareUUID(const desktop::MachineIdentity& machine) {
  if (std::optional<std::string> uuid = machine.platformUuid()) return *std::move(uuid);
  return randomUUID();
}

template <typename Response, typename Request>
Task<Response> ServerClient::post(std::string_view path, Request body) const {
  if (!hasServer()) {
    throw Error(
        {.domain = "Quillseal",
         .code = 0,
         .description = "No signing server is set: “ServerURL” is missing in the settings."});
  }
  const desktop::HttpPost request = postOf(effectiveServerURL() + std::string(path), body);
  desktop::HttpTransport& http = services_.http;
  const auto outcome = co_await completionOf<Outcome<desktop::HttpResponse>>(
      [&http, &request](std::function<void(Outcome<desktop::HttpResponse>)> done) {
        return http.send(request, std::move(done));
      });
  if (const Error* failure = std::get_if<Error>(&outcome)) throw Error(*failure);
  co_return readAnswer<Response>(std::get<desktop::HttpResponse>(outcome), http);
}

Task<std::string> ServerClient::signContent(Content content) const {
  const desktop::TimeZone zone = services_.wallClock.timeZone();
  SignRequest request{.protocolVersion = protocolVersion,
                      .textDigest = std::move(content.textDigest),
                      .snapshotDigest = std::move(content.snapshotDigest),
                      .issued = std::move(content.issued),
                      .scope = std::move(content.scope),
                      .method = signingMethod,
                      .deviceId = hardwareUUID(),
                      .imageDigest = std::move(content.imageDigest),
                      .expires = std::move(content.expires),
                      .commitment = std::move(content.commitment),
                      .nonce = std::move(content.nonce),
                      .timezone = zone.identifier,
                      .timezoneOffset = wholeMinutes(zone),
                      .apiKey = effectiveAPIKey(),
                      .enclaveSignature = std::move(content.enclaveSignature)};
  const auto response = co_await post<SignResponse>("/api/sign_native", std::move(request));
  co_return response.signatureId;
}

Task<std::string> ServerClient::signDemo(DemoContent content) const {
  const desktop::TimeZone zone = services_.wallClock.timeZone();
  DemoSignRequest request{.textDigest = std::move(content.textDigest),
                          .issued = std::move(content.issued),
                          .scope = std::move(content.scope),
                          .imageDigest = std::move(content.imageDigest),
                          .deviceId = hardwareUUID(),
                          .method = std::move(content.method),
                          .expires = std::move(content.expires),
                          .commitment = std::move(content.commitment),
                          .nonce = std::move(content.nonce),
                          .timezone = zone.identifier,
                          .timezoneOffset = wholeMinutes(zone),
                          .apiKey = effectiveAPIKey()};
  const auto response = co_await post<DemoSignResponse>("/api/sign_demo", std::move(request));
  co_return response.signatureId;
}

Task<ServerClient::EnrolResponse> ServerClient::enrol(EnrolRequest request) const {
  return post<EnrolResponse>("/api/register_native", std::move(request));
}

Task<ServerClient::HandoffCreateResponse> ServerClient::createHandoff(
    HandoffCreateRequest request) const {
  return post<HandoffCreateResponse>("/api/handoff/create", std::move(request));
}

Task<ServerClient::HandoffPollResponse> ServerClient::pollHandoff(
    HandoffPollRequest request) const {
  return post<HandoffPollResponse>("/api/handoff/poll", std::move(request));
}

}  // namespace quillseal
