#pragma once

#include <string>
#include <string_view>

#include "core/signing/WireMessages.h"
#include "core/tasks/Task.h"
#include "desktop/Defaults.h"
#include "desktop/HttpTransport.h"
#include "desktop/MachineIdentity.h"
#include "desktop/WallClock.h"

namespace quillseal {

/// The agent's only way to the signing server. It keeps nothing: every call reads settings, machine
/// and clock afresh. Main thread; the services outlive the client, and the client its tasks.
///
/// Every task throws Error: with domain "Quillseal", the HTTP status and the server's own words
/// when the server refused; with the transport's domain when it could not be reached, answered
/// neither success nor an explained refusal, or has a malformed URL; with domain "Quillseal" and
/// code 0 when there is no server, before anything is sent; with domain
/// "NSCocoaErrorDomain" when its answer cannot be read. Nothing is sent twice.
class ServerClient {
 public:
  using EnrolRequest = wire::EnrolRequest;
  using EnrolResponse = wire::EnrolResponse;
  using SignRequest = wire::SignRequest;
  using SignResponse = wire::SignResponse;
  using DemoSignRequest = wire::DemoSignRequest;
  using DemoSignResponse = wire::DemoSignResponse;
  using HandoffCreateRequest = wire::HandoffCreateRequest;
  using HandoffCreateResponse = wire::HandoffCreateResponse;
  using HandoffPollRequest = wire::HandoffPollRequest;
  using HandoffPollResponse = wire::HandoffPollResponse;
  using ErrorResponse = wire::ErrorResponse;

  struct Services {
    desktop::Defaults& defaults;
    desktop::HttpTransport& http;
    desktop::MachineIdentity& machine;
    desktop::WallClock& wallClock;
  };

  explicit ServerClient(Services services) : services_(services) {}

  /// The origin of the server: the trimmed setting "ServerURL", or the built-in one when that is
  /// blank. A slash at its end is kept.
  [[nodiscard]] static std::string effectiveServerURL(const desktop::Defaults& defaults);

  /// Whether `effectiveServerURL` is a server: false when neither the settings nor the build name
  /// one. Nothing is sent then.
  [[nodiscard]] static bool hasServer(const desktop::Defaults& defaults);

  /// The key that authorises this build: the trimmed setting "APIKey", or the built-in one.
  [[nodiscard]] static std::string effectiveAPIKey(const desktop::Defaults& defaults);

  /// The machine's identifier, or where the platform has none a random one, another at each call.
  [[nodiscard]] static std::string hardwareUUID(const desktop::MachineIdentity& machine);

  [[nodiscard]] std::string effectiveServerURL() const {
    return effectiveServerURL(services_.defaults);
  }
  [[nodiscard]] bool hasServer() const { return hasServer(services_.defaults); }
  [[nodiscard]] std::string effectiveAPIKey() const { return effectiveAPIKey(services_.defaults); }
  [[nodiscard]] std::string hardwareUUID() const { return hardwareUUID(services_.machine); }

  struct Content {
    std::string textDigest;
    std::string snapshotDigest;
    std::string issued;
    std::string scope;
    std::string imageDigest;
    std::string expires;
    std::string commitment;
    std::string nonce;
    std::string enclaveSignature;
  };

  /// Registers a signature by the device key; gives its identifier.
  [[nodiscard]] Task<std::string> signContent(Content content) const;

  struct DemoContent {
    std::string textDigest;
    std::string issued;
    std::string scope;
    std::string imageDigest;
    std::string method;  ///< how presence was proved
    std::string expires;
    std::string commitment;
    std::string nonce;
  };

  /// Makes a demonstration record; gives its identifier.
  [[nodiscard]] Task<std::string> signDemo(DemoContent content) const;

  [[nodiscard]] Task<EnrolResponse> enrol(EnrolRequest request) const;
  [[nodiscard]] Task<HandoffCreateResponse> createHandoff(HandoffCreateRequest request) const;
  [[nodiscard]] Task<HandoffPollResponse> pollHandoff(HandoffPollRequest request) const;

 private:
  template <typename Response, typename Request>
  Task<Response> post(std::string_view path, Request body) const;

  Services services_;
};

}  // namespace quillseal
