#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Quillseal/AccessibilityManager.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Story.h"
#include "TaskResult.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::Contains;
using testing::Copy;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::Text;
using testing::Ticket;

using Lines = std::vector<std::string>;

class SigningCoordinatorTest : public ::testing::Test, protected Story {
 protected:
  struct Signed {
    std::string scope, identity;
  };
  /// Checks that the key has signed the fields of the request.
  void expectSigned(const Signed& fields) const {
    const std::string body = http.sentTo("/api/sign_native").front();
    const std::string payload = CryptoManager::canonicalV3(
        {.textDigest = digest,
         .issued = "2026-03-01",
         .scope = fields.scope,
         .snapshotDigest = "",
         .identity = fields.identity,
         .signerKey = "MACHINE-1",
         .expires = "2026-03-08",
         .nonce = std::string_view(body).substr(body.find("\"nonce\":\"") + 9, 32),
         .commitment = "statement"});
    const std::string signature = base64(*SecureEnclaveManager::bytesFromHex(payload));
    EXPECT_THAT(body, HasSubstr("\"enclave_signature\":\"" + signature + "\""));
  }
};

TEST_F(SigningCoordinatorTest, SignsWithTheDeviceKey) {
  defaults.strings["BoundIdentity"] = "Ada";
  sign();
  EXPECT_THAT(trace,
              ElementsAre("press ⌘C",
                          "log: [sign] 0 image reference(s), manifest "
                          "393f8dc027605e4da96dc1d5973f18169c748ea4551a80451bfb6a0410fc02ee",
                          "log: [sign] 18 words / 70 normalized characters / digest " + digest,
                          "prompt: Sign " + subject + " as Ada", "POST /api/sign_native",
                          "write clipboard", "press ⌘V", notification));
  EXPECT_THAT(*pasteboard.clipboard.text, StartsWith("『" + text + "』\n\n"));
  EXPECT_THAT(*pasteboard.clipboard.text, HasSubstr("· Email Message (Mail) · 1 March 2026\n"));
  EXPECT_THAT(*pasteboard.clipboard.text, EndsWith("/verify/sig-1"));

  expectSigned({.scope = "Email Message (Mail)", .identity = "Ada"});
}

// So that the event loop goes on during the screening of a long text.
TEST_F(SigningCoordinatorTest, ScreensOnAnotherThread) {
  keys.selection->text = "I approve the payment of the invoice that Grace sent us on 3 May 2026.";
  coordinator->startSigning();
  while (count("log: [sign] ") < 2)
    ASSERT_TRUE(loop.step());
  EXPECT_EQ(count("log: [risk] "), 0);
  loop.run();
  EXPECT_EQ(count("log: [risk] "), 1);
}

TEST_F(SigningCoordinatorTest, KeepsTheSystemFromSlowingItDownForTheLengthOfARun) {
  defaults.flags = {"ConfirmBeforeSigning"};
  alerts.leavesDialogsOpen = true;
  sign();
  sign();
  EXPECT_EQ(program.activities, 2);
  coordinator.reset();
  EXPECT_EQ(program.activities, 0);
}

TEST_F(SigningCoordinatorTest, MendsWhatIsNoUtf8) {
  keys.selection = Copy{.text = text + "\xC3", .html = "<p>\xFF</p>"};
  defaults.flags = {"ConfirmBeforeSigning"};
  alerts.confirmation = desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = " Ada\xFF "};
  sign();
  const std::string scope = "LinkedIn Post → Ada\uFFFD";
  EXPECT_THAT(http.sentTo("/api/sign_native").front(), HasSubstr("\"scope\":\"" + scope + "\""));
  EXPECT_THAT(*pasteboard.clipboard.text, StartsWith("『" + text + "\uFFFD』"));
  EXPECT_THAT(*pasteboard.clipboard.text, HasSubstr("· " + scope + " · 1 March 2026"));
  EXPECT_THAT(*pasteboard.clipboard.html, HasSubstr("<p>\uFFFD</p>"));
}

