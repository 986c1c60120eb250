#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <fnmatch.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "Quillseal/AppDelegate.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Story.h"
#include "core/text/Base64.h"
#include "core/text/UnicodeText.h"

/// Runs the stories of a data file, which explains their language.
namespace quillseal {
namespace {

using testing::Copy;
using testing::divided;
using ::testing::HasSubstr;
using testing::Record;
using testing::Text;
using Lines = std::vector<std::string>;

/// The parts of a line between separators: one at least.
Lines splitAt(std::string line, const std::string& separator) {
  Lines parts;
  for (std::size_t at = 0; (at = line.find(separator)) != std::string::npos;
       line.erase(0, at + separator.size()))
    parts.push_back(line.substr(0, at));
  parts.push_back(line);
  return parts;
}

using Field = std::variant<
    desktop::Delivery*, bool*, int*, std::string*, std::chrono::milliseconds*, Outcome<bool>*,
    std::optional<Copy>*, std::optional<Error>*, desktop::PresenceCapability*, desktop::Biometry*,
    std::optional<desktop::RunningApplication>*, std::optional<desktop::InstalledApplication>*>;

void set(desktop::Delivery& field, const std::string& value) {
  using desktop::Delivery;
  field = std::map<std::string, Delivery>{{"keyboard taken", Delivery::keyboardTaken},
                                          {"keys held", Delivery::keysHeld},
                                          {"not allowed", Delivery::notAllowed},
                                          {"not written", Delivery::notWritten},
                                          {"unknown target", Delivery::targetUnknown}}
              .at(value);
}
void set(std::string& field, const std::string& value) {
  field = value;
}
/// A number, or whether it is "yes".
template <typename Number>
void set(Number& field, const std::string& value) {
  if constexpr (std::is_same_v<Number, bool>)
    field = std::map<std::string, bool>{{"yes", true}, {"no", false}}.at(value);
  else
    field = Number(std::stoi(value));
}
void set(std::optional<Error>& field, const std::string& value) {
  field = Error({.domain = "fake", .code = 1, .description = value});
}
/// "no", or the words of an error.
void set(Outcome<bool>& field, const std::string& value) {
  field = value == "no" ? Outcome<bool>(false) : Outcome<bool>(Record::error(value));
}
/// "yes", "no", or why they cannot be asked for.
void set(desktop::PresenceCapability& field, const std::string& value) {
  field = {.available = value == "yes", .reason = {}};
  if (!field.available && value != "no") field.reason = Record::error(value);
}
void set(desktop::Biometry& field, const std::string& value) {
  using desktop::Biometry;
  field = value == "Face ID" ? Biometry::faceId
          : value == "none"  ? Biometry::none
                             : Biometry::other;
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
      {"advice", &d.keyStore.keyAdvice},
      {"any browser opens", &d.applications.anyBrowserOpens},
      {"biometrics", &d.presence.biometrics},
      {"biometrics or password", &d.presence.biometricsOrPassword},
      {"biometry", &d.presence.ofMachine},
      {"browser opens", &d.applications.browserOpens},
      {"chrome", &d.applications.chrome},
      {"clipboard refuses", &d.pasteboard.refusal},
      {"clipboard takes", &d.pasteboard.takes},
      {"clipboard look takes", &d.pasteboard.lookTime},
      {"clipboard reports changes", &d.pasteboard.reportsChanges},
      {"copied elsewhere", &d.keys.copiedElsewhere},
      {"copy takes", &d.keys.copyTime},
      {"creation cancelled", &d.keyStore.cancelsCreation},
      {"creation fails", &d.keyStore.createFailure},
      {"declined as", &d.keys.declinedAs},
      {"declined press", &d.keys.declinedPress},
      {"desktop advice", &d.words.advice},
      {"default browser", &d.applications.defaultBrowser},
      {"device key", &d.words.wording.deviceKey},
      {"dialogs stay open", &d.alerts.leavesDialogsOpen},
      {"enclave", &d.keyStore.canHoldKey},
      {"entitlement missing", &d.keyStore.lacksEntitlement},
      {"everything", &d.keys.everything},
      {"exports key", &d.keyStore.exportsKey},
      {"front", &d.applications.front},
      {"hotkey fails", &d.hotkey.failure},
      {"hotkey is off", &d.hotkey.now.isOff},
      {"hotkey keys", &d.words.wording.hotkey},
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

/// Whether the key has signed the fields of the request: IDENTITY | SCOPE, and those of all
/// stories.
bool isSigned(const Story& d, const std::string& fields) {
  const std::string body = d.http.sentTo("/api/sign_native").front();
  const auto [identity, scope] = divided(fields, " | ");
  const std::string payload = CryptoManager::canonicalV3(
      {.textDigest = digest,
       .issued = "2026-03-01",
       .scope = scope,
       .snapshotDigest = "",
       .identity = identity,
       .signerKey = "MACHINE-1",
       .expires = "2026-03-08",
       .nonce = std::string_view(divided(body, "nonce\":\"").second).substr(0, 32),
       .commitment = "statement"});
  const std::string signature = base64(*SecureEnclaveManager::bytesFromHex(payload));
  return body.find("\"enclave_signature\":\"" + signature + "\"") != std::string::npos;
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
  if (kind == "signed") return isSigned(d, which) ? "yes" : "no";
  if (kind == "times") return std::to_string(d.count(which));
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

/// The line of a menu or of a form as a story tells it.
std::string lineOf(const desktop::MenuItem& item) {
  using Kind = desktop::MenuItem::Kind;
  using desktop::Modifiers;
  EXPECT_EQ(static_cast<bool>(item.action), item.kind == Kind::action) << item.title;
  if (item.kind == Kind::separator) return "---";
  std::string line = item.title + (item.kind == Kind::label ? " (label)" : "");
  if (item.keyEquivalent.empty()) return line;
  line += " [";
  const std::pair<Modifiers, const char*> signs[] = {
      {Modifiers::command, "⌘"}, {Modifiers::option, "⌥"}, {Modifiers::control, "⌃"}};
  for (const auto& [modifier, sign] : signs)
    if ((item.keyModifiers | modifier) == item.keyModifiers) line += sign;
  return line + item.keyEquivalent + "]";
}
std::string lineOf(const desktop::FormText& text) {
  const char* const fonts[] = {"body", "callout", "caption"};
  const char* const colours[] = {"", " secondary", " green", " orange"};
  return std::string(fonts[static_cast<int>(text.font)]) + colours[static_cast<int>(text.colour)] +
         (text.selectable ? " selectable: " : ": ") + text.text;
}
std::string lineOf(const desktop::FormStatus& status) {
  const bool isGreen = status.symbolColour == desktop::TextColour::green;
  return (isGreen ? "green " : "orange ") + status.symbol + " " + lineOf(status.text);
}
std::string lineOf(const desktop::FormField& field) {
  return "field " + field.label + " = " + field.value + (field.masked ? " (masked)" : "");
}
std::string lineOf(const desktop::FormButton& button) {
  return "button " + button.label + (button.enabled ? "" : " (disabled)");
}

/// Tells the menu, or the form of the window, as if it were done.
void tell(Story& d, const std::string& what) {
  if (what == "menu") {
    const desktop::StatusMenu& menu = d.statusItem.menu;
    d.trace.push_back(menu.symbol + ", " + menu.symbolDescription + "," + menu.title);
    for (const desktop::MenuItem& item : menu.items)
      d.trace.push_back(lineOf(item));
    return;
  }
  const desktop::Form& form = d.windows.form;
  d.trace.push_back(std::to_string(form.width) + " x " + std::to_string(form.height));
  for (const desktop::FormSection& section : form.sections) {
    d.trace.push_back(section.header + ":");
    for (const auto& row : section.rows)
      d.trace.push_back(std::visit([](const auto& shown) { return lineOf(shown); }, row));
  }
}

/// The item of the menu, or the row of the form, with this label; a copy, as an action may replace
/// what it belongs to.
desktop::MenuItem itemOf(const Story& d, const std::string& title) {
  const auto& items = d.statusItem.menu.items;
  return *std::ranges::find(items, title, &desktop::MenuItem::title);
}
template <typename Row>
Row rowOf(const Story& d, const std::string& label) {
  for (const desktop::FormSection& section : d.windows.form.sections)
    for (const auto& row : section.rows)
      if (const Row* wanted = std::get_if<Row>(&row); wanted && wanted->label == label)
        return *wanted;
  throw std::runtime_error("there is no " + label);
}

/// Lets the user do what a line says; false when it says something else.
bool act(Story& d, const std::string& line) {
  const auto [verb, what] = divided(line, " ");
  if (line == "launch") {
    d.app.emplace(d.services());
    d.app->applicationDidFinishLaunching();
  } else if (line == "end") {
    d.app.reset();
    d.coordinator.reset();
  } else if (line == "hotkey") {
    d.hotkey.pressed();
  } else if (line == "hotkey changes") {
    if (d.hotkey.changed) d.hotkey.changed();
  } else if (line == "wait") {
    d.loop.run();
  } else if (verb == "choose") {
    itemOf(d, what).action();
  } else if (verb == "press") {
    rowOf<desktop::FormButton>(d, what).pressed();
  } else if (verb == "type") {
    const auto [label, typed] = divided(what, " = ");
    rowOf<desktop::FormField>(d, label).changed(typed);
  } else if (verb == "change") {
    const auto [key, value] = divided(what, " = ");
    d.defaults.setString(key, value);
  } else if (verb == "show") {
    tell(d, what);
  } else if (line == "sign") {
    d.sign();
  } else if (verb == "start") {
    for (int runs = what.empty() ? 1 : std::stoi(what); runs > 0; --runs)
      d.coordinator->startSigning();
  } else if (line == "step") {
    d.loop.step();
  } else if (line == "enrol" || line == "begin to enrol") {
    d.enrolments.start(d.coordinator->enrolDevice());
    if (line == "enrol") d.loop.run();
  } else {
    return false;
  }
  return true;
}

TEST(SigningStories, GoAsTold) {
  std::optional<Story> story;
  std::string title;
  Lines told;
  Lines lines = testing::textCases();
  lines.emplace_back("[end]");
  for (std::string& line : lines) {
    for (const auto& [name, value] : {std::pair{"{text}", text},
                                      {"{subject}", subject},
                                      {"{digest}", digest},
                                      {"{damaged}", "\xFF"},
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
    } else if (act(*story, line)) {
      continue;
    } else if (line.substr(sign, 3) == " = ") {
      give(*story, name, value);
    } else if (line.substr(sign, 3) == " ~ ") {
      EXPECT_THAT(stateOf(*story, name), HasSubstr(value));
    } else {
      EXPECT_EQ(stateOf(*story, name), value);
    }
  }
}

}  // namespace

void goOn(Story& story, const std::string& line) {
  const auto [name, value] = divided(line, " = ");
  if (!act(story, line)) give(story, name, value);
}

}  // namespace quillseal
