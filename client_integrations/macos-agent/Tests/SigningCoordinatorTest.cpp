#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Quillseal/SigningCoordinator.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;
using ::testing::AnyOf;
using ::testing::Contains;
using testing::Copy;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

using Lines = std::vector<std::string>;

const std::string text =
    "I met Grace on Tuesday and we agreed to print 40 posters for the fair in June together.";
const std::string subject = "“I met Grace on Tuesday and we agreed to print 40…” (18 words)";
const std::string notification =
    "notify: ✅ Signature Generated! | Signed content copied and injected.";

const desktop::RunningApplication mail{.instance = 1,
                                       .name = "Mail",
                                       .bundleIdentifier = "com.apple.mail",
                                       .categories = "",
                                       .document = ""};
const desktop::RunningApplication chromeRunning{.instance = 2,
                                                .name = "Google Chrome",
                                                .bundleIdentifier = "com.google.Chrome",
                                                .categories = "",
                                                .document = ""};
const desktop::InstalledApplication chromeInstalled{.location = "Chrome.app",
                                                    .bundleIdentifier = "com.google.Chrome"};

bool wroteBlock(const FakeDesktop& desktop) {
  return desktop.pasteboard.clipboard.text && desktop.pasteboard.clipboard.text->starts_with("『");
}

class SigningCoordinatorTest : public ::testing::Test {
 protected:
  SigningCoordinatorTest() {
    desktop_.applications.front = desktop_.applications.active = mail;
    desktop_.keys.selection = Copy{.text = "\n" + text + "\n", .html = {}};
    desktop_.applications.defaultBrowser = chromeInstalled;
  }

  /// Whoever wants to read a story as it went asks for it through the environment.
  void TearDown() override {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is one thread
    if (std::getenv("QUILLSEAL_PRINT_TRACES") == nullptr) return;
    std::cout << "── " << ::testing::UnitTest::GetInstance()->current_test_info()->name() << "\n";
    for (const std::string& line : desktop_.trace)
      std::cout << "   " << line << "\n";
  }

  void sign() {
    coordinator_->startSigning();
    desktop_.loop.run();
  }

  void signInBrowser() {
    desktop_.keyStore.hasKey = false;
    desktop_.defaults.strings["SigningMode"] = "handoff";
    sign();
  }

  FakeDesktop desktop_;
  std::unique_ptr<SigningCoordinator> coordinator_ =
      std::make_unique<SigningCoordinator>(desktop_.services());
};

TEST_F(SigningCoordinatorTest, SignsWithTheDeviceKey) {
  const std::string digest = CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
  desktop_.defaults.strings["BoundIdentity"] = "Ada";
  sign();
  EXPECT_THAT(desktop_.trace,
              ElementsAre("press ⌘C",
                          "log: [sign] 0 image reference(s), manifest "
                          "393f8dc027605e4da96dc1d5973f18169c748ea4551a80451bfb6a0410fc02ee",
                          "log: [sign] 18 words / 70 normalized characters / digest " + digest,
                          "prompt: Sign " + subject + " as Ada", "POST /api/sign_native",
                          "write clipboard", "press ⌘V", notification));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, StartsWith("『" + text + "』\n\n"));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text,
              HasSubstr("· Email Message (Mail) · 1 March 2026\n"));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, EndsWith("/verify/sig-1"));

  const std::string body = desktop_.http.sentTo("/api/sign_native").front();
  const std::size_t nonce = body.find("\"nonce\":\"") + 9;
  const std::string payload =
      CryptoManager::canonicalV3({.textDigest = digest,
                                  .issued = "2026-03-01",
                                  .scope = "Email Message (Mail)",
                                  .snapshotDigest = "",
                                  .identity = "Ada",
                                  .signerKey = "MACHINE-1",
                                  .expires = "2026-03-08",
                                  .nonce = std::string_view(body).substr(nonce, 32),
                                  .commitment = "statement"});
  const std::string signature = base64(*SecureEnclaveManager::bytesFromHex(payload));
  EXPECT_THAT(body, HasSubstr("\"enclave_signature\":\"" + signature + "\""));
}

TEST_F(SigningCoordinatorTest, MakesADemonstrationRecord) {
  desktop_.defaults.flags = {"DemoSigning"};
  sign();
  EXPECT_THAT(desktop_.userTrace(),
              ElementsAre("press ⌘C", "presence: Sign " + subject, "POST /api/sign_demo",
                          "write clipboard", "press ⌘V", notification));
  EXPECT_THAT(desktop_.trace,
              Contains("log: [demo] simulated signature demo-1 — not evidence of anything"));
  EXPECT_THAT(desktop_.http.sentTo("/api/sign_demo").front(), HasSubstr("\"method\":\"Touch ID\""));
}

TEST_F(SigningCoordinatorTest, SignsInTheBrowserAndPastesElsewhere) {
  // Long enough to be on the heap, where a string that is destroyed twice does harm.
  const std::string html = "<p>x</p><p>long enough</p>";
  desktop_.keys.selection->html = html;
  signInBrowser();
  EXPECT_THAT(desktop_.userTrace(),
              ElementsAre("press ⌘C", "POST /api/handoff/create",
                          "open https://seal.example/handoff?h=H1#t=" + base64Url(text) +
                              "&h=" + base64Url(html) + " with Chrome.app",
                          "POST /api/handoff/poll", "POST /api/handoff/poll", "write clipboard",
                          "press ⌘V", notification));
  EXPECT_THAT(desktop_.trace, Contains("log: [handoff] fragment 156 chars (text 87, html 26)"));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.html, HasSubstr("</span>" + html + "<span"));
}

