#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Service.h"

namespace quillseal::devserver {

/// The address to listen on.
struct Address {
  std::string host;
  int port = 0;  ///< 0 for any free port
};

/// Answers requests over HTTP.
class HttpServer {
 public:
  /// `answer` gives the answer to each request. `log`, if set, gets one line for each, never with a
  /// body, query or header. Both are called from any thread.
  HttpServer(std::function<Reply(const Request&)> answer,
             const std::function<void(const std::string&)>& log);
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  /// Binds the address and returns its port; nothing when that fails.
  [[nodiscard]] std::optional<int> bind(const Address& address);

  /// Serves until `stop`; returns at once if `stop` came first. False when the socket failed. Call
  /// once. REQUIRES: `bind` succeeded.
  [[nodiscard]] bool serve();

  /// Ends `serve` once running requests are answered. Any thread, also before `serve`.
  void stop();

 private:
  class Listener;
  std::unique_ptr<Listener> listener_;
};

}  // namespace quillseal::devserver
