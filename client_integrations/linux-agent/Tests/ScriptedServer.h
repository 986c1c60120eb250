#pragma once

#include <atomic>
#include <filesystem>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillseal::testing {

/// The server's behaviour on every connection.
struct ServerScript {
  enum class End { close, reset, linger };

  std::string answer;         ///< sent unchanged after a complete request
  End end = End::close;       ///< `linger`: keeps the connection until the client closes it
  std::filesystem::path tls;  ///< a folder with certificate and key; empty for plain TCP
};

/// A misbehaving server on a free port of 127.0.0.1. Serves one connection after another on its own
/// thread.
class ScriptedServer {
 public:
  explicit ScriptedServer(ServerScript script);
  ~ScriptedServer();
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  [[nodiscard]] int port() const noexcept { return port_; }
  [[nodiscard]] int connections() const noexcept { return connections_; }

  /// Returns the complete requests, byte for byte.
  [[nodiscard]] std::vector<std::string> requests() const;

 private:
  void serve();
  void serveConnection(int socket);

  ServerScript script_;
  int listener_;
  int port_ = 0;
  std::atomic<int> connections_ = 0;
  std::atomic<bool> stopped_ = false;
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;  // guarded by mutex_
  std::thread thread_;
};

}  // namespace quillseal::testing