TEST_F(SigningCoordinatorTest, ReturnsToTheTabTheTextCameFrom) {
  desktop_.applications.front = desktop_.applications.active = chromeRunning;
  desktop_.scripts.results = {std::optional<std::string>("42"), std::optional<std::string>("true")};
  signInBrowser();
  EXPECT_THAT(desktop_.trace,
              Contains("script: tell application \"Google Chrome\" to return id of active tab of "
                       "front window"));
  EXPECT_THAT(desktop_.trace,
              Contains(::testing::AllOf(HasSubstr("contains \"/handoff?h=H1\" then"),
                                        HasSubstr("is \"42\" then"))));
  EXPECT_THAT(desktop_.trace,
              Contains("log: [tabreturn] signing tab closed, original tab restored"));
  EXPECT_EQ(desktop_.trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, LeavesTheBlockOnTheClipboardWhenTheTabIsLost) {
  desktop_.applications.front = desktop_.applications.active = chromeRunning;
  desktop_.scripts.results = {
      Error({.domain = "AS", .code = -1743, .description = "Not authorised"}),
      std::optional<std::string>("false")};
  signInBrowser();
  EXPECT_THAT(desktop_.trace, Contains("log: [tabreturn] AppleScript failed: Not authorised"));
  EXPECT_EQ(desktop_.trace.back(),
            "alert: Signed — Paste It Into Your Message | The signed content is on your "
            "clipboard.\n\nSwitch back to your message in Google Chrome, select the text you "
            "signed, and press ⌘V.\n\nQuillseal cannot paste it for you here: the signing page "
            "opened in the same browser, so it would land in the wrong tab.");
  EXPECT_THAT(desktop_.trace, Not(Contains("press ⌘V")));
  EXPECT_TRUE(wroteBlock(desktop_));
}

TEST_F(SigningCoordinatorTest, StopsWaitingForTheBrowser) {
  desktop_.http.answers["/api/handoff/poll"] = {{200, R"({"status":"complete"})"}};
  signInBrowser();
  EXPECT_THAT(desktop_.trace.back(),
              StartsWith("alert: Still Waiting | Quillseal stopped waiting"));
  EXPECT_EQ(desktop_.http.sentTo("/api/handoff/poll").size(), 285U);
  EXPECT_GE(desktop_.loop.elapsed(), 570s);
  EXPECT_FALSE(wroteBlock(desktop_));
}

TEST_F(SigningCoordinatorTest, OpensWhicheverBrowserThereIs) {
  desktop_.applications.chrome =
      desktop::InstalledApplication{.location = "Preferred.app", .bundleIdentifier = {}};
  desktop_.applications.browserOpens = false;
  signInBrowser();
  EXPECT_THAT(desktop_.trace, Contains(EndsWith(" with Preferred.app")));
  EXPECT_THAT(desktop_.trace,
              Contains("open https://seal.example/handoff?h=H1#t=" + base64Url(text)));
  desktop_.applications.anyBrowserOpens = false;
  signInBrowser();
  EXPECT_EQ(desktop_.trace.back(), "alert: Signing Error | There is no browser.");
  desktop_.applications.anyBrowserOpens = true;
  desktop_.applications.chrome = desktop_.applications.defaultBrowser = std::nullopt;
  desktop_.trace.clear();
  signInBrowser();
  EXPECT_THAT(desktop_.trace,
              Contains("open https://seal.example/handoff?h=H1#t=" + base64Url(text)));
}

struct EarlyStop {
  std::string name;
  std::function<void(FakeDesktop&)> given;
  std::string lastLine;
};

TEST_F(SigningCoordinatorTest, StopsEarlyAndTellsWhy) {
  const EarlyStop cases[] = {
      {"no trust", [](FakeDesktop& d) { d.keys.isPersonTrusting = false; }, "ask for trust"},
      {"no enclave", [](FakeDesktop& d) { d.keyStore.canHoldKey = false; },
       "alert: Secure Enclave Required | This Mac has no Secure Enclave, so content cannot be "
       "signed in a way that proves a person authorized it."},
      {"no text", [](FakeDesktop& d) { d.keys.selection = std::nullopt; },
       "alert: No Text Found | Please type or highlight some text in Outlook (or any app) before "
       "pressing ⌘⌥⌃H."},
      {"secret", [](FakeDesktop& d) { d.keys.selection->isConcealed = true; },
       "alert: No Text Found | Please type or highlight some text in Outlook (or any app) before "
       "pressing ⌘⌥⌃H."},
      {"too short", [](FakeDesktop& d) { d.keys.selection->text = "Only four words here"; },
       "alert: Not signed — too short | Only 4 words. Write at least 10."},
      {"cancelled confirmation",
       [](FakeDesktop& d) { d.defaults.flags = {"ConfirmBeforeSigning"}; },
       "confirm: Sign this content? [Sign with Touch ID] [Cancel], preset Email Message (Apple "
       "Mail)"},
      {"refused by the key",
       [](FakeDesktop& d) { d.keyStore.signFailure = Error(Error::Fields{}); },
       "alert: Signing Error | Secure Enclave signing failed: user cancelled or biometric failed"},
      {"refused by the server",
       [](FakeDesktop& d) {
         d.http.answers["/api/sign_native"] = {{403, R"({"error":"No."})"}};
       },
       "alert: Signing Error | No."},
      {"unreadable key store",
       [](FakeDesktop& d) {
         d.keyStore.loadFailure =
             Error({.domain = "OSStatus", .code = -25291, .description = "No keychain."});
       },
       "alert: Signing Error | No keychain."},
      {"cancelled key creation",
       [](FakeDesktop& d) {
         d.keyStore.hasKey = false;
         d.keyStore.cancelsCreation = true;
       },
       "log: [sign] called off by the user"},
      {"demonstration without presence",
       [](FakeDesktop& d) {
         d.defaults.flags = {"DemoSigning"};
         d.presence.outcome = false;
       },
       "presence: Sign " + subject},
      {"demonstration called off",
       [](FakeDesktop& d) {
         d.defaults.flags = {"DemoSigning"};
         d.presence.outcome =
             Error({.domain = "LA", .code = -2, .description = "Canceled by user."});
       },
       "alert: Signing Error | Canceled by user."},
      {"expired in the browser",
       [](FakeDesktop& d) {
         d.defaults.strings["SigningMode"] = "handoff";
         d.keyStore.hasKey = false;
         d.http.answers["/api/handoff/poll"] = {{200, R"({"status":"expired"})"}};
       },
       "alert: Signing Request Expired | The request timed out before it was signed. Nothing was "
       "signed. Select your text and press ⌘⌥⌃H again."},
  };
  for (const EarlyStop& c : cases) {
    FakeDesktop desktop;
    desktop.applications.front = desktop.applications.active = mail;
    desktop.keys.selection = Copy{.text = text, .html = {}};
    c.given(desktop);
    SigningCoordinator coordinator(desktop.services());
    coordinator.startSigning();
    desktop.loop.run();
    EXPECT_EQ(desktop.trace.back(), c.lastLine) << c.name;
    EXPECT_THAT(desktop.trace, Not(Contains("write clipboard"))) << c.name;
    EXPECT_THAT(desktop.trace, Not(Contains(AnyOf("create key", "delete key")))) << c.name;
    EXPECT_EQ(desktop.program.activities, 0) << c.name;
  }
}

TEST_F(SigningCoordinatorTest, KeepsTheSystemFromSlowingItDownForTheLengthOfARun) {
  desktop_.defaults.flags = {"ConfirmBeforeSigning"};
  desktop_.alerts.leavesDialogsOpen = true;
  sign();
  sign();
  EXPECT_EQ(desktop_.program.activities, 2);
  coordinator_.reset();
  EXPECT_EQ(desktop_.program.activities, 0);
}

TEST_F(SigningCoordinatorTest, LogsWhatMayHaveKeptTheTextFromIt) {
  desktop_.keys.selection.reset();
  desktop_.keys.heldUpBy = "secure input is on";
  desktop_.pasteboard.obstacle = "access is denied";
  sign();
  EXPECT_THAT(desktop_.trace,
              Contains("log: [capture] key presses are held up: secure input is on"));
  EXPECT_THAT(desktop_.trace,
              Contains("log: [capture] the clipboard may not be readable: access is denied"));
}

TEST_F(SigningCoordinatorTest, SelectsNothingMoreWhenTheCopyMayNotBeRead) {
  desktop_.keys.selection->text.reset();
  desktop_.pasteboard.obstacle = "the user is asked each time";
  sign();
  EXPECT_THAT(desktop_.trace, Not(Contains("press ⌘A")));
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: No Text Found"));
}

TEST_F(SigningCoordinatorTest, ScreensTheText) {
  desktop_.keys.selection->text =
      "Please wire the money to the new account today, IBAN DE89 3704 0044 0532 0130 00, thank "
      "you.";
  sign();
  EXPECT_THAT(desktop_.trace, Contains(StartsWith("log: [risk] score ")));
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: Not signed"));

  desktop_.keys.selection->text =
      "Our bank details have changed since the last order of 40 chairs; ask Grace about the rest.";
  desktop_.alerts.answer = desktop::Answer::cancelled;
  sign();
  EXPECT_THAT(desktop_.trace.back(), StartsWith("ask: Sign this anyway? | •  "));
  EXPECT_THAT(desktop_.trace.back(),
              EndsWith("Signing says YOU wrote this. [Sign Anyway] [Cancel]"));
  desktop_.alerts.answer = desktop::Answer::confirmed;
  sign();
  EXPECT_EQ(desktop_.trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, ScreensTheTextAsItIsReadUnlessItIsRefusedAsItIsWritten) {
  const std::string harmless = ", it is for the order of 40 chairs that Grace sent us on 3 May.";
  const auto isRiskLine = [](const std::string& line) {
    return line.starts_with("log: [risk] score ");
  };
  const auto riskLines = [&] {
    return std::count_if(desktop_.trace.begin(), desktop_.trace.end(), isRiskLine);
  };

  desktop_.keys.selection->text = "I ap\u200Bprove the pay\u200Bment" + harmless;
  sign();
  EXPECT_THAT(desktop_.trace, Contains("log: [risk] score 100, 1 finding(s): pay-authorise-noun"));
  EXPECT_EQ(riskLines(), 1);
  EXPECT_THAT(desktop_.trace.back(),
              StartsWith("alert: Not signed — payment instructions cannot be signed | •  Payment "
                         "instruction — authorises a payment"));

  // Refused as it is written: there is nothing more to ask.
  desktop_.trace.clear();
  desktop_.keys.selection->text =
      "I approve the payment" + harmless + " Con\u200Bfirm your pass\u200Bword.";
  sign();
  EXPECT_EQ(riskLines(), 1);

  // Both lines, and the question of the stronger.
  desktop_.trace.clear();
  desktop_.keys.selection->text =
      "Our b\u200Bank details have changed, see http://192.168.4.7/a today" + harmless;
  desktop_.alerts.answer = desktop::Answer::cancelled;
  sign();
  EXPECT_THAT(desktop_.trace, Contains("log: [risk] score 45, 1 finding(s): url-ip-literal"));
  EXPECT_EQ(riskLines(), 2);
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: Not signed — this looks like a scam"));
}

TEST_F(SigningCoordinatorTest, SignsTheScopeThatWasConfirmed) {
  desktop_.defaults.flags = {"ConfirmBeforeSigning"};
  desktop_.alerts.confirmation =
      desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = " Ada\xFF "};
  sign();
  EXPECT_THAT(desktop_.http.sentTo("/api/sign_native").front(),
              HasSubstr("\"scope\":\"LinkedIn Post → Ada\uFFFD\""));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text,
              HasSubstr("· LinkedIn Post → Ada\uFFFD · 1 March 2026"));
}

