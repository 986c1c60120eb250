#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <fnmatch.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "FakeDesktop.h"
#include "Quillseal/AccessibilityManager.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Quillseal/SigningCoordinator.h"
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
using testing::divided;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::Record;
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
  std::vector<Ticket> later;  ///< of what happens meanwhile
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
};

/// The parts of a line between separators: one at least.
Lines splitAt(std::string line, const std::string& separator) {
  Lines parts;
  for (std::size_t at = 0; (at = line.find(separator)) != std::string::npos;
       line.erase(0, at + separator.size()))
    parts.push_back(line.substr(0, at));
  parts.push_back(line);
  return parts;
}

// Stories told in a file --------------------------------------------------------------------------

using Field = std::variant<bool*, int*, std::string*, std::chrono::milliseconds*, Outcome<bool>*,
                           std::optional<Copy>*, std::optional<Error>*,
                           std::optional<desktop::RunningApplication>*,
                           std::optional<desktop::InstalledApplication>*>;

void set(bool& field, const std::string& value) {
  field = value == "yes";
}
void set(int& field, const std::string& value) {
  field = std::stoi(value);
}
void set(std::string& field, const std::string& value) {
  field = value;
}
void set(std::chrono::milliseconds& field, const std::string& value) {
  field = std::chrono::milliseconds(std::stoi(value));
}
void set(std::optional<Error>& field, const std::string& value) {
  field = Error({.domain = "fake", .code = 1, .description = value});
}
/// "no", or the words of an error.
void set(Outcome<bool>& field, const std::string& value) {
  field = value == "no" ? Outcome<bool>(false) : Outcome<bool>(Record::error(value));
}
/// "none", "unreadable" or TEXT | HTML, where "concealed" stands for no HTML.
void set(std::optional<Copy>& field, const std::string& value) {
  const auto [plain, html] = divided(value, " | ");
  field.reset();
  if (value == "none") return;
  field = Copy{.text = plain.empty() || value == "unreadable" ? std::nullopt : Text(plain),
               .html = html.empty() ? std::nullopt : Text(html),
               .isConcealed = html == "concealed"};
}
void set(std::optional<desktop::RunningApplication>& field, const std::string& name) {
  field = name == "Chrome" ? chromeRunning : mail;
  if (name == "Mail, another document") field->document = "Re: Rent";
  if (name == "Terminal") field->categories = "System;TerminalEmulator;";
  if (name == "Nameless") field->bundleIdentifier.reset();
  if (name == "none") field.reset();
}
void set(std::optional<desktop::InstalledApplication>& field, const std::string& value) {
  field = desktop::InstalledApplication{.location = value, .bundleIdentifier = {}};
  if (value == "none") field.reset();
}

/// Sets what a line of a story names.
void give(Story& d, const std::string& name, const std::string& value) {
  const std::map<std::string, Field> fields{
      {"active", &d.applications.active},
      {"any browser opens", &d.applications.anyBrowserOpens},
      {"browser opens", &d.applications.browserOpens},
      {"chrome", &d.applications.chrome},
      {"clipboard reports changes", &d.pasteboard.reportsChanges},
      {"copied elsewhere", &d.keys.copiedElsewhere},
      {"copy takes", &d.keys.copyTime},
      {"creation cancelled", &d.keyStore.cancelsCreation},
      {"declined press", &d.keys.declinedPress},
      {"default browser", &d.applications.defaultBrowser},
      {"dialogs stay open", &d.alerts.leavesDialogsOpen},
      {"enclave", &d.keyStore.canHoldKey},
      {"entitlement missing", &d.keyStore.lacksEntitlement},
      {"everything", &d.keys.everything},
      {"front", &d.applications.front},
      {"key", &d.keyStore.hasKey},
      {"key refuses", &d.keyStore.signFailure},
      {"key store fails", &d.keyStore.loadFailure},
      {"keys held for", &d.keys.fingersLeave},
      {"keys held up", &d.keys.heldUpBy},
      {"obstacle", &d.pasteboard.obstacle},
      {"presence", &d.presence.outcome},
      {"second copy", &d.keys.secondThought},
      {"selection", &d.keys.selection},
      {"server takes", &d.http.takes},
      {"trust", &d.keys.isPersonTrusting},
  };
  const auto [kind, which] = divided(name, " ");
  if (const auto field = fields.find(name); field != fields.end()) {
    std::visit([&](auto* found) { set(*found, value); }, field->second);
  } else if (kind == "after") {
    const auto [milliseconds, later] = divided(which, " ");
    d.later.push_back(d.loop.after(std::chrono::milliseconds(std::stoi(milliseconds)),
                                   [&d, later, value] { give(d, later, value); }));
  } else if (kind == "before") {
    const auto [keys, happening] = divided(which, " ");
    const desktop::Key awaited = keys == "⌘C"   ? desktop::Key::c
                                 : keys == "⌘A" ? desktop::Key::a
                                                : desktop::Key::v;
    const auto others = d.keys.beforePress;
    d.keys.beforePress = [&d, others, awaited, happening, value](desktop::Key key) {
      if (others) others(key);
      if (key == awaited) give(d, happening, value);
    };
  } else if (kind == "ended") {
    d.applications.ended = {mail.instance};
  } else if (kind == "answers") {
    auto& answers = d.http.answers[which];
    answers.clear();
    for (const std::string& answer : splitAt(value, " | "))
      answers.push_back({std::stoi(answer), divided(answer, " ").second});
  } else if (kind == "scripts") {
    for (const std::string& result : splitAt(value, " | "))
      d.scripts.results.push_back(result.starts_with('!')
                                      ? Outcome<Text>(Record::error(result.substr(1)))
                                      : Outcome<Text>(Text(result)));
  } else if (kind == "flag") {
    d.defaults.flags.insert(which);
  } else if (kind == "setting") {
    d.defaults.strings[which] = value;
  } else if (kind == "answer") {
    d.alerts.answer = value == "cancel" ? desktop::Answer::cancelled : desktop::Answer::confirmed;
  } else if (kind == "confirmation") {
    const auto [choice, entered] = divided(value, " | ");
    d.alerts.confirmation = desktop::ConfirmationEntry{.choice = choice, .field = entered};
  } else {
    ADD_FAILURE() << "no story can set " << name;
  }
}

