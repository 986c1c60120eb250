#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <thread>
#include <variant>

#include <gmock/gmock.h>
#include <openssl/ssl.h>
#include <sys/socket.h>

#include "Cases.h"
#include "RunUntil.h"
#include "TemporaryFolder.h"
#include "core/text/UniqueHandle.h"
#include "network/CurlTransport.h"
#include "network/LoadedTransport.h"
#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using namespace std::chrono_literals;
using desktop::HttpPost;
using desktop::HttpResponse;
using testing::awaited;
using testing::runUntil;
namespace transport = desktop::transport;

/// Whether all of a request has come, or a TLS greeting where none is spoken.
bool isWhole(const std::string& request) {
  constexpr char tlsHandshake = 0x16;
  const std::size_t end = request.find("\r\n\r\n"), length = request.find("Content-Length: ");
  return request.starts_with(tlsHandshake) ||
         (end < request.size() &&
          (length > end || request.size() >= end + 4 + std::stoul(request.substr(length + 16))));
}

/// What the server does with every connection.
struct ServerScript {
  std::string answer{};         ///< sent as it stands once a request has come in whole
  std::string end = "close";    ///< or "reset", or "linger" until the client leaves
  std::filesystem::path tls{};  ///< a certificate beside its "key.pem"; empty for plain TCP
};

/// A misbehaving server on a free port of 127.0.0.1. Serves one connection after another on its own
/// thread.
class ScriptedServer {
 public:
  explicit ScriptedServer(ServerScript script) : script_(std::move(script)) {
    BIO_do_accept(listener_.get());  // which listens, the first time
    port = BIO_get_accept_port(listener_.get());
    thread_ = std::jthread([this] { serve(); });
  }
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;
  ~ScriptedServer() {
    for (const int socket : {socketOf(listener_), current_.load()})
      shutdown(socket, SHUT_RDWR);
  }

  /// The requests that came in whole, byte for byte.
  [[nodiscard]] std::vector<std::string> requests() const {
    const std::scoped_lock lock(mutex_);
    return requests_;
  }

  std::string port;
  std::atomic<int> connections = 0;

 private:
  using Stream = UniqueHandle<BIO, ::BIO_free_all>;
  static int socketOf(const Stream& stream) {
    return static_cast<int>(BIO_get_fd(stream.get(), nullptr));
  }

  void serve() {
    // OpenSSL writes without MSG_NOSIGNAL; a client that has left is to be an error here.
    sigset_t broken;
    sigemptyset(&broken);
    sigaddset(&broken, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &broken, nullptr);
    while (BIO_do_accept(listener_.get()) == 1) {
      Stream connection(BIO_pop(listener_.get()));
      current_ = socketOf(connection);
      ++connections;
      serve(connection);
      current_ = -1;
    }
  }

  void serve(Stream& connection) {
    UniqueHandle<SSL_CTX, ::SSL_CTX_free> context;
    if (!script_.tls.empty()) {
      context.reset(SSL_CTX_new(TLS_server_method()));
      const auto key = script_.tls.parent_path() / "key.pem";
      SSL_CTX_use_certificate_file(context.get(), script_.tls.c_str(), SSL_FILETYPE_PEM);
      SSL_CTX_use_PrivateKey_file(context.get(), key.c_str(), SSL_FILETYPE_PEM);
      connection.reset(BIO_push(BIO_new_ssl(context.get(), 0), connection.release()));
      if (BIO_do_handshake(connection.get()) != 1) return;
    }
    std::string request;
    std::array<char, 65536> buffer{};
    const auto read = [&] {
      return BIO_read(connection.get(), buffer.data(), static_cast<int>(buffer.size()));
    };
    while (!isWhole(request)) {
      const int count = read();
      if (count <= 0) return;
      request.append(buffer.data(), static_cast<std::size_t>(count));
    }
    {
      const std::scoped_lock lock(mutex_);
      requests_.push_back(request);
    }
    std::size_t sent = 1;
    for (std::string_view rest = script_.answer; !rest.empty() && sent > 0;
         rest.remove_prefix(sent))
      if (BIO_write_ex(connection.get(), rest.data(), rest.size(), &sent) != 1) break;
    if (script_.end == "reset") {
      constexpr linger atOnce{.l_onoff = 1, .l_linger = 0};
      setsockopt(current_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    } else if (script_.end == "linger") {
      while (read() > 0) {
      }
    } else {
      if (context) BIO_ssl_shutdown(connection.get());
      shutdown(current_, SHUT_WR);
      static_cast<void>(read());
    }
  }

  ServerScript script_;
  std::atomic<int> current_ = -1;
  Stream listener_{BIO_new_accept("127.0.0.1:0")};
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;  // guarded by mutex_
  std::jthread thread_;
};

std::string answerOf(const std::string& status, const std::string& body) {
  return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
         body;
}

HttpPost postTo(const std::string& url, std::string body = "{}") {
  return {.url = url,
          .headers = {{"Content-Type", "application/json"}},
          .body = std::move(body),
          .timeout = std::chrono::seconds(20)};
}

HttpPost postTo(const ScriptedServer& server) {
  return postTo("http://127.0.0.1:" + server.port + "/");
}

/// The result of a request: an answer, or a code other than 0.
struct Ending {
  int status = 0;
  std::string body{};
  std::int64_t code = 0;
};

class CurlTransportTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { setenv("no_proxy", "*", 1); }

