#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Quillseal/Async.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/ServerClient.h"

namespace quillseal {
namespace {

using desktop::HttpPost;
using desktop::HttpResponse;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;

class FakeDefaults final : public desktop::Defaults {
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

/// Answers every request with `outcome` and keeps what was sent.
class FakeTransport final : public desktop::HttpTransport {
 public:
  std::vector<HttpPost> sent;
  std::optional<Outcome<HttpResponse>> outcome;  ///< nothing: never answers
  int withdrawn = 0;

  desktop::Ticket send(const HttpPost& post,
                       std::function<void(Outcome<HttpResponse>)> done) override {
    sent.push_back(post);
    if (outcome) done(*outcome);
    return desktop::Ticket([this] { ++withdrawn; });
  }
  Error error(desktop::transport::ErrorCode code) const override {
    return Error(
        {.domain = desktop::transport::errorDomain, .code = code, .description = "platform words"});
  }
};

class FakeMachine final : public desktop::MachineIdentity {
 public:
  std::optional<std::string> uuid = "0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90";
  std::optional<std::string> platformUuid() const override { return uuid; }
};

class FakeWallClock final : public desktop::WallClock {
 public:
  desktop::TimeZone zone{.identifier = "Asia/Kolkata", .secondsFromGmt = 19800};
  std::string today() const override { return "2026-01-01"; }
  desktop::TimeZone timeZone() const override { return zone; }
};

class ServerClientTest : public ::testing::Test {
 protected:
  ServerClientTest() { answer(200, R"({"signature_id":"s","demo":true,"status":"x"})"); }

  void answer(int status, const std::string& body) {
    transport_.outcome = HttpResponse{.status = status, .body = body};
  }

  /// Runs a call to its end, or to where it waits.
  template <typename T>
  std::optional<T> resultOf(Task<T> task) {
    std::optional<T> result;
    scope_->start(store(std::move(task), result, failure_));
    return result;
  }

  Error failureOf(Task<std::string> task) {
    failure_.reset();
    EXPECT_EQ(resultOf(std::move(task)), std::nullopt);
    EXPECT_TRUE(failure_.has_value());
    return failure_.value_or(Error({.domain = "", .code = 0, .description = ""}));
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

  FakeDefaults defaults_;
  FakeTransport transport_;
  FakeMachine machine_;
  FakeWallClock wallClock_;
  ServerClient client_{
      {.defaults = defaults_, .http = transport_, .machine = machine_, .wallClock = wallClock_}};
  std::optional<TaskScope> scope_{std::in_place};

 private:
  template <typename T>
  static Task<> store(Task<T> task, std::optional<T>& result, std::optional<Error>& failure) {
    try {
      result = co_await std::move(task);
    } catch (const Error& error) {
      failure = error;
    }
  }

  std::optional<Error> failure_;
};

TEST_F(ServerClientTest, ReadsTheSettingsAfreshAndTrimmed) {
  struct Case {
    const char* setting;
    std::string expected;
  };
  const std::string fallback(builtInServer::url());
  for (const Case& each : {Case{"", fallback}, Case{"   ", fallback}, Case{"\n", fallback},
                           Case{" https://a.example/ ", "https://a.example/"}}) {
    defaults_.values["ServerURL"] = each.setting;
    EXPECT_EQ(client_.effectiveServerURL(), each.expected);
  }
  EXPECT_EQ(client_.effectiveAPIKey(), builtInServer::apiKey());
  defaults_.values["APIKey"] = " abc ";
  EXPECT_EQ(client_.effectiveAPIKey(), "abc");
}

TEST_F(ServerClientTest, MakesUpADifferentIdentifierForAMachineWithoutOne) {
  EXPECT_EQ(client_.hardwareUUID(), *machine_.uuid);
  machine_.uuid.reset();
  const std::string first = client_.hardwareUUID();
  EXPECT_THAT(first, MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-"
                                  "[0-9A-F]{12}"));
  EXPECT_NE(client_.hardwareUUID(), first);
}

TEST_F(ServerClientTest, SendsEveryBodyByteForByte) {
  defaults_.values = {{"ServerURL", "https://a.example/"}, {"APIKey", "K"}};
  const std::string device = *machine_.uuid;
  struct Case {
    std::function<void()> call;
    std::string url;
    std::string body;
  };
  const std::vector<Case> cases{
      {[&] { resultOf(client_.signContent(content())); }, "https://a.example//api/sign_native",
       R"({"protocol":"v2","text_digest":"T","snapshot_digest":"","issued":"2026-01-01",)"
       R"("scope":"Email / “Mail”\n","method":"Touch ID","device_id":")" +
           device +
           R"(","image_digest":"I","expires":"2026-01-08","commitment":"statement","nonce":"N",)"
           R"("timezone":"Asia/Kolkata","tz_offset":330,"api_key":"K","enclave_signature":"MEQ="})"},
      {[&] {
         resultOf(client_.signDemo({.textDigest = "T",
                                    .issued = "2026-01-01",
                                    .scope = "S",
                                    .imageDigest = "I",
                                    .method = "Device Passcode",
                                    .expires = "2026-01-08",
                                    .commitment = "statement",
                                    .nonce = "N"}));
       },
       "https://a.example//api/sign_demo",
       R"({"text_digest":"T","issued":"2026-01-01","scope":"S","image_digest":"I","device_id":")" +
           device +
           R"(","method":"Device Passcode","expires":"2026-01-08","commitment":"statement",)"
           R"("nonce":"N","timezone":"Asia/Kolkata","tz_offset":330,"api_key":"K"})"},
      {[&] { resultOf(client_.enrol({.deviceId = "D", .publicKey = "B+/=", .apiKey = "K"})); },
       "https://a.example//api/register_native",
       R"({"device_id":"D","public_key":"B+/=","api_key":"K"})"},
      {[&] {
         resultOf(client_.createHandoff({.textDigest = "T",
                                         .snapshotDigest = "",
                                         .issued = "2026-01-01",
                                         .scope = "S",
                                         .imageDigest = "I",
                                         .apiKey = "K"}));
       },
       "https://a.example//api/handoff/create",
       R"({"text_digest":"T","snapshot_digest":"","issued":"2026-01-01","scope":"S",)"
       R"("image_digest":"I","api_key":"K"})"},
      {[&] { resultOf(client_.pollHandoff({.handoffId = "H", .apiKey = "K"})); },
       "https://a.example//api/handoff/poll", R"({"handoff_id":"H","api_key":"K"})"},
  };
  for (const Case& each : cases) {
    transport_.sent.clear();
    each.call();
    ASSERT_EQ(transport_.sent.size(), 1U);
    EXPECT_EQ(transport_.sent[0].url, each.url);
    EXPECT_EQ(transport_.sent[0].body, each.body);
    EXPECT_EQ(
        transport_.sent[0].headers,
        (std::vector<std::pair<std::string, std::string>>{{"Content-Type", "application/json"}}));
    EXPECT_EQ(transport_.sent[0].timeout, std::chrono::seconds(60));
  }
}