TEST_F(SigningCoordinatorTest, RefusesIdentifiersThatCouldBreakOut) {
  const std::string sayings[] = {
      R"(x\" onclick=\"y)",       R"(a\u0000b)", "<b>", R"(a\\b)", "a b", "", "a\u202Eb",
      std::string(1'000'000, 'a')};
  for (const std::string& id : sayings) {
    desktop_.keyStore.hasKey = true;
    desktop_.http.answers["/api/sign_native"] = {{200, R"({"signature_id":")" + id + "\"}"}};
    sign();
    EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: Signing Error | The server answered"));
    desktop_.http.answers["/api/handoff/create"] = {
        {200, R"({"url":"https://s/h","handoff_id":")" + id + "\"}"}};
    signInBrowser();
    EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: Signing Error | The server answered"));
  }
  EXPECT_THAT(desktop_.trace, Not(Contains(StartsWith("open "))));
  EXPECT_FALSE(wroteBlock(desktop_));
}

TEST_F(SigningCoordinatorTest, RefusesASigningPageThatIsNone) {
  for (const std::string& url :
       {std::string("javascript:alert(1)"), "https://s/" + std::string(1'000'000, 'a')}) {
    desktop_.http.answers["/api/handoff/create"] = {
        {200, R"({"handoff_id":"H","url":")" + url + "\"}"}};
    signInBrowser();
    EXPECT_EQ(desktop_.trace.back(), "alert: Signing Error | Could not build the signing URL.");
  }
  EXPECT_THAT(desktop_.trace, Not(Contains(StartsWith("open "))));
}

