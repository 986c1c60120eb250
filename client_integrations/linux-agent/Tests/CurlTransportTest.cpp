#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HttpServer.h"
#include "LinuxDesktop/CurlTransport.h"
#include "LinuxDesktop/PollLoop.h"
#include "LinuxDesktop/SystemWallClock.h"
#include "Quillseal/Async.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/ServerClient.h"
#include "Registry.h"
#include "ScriptedServer.h"
#include "Service.h"
#include "TemporaryFolder.h"
#include "TestCertificate.h"
#include "TestDevice.h"

namespace quillseal {
namespace {

using desktop::HttpPost;
using desktop::HttpResponse;
using ::testing::AnyOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::ScriptedServer;
using testing::ServerScript;
using ::testing::StartsWith;
namespace transport = desktop::transport;

constexpr const char* deviceId = "0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90";
constexpr std::chrono::seconds tooLong{20};

class FixedDefaults final : public desktop::Defaults {
 public:
  std::map<std::string, std::string, std::less<>> values;

  std::optional<std::string> string(std::string_view key) const override {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  bool boolean(std::string_view) const override { return false; }
  void setString(std::string_view, std::string_view) override {}
  desktop::Ticket observe(std::function<void()>) override { return {}; }
};

class FixedMachine final : public desktop::MachineIdentity {
 public:
  std::optional<std::string> platformUuid() const override { return deviceId; }
};

std::string answerOf(const std::string& status, const std::string& body) {
  return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
         body;
}

/// How a call ended: the value, or an error's domain, code and words.
struct Ending {
  std::string value;
  std::string domain;
  std::int64_t code = 0;
  std::string words;
};

class CurlTransportTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { setenv("no_proxy", "*", 1); }

  /// Runs the task on the loop to its end.
  Ending endingOf(Task<std::string> task) {
    Ending ending;
    TaskScope scope;
    const desktop::Ticket guard = loop_.after(tooLong, [this] { loop_.stop(); });
    scope.start(finish(std::move(task), ending, loop_));
    loop_.run();
    EXPECT_TRUE(scope.isIdle()) << "the call did not end";
    return ending;
  }

  Ending signingWith(const std::string& url) {
    defaults_.values["ServerURL"] = url;
    return endingOf(client_.signContent(content()));
  }

  Ending signingWith(const ScriptedServer& server) {
    return signingWith("http://127.0.0.1:" + std::to_string(server.port()));
  }

  static ServerClient::Content content() {
    return {.textDigest = "T",
            .snapshotDigest = "",
            .issued = "2026-01-01",
            .scope = "Email / “Mail”",
            .imageDigest = "I",
            .expires = "2026-01-08",
            .commitment = "statement",
            .nonce = "N",
            .enclaveSignature = "MEQ="};
  }

  void useAuthorities(const std::string& file) {
    transport_ = std::make_unique<CurlTransport>(
        loop_, loop_, CurlTransport::Options{.certificateAuthorities = file});
  }

  PollLoop loop_;
  std::unique_ptr<CurlTransport> transport_ =
      std::make_unique<CurlTransport>(loop_, loop_, CurlTransport::Options{});

  /// Follows `transport_` where a test changes it.
  class Forwarding final : public desktop::HttpTransport {
   public:
    explicit Forwarding(std::unique_ptr<CurlTransport>& target) : target_(target) {}
    desktop::Ticket send(const HttpPost& post,
                         std::function<void(Outcome<HttpResponse>)> done) override {
      return target_->send(post, std::move(done));
    }
    Error error(transport::ErrorCode code) const override { return target_->error(code); }

   private:
    std::unique_ptr<CurlTransport>& target_;
  };

  FixedDefaults defaults_;
  Forwarding forwarding_{transport_};
  FixedMachine machine_;
  SystemWallClock wallClock_;
  ServerClient client_{
      {.defaults = defaults_, .http = forwarding_, .machine = machine_, .wallClock = wallClock_}};

