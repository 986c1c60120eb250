#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "FakeDesktop.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/ServerClient.h"
#include "TaskResult.h"

namespace quillseal {
namespace {

using ::testing::ElementsAre;
using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Pair;
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

  [[nodiscard]] ServerClient::Content content() const {
    return {.textDigest = "T",
            .snapshotDigest = "",
            .issued = "2026-01-01",
            .scope = scope_,
            .imageDigest = "I",
            .expires = "2026-01-08",
            .commitment = "statement",
            .nonce = "N",
            .enclaveSignature = "MEQ="};
  }

  /// What a call gives, as text, or the error.
  Outcome<std::string> call(const std::string& name) {
    const auto valueOr = [&](auto task, auto textOf) -> Outcome<std::string> {
      auto outcome = resultOf(desktop_.loop, std::move(task));
      if (const Error* error = std::get_if<Error>(&outcome)) return *error;
      return textOf(std::get<0>(outcome));
    };
    const auto asItIs = [](const std::string& id) { return id; };
    if (name == "sign") return valueOr(client_.signContent(content()), asItIs);
    if (name == "demo")
      return valueOr(client_.signDemo({.textDigest = "T",
                                       .issued = "2026-01-01",
                                       .scope = "S",
                                       .imageDigest = "I",
                                       .method = "Device Passcode",
                                       .expires = "2026-01-08",
                                       .commitment = "statement",
                                       .nonce = "N"}),
                     asItIs);
    if (name == "enrol")
      return valueOr(client_.enrol({.deviceId = "D", .publicKey = "B+/=", .apiKey = "K"}),
                     [](const auto& device) { return device.identity.value_or("nobody"); });
    if (name == "create")
      return valueOr(client_.createHandoff({.textDigest = "T",
                                            .snapshotDigest = "",
                                            .issued = "2026-01-01",
                                            .scope = "S",
                                            .imageDigest = "I",
                                            .apiKey = "K"}),
                     [](const auto& handoff) { return handoff.url; });
    return valueOr(client_.pollHandoff({.handoffId = "H", .apiKey = "K"}),
                   [](const auto& poll) { return poll.signatureId.value_or("waiting"); });
  }

  FakeDesktop desktop_;
  std::string scope_ = "Email / “Mail”\n";
  ServerClient client_{{.defaults = desktop_.defaults,
                        .http = desktop_.http,
                        .machine = desktop_.machine,
                        .wallClock = desktop_.wallClock}};
};

TEST_F(ServerClientTest, ReadsTheSettingsAfreshAndTrimmed) {
  const std::string fallback(BuiltInServer::url());
  const std::pair<const char*, std::string> cases[] = {
      {"", fallback}, {"   ", fallback}, {"\n", fallback}, {" https://a/ ", "https://a/"}};
  for (const auto& [setting, expected] : cases) {
    desktop_.defaults.strings["ServerURL"] = setting;
    EXPECT_EQ(client_.effectiveServerURL(), expected);
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
  for (const auto& [name, offset, path, body] :
       testing::cases<std::string, int, std::string, std::string>()) {
    desktop_.forget();
    desktop_.wallClock.zone.secondsFromGmt = offset;
    desktop_.http.answers["/" + path] = desktop_.http.answers.at(path);
    call(name);
    ASSERT_EQ(desktop_.http.sent.size(), 1U);
    const desktop::HttpPost& sent = desktop_.http.sent[0];
    EXPECT_EQ(sent.url, "https://a.example/" + path);
    EXPECT_EQ(sent.body, body);
    EXPECT_THAT(sent.headers, ElementsAre(Pair("Content-Type", "application/json")));
    EXPECT_EQ(sent.timeout, std::chrono::seconds(60));
  }
  desktop_.forget();
  scope_ = "\xff";
  EXPECT_EQ(std::get<Error>(call("sign")).domain(), "Quillseal");
  EXPECT_TRUE(desktop_.http.sent.empty()) << "this is no text";
}

TEST_F(ServerClientTest, ReadsEveryAnswerOrNamesWhatItLacks) {
  for (const auto& [name, status, body, expected] :
       testing::cases<std::string, int, std::string, std::string>()) {
    SCOPED_TRACE(body.substr(0, 100));
    answer(status, body);
    desktop_.http.failure.reset();
    if (status == 0) desktop_.http.failure = Error({.domain = "D", .code = 7, .description = body});
    const Outcome<std::string> outcome = call(name);
    if (const Error* error = std::get_if<Error>(&outcome)) {
      EXPECT_EQ(error->domain() == "NSCocoaErrorDomain", status / 100 == 2);
      EXPECT_TRUE(expected.starts_with('!'));
      EXPECT_THAT(error->domain() + " " + std::to_string(error->code()) + ": " + error->what(),
                  HasSubstr(expected.substr(1)));
    } else {
      EXPECT_EQ(std::get<std::string>(outcome), expected);
    }
  }
}

}  // namespace
}  // namespace quillseal