TEST_F(ServerClientTest, WritesTheZonesOffsetInWholeMinutes) {
  const std::map<int, std::string> cases{{19800, "330"}, {20700, "345"},   {-12600, "-210"},
                                         {-59, "0"},     {-12630, "-210"}, {0, "0"}};
  for (const auto& [seconds, minutes] : cases) {
    wallClock_.zone.secondsFromGmt = seconds;
    resultOf(client_.signContent(content()));
    EXPECT_THAT(transport_.sent.back().body, HasSubstr("\"tz_offset\":" + minutes + ","));
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
      EXPECT_STREQ(failure.what(), "platform words");
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
  transport_.outcome = Error({.domain = "D", .code = 7, .description = "no network"});
  const Error failure = failureOf(client_.signContent(content()));
  EXPECT_EQ(failure.domain(), "D");
  EXPECT_EQ(failure.code(), 7);
  EXPECT_STREQ(failure.what(), "no network");
}

TEST_F(ServerClientTest, ReadsEveryAnswer) {
  for (const int status : {200, 201, 299}) {
    answer(status, R"({"signature_id":"a\/b","more":[1,{}]})");
    EXPECT_EQ(resultOf(client_.signContent(content())), "a/b");
  }
  answer(200, R"({"demo":false,"signature_id":"d"})");
  EXPECT_EQ(resultOf(client_.signDemo({})), "d");

  answer(200, R"({"status":"registered","device_id":"D"})");
  EXPECT_EQ(resultOf(client_.enrol({}))->identity, std::nullopt);
  answer(200, R"({"status":"registered","device_id":"D","identity":null})");
  EXPECT_EQ(resultOf(client_.enrol({}))->identity, std::nullopt);
  answer(200, R"({"status":"registered","device_id":"D","identity":"Ada"})");
  EXPECT_EQ(resultOf(client_.enrol({}))->identity, "Ada");

  answer(200, R"({"handoff_id":"h","url":"https:\/\/a\/handoff?h=h"})");
  EXPECT_EQ(resultOf(client_.createHandoff({}))->url, "https://a/handoff?h=h");
  answer(200, R"({"status":"open"})");
  EXPECT_EQ(resultOf(client_.pollHandoff({}))->signatureId, std::nullopt);
  answer(200, R"({"status":"complete","signature_id":"s"})");
  EXPECT_EQ(resultOf(client_.pollHandoff({}))->signatureId, "s");
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
  answer(200, R"({"signature_id":"s"})");
  EXPECT_THAT(failureOf(client_.signDemo({})).what(), HasSubstr("“demo”"));
}

TEST_F(ServerClientTest, SendsNothingThatIsNoText) {
  ServerClient::Content damaged = content();
  damaged.scope = "\xff";
  EXPECT_EQ(failureOf(client_.signContent(damaged)).domain(), "Quillseal");
  EXPECT_TRUE(transport_.sent.empty());
}

TEST_F(ServerClientTest, ACancelledCallWithdrawsItsRequest) {
  transport_.outcome.reset();
  EXPECT_EQ(resultOf(client_.signContent(content())), std::nullopt);
  EXPECT_EQ(transport_.withdrawn, 0);
  scope_.reset();
  EXPECT_EQ(transport_.withdrawn, 1);
}

}  // namespace
}  // namespace quillseal
