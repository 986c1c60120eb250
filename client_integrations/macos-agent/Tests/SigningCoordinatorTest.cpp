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
#include "Quillseal/AccessibilityManager.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Quillseal/SigningCoordinator.h"
#include "TaskResult.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::Contains;
using testing::Copy;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::Text;
using testing::Ticket;

using Lines = std::vector<std::string>;

const std::string text =
    "I met Grace on Tuesday and we agreed to print 40 posters for the fair in June together.";
const std::string subject = "“I met Grace on Tuesday and we agreed to print 40…” (18 words)";
const std::string digest = CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
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

/// A user with a text in a mail program, and the agent.
struct Story : FakeDesktop {
  Story() {
    applications.front = applications.active = mail;
    keys.selection = Copy{.text = "\n" + text + "\n", .html = {}};
    applications.defaultBrowser = chromeInstalled;
  }
  void sign() {
    coordinator->startSigning();
    loop.run();
  }
  void inBrowser() {
    keyStore.hasKey = false;
    defaults.strings["SigningMode"] = "handoff";
  }
  void signInBrowser() {
    inBrowser();
    sign();
  }
  [[nodiscard]] bool wroteBlock() const {
    return pasteboard.clipboard.text && pasteboard.clipboard.text->starts_with("『");
  }
  [[nodiscard]] std::ptrdiff_t count(const std::string& start) const {
    return std::ranges::count_if(trace,
                                 [&](const std::string& line) { return line.starts_with(start); });
  }
  std::optional<SigningCoordinator> coordinator{std::in_place, services()};
  Ticket later;  ///< of the events meanwhile
};

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

  /// Prints a story's trace if the environment asks for it.
  void TearDown() override {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): single-threaded
    if (std::getenv("QUILLSEAL_PRINT_TRACES") == nullptr) return;
    std::cout << "── " << ::testing::UnitTest::GetInstance()->current_test_info()->name() << "\n";
    for (const std::string& line : trace)
      std::cout << "   " << line << "\n";
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

TEST_F(SigningCoordinatorTest, MakesADemonstrationRecord) {
  defaults.flags = {"DemoSigning"};
  sign();
  EXPECT_THAT(userTrace(),
              ElementsAre("press ⌘C", "presence: Sign " + subject, "POST /api/sign_demo",
                          "write clipboard", "press ⌘V", notification));
  EXPECT_THAT(trace, Contains("log: [demo] simulated signature demo-1 — not evidence of anything"));
  EXPECT_THAT(http.sentTo("/api/sign_demo").front(), HasSubstr("\"method\":\"Touch ID\""));
}

TEST_F(SigningCoordinatorTest, SignsInTheBrowserAndPastesElsewhere) {
  // Long enough for the heap, where destroying a string twice does harm.
  const std::string html = "<p>x</p><p>long enough</p>";
  keys.selection->html = html;
  signInBrowser();
  EXPECT_THAT(userTrace(),
              ElementsAre("press ⌘C", "POST /api/handoff/create",
                          "open https://seal.example/handoff?h=H1#t=" + base64Url(text) +
                              "&h=" + base64Url(html) + " with Chrome.app",
                          "POST /api/handoff/poll", "POST /api/handoff/poll", "write clipboard",
                          "press ⌘V", notification));
  EXPECT_THAT(trace, Contains("log: [handoff] fragment 156 chars (text 87, html 26)"));
  EXPECT_THAT(*pasteboard.clipboard.html, HasSubstr("</span>" + html + "<span"));
}

TEST_F(SigningCoordinatorTest, ReturnsToTheTabTheTextCameFrom) {
  applications.front = applications.active = chromeRunning;
  for (const std::string id : {"42", "4\" is \"4", ""}) {
    trace.clear();
    scripts.results = {Text(id), Text("true")};
    signInBrowser();
    EXPECT_THAT(trace, Contains("script: tell application \"Google Chrome\" to return id of active "
                                "tab of front window"));
    const bool isSafe = id == "42";
    EXPECT_THAT(trace, Contains(AllOf(HasSubstr("contains \"/handoff?h=H1\" then"),
                                      HasSubstr(isSafe ? "is \"42\" then" : "if \"\" is not"))));
    EXPECT_THAT(trace, Contains("log: [tabreturn] signing tab closed, original tab restored"));
    EXPECT_EQ(trace.back(), notification);
  }
}

