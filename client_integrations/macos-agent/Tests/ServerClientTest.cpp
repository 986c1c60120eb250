#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/ServerClient.h"
#include "TaskResult.h"

namespace quillseal {
namespace {

using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using testing::resultOf;

class ServerClientTest : public ::testing::Test {
 protected:
  ServerClientTest() {
    answer(
        200,
        R"({"signature_id":"s","demo":true,"status":"x","device_id":"D","handoff_id":"H","url":"u"})");
  }

  /// The server's answer to every request.
  void answer(int status, const std::string& body) {
    for (auto& [path, queue] : desktop_.http.answers)
      queue = {{status, body}};
  }

  template <typename T>
  T valueOf(Task<T> task) {
    return std::get<T>(resultOf(desktop_.loop, std::move(task)));
  }

  Error failureOf(Task<std::string> task) {
    return std::get<Error>(resultOf(desktop_.loop, std::move(task)));
  }

  static ServerClient::Content content() {
    return {.textDigest = "T",
            .snapshotDigest = "",
            .issued = "2026-01-01",
            .scope = "Email / “Mail”\n",
            .imageDigest = "I",
            .expires = "2026-01-08",
            .commitment = "statement",
            .nonce = "N",
            .enclaveSignature = "MEQ="};
  }

  FakeDesktop desktop_;
  ServerClient client_{{.defaults = desktop_.defaults,
                        .http = desktop_.http,
                        .machine = desktop_.machine,
                        .wallClock = desktop_.wallClock}};
};

TEST_F(ServerClientTest, ReadsTheSettingsAfreshAndTrimmed) {
  struct Case {
    const char* setting;
    std::string expected;
  };
  const std::string fallback(BuiltInServer::url());
  for (const Case& each : {Case{"", fallback}, Case{"   ", fallback}, Case{"\n", fallback},
                           Case{" https://a.example/ ", "https://a.example/"}}) {
    desktop_.defaults.strings["ServerURL"] = each.setting;
    EXPECT_EQ(client_.effectiveServerURL(), each.expected);
  }
  EXPECT_EQ(client_.effectiveAPIKey(), BuiltInServer::apiKey());
  desktop_.defaults.strings["APIKey"] = " abc ";
  EXPECT_EQ(client_.effectiveAPIKey(), "abc");
}

TEST_F(ServerClientTest, MakesUpADifferentIdentifierForAMachineWithoutOne) {
  EXPECT_EQ(client_.hardwareUUID(), *desktop_.machine.uuid);
  desktop_.machine.uuid.reset();
  const std::string first = client_.hardwareUUID();
  EXPECT_THAT(first, MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-"
                                  "[0-9A-F]{12}"));
  EXPECT_NE(client_.hardwareUUID(), first);
}

TEST_F(ServerClientTest, SendsEveryBodyByteForByte) {
  desktop_.defaults.strings = {{"ServerURL", "https://a.example/"}, {"APIKey", "K"}};
  struct Case {
    std::string path;
    std::function<void()> call;
    std::string body;
  };
  const std::vector<Case> cases{
      {"/api/sign_native", [&] { valueOf(client_.signContent(content())); },
       R"({"protocol":"v2","text_digest":"T","snapshot_digest":"","issued":"2026-01-01",)"
       R"("scope":"Email / “Mail”\n","method":"Touch ID","device_id":"MACHINE-1",)"
       R"("image_digest":"I","expires":"2026-01-08","commitment":"statement","nonce":"N",)"
       R"("timezone":"Europe/Berlin","tz_offset":60,"api_key":"K","enclave_signature":"MEQ="})"},
      {"/api/sign_demo",
       [&] {
         valueOf(client_.signDemo({.textDigest = "T",
                                   .issued = "2026-01-01",
                                   .scope = "S",
                                   .imageDigest = "I",
                                   .method = "Device Passcode",
                                   .expires = "2026-01-08",
                                   .commitment = "statement",
                                   .nonce = "N"}));
       },
       R"({"text_digest":"T","issued":"2026-01-01","scope":"S","image_digest":"I",)"
       R"("device_id":"MACHINE-1","method":"Device Passcode","expires":"2026-01-08",)"
       R"("commitment":"statement","nonce":"N","timezone":"Europe/Berlin","tz_offset":60,)"
       R"("api_key":"K"})"},
      {"/api/register_native",
       [&] { valueOf(client_.enrol({.deviceId = "D", .publicKey = "B+/=", .apiKey = "K"})); },
       R"({"device_id":"D","public_key":"B+/=","api_key":"K"})"},
      {"/api/handoff/create",
       [&] {
         valueOf(client_.createHandoff({.textDigest = "T",
                                        .snapshotDigest = "",
                                        .issued = "2026-01-01",
                                        .scope = "S",
                                        .imageDigest = "I",
                                        .apiKey = "K"}));
       },
       R"({"text_digest":"T","snapshot_digest":"","issued":"2026-01-01","scope":"S",)"
       R"("image_digest":"I","api_key":"K"})"},
      {"/api/handoff/poll",
       [&] { valueOf(client_.pollHandoff({.handoffId = "H", .apiKey = "K"})); },
       R"({"handoff_id":"H","api_key":"K"})"},
  };
  for (const Case& each : cases) {
    desktop_.forget();
    desktop_.http.answers["/" + each.path] = desktop_.http.answers.at(each.path);
    each.call();
    ASSERT_EQ(desktop_.http.sent.size(), 1U);
    EXPECT_EQ(desktop_.http.sent[0].url, "https://a.example/" + each.path);
    EXPECT_EQ(desktop_.http.sent[0].body, each.body);
    EXPECT_EQ(
        desktop_.http.sent[0].headers,
        (std::vector<std::pair<std::string, std::string>>{{"Content-Type", "application/json"}}));
    EXPECT_EQ(desktop_.http.sent[0].timeout, std::chrono::seconds(60));
  }
}

TEST_F(ServerClientTest, WritesTheZonesOffsetInWholeMinutes) {
  const std::map<int, std::string> cases{{19800, "330"}, {20700, "345"},   {-12600, "-210"},
                                         {-59, "0"},     {-12630, "-210"}, {0, "0"}};
  for (const auto& [seconds, minutes] : cases) {
    desktop_.wallClock.zone.secondsFromGmt = seconds;
    valueOf(client_.signContent(content()));
    EXPECT_THAT(desktop_.http.sent.back().body, HasSubstr("\"tz_offset\":" + minutes + ","));
  }
}

TEST_F(ServerClientTest, TellsTheServersRefusalsInItsOwnWords) {
  for (const int status : {100, 199, 300, 302, 400, 404, 409, 500}) {
    answer(status, R"({"error":"Device not enrolled \/ é"})");
    const Error refusal = failureOf(client_.signContent(content()));
    EXPECT_EQ(refusal.domain(), "Quillseal");
    EXPECT_EQ(refusal.code(), status);
    EXPECT_STREQ(refusal.what(), "Device not enrolled / é");
    for (const char* body : {"", "<html>500</html>", "{}", R"({"error":null})", R"({"error":5})",
                             R"({"error":"x"}y)", "[\"error\"]"}) {
      answer(status, body);
      const Error failure = failureOf(client_.signContent(content()));
      EXPECT_EQ(failure.domain(), desktop::transport::errorDomain);
      EXPECT_EQ(failure.code(), desktop::transport::badServerResponse);
      EXPECT_STREQ(failure.what(), "The server gave no usable answer.");
    }
  }
}

TEST_F(ServerClientTest, ShortensARefusalOfAMegabyte) {
  answer(400, R"({"error":")" + std::string(1'000'000, 'n') + "\"}");
  EXPECT_EQ(failureOf(client_.signContent(content())).what(), std::string(1000, 'n') + "…");
  const std::string key = "\"" + std::string(1'000'000, 'k') + "\":1";
  answer(200, "{" + key + "," + key + "}");
  EXPECT_THAT(failureOf(client_.signContent(content())).what(),
              HasSubstr("The key “" + std::string(40, 'k') + "…” appears twice."));
}

