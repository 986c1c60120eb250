#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/text/Error.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

struct HttpPost {
  std::string url;
  std::vector<std::pair<std::string, std::string>> headers;
  std::string body;
  std::chrono::seconds timeout{60};  ///< for the whole exchange, connecting and TLS included
};

struct HttpResponse {
  int status = 0;  ///< 400 when the answer was no HTTP
  std::string body;
};

/// The domain and codes of transport errors, as Foundation's URL errors number them
/// (NSURLError.h). Adapters map the failures of their library to the nearest.
namespace transport {
inline constexpr const char* errorDomain = "NSURLErrorDomain";
enum ErrorCode : int {
  unknown = -1,
  cancelled = -999,
  badUrl = -1000,
  timedOut = -1001,
  cannotFindHost = -1003,
  cannotConnectToHost = -1004,
  networkConnectionLost = -1005,
  notConnectedToInternet = -1009,
  badServerResponse = -1011,
  dataLengthExceedsMaximum = -1103,
  secureConnectionFailed = -1200,
  serverCertificateUntrusted = -1202,
};
}  // namespace transport

/// Sends requests over HTTP and HTTPS with the system's trust store and proxy settings. Server
/// certificates are always verified. No redirect is followed, since every request carries a key.
/// Main thread.
class HttpTransport {
 public:
  virtual ~HttpTransport() = default;

  /// Sends `post`. `done` gets the answer, whatever its status, or an Error of `transport`'s domain
  /// in words for the user. A malformed URL gives `badUrl`, and nothing is sent.
  [[nodiscard]] virtual Ticket send(const HttpPost& post,
                                    std::function<void(Outcome<HttpResponse>)> done) = 0;

  /// The platform's words for `code`, for errors that are found above this interface.
  [[nodiscard]] virtual Error error(transport::ErrorCode code) const = 0;
};

}  // namespace quillseal::desktop