TEST_F(SigningCoordinatorTest, RefusesIdentifiersThatCouldBreakOut) {
  const std::string sayings[] = {
      R"(x\" onclick=\"y)",       R"(a\u0000b)", "<b>", R"(a\\b)", "a b", "", "a\u202Eb",
      std::string(1'000'000, 'a')};
  const std::pair<std::string, std::string> answers[] = {
      {"/api/sign_native", R"({"signature_id":")"},
      {"/api/sign_demo", R"({"demo":true,"signature_id":")"},
      {"/api/handoff/create", R"({"url":"https://s/h","handoff_id":")"},
      {"/api/handoff/poll", R"({"status":"complete","signature_id":")"}};
  for (const auto& [path, start] : answers) {
    for (const std::string& id : sayings) {
      Story d;
      d.http.answers[path] = {{200, start + id + "\"}"}};
      if (path == "/api/sign_demo") d.defaults.flags = {"DemoSigning"};
      if (path.starts_with("/api/handoff")) d.inBrowser();
      d.sign();
      const bool isAwaited = id.empty() && path == "/api/handoff/poll";
      EXPECT_THAT(d.trace.back(), StartsWith(isAwaited ? "alert: Still Waiting"
                                                       : "alert: Signing Error | The server answ"))
          << path << id.substr(0, 99);
      EXPECT_EQ(d.count("open "), path == "/api/handoff/poll");
      EXPECT_EQ(d.count("log: [demo]"), 0);
      EXPECT_FALSE(d.wroteBlock());
    }
  }
}

TEST_F(SigningCoordinatorTest, BindsNoNameThatIsTooLongOrCouldPassForAnother) {
  defaults.strings = {{"BoundIdentity", "Ada"}, {"SigningMode", "enclave"}};
  const std::pair<std::string, const char*> cases[] = {
      {R"(Ada\u202Eecarg)", "a name that holds invisible characters"},
      {R"(Ada\nSigning as: Grace)", "‹U+000A›"},
      {R"(\u200B)", "‹U+200B›"},
      {"  ", "‹U+0020›"},
      {std::string(1001, 'a'), "a name that is too long to be one. Check"}};
  for (const auto& [name, reason] : cases) {
    keyStore.hasKey = false;
    http.answers["/api/register_native"] = {
        {200, R"({"status":"ok","device_id":"D","identity":")" + name + "\"}"}};
    sign();
    EXPECT_THAT(trace.back(),
                AllOf(StartsWith("alert: Could Not Set Up This Mac | "), HasSubstr(reason)));
    EXPECT_EQ(defaults.strings["BoundIdentity"], "Ada");
    EXPECT_FALSE(keyStore.hasKey);
  }
  const std::string longest(1000, 'a');
  http.answers["/api/register_native"] = {
      {200, R"({"status":"ok","device_id":"D","identity":")" + longest + "\"}"}};
  sign();
  EXPECT_EQ(defaults.strings["BoundIdentity"], longest);
}

TEST_F(SigningCoordinatorTest, SpellsOutAStoredNameButSignsItsBytes) {
  const std::string name = "Ada\u202E\nDate: 1 May";
  const std::string spelt = "Ada‹U+202E›‹U+000A›Date: 1 May";
  defaults.strings["BoundIdentity"] = name;
  defaults.flags = {"ConfirmBeforeSigning"};
  alerts.confirmation = desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = ""};
  sign();
  EXPECT_THAT(trace, Contains("prompt: Sign " + subject + " as " + spelt));
  expectSigned({.scope = "LinkedIn Post", .identity = name});
}

TEST_F(SigningCoordinatorTest, TurnsAwayWhatItCannotKeepUpWith) {
  alerts.leavesDialogsOpen = true;
  keys.selection->text = "Too short.";
  for (int call = 0; call < 40; ++call)
    coordinator->startSigning();
  loop.run();
  EXPECT_EQ(count("press ⌘C"), SigningCoordinator::mostRuns);
  EXPECT_EQ(count("alert: Not signed"), SigningCoordinator::mostRuns) << "each in its alert";
  EXPECT_EQ(count("notify: Quillseal Is Busy | "), 1);
  EXPECT_EQ(count("log: [sign] turned away"), 1);

  // After some have ended there is room, and the next refusal is shown again.
  forget();
  coordinator.emplace(services());
  alerts.leavesDialogsOpen = false;
  for (int round = 0; round < 2; ++round) {
    for (int call = 0; call < 40; ++call)
      coordinator->startSigning();
    loop.run();
  }
  EXPECT_EQ(count("press ⌘C"), 2 * SigningCoordinator::mostRuns);
  EXPECT_EQ(count("notify: Quillseal Is Busy | "), 2);
}

