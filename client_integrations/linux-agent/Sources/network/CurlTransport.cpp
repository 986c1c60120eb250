#include "network/CurlTransport.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <new>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "core/text/UniqueHandle.h"
#include "network/TransportErrors.h"

namespace quillseal::linux {
namespace {

using desktop::HttpPost;
using desktop::HttpResponse;
using desktop::Ticket;
namespace transport = desktop::transport;

constexpr std::size_t largestAnswer = std::size_t{8} * 1024 * 1024;

using Easy = UniqueHandle<CURL, ::curl_easy_cleanup>;
using Multi = UniqueHandle<CURLM, ::curl_multi_cleanup>;
using HeaderList = UniqueHandle<curl_slist, ::curl_slist_free_all>;

/// Returns whether libcurl reads the text as an absolute http or https URL with a host and no
/// blanks.
bool isUsableUrl(const std::string& text) {
  // libcurl accepts a third slash and takes the path as the host.
  const std::size_t host = text.find("://");
  if (host == std::string::npos || text.substr(host + 3).starts_with('/')) return false;
  if (text.find('\0') != std::string::npos) return false;
  const UniqueHandle<CURLU, ::curl_url_cleanup> url(curl_url());
  char* found = nullptr;
  if (!url ||
      curl_url_set(url.get(), CURLUPART_URL, text.c_str(), CURLU_NON_SUPPORT_SCHEME) != CURLUE_OK ||
      curl_url_get(url.get(), CURLUPART_SCHEME, &found, 0) != CURLUE_OK) {
    return false;
  }
  const UniqueHandle<char, ::curl_free> owner(found);
  const std::string_view scheme(found);
  return scheme == "http" || scheme == "https";
}

/// One HTTP request and its answer. libcurl keeps its address.
class Exchange {
 public:
  Exchange(const HttpPost& post, const std::string& certificateAuthorities,
           std::function<void(Outcome<HttpResponse>)> done)
      : easy_(curl_easy_init()), done_(std::move(done)) {
    if (!easy_) throw std::bad_alloc();
    // Without this, libcurl sends "Expect: 100-continue" for a large body and waits a second.
    append("Expect:");
    for (const auto& [name, value] : post.headers)
      append(std::string(name).append(": ").append(value));
    const long milliseconds = static_cast<long>(std::chrono::milliseconds(post.timeout).count());
    set(CURLOPT_URL, post.url.c_str());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(post.body.size()));
    set(CURLOPT_COPYPOSTFIELDS, post.body.c_str());
    set(CURLOPT_HTTPHEADER, headers_.get());
    set(CURLOPT_FOLLOWLOCATION, 0L);
    // On a reused connection libcurl repeats a request that got no answer, which would register a
    // signature twice.
    set(CURLOPT_FRESH_CONNECT, 1L);
    set(CURLOPT_FORBID_REUSE, 1L);
    set(CURLOPT_TIMEOUT_MS, milliseconds);
    // Without this, ending a request during a name lookup blocks this thread until the lookup ends.
    set(CURLOPT_QUICK_EXIT, 1L);
    set(CURLOPT_SSL_VERIFYPEER, 1L);
    set(CURLOPT_SSL_VERIFYHOST, 2L);
    if (!certificateAuthorities.empty()) set(CURLOPT_CAINFO, certificateAuthorities.c_str());
    set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(largestAnswer));
    set(CURLOPT_WRITEFUNCTION, &Exchange::receive);
    set(CURLOPT_WRITEDATA, this);
  }

  [[nodiscard]] CURL* handle() const noexcept { return easy_.get(); }
  [[nodiscard]] bool hasEnded() const noexcept { return result_.has_value(); }
  void end(CURLcode result) noexcept { result_ = result; }

  /// REQUIRES: the exchange has ended.
  [[nodiscard]] Outcome<HttpResponse> outcome() const {
    long status = 0;
    long systemError = 0;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(handle(), CURLINFO_OS_ERRNO, &systemError);
    switch (*result_) {
      case CURLE_OK:
        return HttpResponse{.status = static_cast<int>(status), .body = body_};
      case CURLE_UNSUPPORTED_PROTOCOL:
      case CURLE_WEIRD_SERVER_REPLY:
        return HttpResponse{.status = 400, .body = ""};
      default:
        return transportError(CurlTransport::errorCodeOf(*result_, systemError));
    }
  }

