#include <algorithm>
#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Quillseal/AccessibilityManager.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Story.h"
#include "TaskResult.h"
#include "core/signing/SignedBlock.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;
using ::testing::Contains;
using testing::Copy;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using testing::Text;

using Lines = std::vector<std::string>;

class SigningCoordinatorTest : public ::testing::Test, protected Story {};

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

TEST(SecureEnclaveManager, SignsTheBytesOfAWholeDigestOnly) {
  Story desktop;
  const auto sign = [&](const std::string& textHashHex) {
    return testing::resultOf(desktop.loop, SecureEnclaveManager::sign(
                                               {.keyStore = desktop.keyStore,
                                                .log = desktop.log,
                                                .loop = desktop.loop,
                                                .words = desktop.words},
                                               {.textHashHex = textHashHex,
                                                .prompt = {.reason = "Sign this", .medium = {}}}));
  };
  const std::string whole = "00ff10a0" + std::string(56, '3');
  const std::string all = whole.substr(2), begun = whole.substr(0, 62);
  for (const std::string& malformed : {std::string(), whole.substr(1), whole + "0", whole + "00",
                                       "g0" + all, "+1" + all, begun + " 1", begun + "\u00E9"})
    EXPECT_STREQ(std::get<Error>(sign(malformed)).what(),
                 "Secure Enclave signing failed: content hash is not a 64-char hex digest")
        << malformed;
  EXPECT_THAT(desktop.trace, IsEmpty());
  // The signature of a fake key is what it signs, here in Base64.
  const std::string signature = "AP8QoDMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzM=";
  EXPECT_EQ(std::get<std::string>(sign(whole)), signature);
  EXPECT_EQ(std::get<std::string>(sign("00FF10a0" + whole.substr(8))), signature);
  EXPECT_THAT(desktop.trace, ElementsAre("prompt: Sign this", "prompt: Sign this"));
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