std::string joined(const Lines& lines) {
  std::string all;
  for (const std::string& line : lines)
    all += line + '\n';
  return all;
}

/// What there is now, by the name that a story gives it.
std::string stateOf(const Story& d, const std::string& name) {
  const auto [kind, which] = divided(name, " ");
  if (kind == "clipboard") return d.pasteboard.clipboard.text.value_or("none");
  if (kind == "html") return d.pasteboard.clipboard.html.value_or("none");
  if (kind == "elapsed") return std::to_string(d.loop.elapsed().count());
  if (kind == "pasted") return joined(d.keys.pastedInto);
  if (kind == "sent") return joined(d.http.sentTo(which));
  if (kind == "setting") return d.defaults.strings.at(which);
  if (kind == "file")
    return d.files.contents.at("/home/ada/Library/Logs/Quillseal-signed-text.txt");
  if (kind == "key") return d.keyStore.hasKey ? "yes" : "no";
  if (kind == "running") return std::to_string(d.program.activities);
  return "no story can look at " + name;
}

bool matches(const std::string& line, std::string pattern) {
  pattern = unicode::replacingAll(unicode::replacingAll(pattern, "[", "[[]"), "?", "[?]");
  return ::fnmatch(pattern.c_str(), line.c_str(), FNM_NOESCAPE) == 0;
}

/// What the agent did against what a story says; nothing is left of either.
void compare(Story& d, Lines& told) {
  std::erase_if(d.trace, [&](const std::string& line) {
    return line.starts_with("log: ") &&
           std::ranges::none_of(told, [&](const std::string& each) { return matches(line, each); });
  });
  const bool isTold = std::ranges::equal(d.trace, told, matches);
  EXPECT_TRUE(told.empty() || isTold) << "It did\n" << joined(d.trace) << "not\n" << joined(told);
  told.clear();
  d.trace.clear();
}

TEST(SigningStories, GoAsTold) {
  std::optional<Story> story;
  std::string title;
  Lines told;
  TaskScope enrolments;
  Lines lines = testing::textCases();
  lines.emplace_back("[end]");
  for (std::string& line : lines) {
    for (const auto& [name, value] : {std::pair{"{text}", text},
                                      {"{subject}", subject},
                                      {"{digest}", digest},
                                      {"{link}", base64Url(text)},
                                      {"{images}", CryptoManager::imageManifestDigest({"a.png"})}})
      line = unicode::replacingAll(line, name, value);
    if (line.starts_with("> ")) {
      told.push_back(line.substr(2));
      continue;
    }
    SCOPED_TRACE(title + " before " + line);
    if (!told.empty()) compare(*story, told);
    const std::size_t sign = std::min({line.find(" = "), line.find(" == "), line.find(" ~ ")});
    const std::string name = line.substr(0, sign);
    const std::string value =
        sign == std::string::npos ? "" : line.substr(line.find(' ', sign + 1) + 1);
    if (line.starts_with('[')) {
      title = line;
      story.emplace();
    } else if (line == "sign") {
      story->sign();
    } else if (line == "start") {
      story->coordinator->startSigning();
    } else if (line == "enrol") {
      enrolments.start(story->coordinator->enrolDevice());
      story->loop.run();
    } else if (line.substr(sign, 3) == " = ") {
      give(*story, name, value);
    } else if (line.substr(sign, 3) == " ~ ") {
      EXPECT_THAT(stateOf(*story, name), HasSubstr(value));
    } else {
      EXPECT_EQ(stateOf(*story, name), value);
    }
  }
}

// Runs one by one ---------------------------------------------------------------------------------

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

TEST_F(SigningCoordinatorTest, StopsWaitingForTheBrowser) {
  http.answers["/api/handoff/poll"] = {{200, R"({"status":"complete"})"}};
  signInBrowser();
  EXPECT_THAT(trace.back(), StartsWith("alert: Still Waiting | Quillseal stopped waiting"));
  EXPECT_EQ(http.sentTo("/api/handoff/poll").size(), 285U);
  EXPECT_GE(loop.elapsed(), 570s);
  EXPECT_FALSE(wroteBlock());
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
