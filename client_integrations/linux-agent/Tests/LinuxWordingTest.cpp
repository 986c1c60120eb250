#include <optional>

#include <gmock/gmock.h>

#include "Cases.h"
#include "FakeDesktop.h"
#include "MacDesktop/MacWords.h"
#include "Quillseal/HotkeyManager.h"
#include "Quillseal/MenuBarManager.h"
#include "Quillseal/SettingsView.h"
#include "Quillseal/SigningCoordinator.h"
#include "core/text/UnicodeText.h"
#include "session/LinuxWording.h"

// The agent with the words of each desktop. This build has a server key and names no server.
namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::Copy;
using testing::FakeDesktop;

// Looks like the agent's messages and must not be changed.
const std::string selection =
    "Could Not Set Up This Mac\n\nSign with Touch ID: press ⌘V, said my neighbour Grace about the "
    "Secure Enclave of her old laptop.";

using Desktop = FakeDesktop&;
using nlohmann::json;

Error failing(const json& description) {
  return Error({.domain = "", .code = 0, .description = description.get<std::string>()});
}

/// Happens at the press of the key that copies or pastes.
void atPress(Desktop d, desktop::Key wanted, const json& happening) {
  d.keys.beforePress = [&d, wanted, happening](desktop::Key key) {
    if (key != wanted) return;
    if (happening == "ended")
      d.applications.ended = {1};
    else if (happening == "left")
      d.applications.active.reset();
    else
      d.applications.active->document = happening;
  };
}

void inTheBrowser(Desktop d, const json& answer) {
  d.keyStore.hasKey = false;
  d.defaults.strings["SigningMode"] = "handoff";
  d.applications.front->bundleIdentifier = d.applications.active->bundleIdentifier = "browser";
  d.applications.defaultBrowser =
      desktop::InstalledApplication{.location = "b", .bundleIdentifier = "browser"};
  d.scripts.results = {std::optional<std::string>("42"), std::optional<std::string>("false")};
  d.http.answers["/api/handoff/poll"] = {{200, answer}};
}

/// What the names of circumstances in cases.jsonl mean.
const std::map<std::string, std::function<void(Desktop, const json&)>> circumstances = {
    {"flag", [](Desktop d, const json& name) { d.defaults.flags = {name}; }},
    {"mode", [](Desktop d, const json& mode) { d.defaults.strings["SigningMode"] = mode; }},
    {"server", [](Desktop d, const json&) { d.defaults.strings.erase("ServerURL"); }},
    {"selects", [](Desktop d, const json& text) { d.keys.selection->text = text; }},
    {"selectsBefore",
     [](Desktop d, const json& text) {
       d.keys.selection->text->insert(0, text.get<std::string>());
     }},
    {"selectsNothing", [](Desktop d, const json&) { d.keys.selection.reset(); }},
    {"hasKey", [](Desktop d, const json& has) { d.keyStore.hasKey = has; }},
    {"canHoldKey", [](Desktop d, const json& can) { d.keyStore.canHoldKey = can; }},
    {"exportsKey", [](Desktop d, const json& does) { d.keyStore.exportsKey = does; }},
    {"signFailure", [](Desktop d, const json& why) { d.keyStore.signFailure = failing(why); }},
    {"createFailure", [](Desktop d, const json& why) { d.keyStore.createFailure = failing(why); }},
    {"loadFailure", [](Desktop d, const json& why) { d.keyStore.loadFailure = failing(why); }},
    {"hotkeyFailure", [](Desktop d, const json& why) { d.hotkey.failure = failing(why); }},
    {"leavesDialogsOpen", [](Desktop d, const json& does) { d.alerts.leavesDialogsOpen = does; }},
    {"copying", [](Desktop d, const json& what) { atPress(d, desktop::Key::c, what); }},
    {"pasting", [](Desktop d, const json& what) { atPress(d, desktop::Key::v, what); }},
    {"categories",
     [](Desktop d, const json& names) {
       d.applications.front->categories = d.applications.active->categories = names;
     }},
    {"browser", inTheBrowser},
    {"registers",
     [](Desktop d, const json& answer) {
       d.http.answers["/api/register_native"] = {{200, answer}};
     }},
};