  [[nodiscard]] std::function<void(Outcome<HttpResponse>)> takeCompletion() {
    return std::exchange(done_, nullptr);
  }

 private:
  template <typename Value>
  void set(CURLoption option, Value value) {
    if (curl_easy_setopt(easy_.get(), option, value) != CURLE_OK) {
      throw std::runtime_error("libcurl lacks an option");
    }
  }

  void append(const std::string& header) {
    curl_slist* extended = curl_slist_append(headers_.get(), header.c_str());
    if (extended == nullptr) throw std::bad_alloc();
    (void)headers_.release();
    headers_.reset(extended);
  }

  static std::size_t receive(const char* bytes, std::size_t, std::size_t count, void* self) {
    std::string& body = static_cast<Exchange*>(self)->body_;
    if (body.size() + count > largestAnswer) return CURL_WRITEFUNC_ERROR;
    try {
      body.append(bytes, count);
      return count;
    } catch (const std::bad_alloc&) {  // must not pass through libcurl
      return CURL_WRITEFUNC_ERROR;
    }
  }

  HeaderList headers_;  // libcurl reads it until the handle is gone
  Easy easy_;
  std::function<void(Outcome<HttpResponse>)> done_;
  std::string body_;
  std::optional<CURLcode> result_;
};

}  // namespace

/// libcurl's multi handle with the sockets that it watches. Completions run last, outside every
/// call into libcurl, so that they may send, withdraw and destroy.
class CurlTransport::Engine {
 public:
  Engine(desktop::MainLoop& loop, Descriptors& descriptors, Options options)
      : loop_(loop),
        descriptors_(descriptors),
        options_(std::move(options)),
        multi_(curl_multi_init()) {
    if (!multi_) throw std::bad_alloc();
    curl_multi_setopt(multi_.get(), CURLMOPT_SOCKETFUNCTION, &Engine::onSocket);
    curl_multi_setopt(multi_.get(), CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi_.get(), CURLMOPT_TIMERFUNCTION, &Engine::onTimer);
    curl_multi_setopt(multi_.get(), CURLMOPT_TIMERDATA, this);
  }

  ~Engine() {
    for (const auto& [id, exchange] : exchanges_) {
      curl_multi_remove_handle(multi_.get(), exchange->handle());
    }
  }

  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  std::uint64_t start(const HttpPost& post, std::function<void(Outcome<HttpResponse>)> done) {
    auto exchange =
        std::make_unique<Exchange>(post, options_.certificateAuthorities, std::move(done));
    const std::uint64_t id = ++lastId_;
    // This only sets a time-out of zero; the transfer starts in the loop.
    curl_multi_add_handle(multi_.get(), exchange->handle());
    exchanges_.emplace(id, std::move(exchange));
    return id;
  }

  void withdraw(std::uint64_t id) {
    const auto found = exchanges_.find(id);
    if (found == exchanges_.end()) return;
    curl_multi_remove_handle(multi_.get(), found->second->handle());
    exchanges_.erase(found);
  }

  void drive(curl_socket_t socket, int events) {
    // A completion may destroy the engine.
    const std::weak_ptr<Engine> alive = self;
    int running = 0;
    curl_multi_socket_action(multi_.get(), socket, events, &running);
    noteEndings();
    while (!alive.expired() && completeOne()) {
    }
  }

  std::weak_ptr<Engine> self;

 private:
  static int onSocket(CURL*, curl_socket_t socket, int what, void* engine, void*) {
    static_cast<Engine*>(engine)->watch(socket, what);
    return 0;
  }

  static int onTimer(CURLM*, long milliseconds, void* engine) {
    static_cast<Engine*>(engine)->setTimer(milliseconds);
    return 0;
  }

  void watch(curl_socket_t socket, int what) {
    watches_.erase(socket);
    if (what == CURL_POLL_REMOVE || what == CURL_POLL_NONE) return;
    const auto interest = what == CURL_POLL_IN    ? Descriptors::Interest::reading
                          : what == CURL_POLL_OUT ? Descriptors::Interest::writing
                                                  : Descriptors::Interest::both;
    watches_.emplace(
        socket, descriptors_.watch(socket, interest, [this, socket](Descriptors::Interest ready) {
          drive(socket, eventsOf(ready));
        }));
  }