TEST_F(SigningCoordinatorTest, GivesTheRtfOfItsOwnCopyWhenAskedForIt) {
  keys.selection->rtf = "{\\rtf1 copied}";
  const auto capture = std::get<AccessibilityManager::Capture>(testing::resultOf(
      loop, AccessibilityManager::captureSelectedContent({.applications = applications,
                                                          .keys = keys,
                                                          .log = log,
                                                          .loop = loop,
                                                          .pasteboard = pasteboard})));
  EXPECT_THAT(trace, ElementsAre("press ⌘C"));
  const auto rtf = [&] {
    return std::get<Text>(testing::resultOf(loop, capture.content->rtfData()));
  };
  EXPECT_EQ(rtf(), "{\\rtf1 copied}");
  const Copy other{.text = "x", .html = {}, .rtf = "{\\rtf1 of something else}"};
  later.push_back(loop.after(1ms, [&] { pasteboard.put(other); }));
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_THAT(trace, ElementsAre("press ⌘C", "fetch RTF", "fetch RTF"));
}

TEST_F(SigningCoordinatorTest, AFirstRunUsesNoKeyWhoseEnrolmentMayFail) {
  for (const bool fails : {true, false}) {
    for (const int steps : {0, 1}) {
      Story d;
      d.keyStore.hasKey = false;
      if (fails) d.http.answers["/api/register_native"] = {{500, R"({"error":"Not now."})"}};
      TaskScope settings;
      // Before the run looks for a key, or between its two lookups.
      if (steps == 0) settings.start(d.coordinator->enrolDevice());
      d.coordinator->startSigning();
      if (steps == 1) {
        d.loop.step();
        settings.start(d.coordinator->enrolDevice());
      }
      d.loop.run();
      EXPECT_EQ(d.count("alert: Enrolment Failed | Not now."), fails);
      EXPECT_EQ(d.count("create key"), fails ? 2 : 1) << "a key that is gone, or one for both";
    }
  }
}

/// A run with everything: enrolment, recovery, dialogs, the return to the tab.
void makeEventful(Story& desktop, int kind) {
  desktop.applications.front = desktop.applications.active = chromeRunning;
  desktop.keys.everything = Copy{.text = text + " The rest is private.", .html = {}};
  desktop.defaults.flags = {"ConfirmBeforeSigning"};
  desktop.alerts.confirmation =
      desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = "Ada"};
  desktop.keyStore.hasKey = false;
  desktop.http.answers["/api/sign_native"] = {{404, R"({"error":"device not enrolled"})"},
                                              {200, R"({"signature_id":"sig-2"})"}};
  if (kind == 1) desktop.defaults.strings["SigningMode"] = "handoff";
  if (kind == 2) desktop.defaults.flags.insert("DemoSigning");
}

/// Runs each kind of run with `happening` after each step in turn.
template <typename Happening, typename Check>
void interruptEverywhere(Happening happening, Check check) {
  for (int kind = 0; kind < 3; ++kind) {
    bool isDone = false;
    for (int steps = 0; !isDone; ++steps) {
      Story desktop;
      makeEventful(desktop, kind);
      desktop.coordinator->startSigning();
      for (int i = 0; i < steps && !isDone; ++i)
        isDone = !desktop.loop.step();
      happening(desktop);
      desktop.loop.run();
      SCOPED_TRACE("kind " + std::to_string(kind) + ", step " + std::to_string(steps));
      check(desktop);
    }
  }
}

TEST(SigningRuns, EndWhereTheyWaitWhenTheAgentQuits) {
  Lines before;
  interruptEverywhere(
      [&](Story& desktop) {
        desktop.coordinator.reset();
        before = desktop.trace;
      },
      [&](const Story& desktop) { EXPECT_EQ(desktop.trace, before); });
}

// Record, block and signature have the same day, whenever the clock is changed.
TEST(SigningRuns, NameOneDayWhateverTheClockDoes) {
  for (const char* date : {"2026-03-02", "1999-12-31"}) {
    interruptEverywhere(
        [&](Story& desktop) { desktop.wallClock.date = date; },
        [&](Story& desktop) {
          std::set<std::string> days;
          for (const char* path : {"/api/sign_native", "/api/sign_demo", "/api/handoff/create"}) {
            for (const std::string& body : desktop.http.sentTo(path))
              days.insert(body.substr(body.find("\"issued\":\"") + 10, 10));
          }
          ASSERT_EQ(days.size(), 1U);
          EXPECT_THAT(*desktop.pasteboard.clipboard.text,
                      HasSubstr("· " + SignedBlock::readableDate(*days.begin()) + "\n"));
        });
  }
}

