#include <chrono>
#include <deque>
#include <optional>
#include <variant>

#include <gmock/gmock.h>

#include "BusServices.h"
#include "Cases.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "presence/FingerprintReader.h"
#include "presence/LinuxPresence.h"
#include "presence/SystemBus.h"
#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using desktop::PresencePolicy;
using testing::runUntil;

/// The behaviour of the services.
struct Script {
  bool hasReader = true;
  bool readerInUse = false;
  std::vector<std::string> fingers{"right-index-finger"};
  /// The statuses that follow each VerifyStart; without any, the verification waits.
  std::deque<std::vector<std::string>> touches{};

  bool actionInstalled = true;
  bool mayAsk = true;
  bool passwordRight = true;
  bool dismissed = false;
  bool neverAnswers = false;
};

/// Fakes of fprintd and polkit.
class PresenceServices : public testing::BusServices {
 public:
  explicit PresenceServices(Script script)
      : BusServices(
            ::sd_bus_open_system, {"net.reactivated.Fprint", "org.freedesktop.PolicyKit1"},
            [this, script = std::move(script)](sd_bus_message* call, const std::string& method,
                                               sd_bus_error* error) mutable {
              note(method);
              return answer(script, call, method, error);
            }) {}

 private:
  static constexpr const char* reader = "/net/reactivated/Fprint/Device/0";

  static int answer(Script& script, sd_bus_message* call, const std::string& method,
                    sd_bus_error* error) {
    const auto reply = [&](const char* types, auto... values) {
      return ::sd_bus_reply_method_return(call, types, values...);
    };
    const auto refuse = [&](const std::string& name, const char* text = "no") {
      return ::sd_bus_error_set(error, name.c_str(), text);
    };
    const std::string fprint = "net.reactivated.Fprint.Error.";
    if (method == "GetDefaultDevice")
      return script.hasReader ? reply("o", reader) : refuse(fprint + "NoSuchDevice");
    if (method == "ListEnrolledFingers")
      return script.fingers.empty() ? refuse(fprint + "NoEnrolledPrints")
                                    : reply("as", 1, script.fingers.front().c_str());
    if (method == "Claim" && script.readerInUse) return refuse(fprint + "AlreadyInUse");
    if (method == "CheckAuthorization") {
      if (!script.actionInstalled)
        return refuse("org.freedesktop.PolicyKit1.Error.Failed", "the action is not registered");
      std::uint32_t mayQuestion = 0;
      ::sd_bus_message_skip(call, "(sa{sv})sa{ss}");
      ::sd_bus_message_read(call, "u", &mayQuestion);
      const char* const decision = "(bba{ss})";
      if (mayQuestion == 0) return reply(decision, 0, script.mayAsk ? 1 : 0, 0);
      if (script.neverAnswers) return 1;
      if (script.dismissed) return reply(decision, 0, 0, 1, "polkit.dismissed", "true");
      return reply(decision, script.passwordRight ? 1 : 0, script.mayAsk ? 0 : 1, 0);
    }
    const int replied = reply("");
    if (method == "VerifyStart" && !script.touches.empty()) {
      for (const std::string& status : script.touches.front())
        ::sd_bus_emit_signal(::sd_bus_message_get_bus(call), reader,
                             "net.reactivated.Fprint.Device", "VerifyStatus", "sb", status.c_str(),
                             1);
      script.touches.pop_front();
    }
    return replied;
  }
};

/// Shows nothing. Continues, cancels or waits as the test says.
class ScriptedPrompt final : public PresencePrompt {
 public:
  std::unique_ptr<PresenceWindow> open(const PresenceRequest& request,
                                       std::function<void(bool)> answered) override {
    struct Window final : PresenceWindow {
      explicit Window(ScriptedPrompt& its) : prompt(its) { ++prompt.windows; }
      ~Window() override { --prompt.windows; }
      void setInstruction(std::string_view instruction) override {
        prompt.instructions.emplace_back(instruction);
      }
      ScriptedPrompt& prompt;
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
    const auto outcome = testing::awaited<Outcome<bool>>(loop, [&](auto done) {
      return presence.evaluate(policy, {.reason = "Sign “x”", .medium = "LinkedIn Post"}, done);
    });
    EXPECT_EQ(prompt.windows, 0);
    if (const Error* error = std::get_if<Error>(&outcome)) return error->what();
    return std::get<bool>(outcome) ? "yes" : "no";
  }
  bool can(PresencePolicy policy) { return presence.canEvaluate(policy).available; }

  testing::PrivateBus bus{"DBUS_SYSTEM_BUS_ADDRESS"};
  PollLoop loop;
  ScriptedPrompt prompt{loop};
  LinuxPresence presence{loop, prompt};
};

constexpr auto biometrics = PresencePolicy::biometrics;
constexpr auto password = PresencePolicy::biometricsOrPassword;

/// A script from its fields in cases.jsonl.
Script scriptOf(const testing::Json& fields) {
  return {.hasReader = fields.value("hasReader", true),
          .readerInUse = fields.value("readerInUse", false),
          .fingers = fields.value("fingers", Script().fingers),
          .touches = fields.value("touches", Script().touches),
          .actionInstalled = fields.value("actionInstalled", true),
          .mayAsk = fields.value("mayAsk", true),
          .passwordRight = fields.value("passwordRight", true),
          .dismissed = fields.value("dismissed", false)};
}

TEST_F(LinuxPresenceTest, TellsWhatTheMachineOffers) {
  EXPECT_FALSE(can(biometrics));
  EXPECT_FALSE(can(password));
  EXPECT_EQ(presence.biometry(), desktop::Biometry::none);
  for (const auto& [script, finger, anything] : testing::cases<testing::Json, bool, bool>()) {
    const PresenceServices services(scriptOf(script));
    EXPECT_EQ(can(biometrics), finger) << script;
    EXPECT_EQ(can(password), anything) << script;
    EXPECT_EQ(presence.biometry(), finger ? desktop::Biometry::touchId : desktop::Biometry::none);
  }
}

TEST_F(LinuxPresenceTest, PassesThePersonAlone) {
  for (const auto& [script, policy, answer, outcome, instruction, calls] :
       testing::cases<testing::Json, std::string, std::string, std::string, std::string,
                      std::vector<std::string>>()) {
    SCOPED_TRACE(script.dump() + policy);
    PresenceServices services(scriptOf(script));
    prompt.answer.reset();
    if (answer != "none") prompt.answer = answer == "yes";
    prompt.requests.clear();
    prompt.instructions.clear();
    EXPECT_EQ(evaluate(policy == "finger" ? biometrics : password), outcome);
    EXPECT_EQ(services.end(), calls);
    EXPECT_THAT(::testing::PrintToString(prompt.instructions), HasSubstr(instruction));
    ASSERT_EQ(prompt.requests.size(), 1U);
    EXPECT_EQ(prompt.requests[0].reason, "Sign “x”");
    EXPECT_EQ(prompt.requests[0].medium, "LinkedIn Post");
    EXPECT_EQ(prompt.requests[0].needsConsent, policy == "password");
  }
  const PresenceServices services({});
  prompt.answer = false;
  EXPECT_EQ(evaluate(biometrics), "Authentication was cancelled.");
}

TEST_F(LinuxPresenceTest, ASilentServiceIsNotWaitedForBeyondTheLimit) {
  SystemBus own;
  const Interrupt never;
  EXPECT_FALSE(own.wait(
      {.interrupt = never, .limit = std::chrono::seconds(1), .isDone = [] { return false; }}));
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

}  // namespace
}  // namespace quillseal::linux
