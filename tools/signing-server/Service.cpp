#include "Service.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <nlohmann/json.hpp>

#include "Assets.h"
#include "Messages.h"
#include "Pages.h"
#include "Quillseal/CryptoManager.h"
#include "SignatureCheck.h"
#include "core/text/StrictJson.h"
#include "core/text/UnicodeText.h"

namespace quillseal::devserver {
namespace {

using Json = nlohmann::ordered_json;

constexpr int success = 200;
constexpr int badRequest = 400;
constexpr int unauthorized = 401;
constexpr int forbidden = 403;
constexpr int notFound = 404;
constexpr int conflict = 409;
constexpr int gone = 410;
constexpr int unsupportedMediaType = 415;
constexpr int misdirected = 421;

constexpr std::int64_t signatureIdBytes = 12;
constexpr std::int64_t handoffIdBytes = 16;

constexpr std::string_view verifyPrefix = "/verify/";
constexpr std::string_view assetPrefix = "/assets/";

struct Refusal : std::runtime_error {
  Refusal(int httpStatus, const std::string& message)
      : std::runtime_error(message), status(httpStatus) {}
  int status;
};

Reply jsonReply(int status, const Json& object) {
  return {.status = status, .contentType = "application/json", .body = object.dump()};
}

Reply errorReply(int status, const std::string& message) {
  return jsonReply(status, {{"error", message}});
}

Reply htmlReply(int status, std::string page) {
  return {.status = status, .contentType = "text/html; charset=utf-8", .body = std::move(page)};
}

std::string randomId(std::int64_t bytes) {
  std::string id = CryptoManager::randomHex(bytes);
  if (id.empty()) throw std::runtime_error("the random source failed");
  return id;
}

std::string contentTypeOf(std::string_view name) {
  if (name.ends_with(".css")) return "text/css; charset=utf-8";
  if (name.ends_with(".js")) return "text/javascript; charset=utf-8";
  return "image/svg+xml";
}

/// Templates of pages are not served as files.
std::optional<std::string_view> publicAsset(std::string_view name) {
  return name.ends_with(".mustache") ? std::nullopt : asset(name);
}

std::string_view withoutPort(std::string_view host) {
  const std::size_t colon = host.rfind(':');
  const bool hasPort = colon != std::string_view::npos &&
                       host.find_first_not_of("0123456789", colon + 1) == std::string_view::npos;
  return hasPort ? host.substr(0, colon) : host;
}

bool isAddress(std::string_view host) {
  const bool isBracketed = host.size() > 2 && host.front() == '[' && host.back() == ']';
  const std::string text(isBracketed ? host.substr(1, host.size() - 2) : host);
  if (text.find('\0') != std::string::npos) return false;
  std::array<unsigned char, sizeof(in6_addr)> address{};
  return inet_pton(isBracketed ? AF_INET6 : AF_INET, text.c_str(), address.data()) == 1;
}

/// Returns whether a "Host" header names this server: an IP address, localhost, or the host of its
/// origin. This stops DNS rebinding, where a foreign page points its own host name at this server:
/// its requests still carry that name.
bool isOwnHost(std::string_view header, std::string_view origin) {
  const std::string_view host = withoutPort(header);
  const std::size_t scheme = origin.find("://");
  const bool isOrigin =
      scheme != std::string_view::npos && !host.empty() &&
      unicode::lowercased(withoutPort(origin.substr(scheme + 3))) == unicode::lowercased(host);
  return isOrigin || isAddress(host) || unicode::lowercased(host) == "localhost";
}

Signature signatureOf(const Attestation& attestation) {
  Signature signature;
  signature.textDigest = attestation.textDigest;
  signature.imageDigest = attestation.imageDigest;
  signature.issued = attestation.issued;
  signature.scope = attestation.scope;
  signature.method = attestation.method;
  signature.deviceId = attestation.deviceId;
  signature.expires = attestation.expires;
  signature.commitment = attestation.commitment;
  signature.nonce = attestation.nonce;
  signature.timezone = attestation.timezone;
  signature.utcOffsetMinutes = attestation.utcOffsetMinutes;
  return signature;
}

/// Returns the signature that "Sign" on the handoff page makes.
Signature signatureOf(const Handoff& handoff) {
  Signature signature;
  signature.kind = SignatureKind::browser;
  signature.textDigest = handoff.textDigest;
  signature.snapshotDigest = handoff.snapshotDigest;
  signature.imageDigest = handoff.imageDigest;
  signature.issued = handoff.issued;
  signature.scope = handoff.scope;
  signature.method = "“Sign” pressed in the browser";
  signature.expires = browserExpiry(handoff.issued);
  signature.commitment = CryptoManager::commitmentTypes.front();
  return signature;
}

/// Returns the seconds until an open handoff expires; zero or less when it has expired.
std::int64_t secondsLeft(const Handoff& handoff, const ServiceOptions& options) {
  return handoff.createdAt + options.signingSeconds - options.now();
}

/// The data that an endpoint works on.
struct Call {
  Registry& registry;
  const ServiceOptions& options;
  const Request& request;
  const JsonObject& body;
};

std::string originOf(const Call& call) {
  return call.options.origin.empty() ? "http://" + call.request.host : call.options.origin;
}

Handoff knownHandoff(const Call& call) {
  std::optional<Handoff> handoff = call.registry.handoff(call.body.string("handoff_id"));
  if (!handoff) throw Refusal(notFound, "This signing request does not exist.");
  return *std::move(handoff);
}

Json enrol(const Call& call) {
  const Enrolment enrolment = readEnrolment(call.body);
  const std::string& identity = call.options.identity;
  call.registry.enrol(
      {.deviceId = enrolment.deviceId, .publicKey = enrolment.publicKey, .identity = identity},
      call.options.now());
  Json answer{{"status", "registered"}, {"device_id", enrolment.deviceId}};
  if (!identity.empty()) answer["identity"] = identity;
  return answer;
}

/// Stores the signature under a new identifier and returns that.
std::string recorded(const Call& call, Signature signature) {
  signature.id = randomId(signatureIdBytes);
  signature.recordedAt = call.options.now();
  if (!call.registry.record(signature)) {
    throw Refusal(conflict, "This nonce was used before. Sign again.");
  }
  return signature.id;
}

Json signNative(const Call& call) {
  Signature signature = signatureOf(readAttestation(call.body));
  const DeviceProof proof = readDeviceProof(call.body);
  const std::optional<Device> device = call.registry.device(signature.deviceId);
  // The agent enrols again when it reads this text.
  if (!device) throw Refusal(notFound, "Device not registered");
  signature.kind = SignatureKind::device;
  signature.snapshotDigest = proof.snapshotDigest;
  signature.deviceSignature = proof.signature;
  signature.identity = device->identity;
  signature.publicKey = device->publicKey;
  if (!isGenuine(signature)) {
    throw Refusal(forbidden, "The signature does not match this device's key and these fields.");
  }
  return {{"signature_id", recorded(call, std::move(signature))}};
}

Json signDemo(const Call& call) {
  Signature signature = signatureOf(readAttestation(call.body));
  signature.kind = SignatureKind::demonstration;
  return {{"signature_id", recorded(call, std::move(signature))}, {"demo", true}};
}

Json createHandoff(const Call& call) {
  const HandoffRequest request = readHandoffRequest(call.body);
  const std::string id = randomId(handoffIdBytes);
  const std::string url = originOf(call) + "/handoff?h=" + id;
  Handoff handoff;
  handoff.id = id;
  handoff.textDigest = request.textDigest;
  handoff.snapshotDigest = request.snapshotDigest;
  handoff.imageDigest = request.imageDigest;
  handoff.issued = request.issued;
  handoff.scope = request.scope;
  handoff.createdAt = call.options.now();
  call.registry.open(handoff);
  return {{"handoff_id", id}, {"url", url}};
}

Json pollHandoff(const Call& call) {
  const Handoff handoff = knownHandoff(call);
  if (handoff.state == HandoffState::complete) {
    return {{"status", "complete"}, {"signature_id", handoff.signatureId}};
  }
  // For any other status, also one for "declined", the agent would keep polling for minutes.
  const bool isOver =
      handoff.state == HandoffState::declined || secondsLeft(handoff, call.options) <= 0;
  return {{"status", isOver ? "expired" : "pending"}};
}

/// Returns the handoff; refuses one that is not open or has expired.
Handoff openHandoff(const Call& call) {
  Handoff handoff = knownHandoff(call);
  if (handoff.state == HandoffState::declined) {
    throw Refusal(conflict, "This signing request was declined.");
  }
  if (secondsLeft(handoff, call.options) <= 0) {
    throw Refusal(gone, "This signing request has expired.");
  }
  return handoff;
}

Json signHandoff(const Call& call) {
  const std::string textDigest = readTextDigest(call.body);
  // A second click, or a retry after a lost answer, gets the first signature.
  if (const Handoff known = knownHandoff(call); known.state == HandoffState::complete) {
    return {{"signature_id", known.signatureId}};
  }
  const Handoff handoff = openHandoff(call);
  if (textDigest != handoff.textDigest) {
    throw Refusal(forbidden, "This is not the text that was registered.");
  }
  Signature signature = signatureOf(handoff);
  signature.id = randomId(signatureIdBytes);
  signature.recordedAt = call.options.now();
  if (!call.registry.complete(handoff.id, signature)) {
    throw Refusal(conflict, "This signing request was just answered elsewhere.");
  }
  return {{"signature_id", signature.id}};
}

Json declineHandoff(const Call& call) {
  const Handoff handoff = openHandoff(call);
  if (!call.registry.decline(handoff.id)) {
    throw Refusal(conflict, "This signing request was already signed.");
  }
  return {{"status", "declined"}};
}

enum class Caller : std::uint8_t {
  agent,  ///< carries the API key
  page,   ///< carries a handoff's identifier, which cannot be guessed
};

struct Endpoint {
  std::string_view path;
  Caller caller;
  Json (*perform)(const Call&);
};

constexpr std::array endpoints{
    Endpoint{"/api/register_native", Caller::agent, enrol},
    Endpoint{"/api/sign_native", Caller::agent, signNative},
    Endpoint{"/api/sign_demo", Caller::agent, signDemo},
    Endpoint{"/api/handoff/create", Caller::agent, createHandoff},
    Endpoint{"/api/handoff/poll", Caller::agent, pollHandoff},
    Endpoint{"/handoff/sign", Caller::page, signHandoff},
    Endpoint{"/handoff/decline", Caller::page, declineHandoff},
};

Reply answerPost(Registry& registry, const ServiceOptions& options, const Request& request) {
  const auto* endpoint = std::ranges::find(endpoints, request.path, &Endpoint::path);
  if (endpoint == endpoints.end()) throw Refusal(notFound, "There is no such endpoint.");
  // A foreign page cannot send this type without a CORS preflight.
  if (!request.contentType.starts_with("application/json")) {
    throw Refusal(unsupportedMediaType, "The Content-Type must be application/json.");
  }
  // Addresses end up in logs.
  if (request.hasQuery)
    throw Refusal(badRequest, "Send all values in the body, none in the address.");
  const JsonObject body = JsonObject::parse(request.body);
  if (endpoint->caller == Caller::agent && !equalSecrets(body.string("api_key"), options.apiKey)) {
    throw Refusal(unauthorized, "The API key is not the one of this server.");
  }
  return jsonReply(
      success, endpoint->perform(
                   {.registry = registry, .options = options, .request = request, .body = body}));
}

Reply answerGet(const Registry& registry, const ServiceOptions& options, const Request& request) {
  const std::string_view path = request.path;
  if (path == "/") {
    return htmlReply(success, noticePage({.title = "The development server is running",
                                          .text = "Set it as the server of Quillseal on this "
                                                  "computer, with its API key, to try signing."}));
  }
  if (path.starts_with(verifyPrefix)) {
    const auto signature = registry.signature(std::string(path.substr(verifyPrefix.size())));
    if (signature) return htmlReply(success, verifyPage(*signature, options.now()));
    return htmlReply(notFound,
                     noticePage({.title = "No such signature",
                                 .text = "This server knows no signature of this name. Treat the "
                                         "text as unsigned, unless the link was damaged."}));
  }
  if (path == "/handoff") {
    const auto handoff = registry.handoff(request.handoffId);
    if (handoff) return htmlReply(success, handoffPage(*handoff, secondsLeft(*handoff, options)));
    return htmlReply(notFound, noticePage({.title = "No such signing request",
                                           .text = "Select your text and start again."}));
  }
  if (path.starts_with(assetPrefix)) {
    const std::string_view name = path.substr(assetPrefix.size());
    if (const auto content = publicAsset(name)) {
      return {.contentType = contentTypeOf(name), .body = std::string(*content)};
    }
  }
  return htmlReply(
      notFound, noticePage({.title = "Nothing here", .text = "There is no page at this address."}));
}

}  // namespace

Service::Service(Registry& registry, ServiceOptions options)
    : registry_(registry), options_(std::move(options)) {}

Reply Service::answer(const Request& request) {
  try {
    if (!isOwnHost(request.host, options_.origin)) {
      throw Refusal(misdirected,
                    "The Host header is no address of this server. Start it with --origin when it "
                    "is reached by a name.");
    }
    return request.method == "POST" ? answerPost(registry_, options_, request)
                                    : answerGet(registry_, options_, request);
  } catch (const Refusal& refusal) {
    return errorReply(refusal.status, refusal.what());
  } catch (const JsonError& error) {
    return errorReply(badRequest, "The request body cannot be used. " + std::string(error.what()));
  }
}

}  // namespace quillseal::devserver
