#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "Registry.h"

namespace quillseal::devserver {

/// The parts of an HTTP request that the service uses.
struct Request {
  std::string method;  ///< "POST", "GET" or "HEAD"
  std::string path;
  std::string contentType;
  std::string host;       ///< the "Host" header
  std::string handoffId;  ///< the query parameter "h"
  std::string body;
  bool hasQuery = false;  ///< anything follows "?" in the address
};

struct Reply {
  int status = 200;
  std::string contentType;
  std::string body;
};

struct ServiceOptions {
  std::string apiKey;
  std::string identity;  ///< bound to every enrolled device; empty for none
  std::string origin;    ///< origin of this server in links; empty for the request's own
  std::int64_t signingSeconds = 600;  ///< time in which a handoff must be signed
  std::function<std::int64_t()> now;  ///< seconds since 1970
};

/// The signing server without its sockets: answers requests. May be called from any thread if `now`
/// may.
class Service {
 public:
  /// `registry` outlives the service.
  Service(Registry& registry, ServiceOptions options);

  /// Answers a request. Throws RegistryError when the database fails, never because of the request.
  [[nodiscard]] Reply answer(const Request& request);

 private:
  Registry& registry_;
  ServiceOptions options_;
};

}  // namespace quillseal::devserver