  static int eventsOf(Descriptors::Interest ready) {
    switch (ready) {
      case Descriptors::Interest::reading:
        return CURL_CSELECT_IN;
      case Descriptors::Interest::writing:
        return CURL_CSELECT_OUT;
      case Descriptors::Interest::both:
        break;
    }
    return CURL_CSELECT_IN | CURL_CSELECT_OUT;
  }

  void setTimer(long milliseconds) {
    timer_ = {};
    if (milliseconds < 0) return;
    timer_ = loop_.after(std::chrono::milliseconds(milliseconds),
                         [this] { drive(CURL_SOCKET_TIMEOUT, 0); });
  }

  void noteEndings() {
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
      if (message->msg != CURLMSG_DONE) continue;
      for (const auto& [id, exchange] : exchanges_) {
        if (exchange->handle() == message->easy_handle) exchange->end(message->data.result);
      }
    }
  }

  /// Delivers one exchange that has ended; false when there is none.
  bool completeOne() {
    for (const auto& [id, exchange] : exchanges_) {
      if (!exchange->hasEnded()) continue;
      const auto done = exchange->takeCompletion();
      Outcome<HttpResponse> outcome = exchange->outcome();
      withdraw(id);
      done(std::move(outcome));
      return true;
    }
    return false;
  }

  desktop::MainLoop& loop_;
  Descriptors& descriptors_;
  Options options_;
  std::uint64_t lastId_ = 0;
  // Members are destroyed from the last to the first: closing connections still calls the watch
  // callbacks.
  std::map<curl_socket_t, Ticket> watches_;
  Ticket timer_;
  Multi multi_;
  std::map<std::uint64_t, std::unique_ptr<Exchange>> exchanges_;
};

CurlTransport::CurlTransport(desktop::MainLoop& loop, Descriptors& descriptors, Options options)
    : loop_(loop), descriptors_(descriptors), options_(std::move(options)) {}

CurlTransport::~CurlTransport() = default;

// Created at the first request, to save memory: most sessions sign little.
CurlTransport::Engine& CurlTransport::engine() {
  if (engine_) return *engine_;
  // Once per process. libcurl needs no matching cleanup call.
  static const CURLcode initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
  if (initialised != CURLE_OK) throw std::runtime_error("libcurl cannot be used");
  engine_ = std::make_shared<Engine>(loop_, descriptors_, options_);
  engine_->self = engine_;
  return *engine_;
}

Ticket CurlTransport::send(const HttpPost& post, std::function<void(Outcome<HttpResponse>)> done) {
  if (!isUsableUrl(post.url)) {
    done(transportError(transport::badUrl));
    return {};
  }
  const std::uint64_t id = engine().start(post, std::move(done));
  return Ticket([engine = std::weak_ptr(engine_), id] {
    if (const auto alive = engine.lock()) alive->withdraw(id);
  });
}

Error CurlTransport::error(transport::ErrorCode code) const {
  return transportError(code);
}

transport::ErrorCode CurlTransport::errorCodeOf(CURLcode failure, long systemError) noexcept {
  switch (failure) {
    case CURLE_URL_MALFORMAT:
      return transport::badUrl;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
      return transport::cannotFindHost;
    case CURLE_COULDNT_CONNECT:
      return systemError == ENETUNREACH || systemError == ENETDOWN
                 ? transport::notConnectedToInternet
                 : transport::cannotConnectToHost;
    case CURLE_OPERATION_TIMEDOUT:
      return transport::timedOut;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
      return transport::networkConnectionLost;
    case CURLE_FILESIZE_EXCEEDED:
    case CURLE_WRITE_ERROR:
      return transport::dataLengthExceedsMaximum;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
      return transport::serverCertificateUntrusted;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_CIPHER:
      return transport::secureConnectionFailed;
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_HTTP2:
    case CURLE_HTTP2_STREAM:
    case CURLE_OUT_OF_MEMORY:  // libcurl's error for headers that are too large
      return transport::badServerResponse;
    default:
      return transport::unknown;
  }
}

}  // namespace quillseal::linux
