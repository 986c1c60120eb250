#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PrivateBus.h"
#include "RunUntil.h"
#include "SystemBusFake.h"
#include "presence/FingerprintReader.h"
#include "presence/LinuxPresence.h"
#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

using desktop::PresencePolicy;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::PresenceServices;
using testing::runUntil;
using testing::Script;

/// Shows nothing. Continues, cancels or waits as the test says.
class ScriptedPrompt final : public PresencePrompt {
 public:
  std::unique_ptr<PresenceWindow> open(const PresenceRequest& request,
                                       std::function<void(bool)> answered) override {
    class Window final : public PresenceWindow {
     public:
      explicit Window(ScriptedPrompt& prompt) : prompt_(prompt) { ++prompt_.windows; }
      ~Window() override { --prompt_.windows; }
      void setInstruction(std::string_view instruction) override {
        prompt_.instructions.emplace_back(instruction);
      }

     private:
      ScriptedPrompt& prompt_;
    };
    requests.push_back(request);
    auto window = std::make_unique<Window>(*this);
    if (answer) loop.post([this, answered] { answered(*answer); });
    return window;
  }

  explicit ScriptedPrompt(desktop::MainLoop& mainLoop) : loop(mainLoop) {}
  desktop::MainLoop& loop;
  std::optional<bool> answer;
  std::vector<PresenceRequest> requests;
  std::vector<std::string> instructions;
  int windows = 0;
};

class LinuxPresenceTest : public ::testing::Test {
 protected:
  /// "yes", "no" or the message of the error.
  std::string evaluate(PresencePolicy policy) {
    std::optional<Outcome<bool>> outcome;
    const desktop::Ticket ticket =
        presence.evaluate(policy, {.reason = "Sign “x”", .medium = "LinkedIn Post"},
                          [&](Outcome<bool> result) { outcome = std::move(result); });
    runUntil(loop, [&] { return outcome.has_value(); });
    EXPECT_EQ(prompt.windows, 0);
    if (const Error* error = std::get_if<Error>(&*outcome)) return error->what();
    return std::get<bool>(*outcome) ? "yes" : "no";
  }
  bool can(PresencePolicy policy) { return presence.canEvaluate(policy).available; }

  testing::PrivateBus bus{"DBUS_SYSTEM_BUS_ADDRESS"};
  PollLoop loop;
  ScriptedPrompt prompt{loop};
  LinuxPresence presence{loop, prompt};
};

constexpr auto biometrics = PresencePolicy::biometrics;
constexpr auto password = PresencePolicy::biometricsOrPassword;

TEST_F(LinuxPresenceTest, TellsWhatTheMachineOffers) {
  EXPECT_FALSE(can(biometrics));
  EXPECT_FALSE(can(password));
  EXPECT_EQ(presence.biometry(), desktop::Biometry::none);
  struct Row {
    Script script;
    bool finger;
    bool anything;
  };
  const Row rows[] = {
      {{}, true, true},
      {{.hasReader = false}, false, true},
      {{.fingers = {}}, false, true},
      {{.fingers = {}, .actionInstalled = false}, false, false},
      {{.fingers = {}, .actionInstalled = true, .mayAsk = false}, false, false},
  };
  for (const Row& row : rows) {
    const PresenceServices services(row.script);
    EXPECT_EQ(can(biometrics), row.finger);
    EXPECT_EQ(can(password), row.anything);
    EXPECT_EQ(presence.biometry(),
              row.finger ? desktop::Biometry::touchId : desktop::Biometry::none);
  }
}