TEST_F(SigningCoordinatorTest, BindsNoNameOfAMegabyte) {
  desktop_.defaults.strings["BoundIdentity"] = "Ada";
  desktop_.keyStore.hasKey = false;
  desktop_.defaults.strings["SigningMode"] = "enclave";
  desktop_.http.answers["/api/register_native"] = {
      {200,
       R"({"status":"ok","device_id":"D","identity":")" + std::string(1'000'000, 'a') + "\"}"}};
  sign();
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: Could Not Set Up This Mac | "));
  EXPECT_THAT(desktop_.trace.back(), HasSubstr("a name that is too long to be one. Check"));
  EXPECT_EQ(desktop_.defaults.strings["BoundIdentity"], "Ada");
  EXPECT_FALSE(desktop_.keyStore.hasKey);
}

TEST_F(SigningCoordinatorTest, BindsNoNameThatCouldPassForAnother) {
  desktop_.defaults.strings["BoundIdentity"] = "Ada";
  desktop_.defaults.strings["SigningMode"] = "enclave";
  for (const char* name : {R"(Ada\u202Eecarg)", R"(Ada\nSigning as: Grace)", R"(\u200B)", "  "}) {
    desktop_.keyStore.hasKey = false;
    desktop_.http.answers["/api/register_native"] = {
        {200, R"({"status":"ok","device_id":"D","identity":")" + std::string(name) + "\"}"}};
    sign();
    EXPECT_THAT(desktop_.trace.back(),
                AllOf(StartsWith("alert: Could Not Set Up This Mac | "),
                      HasSubstr("a name that holds invisible characters"), HasSubstr("‹U+")));
    EXPECT_EQ(desktop_.defaults.strings["BoundIdentity"], "Ada");
    EXPECT_FALSE(desktop_.keyStore.hasKey);
  }
}

TEST_F(SigningCoordinatorTest, SpellsOutAStoredNameButSignsItsBytes) {
  const std::string name = "Ada\u202E\nDate: 1 May";
  const std::string shown = "Ada‹U+202E›‹U+000A›Date: 1 May";
  desktop_.defaults.strings["BoundIdentity"] = name;
  desktop_.defaults.flags = {"ConfirmBeforeSigning"};
  desktop_.alerts.confirmation = desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = ""};
  sign();
  EXPECT_THAT(desktop_.trace, Contains("prompt: Sign " + subject + " as " + shown));
  const std::string body = desktop_.http.sentTo("/api/sign_native").front();
  const std::string digest = CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
  const std::string payload = CryptoManager::canonicalV3(
      {.textDigest = digest,
       .issued = "2026-03-01",
       .scope = "LinkedIn Post",
       .snapshotDigest = "",
       .identity = name,
       .signerKey = "MACHINE-1",
       .expires = "2026-03-08",
       .nonce = std::string_view(body).substr(body.find("\"nonce\":\"") + 9, 32),
       .commitment = "statement"});
  EXPECT_THAT(body, HasSubstr(base64(*SecureEnclaveManager::bytesFromHex(payload))));
}