  Ending endingOf(const HttpPost& post) {
    const auto outcome = awaited<Outcome<HttpResponse>>(
        loop_, [&](auto done) { return transport_->send(post, done); });
    if (const auto* answer = std::get_if<HttpResponse>(&outcome))
      return {.status = answer->status, .body = answer->body};
    const Error& error = std::get<Error>(outcome);
    EXPECT_EQ(error.domain(), transport::errorDomain);
    EXPECT_STRNE(error.what(), "");
    return {.code = error.code()};
  }

  void useAuthorities(const std::string& file) {
    transport_ = std::make_unique<CurlTransport>(
        loop_, loop_, CurlTransport::Options{.certificateAuthorities = file});
  }

  PollLoop loop_;
  std::unique_ptr<CurlTransport> transport_ =
      std::make_unique<CurlTransport>(loop_, loop_, CurlTransport::Options{});
};

TEST_F(CurlTransportTest, SendsExactlyTheRequest) {
  const ScriptedServer server({.answer = answerOf("200 OK", "{}")});
  const std::string host = "127.0.0.1:" + server.port;
  std::string body(2'000'000, 'x');  // large enough for "Expect: 100-continue"
  body[1] = '\0';
  EXPECT_EQ(endingOf(postTo("http://" + host + "/api/sign_native", body)).status, 200);
  ASSERT_EQ(server.requests().size(), 1U);
  const std::string request = server.requests()[0];
  EXPECT_THAT(request, StartsWith("POST /api/sign_native HTTP/1.1\r\nHost: " + host + "\r\n"));
  EXPECT_THAT(request, HasSubstr("\r\nContent-Type: application/json\r\n"));
  for (const char* header : {"Authorization", "Cookie", "Expect", "User-Agent", "Origin"})
    EXPECT_THAT(request, Not(HasSubstr(header)));
  EXPECT_TRUE(request.ends_with("\r\n\r\n" + body));
}

TEST_F(CurlTransportTest, EveryAnswerHasItsEnding) {
  const std::string good = R"({"signature_id":"s"})";
  for (auto [name, answer, end, status, body, code] :
       testing::cases<std::string, std::string, std::string, int, std::string, std::int64_t>()) {
    SCOPED_TRACE(name);
    if (const auto at = answer.find("GOOD"); at != std::string::npos) answer.replace(at, 4, good);
    EXPECT_THAT(end, AnyOf("close", "reset", "linger"));
    const ScriptedServer server({.answer = answer, .end = end});
    for (const int number : {1, 2}) {
      const Ending ending = endingOf(postTo(server));
      EXPECT_EQ(ending.status, status);
      EXPECT_TRUE(ending.body == (body == "GOOD" ? good : body)) << ending.body.substr(0, 99);
      EXPECT_EQ(ending.code, code);
      EXPECT_EQ(static_cast<int>(server.requests().size()), number) << "nothing is sent twice";
      EXPECT_EQ(server.connections, number) << "each has its own connection";
    }
  }
}

TEST_F(CurlTransportTest, ServersOutOfReach) {
  const HttpPost unheard = postTo(ScriptedServer({.answer = ""}));
  EXPECT_EQ(endingOf(unheard).code, transport::cannotConnectToHost);

  // Names under "invalid" do not exist (RFC 6761). Without a network there is no answer at all.
  EXPECT_EQ(endingOf(postTo("http://server.invalid")).code, transport::cannotFindHost);
}

TEST_F(CurlTransportTest, SendsNothingToWhatIsNoUrl) {
  const ScriptedServer server({.answer = answerOf("200 OK", "")});
  for (const auto& [url] : testing::cases<std::string>())
    EXPECT_EQ(endingOf(postTo(url)).code, transport::badUrl) << url;
  EXPECT_EQ(endingOf(postTo(postTo(server).url + '\0')).code, transport::badUrl);
}

TEST_F(CurlTransportTest, ChecksCertificateAndHost) {
  const std::filesystem::path folder = QUILLSEAL_CERTIFICATES;
  const std::pair<const char*, const char*> cases[] = {
      {"good.pem", "good.pem"},  // the server's, and the one that is trusted
      {"good.pem", ""},
      {"elsewhere.pem", "elsewhere.pem"},
      {"expired.pem", "expired.pem"},
      {"early.pem", "early.pem"}};
  for (const auto& [own, trusted] : cases) {
    SCOPED_TRACE(own);
    const bool isGood = own == std::string_view(trusted) && own == std::string_view("good.pem");
    useAuthorities(*trusted != '\0' ? (folder / trusted).string() : "");
    const ScriptedServer server({.answer = answerOf("200 OK", "{}"), .tls = folder / own});
    const Ending ending = endingOf(postTo("https://localhost:" + server.port));
    EXPECT_EQ(ending.code, isGood ? 0 : transport::serverCertificateUntrusted);
    EXPECT_EQ(server.requests().size(), isGood ? 1U : 0U) << "the API key stays here";
  }
  useAuthorities("");
  const ScriptedServer plain({.answer = "220 mail.example ESMTP\r\n"});
  EXPECT_EQ(endingOf(postTo("https://127.0.0.1:" + plain.port)).code,
            transport::secureConnectionFailed);
}

