#include "HttpServer.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>

#include <httplib.h>

namespace quillseal::devserver {
namespace {

constexpr std::size_t largestBody = std::size_t{256} * 1024;
constexpr std::chrono::seconds timeout{5};

/// Each client has its own thread while it sends its request, so a few that never finish block no
/// others.
constexpr std::size_t mostClients = 128;

/// Headers of every answer. Scripts and styles come only from this server; no inline code, frames,
/// forms or requests to other servers are allowed.
const httplib::Headers& safetyHeaders() {
  static const httplib::Headers headers{
      {"Content-Security-Policy",
       "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src "
       "'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
      {"X-Content-Type-Options", "nosniff"},
      {"Referrer-Policy", "no-referrer"},
      {"Cross-Origin-Opener-Policy", "same-origin"},
      {"Cross-Origin-Resource-Policy", "same-origin"},
      {"Cache-Control", "no-store"},
  };
  return headers;
}

Request requestOf(const httplib::Request& received) {
  return {.method = received.method,
          .path = received.path,
          .contentType = received.get_header_value("Content-Type"),
          .host = received.get_header_value("Host"),
          .handoffId = received.has_param("h") ? received.get_param_value("h") : std::string(),
          .body = received.body,
          .hasQuery = received.target.find('?') != std::string::npos};
}

/// The library's default options would let a second server bind the same port and take half of the
/// requests.
void setSocketOptions(socket_t socket) {
  const int on = 1;
  setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
}

/// Returns a path for the log, shortened and without terminal control characters.
std::string printable(std::string_view path) {
  constexpr std::size_t longest = 100;
  std::string text(path.substr(0, longest));
  std::ranges::replace_if(
      text, [](char c) { return c < ' ' || c > '~'; }, '?');
  return text;
}

std::string reasonOf(std::exception_ptr failure) {
  try {
    std::rethrow_exception(std::move(failure));
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "an unknown exception";
  }
}

}  // namespace

class HttpServer::Listener : public httplib::Server {
 public:
  bool serve() {
    {
      const std::scoped_lock lock(mutex_);
      if (isStopped_) return true;
      isServing_ = true;
    }
    const bool isSound = listen_after_bind();
    const std::scoped_lock lock(mutex_);
    isServing_ = false;
    return isSound || isStopped_;
  }

  void end() {
    {
      const std::scoped_lock lock(mutex_);
      if (std::exchange(isStopped_, true)) return;
    }
    // The library ignores a stop before it reports that it runs.
    while (isServing_ && !is_running())
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    stop();
  }

 private:
  std::mutex mutex_;
  bool isStopped_ = false;
  std::atomic<bool> isServing_ = false;
};

HttpServer::HttpServer(std::function<Reply(const Request&)> answer,
                       const std::function<void(const std::string&)>& log)
    : listener_(std::make_unique<Listener>()) {
  Listener& listener = *listener_;
  const auto handle = [answer = std::move(answer)](const httplib::Request& received,
                                                   httplib::Response& response) {
    const Reply reply = answer(requestOf(received));
    response.status = reply.status;
    response.set_content(reply.body, reply.contentType);
  };
  constexpr const char* everyPath = R"([\s\S]*)";
  listener.Get(everyPath, handle).Post(everyPath, handle);
  listener.set_socket_options(setSocketOptions);
  // The library takes ownership of the queue.
  listener.new_task_queue = [] { return new httplib::ThreadPool(mostClients); };
  listener.set_default_headers(safetyHeaders());
  listener.set_payload_max_length(largestBody);
  listener.set_read_timeout(timeout).set_write_timeout(timeout);
  listener.set_exception_handler(
      [log](const httplib::Request&, httplib::Response& response, std::exception_ptr failure) {
        if (log) log("failed: " + reasonOf(std::move(failure)));
        response.status = 500;
        response.set_content(R"({"error":"The development server failed; its output says why."})",
                             "application/json");
      });
  listener.set_error_handler([](const httplib::Request&, httplib::Response& response) {
    if (response.body.empty()) {
      response.set_content(R"({"error":"The request cannot be understood or is too large."})",
                           "application/json");
    }
  });
  if (log) {
    listener.set_logger([log](const httplib::Request& received, const httplib::Response& response) {
      log(received.method + " " + printable(received.path) + " " + std::to_string(response.status));
    });
  }
}

HttpServer::~HttpServer() = default;

std::optional<int> HttpServer::bind(const Address& address) {
  if (address.port == 0) {
    const int port = listener_->bind_to_any_port(address.host);
    return port > 0 ? std::optional(port) : std::nullopt;
  }
  return listener_->bind_to_port(address.host, address.port) ? std::optional(address.port)
                                                             : std::nullopt;
}

bool HttpServer::serve() {
  return listener_->serve();
}

void HttpServer::stop() {
  listener_->end();
}

}  // namespace quillseal::devserver