TEST_F(SigningCoordinatorTest, TurnsAwayWhatItCannotKeepUpWith) {
  desktop_.alerts.leavesDialogsOpen = true;
  desktop_.keys.selection->text = "Too short.";
  const auto count = [this](const std::string& start) {
    return std::ranges::count_if(desktop_.trace,
                                 [&](const std::string& line) { return line.starts_with(start); });
  };
  for (int call = 0; call < 40; ++call)
    coordinator_->startSigning();
  desktop_.loop.run();
  EXPECT_EQ(count("press ⌘C"), SigningCoordinator::mostRuns);
  EXPECT_EQ(count("alert: Not signed"), SigningCoordinator::mostRuns) << "each in its alert";
  EXPECT_EQ(count("notify: Quillseal Is Busy | "), 1);
  EXPECT_EQ(count("log: [sign] turned away"), 1);

  // Once some have ended there is room, and the next time is told anew.
  desktop_.forget();
  coordinator_ = std::make_unique<SigningCoordinator>(desktop_.services());
  desktop_.alerts.leavesDialogsOpen = false;
  for (int round = 0; round < 2; ++round) {
    for (int call = 0; call < 40; ++call)
      coordinator_->startSigning();
    desktop_.loop.run();
  }
  EXPECT_EQ(count("press ⌘C"), 2 * SigningCoordinator::mostRuns);
  EXPECT_EQ(count("notify: Quillseal Is Busy | "), 2);
}

TEST_F(SigningCoordinatorTest, LeavesLongHtmlOutOfTheSigningPage) {
  desktop_.keys.selection->html = std::string(5'000'000, 'a');
  signInBrowser();
  EXPECT_THAT(desktop_.trace,
              Contains("log: [handoff] formatting omitted: 6666667 encoded chars exceeds the 60000 "
                       "limit for a URL fragment; showing plain text instead"));
  EXPECT_EQ(desktop_.trace.back(), notification);
}

// Capture -----------------------------------------------------------------------------------------

TEST_F(SigningCoordinatorTest, SelectsAllWhenOnlyBlanksAreCopied) {
  desktop_.keys.selection->text = " \n\u00A0";
  desktop_.keys.everything = Copy{.text = text, .html = {}};
  sign();
  EXPECT_THAT(desktop_.trace, Contains("log: [capture] no selection; selecting all"));
  EXPECT_THAT(desktop_.userTrace(), ::testing::IsSupersetOf({"press ⌘A", notification.c_str()}));
}

TEST_F(SigningCoordinatorTest, TakesTheLastOfTwoQuickChanges) {
  desktop_.keys.secondThought = Copy{.text = text + " Indeed.", .html = {}};
  sign();
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, StartsWith("『" + text + " Indeed.』"));
}

TEST_F(SigningCoordinatorTest, NoticesACopyAtOnceOnlyWhereTheDesktopTells) {
  sign();
  const auto told = desktop_.loop.elapsed();
  desktop_.pasteboard.tellsOfChanges = false;
  sign();
  const auto polled = desktop_.loop.elapsed() - told;
  EXPECT_EQ(polled - told, 20ms);  // the copy comes after 40 ms, and every 30 ms somebody looks
}

TEST_F(SigningCoordinatorTest, TakesACopyThatComesWithTheLastLook) {
  desktop_.keys.copyTime = 1190ms;
  desktop_.pasteboard.tellsOfChanges = false;
  desktop_.keys.everything = Copy{.text = text + " And nobody else's business.", .html = {}};
  sign();
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, StartsWith("『" + text + "』"));
}

TEST_F(SigningCoordinatorTest, TakesNothingThatWasCopiedBeforeItPressedTheKeys) {
  desktop_.keys.copiedElsewhere = Copy{.text = text + " So says another.", .html = {}};
  desktop_.keys.fingersLeave = 300ms;
  desktop_.keys.selection = std::nullopt;
  sign();
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: No Text Found"));
}

TEST_F(SigningCoordinatorTest, MendsIllFormedTextOnce) {
  desktop_.keys.selection = Copy{.text = text + "\xC3", .html = "<p>\xFF</p>"};
  sign();
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, StartsWith("『" + text + "\uFFFD』"));
  EXPECT_THAT(*desktop_.pasteboard.clipboard.html, HasSubstr("<p>\uFFFD</p>"));
}

TEST_F(SigningCoordinatorTest, BringsTheSourceBackBeforeItPastes) {
  desktop_.applications.active = chromeRunning;
  sign();
  EXPECT_THAT(desktop_.userTrace(),
              ::testing::IsSupersetOf({"write clipboard", "activate Mail", "press ⌘V"}));
  EXPECT_THAT(desktop_.keys.pastedInto, ElementsAre("Mail"));
  desktop_.applications.front = std::nullopt;
  desktop_.trace.clear();
  sign();
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text, HasSubstr("QUILLSEAL · Public Broadcast · "));
  EXPECT_THAT(desktop_.trace, Not(Contains("activate Mail")));
}

struct Interference {
  std::string name;
  std::function<void(FakeDesktop&)> happening;  ///< while the keys wait to be pressed
  std::string words;
};