TEST_F(ServerClientTest, PassesTransportErrorsOn) {
  desktop_.http.failure = Error({.domain = "D", .code = 7, .description = "no network"});
  const Error failure = failureOf(client_.signContent(content()));
  EXPECT_EQ(failure.domain(), "D");
  EXPECT_EQ(failure.code(), 7);
  EXPECT_STREQ(failure.what(), "no network");
}

TEST_F(ServerClientTest, ReadsEveryAnswer) {
  for (const int status : {200, 201, 299}) {
    answer(status, R"({"signature_id":"a\/b","more":[1,{}]})");
    EXPECT_EQ(valueOf(client_.signContent(content())), "a/b");
  }
  answer(200, R"({"demo":false,"signature_id":"d"})");
  EXPECT_EQ(valueOf(client_.signDemo({})), "d");

  answer(200, R"({"status":"registered","device_id":"D"})");
  EXPECT_EQ(valueOf(client_.enrol({})).identity, std::nullopt);
  answer(200, R"({"status":"registered","device_id":"D","identity":null})");
  EXPECT_EQ(valueOf(client_.enrol({})).identity, std::nullopt);
  answer(200, R"({"status":"registered","device_id":"D","identity":"Ada"})");
  EXPECT_EQ(valueOf(client_.enrol({})).identity, "Ada");

  answer(200, R"({"handoff_id":"h","url":"https:\/\/a\/handoff?h=h"})");
  EXPECT_EQ(valueOf(client_.createHandoff({})).url, "https://a/handoff?h=h");
  answer(200, R"({"status":"open"})");
  EXPECT_EQ(valueOf(client_.pollHandoff({})).signatureId, std::nullopt);
  answer(200, R"({"status":"complete","signature_id":"s"})");
  EXPECT_EQ(valueOf(client_.pollHandoff({})).signatureId, "s");
}