TEST_F(LinuxPresenceTest, TheRightFingerPasses) {
  PresenceServices services({.touches = {{"verify-retry-scan", "verify-no-match"},
                                         {"verify-no-match"},
                                         {"verify-swipe-too-short", "verify-match"}}});
  EXPECT_EQ(evaluate(biometrics), "yes");
  EXPECT_THAT(services.end(),
              ElementsAre("GetDefaultDevice", "Claim", "VerifyStart", "VerifyStop", "VerifyStart",
                          "VerifyStop", "VerifyStart", "VerifyStop", "Release"));
  ASSERT_EQ(prompt.requests.size(), 1U);
  EXPECT_EQ(prompt.requests[0].reason, "Sign “x”");
  EXPECT_EQ(prompt.requests[0].medium, "LinkedIn Post");
  EXPECT_FALSE(prompt.requests[0].needsConsent);
  EXPECT_THAT(prompt.instructions, Contains(HasSubstr("not recognised")));
}

TEST_F(LinuxPresenceTest, ThreeWrongFingersFail) {
  PresenceServices services(
      {.touches = {
           {"verify-no-match"}, {"verify-no-match"}, {"verify-no-match"}, {"verify-match"}}});
  EXPECT_EQ(evaluate(biometrics), "no");
  EXPECT_EQ(services.end().back(), "Release");
}

TEST_F(LinuxPresenceTest, AReaderThatFailsIsNamed) {
  {
    const PresenceServices services({.readerInUse = true});
    EXPECT_THAT(evaluate(biometrics), HasSubstr("in use by another program"));
  }
  const PresenceServices services({.touches = {{"verify-disconnected"}}});
  EXPECT_THAT(evaluate(biometrics), HasSubstr("unplugged"));
}

TEST_F(LinuxPresenceTest, CancellingTheWindowFreesTheReader) {
  PresenceServices services({});
  prompt.answer = false;
  EXPECT_EQ(evaluate(biometrics), "Authentication was cancelled.");
}

TEST_F(LinuxPresenceTest, ThePasswordDecidesWithoutAReader) {
  struct Row {
    Script script;
    std::string outcome;
  };
  const Row rows[] = {
      {{}, "yes"},
      {{.passwordRight = false}, "no"},
      {{.dismissed = true}, "Authentication was cancelled."},
      {{.mayAsk = false, .passwordRight = false},
       "Nobody could ask for your password: this desktop runs no polkit authentication agent."},
      {{.actionInstalled = false}, "the action is not registered"},
  };
  prompt.answer = true;
  for (const Row& row : rows) {
    const PresenceServices services(row.script);
    EXPECT_EQ(evaluate(password), row.outcome);
  }
  EXPECT_TRUE(prompt.requests[0].needsConsent);

  prompt.answer = false;
  PresenceServices services({});
  EXPECT_EQ(evaluate(password), "Authentication was cancelled.");
  EXPECT_THAT(services.end(), Not(Contains("CheckAuthorization")));
}

TEST_F(LinuxPresenceTest, ADroppedTicketEndsTheQuestion) {
  for (const PresencePolicy policy : {biometrics, password}) {
    PresenceServices services({.neverAnswers = true});
    {
      PollLoop ownLoop;  // the destructor waits for workers
      ScriptedPrompt ownPrompt{ownLoop};
      LinuxPresence ownPresence{ownLoop, ownPrompt};
      if (policy == password) ownPrompt.answer = true;
      desktop::Ticket ticket = ownPresence.evaluate(policy, {.reason = "Sign “x”", .medium = {}},
                                                    [](const auto&) { ADD_FAILURE(); });
      if (policy == password) runUntil(ownLoop, [&] { return ownPrompt.windows == 0; });
      ticket = {};
      EXPECT_EQ(ownPrompt.windows, 0);
    }
    EXPECT_EQ(services.end().back(), policy == password ? "CancelCheckAuthorization" : "Release");
  }
}

TEST(FingerprintTouch, UnknownWordsAreAFailure) {
  EXPECT_EQ(FingerprintReader::touchOf("verify-match").kind, FingerprintReader::Touch::Kind::match);
  for (const char* status : {"", "verify", "verify-unknown-error", "verify-match "})
    EXPECT_EQ(FingerprintReader::touchOf(status).kind, FingerprintReader::Touch::Kind::failure);
}

}  // namespace
}  // namespace quillseal::linux