TEST_F(SigningCoordinatorTest, PastesNowhereElse) {
  const Interference cases[] = {
      {"closed", [](FakeDesktop& d) { d.applications.ended = {mail.instance}; },
       "Open your message again in Mail, select the text you signed, and press ⌘V.\n\nQuillseal "
       "did not paste it for you: the window that you signed in is closed."},
      {"switched",
       [](FakeDesktop& d) { d.applications.front = d.applications.active = chromeRunning; },
       "Switch back to your message in Mail, select the text you signed, and press "
       "⌘V.\n\nQuillseal "
       "did not paste it for you: another window is in front, so it would land in the wrong "
       "place."},
      {"another document", [](FakeDesktop& d) { d.applications.active->document = "Re: Rent"; },
       "Switch back to your message in Mail, select the text you signed, and press "
       "⌘V.\n\nQuillseal "
       "did not paste it for you: the window shows another document or tab than the one you signed "
       "in, so it would land in the wrong place."},
  };
  for (const Interference& c : cases) {
    for (const char* mode : {"enclave", "handoff"}) {
      FakeDesktop desktop;
      desktop.applications.front = desktop.applications.active = mail;
      desktop.keys.selection = Copy{.text = text, .html = {}};
      desktop.defaults.strings["SigningMode"] = mode;
      desktop.keyStore.hasKey = mode == std::string("enclave");
      desktop.keys.beforePress = [&](desktop::Key key) {
        if (key == desktop::Key::v) c.happening(desktop);
      };
      SigningCoordinator coordinator(desktop.services());
      coordinator.startSigning();
      desktop.loop.run();
      EXPECT_EQ(desktop.trace.back(),
                "alert: Signed — Paste It Into Your Message | The signed content is on your "
                "clipboard.\n\n" +
                    c.words)
          << c.name;
      EXPECT_THAT(desktop.keys.pastedInto, ElementsAre()) << c.name;
      EXPECT_TRUE(wroteBlock(desktop)) << c.name;
    }
  }
}

TEST_F(SigningCoordinatorTest, CopiesNowhereElse) {
  const Interference cases[] = {
      {"closed", [](FakeDesktop& d) { d.applications.ended = {mail.instance}; },
       "the window was closed"},
      {"switched",
       [](FakeDesktop& d) { d.applications.front = d.applications.active = chromeRunning; },
       "another window came to the front"},
      {"another document", [](FakeDesktop& d) { d.applications.active->document = "Re: Rent"; },
       "the window showed another document or tab"},
  };
  for (const Interference& c : cases) {
    for (const desktop::Key pressed : {desktop::Key::c, desktop::Key::a}) {
      FakeDesktop desktop;
      desktop.applications.front = desktop.applications.active = mail;
      desktop.keys.everything = Copy{.text = text, .html = {}};
      if (pressed == desktop::Key::c) desktop.keys.selection = desktop.keys.everything;
      desktop.keys.beforePress = [&](desktop::Key key) {
        if (key == pressed) c.happening(desktop);
      };
      SigningCoordinator coordinator(desktop.services());
      coordinator.startSigning();
      desktop.loop.run();
      EXPECT_EQ(desktop.trace.back(), "alert: Not Signed | Nothing was signed: " + c.words +
                                          " before the text was copied.\n\nGo back to your text, "
                                          "select it and press ⌘⌥⌃H again.");
      EXPECT_EQ(std::ranges::count(desktop.trace, "press ⌘C"), pressed == desktop::Key::a);
      EXPECT_THAT(desktop.trace, Not(Contains("press ⌘A"))) << c.name;
    }
  }
}

TEST_F(SigningCoordinatorTest, PastesIntoNoTerminal) {
  desktop_.applications.front->categories = desktop_.applications.active->categories =
      "System;TerminalEmulator;";
  sign();
  EXPECT_THAT(desktop_.trace.back(), EndsWith("a shell there would run each line as a command."));
  EXPECT_THAT(desktop_.trace, Contains("log: [inject] signed block left on the clipboard; the "
                                       "source is a terminal"));
  EXPECT_THAT(desktop_.keys.pastedInto, ElementsAre());
  EXPECT_TRUE(wroteBlock(desktop_));
}

TEST_F(SigningCoordinatorTest, TakesTheApplicationBehindItsOwnWindows) {
  desktop_.applications.active = std::nullopt;
  desktop_.keys.everything = Copy{.text = "Settings", .html = {}};
  sign();
  EXPECT_THAT(
      desktop_.userTrace(),
      ElementsAre("activate Mail", "press ⌘C", "prompt: Sign " + subject + " as an anonymous human",
                  "POST /api/sign_native", "write clipboard", "press ⌘V", notification));

  // When a window has just closed, the one behind it takes a moment to come to the front.
  desktop_.applications.front = desktop_.applications.active = std::nullopt;
  desktop_.forget();
  const auto arrival = desktop_.loop.after(
      200ms, [this] { desktop_.applications.front = desktop_.applications.active = mail; });
  sign();
  EXPECT_THAT(*desktop_.pasteboard.clipboard.text,
              HasSubstr("QUILLSEAL · Email Message (Mail) · "));
}

TEST_F(SigningCoordinatorTest, KeepsACopyForDebuggingEvenOfWhatIsRefused) {
  desktop_.defaults.flags = {"QuillsealDebugCapture"};
  desktop_.keys.selection->text = "  too short ";
  sign();
  EXPECT_EQ(desktop_.files.contents["/home/ada/Library/Logs/Quillseal-signed-text.txt"],
            "too short");
  EXPECT_THAT(desktop_.trace, Contains("log: [sign] captured text written to "
                                       "/home/ada/Library/Logs/Quillseal-signed-text.txt"));
}

// Modes, enrolment and recovery -------------------------------------------------------------------

