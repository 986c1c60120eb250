#pragma once

#include <array>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <openssl/ssl.h>
#include <poll.h>
#include <sys/socket.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::testing {

/// Whether all of a request with a Content-Length has come, or a TLS greeting where none is spoken.
inline bool isWhole(const std::string& request) {
  constexpr char tlsHandshake = 0x16;
  if (request.starts_with(tlsHandshake)) return true;
  const std::size_t headersEnd = request.find("\r\n\r\n");
  if (headersEnd == std::string::npos) return false;
  const std::size_t length = request.find("Content-Length: ");
  if (length == std::string::npos || length > headersEnd) return true;
  return request.size() >= headersEnd + 4 + std::stoul(request.substr(length + 16));
}

/// What the server does with every connection.
struct ServerScript {
  enum class End { close, reset, linger };

  std::string answer;         ///< sent as it stands once a request has come in whole
  End end = End::close;       ///< `linger`: keeps the connection until the client leaves it
  std::filesystem::path tls;  ///< a certificate beside its "key.pem"; empty for plain TCP
};

/// A misbehaving server on a free port of 127.0.0.1. Serves one connection after another on its own
/// thread.
class ScriptedServer {
 public:
  explicit ScriptedServer(ServerScript script) : script_(std::move(script)) {
    BIO_do_accept(listener_.get());  // which listens, the first time
    port_ = std::stoi(BIO_get_accept_port(listener_.get()));
    thread_ = std::thread([this] { serve(); });
  }
  ~ScriptedServer() {
    stopped_ = true;
    thread_.join();
  }
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  [[nodiscard]] int port() const noexcept { return port_; }
  [[nodiscard]] int connections() const noexcept { return connections_; }

  /// The requests that came in whole, byte for byte.
  [[nodiscard]] std::vector<std::string> requests() const {
    const std::scoped_lock lock(mutex_);
    return requests_;
  }

 private:
  using Stream = UniqueHandle<BIO, ::BIO_free_all>;
  static constexpr int tick = 20;  // ms between looks at whether the server shall stop

  void serve() {
    // OpenSSL writes without MSG_NOSIGNAL; a client that has left is to be an error here.
    sigset_t broken;
    sigemptyset(&broken);
    sigaddset(&broken, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &broken, nullptr);
    while (!stopped_) {
      pollfd waiting{.fd = static_cast<int>(BIO_get_fd(listener_.get(), nullptr)),
                     .events = POLLIN,
                     .revents = 0};
      if (poll(&waiting, 1, tick) <= 0 || BIO_do_accept(listener_.get()) != 1) continue;
      ++connections_;
      serveConnection(Stream(BIO_pop(listener_.get())));
    }
  }

  void serveConnection(Stream connection) {
    constexpr timeval patience{.tv_sec = 0, .tv_usec = tick * 1000};
    const int socket = static_cast<int>(BIO_get_fd(connection.get(), nullptr));
    UniqueHandle<SSL_CTX, ::SSL_CTX_free> context;
    if (!script_.tls.empty()) {
      context.reset(SSL_CTX_new(TLS_server_method()));
      const auto key = script_.tls.parent_path() / "key.pem";
      SSL_CTX_use_certificate_file(context.get(), script_.tls.c_str(), SSL_FILETYPE_PEM);
      SSL_CTX_use_PrivateKey_file(context.get(), key.c_str(), SSL_FILETYPE_PEM);
      connection.reset(BIO_push(BIO_new_ssl(context.get(), 0), connection.release()));
      if (BIO_do_handshake(connection.get()) != 1) return;
    }
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);

    std::string request;
    std::array<char, 65536> buffer{};
    const auto read = [&] {
      return BIO_read(connection.get(), buffer.data(), static_cast<int>(buffer.size()));
    };
    while (!isWhole(request)) {
      const int count = read();
      if (count == 0 || stopped_) return;
      if (count > 0) request.append(buffer.data(), static_cast<std::size_t>(count));
    }
    {
      const std::scoped_lock lock(mutex_);
      requests_.push_back(request);
    }
    std::size_t sent = 1;
    for (std::string_view rest = script_.answer; !rest.empty() && sent > 0;
         rest.remove_prefix(sent))
      if (BIO_write_ex(connection.get(), rest.data(), rest.size(), &sent) != 1) break;
    switch (script_.end) {
      case ServerScript::End::close:
        if (context) BIO_ssl_shutdown(connection.get());
        shutdown(socket, SHUT_WR);
        static_cast<void>(read());
        break;
      case ServerScript::End::reset: {
        constexpr linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        break;
      }
      case ServerScript::End::linger:
        while (!stopped_ && read() != 0) {
        }
    }
  }

  ServerScript script_;
  Stream listener_{BIO_new_accept("127.0.0.1:0")};
  int port_ = 0;
  std::atomic<int> connections_ = 0;
  std::atomic<bool> stopped_ = false;
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;  // guarded by mutex_
  std::thread thread_;
};

}  // namespace quillseal::testing