TEST_F(CurlTransportTest, GivesUpInTimeOnAllThatIsDue) {
  for (const char* begun : {"", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{"}) {
    const ScriptedServer slow({.answer = begun, .end = "linger"});
    HttpPost post = postTo(slow);
    post.timeout = std::chrono::seconds(1);
    std::vector<std::int64_t> codes;
    const auto note = [&](const auto& outcome) {
      codes.push_back(std::get<Error>(outcome).code());
    };
    const desktop::Ticket requests[] = {transport_->send(post, note), transport_->send(post, note)};
    runUntil(loop_, [&] { return slow.connections == 1; });
    std::this_thread::sleep_for(1100ms);
    runUntil(loop_, [&] { return codes.size() == 2; });
    EXPECT_THAT(codes, Each(transport::timedOut)) << begun;
  }
}

TEST_F(CurlTransportTest, AWithdrawnRequestIsSilentAndItsConnectionCloses) {
  const ScriptedServer server({.answer = "", .end = "linger"});
  bool isCalled = false;
  const auto send = [&] {
    return transport_->send(postTo(server), [&](const auto&) { isCalled = true; });
  };
  desktop::Ticket request = send();
  runUntil(loop_, [&] { return server.connections == 1; });
  // The server accepts the next connection only after this one is closed.
  request = {};
  request = send();
  runUntil(loop_, [&] { return server.connections == 2; });
  EXPECT_FALSE(isCalled);
}

TEST_F(CurlTransportTest, ACompletionMayEndEverything) {
  const ScriptedServer server({.answer = answerOf("200 OK", "{}")});
  std::vector<desktop::Ticket> requests;
  int completions = 0;
  for (int i = 0; i < 8; ++i)
    requests.push_back(transport_->send(postTo(server), [&](const auto&) {
      ++completions;
      requests.clear();
      transport_.reset();
    }));
  runUntil(loop_, [&] { return completions > 0; });
  EXPECT_EQ(completions, 1);
}

TEST(CurlTransportErrors, AreToldAsWhatTheyMeanToTheUser) {
  // Those that no server here can provoke.
  const std::tuple<CURLcode, int, transport::ErrorCode> rows[] = {
      {CURLE_COULDNT_RESOLVE_PROXY, 0, transport::cannotFindHost},
      {CURLE_COULDNT_CONNECT, ENETUNREACH, transport::notConnectedToInternet},
      {CURLE_COULDNT_CONNECT, ENETDOWN, transport::notConnectedToInternet},
      {CURLE_HTTP2, 0, transport::badServerResponse},
      {CURLE_FAILED_INIT, 0, transport::unknown}};
  for (const auto& [failure, systemError, code] : rows)
    EXPECT_EQ(CurlTransport::errorCodeOf(failure, systemError), code) << failure;
}

/// Returns the message for a request to an invalid URL.
std::string complaintOf(std::vector<std::filesystem::path> places,
                        std::string version = QUILLSEAL_VERSION) {
  PollLoop loop;
  LoadedTransport transport(loop, loop,
                            LoadedModule({.places = std::move(places),
                                          .version = std::move(version),
                                          .duty = "talks to the server"}));
  std::string told;
  for (int request = 0; request < 2; ++request) {
    const desktop::Ticket ticket = transport.send(
        {.url = "nonsense", .headers = {}, .body = {}},
        [&](const Outcome<HttpResponse>& outcome) { told = std::get<Error>(outcome).what(); });
  }
  return told;
}

TEST(LoadedTransport, SendsThroughTheModuleOrTellsWhatIsWrongWithIt) {
  const testing::TemporaryFolder folder;
  const std::filesystem::path module = QUILLSEAL_HTTP_MODULE,
                              missing = folder.path() / "quillseal-http.so",
                              damaged = folder.path() / "damaged.so";
  testing::overwrite(damaged, "no library");
  EXPECT_THAT(complaintOf({missing, module}), HasSubstr("not a valid URL"));
  EXPECT_THAT(complaintOf({missing}), HasSubstr("(" + missing.string() + " is missing). If "));
  EXPECT_THAT(complaintOf({damaged, module}), HasSubstr(damaged.string() + ": "));
  EXPECT_THAT(complaintOf({module}, "0.0.0"),
              HasSubstr(module.string() + " is of another version"));
}

}  // namespace
}  // namespace quillseal::linux