// If the clock runs while the machine sleeps, every wait is overdue at once.
TEST(SigningRuns, OutliveASuspendedMachine) {
  interruptEverywhere(
      [](Story& desktop) { desktop.loop.leap(8h); },
      [](Story& desktop) {
        const Lines told = desktop.userTrace();
        ASSERT_FALSE(told.empty());
        const bool isSigned = told.back() == notification;
        EXPECT_TRUE(isSigned || told.back().rfind("alert: ", 0) == 0) << told.back();
        EXPECT_EQ(isSigned, std::ranges::count(told, "press ⌘V") == 1);
        EXPECT_THAT(told, Not(Contains("press ⌘A"))) << "all is taken instead of the selection";
      });
}

TEST(SigningRuns, DoNotCopyOverEachOthersBlock) {
  for (const bool sameBrowser : {false, true}) {
    int paired = 0;
    for (int steps = 0; steps < 200; ++steps) {
      Story d;
      d.applications.front = chromeRunning;
      d.applications.active = mail;  // so that the paste waits for the application to become active
      if (sameBrowser) d.inBrowser();
      d.coordinator->startSigning();
      for (int i = 0; i < steps; ++i)
        static_cast<void>(d.loop.step());
      d.coordinator->startSigning();
      d.loop.run();
      bool isBlockOnClipboard = false, isReturning = false;
      for (const std::string& line : d.trace) {
        if (line.find("contains \"/handoff") != std::string::npos) isReturning = true;
        EXPECT_FALSE(isReturning && line == "press ⌘C") << "copied from the signing tab";
        if (line == "write clipboard") isBlockOnClipboard = true;
        if (line == "press ⌘C") isBlockOnClipboard = false;
        if (line != "press ⌘V") continue;
        isReturning = false;
        EXPECT_TRUE(isBlockOnClipboard) << "second press after " << steps << " steps";
        ++paired;
      }
    }
    EXPECT_EQ(paired, 400);
  }
}

TEST(SigningRuns, TellTheUserWhicheverCallFails) {
  for (int kind = 0; kind < 3; ++kind) {
    for (int failing = 1;; ++failing) {
      Story desktop;
      makeEventful(desktop, kind);
      desktop.failingCall = failing;
      desktop.sign();
      if (desktop.failedCall.empty()) break;
      const std::string where = "kind " + std::to_string(kind) + ", call " +
                                std::to_string(failing) + ": " + desktop.failedCall;
      const Lines told = desktop.userTrace();
      const bool isTold = std::ranges::any_of(told, [](const std::string& line) {
        return line.starts_with("alert: ") || line.starts_with("notify: ");
      });
      EXPECT_TRUE(isTold || desktop.failedCall == "notify") << where;
      const bool wrote = std::ranges::count(told, "write clipboard") > 0;
      EXPECT_EQ(desktop.wroteBlock(), wrote) << where;
      EXPECT_TRUE(wrote || std::ranges::count(told, "press ⌘V") == 0) << where;
    }
  }
}

TEST(SigningRuns, TellTheUserWhicheverPressIsDeclined) {
  for (int kind = 0; kind < 3; ++kind) {
    for (int declined = 1;; ++declined) {
      Story desktop;
      makeEventful(desktop, kind);
      desktop.keys.selection = std::nullopt;  // so that the agent selects all
      desktop.keys.declinedPress = declined;
      desktop.sign();
      if (desktop.keys.presses < declined) break;
      const std::string where =
          "kind " + std::to_string(kind) + ", press " + std::to_string(declined);
      EXPECT_EQ(desktop.keys.presses, declined) << where << ": no other is tried";
      EXPECT_THAT(desktop.trace.back(), StartsWith("alert: ")) << where;
      EXPECT_EQ(desktop.wroteBlock(), declined == 4) << where << ": after C, A and C comes V";
      EXPECT_THAT(desktop.trace, Not(Contains(notification))) << where;
    }
  }
}

}  // namespace
}  // namespace quillseal
