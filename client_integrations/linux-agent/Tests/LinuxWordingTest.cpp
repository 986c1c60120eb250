#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

using testing::Copy;
using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::Not;

// A text that looks like the agent's messages and must not be changed.
const std::string selection =
    "Could Not Set Up This Mac\n\nSign with Touch ID: press ⌘V, said my neighbour Grace about the "
    "Secure Enclave of her old laptop.";

enum class Act { sign, enrol, settings, developmentSettings, menu };

struct Story {
  Act act;
  std::string mac;  ///< part of a text that the user sees
  std::function<void(FakeDesktop&)> given = [](FakeDesktop&) {};
  /// The text on Linux. If empty, only the names of machine and keys differ.
  std::string tpm = {};
  std::string keyFile = tpm;
};

using Desktop = FakeDesktop&;

std::function<void(Desktop)> whilePasting(std::function<void(Desktop)> happening) {
  return [happening = std::move(happening)](Desktop d) {
    d.keys.beforePress = [&d, happening](desktop::Key key) {
      if (key == desktop::Key::v) happening(d);
    };
  };
}

std::function<void(Desktop)> inTheBrowser(const std::string& answer) {
  return [answer](Desktop d) {
    d.keyStore.hasKey = false;
    d.defaults.strings["SigningMode"] = "handoff";
    d.applications.front->bundleIdentifier = d.applications.active->bundleIdentifier = "browser";
    d.applications.defaultBrowser =
        desktop::InstalledApplication{.location = "b", .bundleIdentifier = "browser"};
    d.scripts.results = {std::optional<std::string>("42"), std::optional<std::string>("false")};
    d.http.answers["/api/handoff/poll"] = {{200, answer}};
  };
}

std::function<void(Desktop)> with(const char* flag) {
  return [flag](Desktop d) { d.defaults.flags = {flag}; };
}

std::function<void(Desktop)> selecting(const std::string& text) {
  return [text](Desktop d) { d.keys.selection->text = text + selection; };
}

Error failing(const char* description) {
  return Error({.domain = "", .code = 0, .description = description});
}

std::vector<Story> stories() {
  const std::string switchBack =
      "Switch back to your message in Mail, select the text you signed, and press ⌘V.";
  const std::string confirm =
      "You are about to cryptographically authorize the following text with your ";
  return {
      // A run.
      {Act::sign, "Signature Generated!"},
      {Act::sign, "Signature Generated!", with("DemoSigning")},
      {Act::sign, "This Mac has no Secure Enclave, so content",
       [](Desktop d) { d.keyStore.canHoldKey = false; },
       "Signing Key Required\nThis computer has no usable TPM and no place for a key file, so "
       "content"},
      {Act::sign, "with “defaults write”", [](Desktop d) { d.defaults.strings.erase("ServerURL"); },
       "into ~/.config/Quillseal/Quillseal.conf"},
      {Act::sign, "some text in Outlook (or any app) before pressing ⌘⌥⌃H.",
       [](Desktop d) { d.keys.selection.reset(); },
       "some text in Thunderbird (or any app) before pressing Ctrl+Alt+Super+H."},
      {Act::sign, "select it and press ⌘⌥⌃H again.",
       [](Desktop d) { d.keys.beforePress = [&d](desktop::Key) { d.applications.ended = {1}; }; }},
      {Act::sign, "too short", [](Desktop d) { d.keys.selection->text = "Too few"; }},
      {Act::sign, "payment instructions cannot be signed", selecting("I approve the payment. ")},
      {Act::sign, "Sign this anyway?",
       selecting("Our bank details have changed since the last order. ")},
      {Act::sign, "Quillseal Is Busy",
       [](Desktop d) {
         d.alerts.leavesDialogsOpen = true;
         d.defaults.flags = {"ConfirmBeforeSigning"};
       }},
      {Act::sign, confirm + "fingerprint.\n\n" + selection, with("ConfirmBeforeSigning"),
       confirm + "PIN.\n\n" + selection, confirm + "passphrase.\n\n" + selection},
      {Act::sign, "\nSign with Touch ID\n", with("ConfirmBeforeSigning"), "\nSign with PIN\n",
       "\nSign with Passphrase\n"},
      {Act::sign, "covered by your fingerprint, so this signature", with("ConfirmBeforeSigning"),
       "covered by your signature, so it"},
      {Act::sign, "Secure Enclave signing failed: No.",
       [](Desktop d) { d.keyStore.signFailure = failing("No."); },
       "Signing with the TPM failed: No.", "Signing with the key file failed: No."},
      {Act::sign, "Secure Enclave signing failed: user cancelled or biometric failed",
       [](Desktop d) { d.keyStore.signFailure = failing(""); },
       "Signing with the TPM failed: it was cancelled, or the PIN was wrong.",
       "Signing with the key file failed: it was cancelled, or the passphrase was wrong."},
      {Act::sign, "Open your message again in Mail, select the text you signed, and press ⌘V.",
       whilePasting([](Desktop d) { d.applications.ended = {1}; })},
      {Act::sign, switchBack, whilePasting([](Desktop d) { d.applications.active.reset(); })},
      {Act::sign, switchBack,
       whilePasting([](Desktop d) { d.applications.active->document = "Rent"; })},
      {Act::sign, "does not paste into a terminal",
       [](Desktop d) {
         d.applications.front->categories = d.applications.active->categories = "TerminalEmulator;";
       }},
      // In the browser.
      {Act::sign, switchBack, inTheBrowser(R"({"status":"complete","signature_id":"s"})")},
      {Act::sign, "Select your text and press ⌘⌥⌃H again.",
       inTheBrowser(R"({"status":"expired"})")},
      {Act::sign, "press ⌘⌥⌃H again to insert a fresh one",
       inTheBrowser(R"({"status":"waiting"})")},
      // Enrolment.
      {Act::sign,
       "Could Not Set Up This Mac\nQuillseal could not register this Mac with "
       "https://seal.example.\n\nCould not create the Secure Enclave signing key: Full.",
       [](Desktop d) {
         d.keyStore.hasKey = false;
         d.defaults.strings["SigningMode"] = "enclave";
         d.keyStore.createFailure = failing("Full.");
       },
       "Could Not Set Up This Computer\nQuillseal could not register this computer with "
       "https://seal.example.\n\nCould not create the signing key: Full."},
      {Act::enrol, "✅ This Mac Is Enrolled\nA signing key was created inside the Secure Enclave.",
       [](Desktop) {}, "✅ This Computer Is Enrolled\nA signing key was created inside the TPM.",
       "✅ This Computer Is Enrolled\nA signing key was created in a key file on this computer."},
      {Act::enrol, "is bound to this Mac yet",
       [](Desktop d) {
         d.http.answers["/api/register_native"] = {{200, R"({"status":"ok","device_id":"d"})"}};
       }},
      {Act::enrol, "Could not export the Secure Enclave public key.",
       [](Desktop d) { d.keyStore.exportsKey = false; },
       "Could not export the public key of the key in the TPM.",
       "Could not export the public key from the key file."},
      // Settings, menu and hotkey.
      {Act::settings,
       "the first time you press ⌘⌥⌃H — there is nothing to do here.\nNo verified identity is "
       "bound to this Mac.",
       [](Desktop d) { d.keyStore.hasKey = false; }},
      {Act::settings, "\nEnrol This Mac\n", [](Desktop d) { d.keyStore.hasKey = false; }},
      {Act::settings, "key exists inside the Secure Enclave.", [](Desktop) {},
       "key exists inside the TPM.", "key exists in a key file, encrypted with your passphrase."},
      {Act::settings, "\nRe-enrol This Mac\n"},
      {Act::settings, "this Mac must be re-enrolled"},
      {Act::settings, "find out whether this Mac has a signing key",
       [](Desktop d) { d.keyStore.loadFailure = Error(Error::Fields{}); }},
      {Act::developmentSettings, "from the Secure Enclave key below.", [](Desktop) {},
       "from the TPM key below.", "from the signing key below."},
      {Act::menu, "\nSign Selected Text (⌘⌥⌃H)\n"},
      {Act::menu, "Hotkey Is Not Available", [](Desktop d) { d.hotkey.failure = failing("X"); }},
  };
}