TEST_F(ServerClientTest, NamesWhatAnAnswerLacks) {
  struct Case {
    const char* body;
    const char* named;
  };
  for (const Case& each :
       {Case{"{}", "“signature_id”"}, Case{R"({"signature_id":null})", "“signature_id”"},
        Case{R"({"signature_id":7})", "“signature_id”"}, Case{"<html>", "JSON"}, Case{"", "JSON"},
        Case{R"({"signature_id":"s"} x)", "JSON"}}) {
    answer(200, each.body);
    const Error failure = failureOf(client_.signContent(content()));
    EXPECT_EQ(failure.domain(), "NSCocoaErrorDomain");
    EXPECT_THAT(failure.what(), HasSubstr(each.named)) << each.body;
  }
  const auto lacks = [&](auto task, const char* body, const char* named) {
    answer(200, body);
    EXPECT_THAT(std::get<Error>(resultOf(desktop_.loop, std::move(task))).what(), HasSubstr(named));
  };
  lacks(client_.signDemo({}), R"({"signature_id":"s"})", "“demo”");
  lacks(client_.enrol({}), R"({"status":"s"})", "“device_id”");
  lacks(client_.enrol({}), R"({"device_id":"d"})", "“status”");
  lacks(client_.createHandoff({}), R"({"handoff_id":"h"})", "“url”");
  lacks(client_.createHandoff({}), R"({"url":"u"})", "“handoff_id”");
  lacks(client_.pollHandoff({}), R"({"signature_id":"s"})", "“status”");
}

TEST_F(ServerClientTest, SendsNothingThatIsNoText) {
  ServerClient::Content damaged = content();
  damaged.scope = "\xff";
  EXPECT_EQ(failureOf(client_.signContent(damaged)).domain(), "Quillseal");
  EXPECT_TRUE(desktop_.http.sent.empty());
}

}  // namespace
}  // namespace quillseal
