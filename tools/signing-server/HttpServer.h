#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Service.h"

namespace quillseal::devserver {

/// Where to listen.
struct Address {
  std::string host;
  int port = 0;  ///< 0: any free one
};

/// Serves a Service over HTTP.
class HttpServer {
 public:
  /// `service` outlives the server. `log`, when set, gets one line for each request, from any
  /// thread: never a body, a query or a header.
  HttpServer(Service& service, const std::function<void(const std::string&)>& log);
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  /// Takes the address; returns its port, or nothing when it cannot be had.
  [[nodiscard]] std::optional<int> bind(const Address& address);

  /// Serves until `stop`; returns at once after it. False when the socket failed. Once only.
  /// REQUIRES: `bind` succeeded.
  [[nodiscard]] bool serve();

  /// Ends `serve`, from any thread and also before it begins, once the requests under way are
  /// answered.
  void stop();

 private:
  class Listener;
  std::unique_ptr<Listener> listener_;
};

}  // namespace quillseal::devserver