TEST_F(SigningCoordinatorTest, LeavesTheBlockOnTheClipboardWhenTheTabIsLost) {
  applications.front = applications.active = chromeRunning;
  scripts.results = {Error({.domain = "AS", .code = -1743, .description = "Not authorised"}),
                     Text("false")};
  signInBrowser();
  EXPECT_THAT(trace, Contains("log: [tabreturn] AppleScript failed: Not authorised"));
  EXPECT_EQ(trace.back(),
            "alert: Signed — Paste It Into Your Message | The signed content is on your "
            "clipboard.\n\nSwitch back to your message in Google Chrome, select the text you "
            "signed, and press ⌘V.\n\nQuillseal cannot paste it for you here: the signing page "
            "opened in the same browser, so it would land in the wrong tab.");
  EXPECT_THAT(trace, Not(Contains("press ⌘V")));
  EXPECT_TRUE(wroteBlock());

  // Two programs without an identifier do not count as the same.
  applications.front->bundleIdentifier = applications.active->bundleIdentifier = std::nullopt;
  applications.defaultBrowser->bundleIdentifier = std::nullopt;
  signInBrowser();
  EXPECT_EQ(trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, SendsTextAndImagesInEveryMode) {
  const std::string images = CryptoManager::imageManifestDigest({"a.png"});
  for (const char* path : {"/api/sign_native", "/api/sign_demo", "/api/handoff/create"}) {
    Story d;
    d.keys.selection->html = "<img src=a.png>";
    d.keyStore.hasKey = path == std::string_view("/api/sign_native");
    if (path == std::string_view("/api/sign_demo")) d.defaults.flags = {"DemoSigning"};
    d.defaults.strings["SigningMode"] = "handoff";
    d.sign();
    ASSERT_EQ(d.http.sentTo(path).size(), 1U);
    EXPECT_THAT(d.http.sentTo(path).front(), AllOf(HasSubstr("\"text_digest\":\"" + digest + "\""),
                                                   HasSubstr("\"image_digest\":\"" + images + "\""),
                                                   HasSubstr("\"scope\":\"Email Message (Mail)\"")))
        << path;
  }
}

// On a desktop where only the waits take time.
TEST_F(SigningCoordinatorTest, PausesAsLongAsOtherProgramsNeed) {
  constexpr auto plain = 40ms + 80ms;  // for the copy and events that follow it
  const struct {
    std::string name;
    std::function<void(Story&)> given;
    std::chrono::milliseconds expected;
  } cases[] = {
      {"plain", [](Story&) {}, plain},
      {"polled", [](Story& d) { d.pasteboard.tellsOfChanges = false; }, plain + 20ms},
      {"nothing selected",
       [](Story& d) { d.keys.everything = std::exchange(d.keys.selection, std::nullopt); },
       1200ms + 250ms + plain},
      {"behind a window", [](Story& d) { d.applications.active.reset(); }, 350ms + plain},
      {"left meanwhile",
       [](Story& d) {
         d.http.takes = 1s;
         d.loop.post([&d] {
           d.later = d.loop.after(500ms, [&d] { d.applications.active = chromeRunning; });
         });
       },
       plain + 1s + 350ms},
      {"in the browser", [](Story& d) { d.inBrowser(); }, plain + 2 * 2s},
      {"in the same browser",
       [](Story& d) {
         d.applications.front = d.applications.active = chromeRunning;
         d.inBrowser();
       },
       plain + 2 * 2s + 500ms},
  };
  for (const auto& c : cases) {
    Story d;
    c.given(d);
    d.sign();
    EXPECT_EQ(d.trace.back(), notification) << c.name;
    EXPECT_EQ(d.loop.elapsed(), c.expected) << c.name;
  }
}

TEST_F(SigningCoordinatorTest, LetsOthersGoOnWhileADialogIsOpen) {
  const struct {
    std::string alert;
    std::function<void(Story&)> given;
  } cases[] = {
      {"alert: No Text Found", [](Story& d) { d.keys.selection.reset(); }},
      {"alert: Signed — Paste It",
       [](Story& d) { d.applications.front->categories = "TerminalEmulator;"; }},
      {"alert: Signed — Paste It",
       [](Story& d) {
         d.applications.front = d.applications.active = chromeRunning;
         d.scripts.results = {Text("1"), Text("false")};
         d.inBrowser();
       }},
      {"alert: Could Not Set Up",
       [](Story& d) {
         d.keyStore.hasKey = false;
         d.defaults.strings["SigningMode"] = "enclave";
         d.http.answers["/api/register_native"].push_front({500, R"({"error":"Not now."})"});
       }},
  };
  for (const auto& c : cases) {
    Story d;
    c.given(d);
    d.alerts.leavesDialogsOpen = true;
    d.sign();
    EXPECT_THAT(d.trace.back(), StartsWith(c.alert));
    d.alerts.leavesDialogsOpen = false;
    d.applications.front = d.applications.active = mail;
    d.keys.selection = Copy{.text = text, .html = {}};
    d.sign();
    EXPECT_EQ(d.trace.back(), notification) << c.alert;
  }
}

// So that screening a long text does not block the event loop.
TEST_F(SigningCoordinatorTest, ScreensOnAnotherThread) {
  keys.selection->text = "I approve the payment of the invoice that Grace sent us on 3 May 2026.";
  coordinator->startSigning();
  while (count("log: [sign] ") < 2)
    ASSERT_TRUE(loop.step());
  EXPECT_EQ(count("log: [risk] "), 0);
  loop.run();
  EXPECT_EQ(count("log: [risk] "), 1);
}

TEST_F(SigningCoordinatorTest, StopsWaitingForTheBrowser) {
  http.answers["/api/handoff/poll"] = {{200, R"({"status":"complete"})"}};
  signInBrowser();
  EXPECT_THAT(trace.back(), StartsWith("alert: Still Waiting | Quillseal stopped waiting"));
  EXPECT_EQ(http.sentTo("/api/handoff/poll").size(), 285U);
  EXPECT_GE(loop.elapsed(), 570s);
  EXPECT_FALSE(wroteBlock());
}

TEST_F(SigningCoordinatorTest, OpensWhicheverBrowserThereIs) {
  applications.chrome =
      desktop::InstalledApplication{.location = "Preferred.app", .bundleIdentifier = {}};
  applications.browserOpens = false;
  signInBrowser();
  EXPECT_THAT(trace, Contains(EndsWith(" with Preferred.app")));
  EXPECT_THAT(trace, Contains("open https://seal.example/handoff?h=H1#t=" + base64Url(text)));
  applications.anyBrowserOpens = false;
  signInBrowser();
  EXPECT_EQ(trace.back(), "alert: Signing Error | There is no browser.");
  applications.anyBrowserOpens = true;
  applications.chrome = applications.defaultBrowser = std::nullopt;
  trace.clear();
  signInBrowser();
  EXPECT_THAT(trace, Contains("open https://seal.example/handoff?h=H1#t=" + base64Url(text)));
}

struct EarlyStop {
  std::string name;
  std::function<void(Story&)> given;
  std::string lastLine;
};

const std::string noText =
    "alert: No Text Found | Please type or highlight some text in Outlook (or any app) before "
    "pressing ⌘⌥⌃H.";

TEST_F(SigningCoordinatorTest, StopsEarlyAndTellsWhy) {
  const EarlyStop cases[] = {
      {"no trust", [](Story& d) { d.keys.isPersonTrusting = false; }, "ask for trust"},
      {"no enclave", [](Story& d) { d.keyStore.canHoldKey = false; },
       "alert: Secure Enclave Required | This Mac has no Secure Enclave, so content cannot be "
       "signed in a way that proves a person authorized it."},
      {"no text", [](Story& d) { d.keys.selection = std::nullopt; }, noText},
      {"secret",
       [](Story& d) {
         d.keys.everything = d.keys.selection;
         d.keys.selection->isConcealed = true;
       },
       noText},
      {"nothing in front",
       [](Story& d) {
         d.applications.front = d.applications.active = std::nullopt;
         d.keys.declinedPress = 1;
       },
       noText},
      {"too short", [](Story& d) { d.keys.selection->text = "Only four words here"; },
       "alert: Not signed — too short | Only 4 words. Write at least 10."},
      {"cancelled confirmation", [](Story& d) { d.defaults.flags = {"ConfirmBeforeSigning"}; },
       "confirm: Sign this content? [Sign with Touch ID] [Cancel], preset Email Message (Apple "
       "Mail)"},
      {"refused by the key", [](Story& d) { d.keyStore.signFailure = Error(Error::Fields{}); },
       "alert: Signing Error | Secure Enclave signing failed: user cancelled or biometric failed"},
      {"refused by the server",
       [](Story& d) {
         d.http.answers["/api/sign_native"] = {{403, R"({"error":"No."})"}};
       },
       "alert: Signing Error | No."},
      {"unreadable key store",
       [](Story& d) {
         d.keyStore.loadFailure =
             Error({.domain = "OSStatus", .code = -25291, .description = "No keychain."});
       },
       "alert: Signing Error | No keychain."},
      {"cancelled key creation",
       [](Story& d) {
         d.keyStore.hasKey = false;
         d.keyStore.cancelsCreation = true;
       },
       "log: [sign] called off by the user"},
      {"demonstration without presence",
       [](Story& d) {
         d.defaults.flags = {"DemoSigning"};
         d.presence.outcome = false;
       },
       "presence: Sign " + subject},
      {"demonstration called off",
       [](Story& d) {
         d.defaults.flags = {"DemoSigning"};
         d.presence.outcome =
             Error({.domain = "LA", .code = -2, .description = "Canceled by user."});
       },
       "alert: Signing Error | Canceled by user."},
      {"expired in the browser",
       [](Story& d) {
         d.defaults.strings["SigningMode"] = "handoff";
         d.keyStore.hasKey = false;
         d.http.answers["/api/handoff/poll"] = {{200, R"({"status":"expired"})"}};
       },
       "alert: Signing Request Expired | The request timed out before it was signed. Nothing was "
       "signed. Select your text and press ⌘⌥⌃H again."},
  };
  for (const EarlyStop& c : cases) {
    Story d;
    c.given(d);
    d.sign();
    EXPECT_EQ(d.trace.back(), c.lastLine) << c.name;
    EXPECT_THAT(d.trace, Not(Contains(AnyOf("write clipboard", "create key", "delete key",
                                            "POST /api/register_native"))))
        << c.name;
    EXPECT_EQ(d.program.activities, 0) << c.name;
  }
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

TEST_F(SigningCoordinatorTest, SelectsNothingMoreWhenTheCopyMayNotBeRead) {
  keys.selection->text.reset();
  pasteboard.obstacle = "the user is asked each time";
  keys.heldUpBy = "secure input is on";
  sign();
  EXPECT_THAT(trace,
              ElementsAre("press ⌘C", "log: [capture] key presses are held up: secure input is on",
                          "log: [capture] the clipboard may not be readable: the user is "
                          "asked each time",
                          noText));
}

TEST_F(SigningCoordinatorTest, ScreensTheText) {
  keys.selection->text =
      "Please wire the money to the new account today, IBAN DE89 3704 0044 0532 0130 00, thank "
      "you.";
  sign();
  EXPECT_THAT(trace, Contains(StartsWith("log: [risk] score ")));
  EXPECT_THAT(trace.back(), StartsWith("alert: Not signed"));

  keys.selection->text =
      "Our bank details have changed since the last order of 40 chairs; ask Grace about the rest.";
  alerts.answer = desktop::Answer::cancelled;
  sign();
  EXPECT_THAT(trace.back(), StartsWith("ask: Sign this anyway? | •  "));
  EXPECT_THAT(trace.back(), EndsWith("Signing says YOU wrote this. [Sign Anyway] [Cancel]"));
  alerts.answer = desktop::Answer::confirmed;
  sign();
  EXPECT_EQ(trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, ScreensTheTextAsItIsReadUnlessItIsRefusedAsItIsWritten) {
  const std::string harmless = ", it is for the order of 40 chairs that Grace sent us on 3 May.";
  const auto riskLines = [&] { return count("log: [risk] score "); };

  keys.selection->text = "I ap\u200Bprove the pay\u200Bment" + harmless;
  sign();
  EXPECT_THAT(trace, Contains("log: [risk] score 100, 1 finding(s): pay-authorise-noun"));
  EXPECT_EQ(riskLines(), 1);
  EXPECT_THAT(trace.back(),
              StartsWith("alert: Not signed — payment instructions cannot be signed | •  Payment "
                         "instruction — authorises a payment"));

  // Refused as written: the second screening is not needed.
  trace.clear();
  keys.selection->text = "I approve the payment" + harmless + " Con\u200Bfirm your pass\u200Bword.";
  sign();
  EXPECT_EQ(riskLines(), 1);

  // Both log lines, and the alert of the stronger assessment.
  trace.clear();
  keys.selection->text =
      "Our b\u200Bank details have changed, see http://192.168.4.7/a today" + harmless;
  alerts.answer = desktop::Answer::cancelled;
  sign();
  EXPECT_THAT(trace, Contains("log: [risk] score 45, 1 finding(s): url-ip-literal"));
  EXPECT_EQ(riskLines(), 2);
  EXPECT_THAT(trace.back(), StartsWith("alert: Not signed — this looks like a scam"));
}

TEST_F(SigningCoordinatorTest, SignsTheScopeThatWasConfirmed) {
  defaults.flags = {"ConfirmBeforeSigning"};
  alerts.confirmation = desktop::ConfirmationEntry{.choice = "LinkedIn Post", .field = " Ada\xFF "};
  sign();
  EXPECT_THAT(http.sentTo("/api/sign_native").front(),
              HasSubstr("\"scope\":\"LinkedIn Post → Ada\uFFFD\""));
  EXPECT_THAT(*pasteboard.clipboard.text, HasSubstr("· LinkedIn Post → Ada\uFFFD · 1 March 2026"));
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

TEST_F(SigningCoordinatorTest, RefusesASigningPageThatIsNone) {
  for (const std::string& url :
       {std::string("javascript:alert(1)"), "https://s/" + std::string(1'000'000, 'a')}) {
    http.answers["/api/handoff/create"] = {{200, R"({"handoff_id":"H","url":")" + url + "\"}"}};
    signInBrowser();
    EXPECT_EQ(trace.back(), "alert: Signing Error | Could not build the signing URL.");
  }
  EXPECT_THAT(trace, Not(Contains(StartsWith("open "))));
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

TEST_F(SigningCoordinatorTest, LeavesLongHtmlOutOfTheSigningPage) {
  keys.selection->html = std::string(5'000'000, 'a');
  signInBrowser();
  EXPECT_THAT(trace,
              Contains("log: [handoff] formatting omitted: 6666667 encoded chars exceeds the 60000 "
                       "limit for a URL fragment; showing plain text instead"));
  EXPECT_EQ(trace.back(), notification);
}

// Capture -----------------------------------------------------------------------------------------

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
  later = loop.after(1ms, [&] { pasteboard.put(other); });
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_THAT(trace, ElementsAre("press ⌘C", "fetch RTF", "fetch RTF"));
}

TEST_F(SigningCoordinatorTest, SignsTheSelectionOrElseAll) {
  const std::string more = text + " The rest.";
  const struct {
    std::string name;
    std::function<void(Story&)> given;
    std::string signedText;
  } cases[] = {
      {"only blanks", [](Story& d) { d.keys.selection->text = " \n\u00A0"; }, more},
      {"nothing", [](Story& d) { d.keys.selection.reset(); }, more},
      {"only HTML", [](Story& d) { d.keys.selection->text.reset(); }, more},
      {"copied before the keys are pressed",
       [](Story& d) {
         d.keys.copiedElsewhere = Copy{.text = text + " So says another.", .html = {}};
         d.keys.fingersLeave = 300ms;
         d.keys.selection.reset();
       },
       more},
      {"the last of two quick changes",
       [](Story& d) {
         d.keys.secondThought = Copy{.text = text + " Indeed.", .html = "<p>\xFF</p>"};
       },
       text + " Indeed."},
      {"copied at once", [](Story& d) { d.keys.copyTime = 0ms; }, text},
      {"copied at the last look",
       [](Story& d) {
         d.keys.copyTime = 1190ms;
         d.pasteboard.tellsOfChanges = false;
       },
       text},
      {"ill-formed", [](Story& d) { d.keys.selection->text = text + "\xC3"; }, text + "\uFFFD"},
  };
  for (const auto& c : cases) {
    Story d;
    d.keys.everything = Copy{.text = more, .html = {}};
    d.keys.selection->html = "<p>\xFF</p>";
    c.given(d);
    d.sign();
    EXPECT_THAT(*d.pasteboard.clipboard.text, StartsWith("『" + c.signedText + "』")) << c.name;
    const bool isAll = c.signedText == more;
    EXPECT_EQ(d.count("log: [capture] no selection; selecting all"), isAll) << c.name;
    EXPECT_THAT(*d.pasteboard.clipboard.html, HasSubstr(isAll ? "The rest." : "<p>\uFFFD</p>"));
  }
}

// Events while the key press waits.
TEST_F(SigningCoordinatorTest, CopiesFromAndPastesIntoNothingElse) {
  const std::string switchBack =
      "Switch back to your message in Mail, select the text you signed, and press ⌘V.\n\nQuillseal "
      "did not paste it for you: ";
  const struct {
    std::function<void(Story&)> happening;
    std::string onCopy, onPaste;
  } cases[] = {
      {[](Story& d) { d.applications.ended = {mail.instance}; }, "the window was closed",
       "Open your message again in Mail, select the text you signed, and press ⌘V.\n\nQuillseal "
       "did not paste it for you: the window that you signed in is closed."},
      {[](Story& d) { d.applications.front = d.applications.active = chromeRunning; },
       "another window came to the front",
       switchBack + "another window is in front, so it would land in the wrong place."},
      {[](Story& d) { d.applications.active->document = "Re: Rent"; },
       "the window showed another document or tab",
       switchBack +
           "the window shows another document or tab than the one you signed in, so it would land "
           "in the wrong place."},
  };
  for (const auto& c : cases) {
    for (const desktop::Key when : {desktop::Key::c, desktop::Key::a, desktop::Key::v}) {
      for (const bool inBrowser : {false, true}) {
        Story d;
        if (inBrowser) d.inBrowser();
        d.keys.everything = d.keys.selection;
        if (when == desktop::Key::a) d.keys.selection.reset();
        d.keys.beforePress = [&](desktop::Key key) {
          if (key == when) c.happening(d);
        };
        d.sign();
        EXPECT_THAT(d.keys.pastedInto, ElementsAre());
        EXPECT_THAT(d.trace, Not(Contains("press ⌘A")));
        EXPECT_EQ(d.wroteBlock(), when == desktop::Key::v);
        EXPECT_EQ(d.count("press ⌘C"), when != desktop::Key::c);
        EXPECT_EQ(
            d.trace.back(),
            d.wroteBlock()
                ? "alert: Signed — Paste It Into Your Message | The signed content is on your "
                  "clipboard.\n\n" +
                      c.onPaste
                : "alert: Not Signed | Nothing was signed: " + c.onCopy +
                      " before the text was copied.\n\nGo back to your text, select it and "
                      "press ⌘⌥⌃H again.");
      }
    }
  }
}

TEST_F(SigningCoordinatorTest, PastesIntoNoTerminal) {
  applications.front->categories = applications.active->categories = "System;TerminalEmulator;";
  sign();
  EXPECT_THAT(trace.back(), EndsWith("a shell there would run each line as a command."));
  EXPECT_EQ(count("log: [inject] signed block left on the clipboard; the source is a terminal"), 1);
  EXPECT_TRUE(keys.pastedInto.empty() && wroteBlock());
}

TEST_F(SigningCoordinatorTest, TakesTheApplicationBehindItsOwnWindows) {
  applications.active.reset();
  sign();
  EXPECT_EQ(userTrace().front(), "activate Mail");
  EXPECT_THAT(keys.pastedInto, ElementsAre("Mail"));

  // After a window has closed, the one behind it takes a moment to become active.
  applications.front = applications.active = std::nullopt;
  later = loop.after(200ms, [this] { applications.front = applications.active = mail; });
  sign();
  EXPECT_THAT(*pasteboard.clipboard.text, HasSubstr("QUILLSEAL · Email Message (Mail) · "));

  applications.front = applications.active = std::nullopt;
  sign();
  EXPECT_THAT(*pasteboard.clipboard.text, HasSubstr("QUILLSEAL · Public Broadcast · "));
  EXPECT_EQ(count("activate Mail"), 1);
}

TEST_F(SigningCoordinatorTest, KeepsACopyForDebuggingEvenOfWhatIsRefused) {
  defaults.flags = {"QuillsealDebugCapture"};
  keys.selection->text = "  too short ";
  sign();
  EXPECT_EQ(files.contents["/home/ada/Library/Logs/Quillseal-signed-text.txt"], "too short");
  EXPECT_THAT(trace, Contains("log: [sign] captured text written to "
                              "/home/ada/Library/Logs/Quillseal-signed-text.txt"));
}

// Modes, enrolment and recovery -------------------------------------------------------------------

TEST_F(SigningCoordinatorTest, MakesAKeyOnTheFirstRun) {
  keyStore.hasKey = false;
  http.answers["/api/sign_native"] = {{404, R"({"error":"Device NOT Registered."})"},
                                      {200, R"({"signature_id":"sig-2"})"}};
  sign();
  EXPECT_THAT(userTrace(),
              ElementsAre("create key", "set SigningMode = enclave", "press ⌘C",
                          "prompt: Sign " + subject + " as an anonymous human",
                          "POST /api/sign_native", "POST /api/register_native",
                          "set BoundIdentity = Ada", "prompt: Sign " + subject + " as Ada",
                          "POST /api/sign_native", "write clipboard", "press ⌘V", notification));
  // A mode that is not in the settings does not send the text to the browser.
  keyStore.hasKey = false;
  defaults.strings["SigningMode"] = "unknown";
  sign();
  EXPECT_EQ(count("create key"), 2);
}

TEST_F(SigningCoordinatorTest, RetriesOnceOnly) {
  http.answers["/api/sign_native"] = {{404, R"({"error":"device not enrolled"})"}};
  sign();
  EXPECT_EQ(http.sentTo("/api/sign_native").size(), 2U);
  EXPECT_EQ(trace.back(), "alert: Signing Error | device not enrolled");
  http.answers["/api/register_native"] = {{500, R"({"error":"unenrolled"})"}};
  sign();
  EXPECT_EQ(trace.back(), "alert: Signing Error | unenrolled");
  EXPECT_FALSE(SigningCoordinator::isDeviceNotEnrolled("unenrolled"));
}

TEST_F(SigningCoordinatorTest, FallsBackToTheBrowserForGood) {
  keyStore.hasKey = false;
  keyStore.lacksEntitlement = true;
  sign();
  EXPECT_EQ(defaults.strings["SigningMode"], "handoff");
  EXPECT_THAT(userTrace(), Contains("delete key"));
  EXPECT_EQ(trace.back(), notification);
}

TEST_F(SigningCoordinatorTest, TellsWhenThisMachineCannotBeSetUp) {
  keyStore.hasKey = false;
  defaults.strings = {{"SigningMode", "enclave"}, {"ServerURL", " https://own.example "}};
  http.answers["/api/register_native"] = {{503, R"({"error":"Closed."})"}};
  sign();
  EXPECT_THAT(userTrace(),
              ElementsAre("create key", "POST /api/register_native", "delete key",
                          "alert: Could Not Set Up This Mac | Quillseal could not register this "
                          "Mac with https://own.example.\n\nClosed."));
}

TEST_F(SigningCoordinatorTest, EnrolsOnRequest) {
  TaskScope scope;
  scope.start(coordinator->enrolDevice());
  loop.run();
  EXPECT_EQ(trace.back(),
            "alert: ✅ This Mac Is Enrolled | A signing key was created inside the Secure Enclave. "
            "It cannot be copied off this Mac, and every signature requires Touch ID.\n\n"
            "Signatures will be attributed to Ada.");
  keyStore.lacksEntitlement = true;
  scope.start(coordinator->enrolDevice());
  loop.run();
  EXPECT_THAT(trace.back(),
              StartsWith("alert: Enrolment Failed | Could not create the Secure Enclave signing "
                         "key: this build is not code-signed"));
  EXPECT_FALSE(keyStore.hasKey);
}

// Several runs, quitting and failing desktops -----------------------------------------------------

TEST_F(SigningCoordinatorTest, TwoRunsKeepToTheirOwnTabs) {
  keyStore.hasKey = false;
  defaults.strings["SigningMode"] = "handoff";
  applications.front = applications.active = chromeRunning;
  http.answers["/api/handoff/create"] = {
      {200, R"({"handoff_id":"H1","url":"https://s/handoff?h=H1"})"},
      {200, R"({"handoff_id":"H2","url":"https://s/handoff?h=H2"})"}};
  http.answers["/api/handoff/poll"] = {{200, R"({"status":"complete","signature_id":"w"})"}};
  coordinator->startSigning();
  coordinator->startSigning();
  loop.run();
  EXPECT_EQ(std::ranges::count(trace, notification), 2);
  EXPECT_THAT(trace, Contains(HasSubstr("\"/handoff?h=H1\"")).Times(1));
  EXPECT_THAT(trace, Contains(HasSubstr("\"/handoff?h=H2\"")).Times(1));
}

TEST_F(SigningCoordinatorTest, TwoFirstRunsMakeOneKey) {
  keyStore.hasKey = false;
  coordinator->startSigning();
  coordinator->startSigning();
  loop.run();
  EXPECT_EQ(count("create key"), 1);
  EXPECT_EQ(count(notification), 2);
}

TEST_F(SigningCoordinatorTest, OneDeviceIsRegisteredAtATime) {
  http.answers["/api/sign_native"] = {{404, R"({"error":"device not enrolled"})"},
                                      {404, R"({"error":"device not enrolled"})"},
                                      {200, R"({"signature_id":"s"})"}};
  http.takes = 1s;
  coordinator->startSigning();
  coordinator->startSigning();
  loop.run();
  Lines order;
  for (const std::string& line : trace)
    if (line.starts_with("POST ") || line.starts_with("set ") || line == "write clipboard")
      order.push_back(line.substr(0, 20));
  // The key is released before the first signature is requested again.
  EXPECT_THAT(order,
              ElementsAre("POST /api/sign_nativ", "POST /api/sign_nativ", "POST /api/register_n",
                          "set BoundIdentity = ", "POST /api/sign_nativ", "POST /api/register_n",
                          "write clipboard", "set BoundIdentity = ", "POST /api/sign_nativ",
                          "write clipboard"));
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
