#include "ScriptedServer.h"

#include <array>
#include <csignal>
#include <stdexcept>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <openssl/ssl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::testing {
namespace {

constexpr int tick = 20;  // ms between checks for the stop flag

/// Returns whether a request with a Content-Length is complete, or a TLS greeting arrived at a
/// plain server.
bool isWhole(const std::string& request) {
  constexpr char tlsHandshake = 0x16;
  if (request.starts_with(tlsHandshake)) return true;
  const std::size_t headersEnd = request.find("\r\n\r\n");
  if (headersEnd == std::string::npos) return false;
  const std::size_t length = request.find("Content-Length: ");
  if (length == std::string::npos || length > headersEnd) return true;
  return request.size() >= headersEnd + 4 + std::stoul(request.substr(length + 16));
}

/// A connection with or without TLS.
class Connection {
 public:
  Connection(int socket, SSL* tls) : socket_(socket), tls_(tls) {}

  long read(char* bytes, std::size_t size) const {
    return tls_ != nullptr ? SSL_read(tls_, bytes, static_cast<int>(size))
                           : ::recv(socket_, bytes, size, 0);
  }

  bool write(const std::string& bytes) const {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
      const long count =
          tls_ != nullptr
              ? SSL_write(tls_, bytes.data() + sent, static_cast<int>(bytes.size() - sent))
              : ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
      if (count <= 0) return false;
      sent += static_cast<std::size_t>(count);
    }
    return true;
  }

 private:
  int socket_;
  SSL* tls_;
};

}  // namespace

ScriptedServer::ScriptedServer(ServerScript script)
    : script_(std::move(script)), listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, generic, size) != 0 || listen(listener_, SOMAXCONN) != 0 ||
      getsockname(listener_, generic, &size) != 0) {
    throw std::runtime_error("no port to listen on");
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { serve(); });
}

ScriptedServer::~ScriptedServer() {
  stopped_ = true;
  thread_.join();
  close(listener_);
}

std::vector<std::string> ScriptedServer::requests() const {
  const std::scoped_lock lock(mutex_);
  return requests_;
}

void ScriptedServer::serve() {
  // OpenSSL writes without MSG_NOSIGNAL; a closed connection must give this thread an error, not
  // SIGPIPE.
  sigset_t broken;
  sigemptyset(&broken);
  sigaddset(&broken, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &broken, nullptr);
  while (!stopped_) {
    pollfd waiting{.fd = listener_, .events = POLLIN, .revents = 0};
    if (poll(&waiting, 1, tick) <= 0) continue;
    const int socket = accept(listener_, nullptr, nullptr);
    if (socket < 0) continue;
    ++connections_;
    serveConnection(socket);
    close(socket);
  }
}

void ScriptedServer::serveConnection(int socket) {
  constexpr timeval patience{.tv_sec = 0, .tv_usec = tick * 1000};
  UniqueHandle<SSL_CTX, ::SSL_CTX_free> context;
  UniqueHandle<SSL, ::SSL_free> tls;
  if (!script_.tls.empty()) {
    context.reset(SSL_CTX_new(TLS_server_method()));
    SSL_CTX_use_certificate_file(context.get(), (script_.tls / "certificate.pem").c_str(),
                                 SSL_FILETYPE_PEM);
    SSL_CTX_use_PrivateKey_file(context.get(), (script_.tls / "key.pem").c_str(), SSL_FILETYPE_PEM);
    tls.reset(SSL_new(context.get()));
    SSL_set_fd(tls.get(), socket);
    if (SSL_accept(tls.get()) != 1) return;
  }
  setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  const Connection connection(socket, tls.get());

  std::string request;
  std::array<char, 65536> buffer{};
  while (!isWhole(request)) {
    const long count = connection.read(buffer.data(), buffer.size());
    if (count == 0 || stopped_) return;
    if (count > 0) request.append(buffer.data(), static_cast<std::size_t>(count));
  }
  {
    const std::scoped_lock lock(mutex_);
    requests_.push_back(request);
  }
  connection.write(script_.answer);
  switch (script_.end) {
    case ServerScript::End::close:
      if (tls) SSL_shutdown(tls.get());
      shutdown(socket, SHUT_WR);
      break;
    case ServerScript::End::reset: {
      constexpr linger atOnce{.l_onoff = 1, .l_linger = 0};
      setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
      return;
    }
    case ServerScript::End::linger:
      break;
  }
  while (!stopped_ && connection.read(buffer.data(), buffer.size()) != 0) {
    if (script_.end != ServerScript::End::linger) break;
  }
}

}  // namespace quillseal::testing
