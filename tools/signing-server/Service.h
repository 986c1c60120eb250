#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "Registry.h"

namespace quillseal::devserver {

/// What of an HTTP request matters here.
struct Request {
  std::string method;  ///< "POST", "GET" or "HEAD"
  std::string path;
  std::string contentType;
  std::string host;       ///< the "Host" header
  std::string handoffId;  ///< the query parameter "h"
  std::string body;
};

struct Reply {
  int status = 200;
  std::string contentType;
  std::string body;
};

struct ServiceOptions {
  std::string apiKey;
  std::string identity;  ///< bound to every device that enrols; empty for none
  std::string origin;    ///< where browsers reach this server; empty: where the request came to
  std::int64_t signingSeconds = 600;  ///< within which a handoff must be signed
  std::function<std::int64_t()> now;  ///< seconds since 1970
};

/// The signing server without its sockets: answers one request after another. Callable from any
/// thread as long as `now` is.
class Service {
 public:
  /// `registry` outlives the service.
  Service(Registry& registry, ServiceOptions options);

  /// Throws RegistryError when the database fails, never for what the sender did.
  [[nodiscard]] Reply answer(const Request& request);

 private:
  Registry& registry_;
  ServiceOptions options_;
};

}  // namespace quillseal::devserver