 private:
  static Task<> finish(Task<std::string> task, Ending& ending, PollLoop& loop) {
    try {
      ending.value = co_await std::move(task);
    } catch (const Error& error) {
      ending.domain = error.domain();
      ending.code = error.code();
      ending.words = error.what();
    }
    loop.stop();
  }
};

TEST_F(CurlTransportTest, SendsExactlyTheRequest) {
  setenv("TZ", "UTC0", 1);
  const ScriptedServer server({.answer = answerOf("200 OK", R"({"signature_id":"s"})"), .tls = {}});
  EXPECT_EQ(signingWith(server).value, "s");
  unsetenv("TZ");
  ASSERT_EQ(server.requests().size(), 1U);
  const std::string request = server.requests()[0];
  EXPECT_THAT(request, StartsWith("POST /api/sign_native HTTP/1.1\r\nHost: 127.0.0.1:" +
                                  std::to_string(server.port()) + "\r\n"));
  EXPECT_THAT(request, HasSubstr("\r\nContent-Type: application/json\r\n"));
  for (const char* header : {"Authorization", "Cookie", "Expect", "User-Agent", "Origin"}) {
    EXPECT_THAT(request, Not(HasSubstr(header)));
  }
  EXPECT_THAT(
      request,
      EndsWith("\r\n\r\n"
               R"({"protocol":"v2","text_digest":"T","snapshot_digest":"","issued":"2026-01-01",)"
               R"("scope":"Email / “Mail”","method":"Touch ID",)"
               R"("device_id":"0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90","image_digest":"I",)"
               R"("expires":"2026-01-08","commitment":"statement","nonce":"N","timezone":"UTC",)"
               R"("tz_offset":0,"api_key":"5c2f8e91a07d43b6e19f0c7a2d58b3e4",)"
               R"("enclave_signature":"MEQ="})"));
}

TEST_F(CurlTransportTest, EveryAnswerHasItsEnding) {
  const std::string good = R"({"signature_id":"s"})";
  const std::string refusal = R"({"error":"device not enrolled"})";
  const std::string html = "<html><h1>Internal Server Error</h1></html>";
  const std::string large(std::size_t{10} * 1024 * 1024, ' ');
  const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  struct Case {
    const char* name;
    std::string answer;
    ServerScript::End end;
    const char* domain;
    std::int64_t code;
  };
  constexpr auto close = ServerScript::End::close;
  constexpr auto reset = ServerScript::End::reset;
  constexpr auto linger = ServerScript::End::linger;
  constexpr const char* url = transport::errorDomain;
  const std::vector<Case> cases{
      {"200", answerOf("200 OK", good), close, "", 0},
      {"200, kept open", answerOf("200 OK", good), linger, "", 0},
      {"200 without a length", "HTTP/1.1 200 OK\r\n\r\n" + good, close, "", 0},
      {"200 in chunks", chunked + "14\r\n" + good + "\r\n0\r\n\r\n", linger, "", 0},
      {"100 first", "HTTP/1.1 100 Continue\r\n\r\n" + answerOf("200 OK", good), close, "", 0},
      {"299", answerOf("299 Fine", good), close, "", 0},
      {"199", answerOf("199 Odd", good), close, url, transport::badServerResponse},
      {"300", answerOf("300 Choices", good), close, url, transport::badServerResponse},
      {"300 explained", answerOf("300 Choices", refusal), close, "Quillseal", 300},
      {"404 explained", answerOf("404 Not Found", refusal), close, "Quillseal", 404},
      {"500 in HTML", answerOf("500 Error", html), close, url, transport::badServerResponse},
      {"500 empty", answerOf("500 Error", ""), close, url, transport::badServerResponse},
      {"200 in HTML", answerOf("200 OK", html), close, "NSCocoaErrorDomain", 4864},
      {"200, a number", answerOf("200 OK", R"({"signature_id":5})"), close, "NSCocoaErrorDomain",
       4864},
      {"204", "HTTP/1.1 204 No Content\r\n\r\n", close, "NSCocoaErrorDomain", 4864},
      {"half a body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"sig", close, url,
       transport::networkConnectionLost},
      {"half a chunk", chunked + "64\r\n{\"sig", close, url, transport::networkConnectionLost},
      {"half the headers", "HTTP/1.1 200 OK\r\nContent-Le", close, "NSCocoaErrorDomain", 4864},
      {"nothing", "", close, url, transport::networkConnectionLost},
      {"reset", "", reset, url, transport::networkConnectionLost},
      {"reset in the body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"sig", reset, url,
       transport::networkConnectionLost},
      {"10 MB", answerOf("200 OK", large), close, url, transport::dataLengthExceedsMaximum},
      {"10 MB unannounced", "HTTP/1.1 200 OK\r\n\r\n" + large, close, url,
       transport::dataLengthExceedsMaximum},
      {"an endless header", "HTTP/1.1 200 OK\r\nX: " + std::string(400'000, 'x'), linger, url,
       transport::badServerResponse},
      {"no HTTP", "220 mail.example ESMTP\r\n", close, url, transport::badServerResponse},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const ScriptedServer server({.answer = each.answer, .end = each.end, .tls = {}});
    const Ending ending = signingWith(server);
    EXPECT_EQ(ending.domain, each.domain);
    EXPECT_EQ(ending.code, each.code);
    EXPECT_EQ(ending.value, each.code == 0 ? "s" : "");
    EXPECT_EQ(ending.words.empty(), each.code == 0);
    EXPECT_EQ(server.requests().size(), 1U) << "nothing is sent twice";
  }
}

TEST_F(CurlTransportTest, TakesAnAnswerOfJustEightMegabytes) {
  const std::string head = R"({"signature_id":"s","padding":")";
  const std::string body =
      head + std::string(std::size_t{8} * 1024 * 1024 - head.size() - 2, 'x') + "\"}";
  const ScriptedServer server({.answer = answerOf("200 OK", body), .tls = {}});
  EXPECT_EQ(signingWith(server).value, "s");
}

TEST_F(CurlTransportTest, NeverFollowsARedirect) {
  const ScriptedServer target({.answer = answerOf("200 OK", R"({"signature_id":"s"})"), .tls = {}});
  for (const char* status :
       {"301 Moved", "302 Found", "303 See Other", "307 Temporary", "308 Permanent"}) {
    const ScriptedServer server(
        {.answer = "HTTP/1.1 " + std::string(status) + "\r\nLocation: http://127.0.0.1:" +
                   std::to_string(target.port()) + "/\r\nContent-Length: 0\r\n\r\n",
         .tls = {}});
    EXPECT_EQ(signingWith(server).code, transport::badServerResponse) << status;
  }
  EXPECT_EQ(target.connections(), 0);
}

TEST_F(CurlTransportTest, ServersOutOfReach) {
  int freePort = 0;
  {
    const ScriptedServer gone({.answer = "", .tls = {}});
    freePort = gone.port();
  }
  const Ending refused = signingWith("http://127.0.0.1:" + std::to_string(freePort));
  EXPECT_EQ(refused.domain, transport::errorDomain);
  EXPECT_EQ(refused.code, transport::cannotConnectToHost);

  // Names under "invalid" exist nowhere (RFC 6761). Without any network there is no answer at all.
  EXPECT_THAT(signingWith("http://server.invalid").code, transport::cannotFindHost);
}

TEST_F(CurlTransportTest, SendsNothingToWhatIsNoUrl) {
  for (const char* url :
       {"http://a b", "http://", "https://", "nonsense", "127.0.0.1:80", "localhost:80",
        "ftp://127.0.0.1", "file:///etc", "http://127.0.0.1:99999", "http://127.0.0.1:x",
        "http://127.0.0.1/a b", "http://127.0.0.1\r\nX: y", "javascript:alert(1)"}) {
    const Ending ending = signingWith(url);
    EXPECT_EQ(ending.domain, transport::errorDomain) << url;
    EXPECT_EQ(ending.code, transport::badUrl) << url;
  }
}

TEST_F(CurlTransportTest, ChecksCertificateAndHost) {
  const std::string answer = answerOf("200 OK", R"({"signature_id":"s"})");
  struct Case {
    const char* name;
    testing::CertificateSubject subject;
    bool isTrusted;
    std::int64_t code;
  };
  for (const Case& each : {
           Case{"good", {.host = "localhost"}, true, 0},
           Case{"unknown issuer",
                {.host = "localhost"},
                false,
                transport::serverCertificateUntrusted},
           Case{"wrong host",
                {.host = "elsewhere.example"},
                true,
                transport::serverCertificateUntrusted},
           Case{"expired",
                {.host = "localhost", .validFrom = -7200, .validTo = -3600},
                true,
                transport::serverCertificateUntrusted},
           Case{"not yet valid",
                {.host = "localhost", .validFrom = 3600, .validTo = 7200},
                true,
                transport::serverCertificateUntrusted},
       }) {
    SCOPED_TRACE(each.name);
    const testing::TemporaryFolder folder;
    testing::writeCertificate(folder.path(), each.subject);
    useAuthorities(each.isTrusted ? (folder.path() / "certificate.pem").string() : "");
    const ScriptedServer server({.answer = answer, .tls = folder.path()});
    const Ending ending = signingWith("https://localhost:" + std::to_string(server.port()));
    EXPECT_EQ(ending.code, each.code) << ending.words;
    EXPECT_EQ(server.requests().size(), each.code == 0 ? 1U : 0U) << "the API key stays here";
  }
  useAuthorities("");
  const ScriptedServer plain({.answer = "220 mail.example ESMTP\r\n", .tls = {}});
  EXPECT_EQ(signingWith("https://127.0.0.1:" + std::to_string(plain.port())).code,
            transport::secureConnectionFailed);
}

TEST_F(CurlTransportTest, GivesUpInTime) {
  const ScriptedServer silent({.answer = "", .end = ServerScript::End::linger, .tls = {}});
  const ScriptedServer slow({.answer = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{",
                             .end = ServerScript::End::linger,
                             .tls = {}});
  int left = 2;
  std::vector<desktop::Ticket> tickets;
  for (const ScriptedServer* server : {&silent, &slow}) {
    tickets.push_back(
        transport_->send({.url = "http://127.0.0.1:" + std::to_string(server->port()) + "/",
                          .headers = {},
                          .body = "{}",
                          .timeout = std::chrono::seconds(1)},
                         [&](Outcome<HttpResponse> outcome) {
                           ASSERT_TRUE(std::holds_alternative<Error>(outcome));
                           EXPECT_EQ(std::get<Error>(outcome).code(), transport::timedOut);
                           if (--left == 0) loop_.stop();
                         }));
  }
  tickets.push_back(loop_.after(tooLong, [this] { loop_.stop(); }));
  loop_.run();
  EXPECT_EQ(left, 0);
}

TEST_F(CurlTransportTest, AWithdrawnRequestIsSilentAndItsConnectionCloses) {
  const ScriptedServer server({.answer = "", .end = ServerScript::End::linger, .tls = {}});
  bool isCalled = false;
  desktop::Ticket request =
      transport_->send({.url = "http://127.0.0.1:" + std::to_string(server.port()) + "/",
                        .headers = {},
                        .body = "{}"},
                       [&](const Outcome<HttpResponse>&) { isCalled = true; });
  // The server takes the next connection only once this one is closed.
  const desktop::Ticket later = loop_.after(std::chrono::milliseconds(100), [&] {
    request = {};
    request = transport_->send({.url = "http://127.0.0.1:" + std::to_string(server.port()) + "/",
                                .headers = {},
                                .body = "{}"},
                               [](const Outcome<HttpResponse>&) {});
  });
  std::function<void()> look = [&] {
    if (server.connections() >= 2) loop_.stop();
  };
  std::vector<desktop::Ticket> looks;
  for (int i = 1; i < 100; ++i)
    looks.push_back(loop_.after(std::chrono::milliseconds(20 * i), look));
  looks.push_back(loop_.after(tooLong, [this] { loop_.stop(); }));
  loop_.run();
  EXPECT_EQ(server.connections(), 2);
  EXPECT_FALSE(isCalled);
}

TEST_F(CurlTransportTest, ACompletionMayEndEverything) {
  const ScriptedServer server({.answer = answerOf("200 OK", "{}"), .tls = {}});
  std::vector<desktop::Ticket> requests;
  int completions = 0;
  for (int i = 0; i < 8; ++i) {
    requests.push_back(
        transport_->send({.url = "http://127.0.0.1:" + std::to_string(server.port()) + "/",
                          .headers = {},
                          .body = "{}"},
                         [&](const Outcome<HttpResponse>&) {
                           ++completions;
                           requests.clear();
                           transport_.reset();
                           loop_.stop();
                         }));
  }
  const desktop::Ticket guard = loop_.after(tooLong, [this] { loop_.stop(); });
  loop_.run();
  EXPECT_EQ(completions, 1);
}

TEST(CurlTransportErrors, AreToldAsWhatTheyMeanToTheUser) {
  const std::map<CURLcode, transport::ErrorCode> cases{
      {CURLE_COULDNT_RESOLVE_HOST, transport::cannotFindHost},
      {CURLE_COULDNT_RESOLVE_PROXY, transport::cannotFindHost},
      {CURLE_OPERATION_TIMEDOUT, transport::timedOut},
      {CURLE_SSL_CONNECT_ERROR, transport::secureConnectionFailed},
      {CURLE_PEER_FAILED_VERIFICATION, transport::serverCertificateUntrusted},
      {CURLE_HTTP2, transport::badServerResponse},
      {CURLE_FAILED_INIT, transport::unknown},
  };
  for (const auto& [failure, code] : cases) {
    EXPECT_EQ(CurlTransport::errorCodeOf(failure, 0), code) << failure;
  }
  EXPECT_EQ(CurlTransport::errorCodeOf(CURLE_COULDNT_CONNECT, ECONNREFUSED),
            transport::cannotConnectToHost);
  EXPECT_EQ(CurlTransport::errorCodeOf(CURLE_COULDNT_CONNECT, ENETUNREACH),
            transport::notConnectedToInternet);
}

/// The agent's client against the development server.
class DevServerTest : public CurlTransportTest {
 protected:
  DevServerTest() {
    const std::optional<int> port = server_.bind({.host = "127.0.0.1", .port = 0});
    if (!port) throw std::runtime_error("no port to listen on");
    defaults_.values = {{"ServerURL", "http://127.0.0.1:" + std::to_string(*port)},
                        {"APIKey", apiKey}};
    thread_ = std::thread([this] { EXPECT_TRUE(server_.serve()); });
  }
  ~DevServerTest() override {
    server_.stop();
    thread_.join();
  }

  Ending enrol() { return endingOf(enrolledIdentity(client_, device_.publicKey())); }

  Ending sign(const std::string& identity, const std::string& nonce) {
    ServerClient::Content content{.textDigest = CryptoManager::sha256Hex("text"),
                                  .snapshotDigest = "",
                                  .issued = "2026-01-01",
                                  .scope = "Email Message (“Mail”)",
                                  .imageDigest = CryptoManager::imageManifestDigest({}),
                                  .expires = "2026-01-08",
                                  .commitment = "statement",
                                  .nonce = nonce,
                                  .enclaveSignature = ""};
    content.enclaveSignature =
        device_.sign(CryptoManager::canonicalV3({.textDigest = content.textDigest,
                                                 .issued = content.issued,
                                                 .scope = content.scope,
                                                 .snapshotDigest = "",
                                                 .identity = identity,
                                                 .signerKey = deviceId,
                                                 .expires = content.expires,
                                                 .nonce = content.nonce,
                                                 .commitment = content.commitment}));
    return endingOf(client_.signContent(content));
  }

  static Task<std::string> enrolledIdentity(const ServerClient& client, std::string publicKey) {
    ServerClient::EnrolRequest request{.deviceId = client.hardwareUUID(),
                                       .publicKey = std::move(publicKey),
                                       .apiKey = client.effectiveAPIKey()};
    const auto response = co_await client.enrol(std::move(request));
    co_return response.identity.value_or("(none)");
  }

  /// Creates a handoff, signs it as the page does, and polls before and after.
  static Task<std::string> handedOff(const ServerClient& client, devserver::Service& service) {
    const std::string digest = CryptoManager::sha256Hex("text");
    ServerClient::HandoffCreateRequest request{
        .textDigest = digest,
        .snapshotDigest = "",
        .issued = "2026-01-01",
        .scope = "Web Form",
        .imageDigest = CryptoManager::imageManifestDigest({}),
        .apiKey = client.effectiveAPIKey()};
    const auto handoff = co_await client.createHandoff(std::move(request));
    ServerClient::HandoffPollRequest poll{.handoffId = handoff.handoffId,
                                          .apiKey = client.effectiveAPIKey()};
    const auto before = co_await client.pollHandoff(poll);
    (void)service.answer({.method = "POST",
                          .path = "/handoff/sign",
                          .contentType = "application/json",
                          .host = "127.0.0.1",
                          .handoffId = "",
                          .body = R"({"handoff_id":")" + handoff.handoffId +
                                  R"(","text_digest":")" + digest + "\"}"});
    const auto after = co_await client.pollHandoff(poll);
    co_return handoff.url + ' ' + before.status + ' ' + after.status + ' ' +
        (after.signatureId ? "signed" : "unsigned");
  }

  static constexpr const char* apiKey = "a key for tests";
  devserver::TestDevice device_;
  devserver::Registry registry_{":memory:"};
  devserver::Service service_{
      registry_, {.apiKey = apiKey, .identity = "Ada Lovelace", .origin = "", .now = [] {
                    return std::int64_t{std::time(nullptr)};
                  }}};
  devserver::HttpServer server_{service_, nullptr};
  std::thread thread_;
};

TEST_F(DevServerTest, EnrolsSignsAndPolls) {
  const std::string nonce(32, '1');
  const Ending unknown = sign("Ada Lovelace", nonce);
  EXPECT_EQ(unknown.domain, "Quillseal");
  EXPECT_EQ(unknown.code, 404);
  EXPECT_EQ(unknown.words, "Device not registered");

  EXPECT_EQ(enrol().value, "Ada Lovelace");
  EXPECT_EQ(sign("somebody else", nonce).code, 403);
  const Ending signature = sign("Ada Lovelace", nonce);
  EXPECT_TRUE(registry_.signature(signature.value).has_value()) << signature.words;
  EXPECT_EQ(sign("Ada Lovelace", nonce).code, 409);

  const Ending handoff = endingOf(handedOff(client_, service_));
  EXPECT_THAT(handoff.value, StartsWith(defaults_.values["ServerURL"] + "/handoff?h="));
  EXPECT_THAT(handoff.value, EndsWith(" pending complete signed"));

  defaults_.values["APIKey"] = "another";
  EXPECT_EQ(enrol().code, 401);
}

}  // namespace
}  // namespace quillseal