/// Returns every text that the user sees in the story.
std::string shownIn(const Story& story, const desktop::Wording& wording) {
  FakeDesktop desktop;
  desktop.words.wording = wording;
  desktop.applications.front = desktop.applications.active = desktop::RunningApplication{
      .instance = 1, .name = "Mail", .bundleIdentifier = "mail", .categories = "", .document = ""};
  desktop.defaults.strings["ServerURL"] = "https://seal.example";
  desktop.keys.selection = Copy{.text = selection, .html = {}};
  desktop.alerts.confirmation = desktop::ConfirmationEntry{.choice = "Email Message", .field = ""};
  story.given(desktop);
  SigningCoordinator coordinator(desktop.services());
  MenuBarManager menu(desktop.services(), coordinator);
  const auto window = desktop.windows.make({.title = "Settings", .width = 1, .height = 1});
  TaskScope tasks;
  switch (story.act) {
    case Act::sign:
      for (int i = 0; i <= SigningCoordinator::mostRuns * desktop.alerts.leavesDialogsOpen; ++i)
        coordinator.startSigning();
      desktop.loop.run();
      break;
    case Act::enrol:
      tasks.start(coordinator.enrolDevice());
      desktop.loop.run();
      break;
    case Act::settings:
    case Act::developmentSettings: {
      const bool isPackaged = story.act == Act::settings;
      SettingsView view(
          {.defaults = desktop.defaults,
           .keyStore = desktop.keyStore,
           .log = desktop.log,
           .loop = desktop.loop,
           .words = desktop.words},
          coordinator, *window,
          isPackaged ? SettingsView::Build::packaged : SettingsView::Build::development);
      desktop.loop.run();
      break;
    }
    case Act::menu:
      menu.setupMenu();
      HotkeyManager({.alerts = desktop.alerts, .hotkey = desktop.hotkey, .log = desktop.log},
                    coordinator)
          .registerHotkey();
      break;
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
  const desktop::Wording mac = mac::MacWords().current();
  for (const Story& story : stories()) {
    EXPECT_THAT(shownIn(story, mac), HasSubstr(story.mac));
    const std::string tpm = story.tpm.empty() ? renamed(story.mac) : story.tpm;
    const std::string keyFile = story.keyFile.empty() ? tpm : story.keyFile;
    EXPECT_THAT(shownIn(story, linuxWording({.key = KeyPlace::tpm})), HasSubstr(tpm));
    EXPECT_THAT(shownIn(story, linuxWording({.key = KeyPlace::keyFile})), HasSubstr(keyFile));
    for (const KeyPlace place : {KeyPlace::tpm, KeyPlace::tpmSimulator, KeyPlace::keyFile}) {
      for (const bool isDemo : {false, true}) {
        const std::string shown = unicode::replacingAll(
            shownIn(story, linuxWording({.key = place, .isDemo = isDemo})), selection, "");
        for (const char* word :
             {"Mac", "Enclave", "Touch ID", "⌘", "⌥", "⌃", "biometric", "Outlook"})
          EXPECT_THAT(shown, Not(HasSubstr(word))) << story.mac;
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