/// All that the person is shown in the story.
std::string shownIn(const std::string& act, const json& given, const desktop::Wording& wording) {
  FakeDesktop desktop;
  desktop.words.wording = wording;
  desktop.applications.front = desktop.applications.active = desktop::RunningApplication{
      .instance = 1, .name = "Mail", .bundleIdentifier = "mail", .categories = "", .document = ""};
  desktop.defaults.strings["ServerURL"] = "https://seal.example";
  desktop.keys.selection = Copy{.text = selection, .html = {}};
  desktop.alerts.confirmation = desktop::ConfirmationEntry{.choice = "Email Message", .field = ""};
  for (const auto& [name, value] : given.items())
    circumstances.at(name)(desktop, value);
  SigningCoordinator coordinator(desktop.services());
  MenuBarManager menu(desktop.services(), coordinator);
  const auto window = desktop.windows.make({.title = "Settings", .width = 1, .height = 1});
  TaskScope tasks;
  if (act == "sign") {
    for (int i = desktop.alerts.leavesDialogsOpen ? SigningCoordinator::mostRuns : 0; i >= 0; --i)
      coordinator.startSigning();
    desktop.loop.run();
  } else if (act == "enrol") {
    tasks.start(coordinator.enrolDevice());
    desktop.loop.run();
  } else if (act == "menu") {
    menu.setupMenu();
    HotkeyManager({.alerts = desktop.alerts, .hotkey = desktop.hotkey, .log = desktop.log},
                  coordinator)
        .registerHotkey();
  } else {
    const SettingsView view(
        {.defaults = desktop.defaults,
         .keyStore = desktop.keyStore,
         .log = desktop.log,
         .loop = desktop.loop,
         .words = desktop.words},
        coordinator, *window,
        act == "settings" ? SettingsView::Build::packaged : SettingsView::Build::development);
    desktop.loop.run();
  }
  return desktop.shown;
}

std::string renamed(std::string text) {
  for (const auto& [from, to] : {std::pair{"⌘⌥⌃H", "Ctrl+Alt+Super+H"},
                                 {"⌘V", "Ctrl+V"},
                                 {"This Mac", "This Computer"},
                                 {"this Mac", "this computer"}})
    text = unicode::replacingAll(text, from, to);
  return text;
}

TEST(LinuxWording, EveryTextReadsAsIfWrittenForTheMachine) {
  const desktop::Wording macWords = mac::MacWords().current();
  for (const auto& [act, given, mac, tpm, keyFile] :
       testing::cases<std::string, json, std::string, std::string, std::string>()) {
    EXPECT_THAT(shownIn(act, given, macWords), HasSubstr(mac));
    for (const KeyPlace place : {KeyPlace::tpm, KeyPlace::tpmSimulator, KeyPlace::keyFile}) {
      for (const bool isDemo : {false, true}) {
        std::string shown = shownIn(act, given, linuxWording({.key = place, .isDemo = isDemo}));
        if (!isDemo && place != KeyPlace::tpmSimulator) {
          const std::string& expected = place == KeyPlace::tpm ? tpm : keyFile;
          EXPECT_THAT(shown, HasSubstr(expected.empty() ? renamed(mac) : expected));
        }
        shown = unicode::replacingAll(shown, selection, "");
        for (const char* word :
             {"Mac", "Enclave", "Touch ID", "⌘", "⌥", "⌃", "biometric", "Outlook"})
          EXPECT_THAT(shown, Not(HasSubstr(word))) << mac;
      }
    }
  }
}

TEST(LinuxWording, NamesASimulatorAndADemonstration) {
  EXPECT_EQ(linuxWording({.key = KeyPlace::tpmSimulator}).keyExists,
            "Enrolled — a signing key exists inside the TPM simulator.");
  const desktop::Wording demo = linuxWording({.key = KeyPlace::keyFile, .isDemo = true});
  EXPECT_EQ(demo.proof, "fingerprint or password");
  EXPECT_EQ(demo.proofInTitle, "Fingerprint or Password");
}

}  // namespace
}  // namespace quillseal::linux