TEST_F(SigningCoordinatorTest, MakesAKeyOnTheFirstRun) {
  desktop_.keyStore.hasKey = false;
  desktop_.http.answers["/api/sign_native"] = {{404, R"({"error":"Device NOT Registered."})"},
                                               {200, R"({"signature_id":"sig-2"})"}};
  sign();
  EXPECT_THAT(desktop_.userTrace(),
              ElementsAre("create key", "set SigningMode = enclave", "press ⌘C",
                          "prompt: Sign " + subject + " as an anonymous human",
                          "POST /api/sign_native", "POST /api/register_native",
                          "set BoundIdentity = Ada", "prompt: Sign " + subject + " as Ada",
                          "POST /api/sign_native", "write clipboard", "press ⌘V", notification));
}

TEST_F(SigningCoordinatorTest, RetriesOnceOnly) {
  desktop_.http.answers["/api/sign_native"] = {{404, R"({"error":"device not enrolled"})"}};
  sign();
  EXPECT_EQ(desktop_.http.sentTo("/api/sign_native").size(), 2U);
  EXPECT_EQ(desktop_.trace.back(), "alert: Signing Error | device not enrolled");
  desktop_.http.answers["/api/register_native"] = {{500, R"({"error":"unenrolled"})"}};
  sign();
  EXPECT_EQ(desktop_.trace.back(), "alert: Signing Error | unenrolled");
  EXPECT_FALSE(SigningCoordinator::isDeviceNotEnrolled("unenrolled"));
}

TEST_F(SigningCoordinatorTest, FallsBackToTheBrowserForGood) {
  desktop_.keyStore.hasKey = false;
  desktop_.keyStore.lacksEntitlement = true;
  sign();
  EXPECT_EQ(desktop_.defaults.strings["SigningMode"], "handoff");
  EXPECT_THAT(desktop_.userTrace(), Contains("delete key"));
  EXPECT_EQ(desktop_.trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, TellsWhenThisMachineCannotBeSetUp) {
  desktop_.keyStore.hasKey = false;
  desktop_.defaults.strings = {{"SigningMode", "enclave"}, {"ServerURL", " https://own.example "}};
  desktop_.http.answers["/api/register_native"] = {{503, R"({"error":"Closed."})"}};
  sign();
  EXPECT_THAT(desktop_.userTrace(),
              ElementsAre("create key", "POST /api/register_native", "delete key",
                          "alert: Could Not Set Up This Mac | Quillseal could not register this "
                          "Mac with https://own.example.\n\nClosed."));
}

TEST_F(SigningCoordinatorTest, EnrolsOnRequest) {
  TaskScope scope;
  scope.start(coordinator_->enrolDevice());
  desktop_.loop.run();
  EXPECT_EQ(desktop_.trace.back(),
            "alert: ✅ This Mac Is Enrolled | A signing key was created inside the Secure Enclave. "
            "It cannot be copied off this Mac, and every signature requires Touch ID.\n\n"
            "Signatures will be attributed to Ada.");
  desktop_.keyStore.lacksEntitlement = true;
  scope.start(coordinator_->enrolDevice());
  desktop_.loop.run();
  EXPECT_THAT(desktop_.trace.back(),
              StartsWith("alert: Enrolment Failed | Could not create the Secure Enclave signing "
                         "key: this build is not code-signed"));
  EXPECT_FALSE(desktop_.keyStore.hasKey);
}

// Several runs, quitting and failing desktops -----------------------------------------------------

TEST_F(SigningCoordinatorTest, TwoRunsKeepToTheirOwnTabs) {
  desktop_.keyStore.hasKey = false;
  desktop_.defaults.strings["SigningMode"] = "handoff";
  desktop_.applications.front = desktop_.applications.active = chromeRunning;
  desktop_.http.answers["/api/handoff/create"] = {
      {200, R"({"handoff_id":"H1","url":"https://s/handoff?h=H1"})"},
      {200, R"({"handoff_id":"H2","url":"https://s/handoff?h=H2"})"}};
  desktop_.http.answers["/api/handoff/poll"] = {
      {200, R"({"status":"complete","signature_id":"w"})"}};
  coordinator_->startSigning();
  coordinator_->startSigning();
  desktop_.loop.run();
  EXPECT_EQ(std::ranges::count(desktop_.trace, notification), 2);
  EXPECT_THAT(desktop_.trace, Contains(HasSubstr("\"/handoff?h=H1\"")).Times(1));
  EXPECT_THAT(desktop_.trace, Contains(HasSubstr("\"/handoff?h=H2\"")).Times(1));
}

TEST_F(SigningCoordinatorTest, TwoFirstRunsMakeOneKey) {
  desktop_.keyStore.hasKey = false;
  coordinator_->startSigning();
  coordinator_->startSigning();
  desktop_.loop.run();
  EXPECT_EQ(std::ranges::count(desktop_.trace, "create key"), 1);
  EXPECT_EQ(std::ranges::count(desktop_.trace, notification), 2);
}

TEST_F(SigningCoordinatorTest, AFirstRunUsesNoKeyWhoseEnrolmentMayFail) {
  desktop_.keyStore.hasKey = false;
  desktop_.http.answers["/api/register_native"] = {{500, R"({"error":"Not now."})"}};
  TaskScope settings;
  settings.start(coordinator_->enrolDevice());
  sign();
  EXPECT_THAT(desktop_.trace, Contains("alert: Enrolment Failed | Not now."));
  EXPECT_EQ(std::ranges::count(desktop_.trace, "create key"), 2) << "the first is gone";
}

/// Everything a run can do, in one: enrolment, recovery, dialogs, the way back to the tab.
void makeEventful(FakeDesktop& desktop, int kind) {
  desktop.applications.front = desktop.applications.active = chromeRunning;
  desktop.applications.defaultBrowser = chromeInstalled;
  desktop.keys.selection = Copy{.text = text, .html = {}};
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

/// What a run of each kind does when `happening` comes after each of its steps in turn.
template <typename Happening, typename Check>
void interruptEverywhere(Happening happening, Check check) {
  for (int kind = 0; kind < 3; ++kind) {
    bool isDone = false;
    for (int steps = 0; !isDone; ++steps) {
      FakeDesktop desktop;
      makeEventful(desktop, kind);
      std::optional<SigningCoordinator> coordinator(std::in_place, desktop.services());
      coordinator->startSigning();
      for (int i = 0; i < steps && !isDone; ++i)
        isDone = !desktop.loop.step();
      happening(desktop, coordinator);
      desktop.loop.run();
      SCOPED_TRACE("kind " + std::to_string(kind) + ", step " + std::to_string(steps));
      check(desktop);
    }
  }
}

TEST(SigningRuns, EndWhereTheyWaitWhenTheAgentQuits) {
  Lines before;
  interruptEverywhere(
      [&](const FakeDesktop& desktop, auto& coordinator) {
        coordinator.reset();
        before = desktop.trace;
      },
      [&](const FakeDesktop& desktop) { EXPECT_EQ(desktop.trace, before); });
}

// A record and its block name one day, and the key signs it, whenever the clock is set.
TEST(SigningRuns, NameOneDayWhateverTheClockDoes) {
  for (const char* date : {"2026-03-02", "1999-12-31"}) {
    interruptEverywhere(
        [&](FakeDesktop& desktop, auto&) { desktop.wallClock.date = date; },
        [&](FakeDesktop& desktop) {
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

// A clock that goes on while the machine sleeps makes every wait overdue at once.
TEST(SigningRuns, OutliveASuspendedMachine) {
  interruptEverywhere(
      [](FakeDesktop& desktop, auto&) { desktop.loop.leap(8h); },
      [](FakeDesktop& desktop) {
        const Lines told = desktop.userTrace();
        ASSERT_FALSE(told.empty());
        const bool isSigned = told.back() == notification;
        EXPECT_TRUE(isSigned || told.back().rfind("alert: ", 0) == 0) << told.back();
        EXPECT_EQ(isSigned, std::ranges::count(told, "press ⌘V") == 1);
        EXPECT_THAT(told, Not(Contains("press ⌘A"))) << "all is taken instead of the selection";
      });
}

TEST(SigningRuns, DoNotCopyOverEachOthersBlock) {
  int paired = 0;
  for (int steps = 0; steps < 200; ++steps) {
    FakeDesktop desktop;
    desktop.applications.front = chromeRunning;
    desktop.applications.active =
        mail;  // so that the paste waits for the application to come to the front
    desktop.keys.selection = Copy{.text = text, .html = {}};
    SigningCoordinator coordinator(desktop.services());
    coordinator.startSigning();
    for (int i = 0; i < steps; ++i)
      static_cast<void>(desktop.loop.step());
    coordinator.startSigning();
    desktop.loop.run();
    bool isBlockOnClipboard = false;
    for (const std::string& line : desktop.trace) {
      if (line == "write clipboard") isBlockOnClipboard = true;
      if (line == "press ⌘C") isBlockOnClipboard = false;
      if (line != "press ⌘V") continue;
      EXPECT_TRUE(isBlockOnClipboard) << "second press after " << steps << " steps";
      ++paired;
    }
  }
  EXPECT_EQ(paired, 400);
}

TEST(SigningRuns, TellTheUserWhicheverCallFails) {
  for (int kind = 0; kind < 3; ++kind) {
    for (int failing = 1;; ++failing) {
      FakeDesktop desktop;
      makeEventful(desktop, kind);
      desktop.failingCall = failing;
      SigningCoordinator coordinator(desktop.services());
      coordinator.startSigning();
      desktop.loop.run();
      if (desktop.failedCall.empty()) break;
      const std::string where = "kind " + std::to_string(kind) + ", call " +
                                std::to_string(failing) + ": " + desktop.failedCall;
      const Lines told = desktop.userTrace();
      const bool isTold = std::ranges::any_of(told, [](const std::string& line) {
        return line.starts_with("alert: ") || line.starts_with("notify: ");
      });
      EXPECT_TRUE(isTold || desktop.failedCall == "notify") << where;
      const bool wrote = std::ranges::count(told, "write clipboard") > 0;
      EXPECT_EQ(wroteBlock(desktop), wrote) << where;
      EXPECT_TRUE(wrote || std::ranges::count(told, "press ⌘V") == 0) << where;
    }
  }
}

TEST(SigningRuns, TellTheUserWhicheverPressIsDeclined) {
  for (int kind = 0; kind < 3; ++kind) {
    for (int declined = 1;; ++declined) {
      FakeDesktop desktop;
      makeEventful(desktop, kind);
      desktop.keys.selection = std::nullopt;  // so that all is selected
      desktop.keys.declinedPress = declined;
      SigningCoordinator coordinator(desktop.services());
      coordinator.startSigning();
      desktop.loop.run();
      if (desktop.keys.presses < declined) break;
      const std::string where =
          "kind " + std::to_string(kind) + ", press " + std::to_string(declined);
      EXPECT_EQ(desktop.keys.presses, declined) << where << ": no other is tried";
      EXPECT_THAT(desktop.trace.back(), StartsWith("alert: ")) << where;
      EXPECT_EQ(wroteBlock(desktop), declined == 4) << where << ": after C, A and C comes V";
      EXPECT_THAT(desktop.trace, Not(Contains(notification))) << where;
    }
  }
}

}  // namespace
}  // namespace quillseal
