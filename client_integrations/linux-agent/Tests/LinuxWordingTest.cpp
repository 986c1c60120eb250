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

using testing::FakeDesktop;
using ::testing::HasSubstr;
using ::testing::Not;

// It speaks as the agent does, and must come through as it is.
const std::string selection =
    "Could Not Set Up This Mac\n\nSign with Touch ID: press ⌘V, said my neighbour Grace about the "
    "Secure Enclave of her old laptop.";

enum class Act { sign, enrol, settings, developmentSettings, menu };

struct Story {
  std::function<void(FakeDesktop&)> given;
  Act act;
  std::string mac;  ///< part of what the person is shown
  /// The same on Linux. Where it is empty, only machine and keys have other names.
  std::string tpm = {};
  std::string keyFile = tpm;
};

std::function<void(FakeDesktop&)> whilePasting(std::function<void(FakeDesktop&)> happening) {
  return [happening = std::move(happening)](FakeDesktop& d) {
    d.beforePress = [&d, happening](desktop::Key key) {
      if (key == desktop::Key::v) happening(d);
    };
  };
}

std::function<void(FakeDesktop&)> inTheBrowser(const std::string& answer) {
  return [answer](FakeDesktop& d) {
    d.hasKey = false;
    d.strings["SigningMode"] = "handoff";
    d.front->bundleIdentifier = d.active->bundleIdentifier = "browser";
    d.defaultBrowser =
        desktop::InstalledApplication{.location = "b", .bundleIdentifier = "browser"};
    d.scriptResults = {std::optional<std::string>("42"), std::optional<std::string>("false")};
    d.answers["/api/handoff/poll"] = {{200, answer}};
  };
}

void nothing(FakeDesktop&) {}

std::vector<Story> stories() {
  const std::string switchBack =
      "Switch back to your message in Mail, select the text you signed, and press "
      "⌘V.\n\nQuillseal ";
  return {
      // A run.
      {nothing, Act::sign, "Signature Generated!"},
      {[](FakeDesktop& d) { d.canHoldKey = false; }, Act::sign,
       "Secure Enclave Required\nThis Mac has no Secure Enclave, so content cannot be signed in a "
       "way that proves a person authorized it.",
       "Signing Key Required\nThis computer has no usable TPM and no place for a key file, so "
       "content cannot be signed in a way that proves a person authorized it."},
      {[](FakeDesktop& d) { d.strings.erase("ServerURL"); }, Act::sign,
       "This build names no signing server. Set “ServerURL” to the address of one with “defaults "
       "write”, or install a packaged build from your provider.",
       "This build names no signing server. Write a line “ServerURL=” with the address of one into "
       "~/.config/Quillseal/Quillseal.conf, or install a packaged build from your provider."},
      {[](FakeDesktop& d) { d.selection.reset(); }, Act::sign,
       "Please type or highlight some text in Outlook (or any app) before pressing ⌘⌥⌃H.",
       "Please type or highlight some text in Thunderbird (or any app) before pressing "
       "Ctrl+Alt+Super+H."},
      {[](FakeDesktop& d) { d.beforePress = [&d](desktop::Key) { d.ended = {1}; }; }, Act::sign,
       "Go back to your text, select it and press ⌘⌥⌃H again."},
      {[](FakeDesktop& d) { d.selection->text = "Too few"; }, Act::sign, "too short"},
      {[](FakeDesktop& d) { d.selection->text = "I approve the payment. " + selection; }, Act::sign,
       "payment instructions cannot be signed"},
      {[](FakeDesktop& d) {
         d.selection->text = "Our bank details have changed since the last order. " + selection;
       },
       Act::sign, "Sign this anyway?"},
      {[](FakeDesktop& d) {
         d.leavesDialogsOpen = true;
         d.flags = {"ConfirmBeforeSigning"};
       },
       Act::sign, "Quillseal Is Busy"},
      {[](FakeDesktop& d) { d.flags = {"ConfirmBeforeSigning"}; }, Act::sign,
       "You are about to cryptographically authorize the following text with your "
       "fingerprint.\n\n" +
           selection + "\n\nContext: ",
       "You are about to cryptographically authorize the following text with your PIN.\n\n" +
           selection + "\n\nContext: ",
       "You are about to cryptographically authorize the following text with your "
       "passphrase.\n\n" +
           selection + "\n\nContext: "},
      {[](FakeDesktop& d) { d.flags = {"ConfirmBeforeSigning"}; }, Act::sign,
       "\nSign with Touch ID\n", "\nSign with PIN\n", "\nSign with Passphrase\n"},
      {[](FakeDesktop& d) { d.flags = {"ConfirmBeforeSigning"}; }, Act::sign,
       "The medium and recipient are covered by your fingerprint, so this signature does not "
       "verify cleanly if the text is moved elsewhere.",
       "The medium and recipient are covered by your signature, so it does not verify cleanly if "
       "the text is moved elsewhere."},
      {[](FakeDesktop& d) { d.flags = {"DemoSigning"}; }, Act::sign, "Signature Generated!"},
      {[](FakeDesktop& d) {
         d.signFailure = Error({.domain = "", .code = 0, .description = "No."});
       },
       Act::sign, "Secure Enclave signing failed: No.", "Signing with the TPM failed: No.",
       "Signing with the key file failed: No."},
      {[](FakeDesktop& d) { d.signFailure = Error(Error::Fields{}); }, Act::sign,
       "Secure Enclave signing failed: user cancelled or biometric failed",
       "Signing with the TPM failed: it was cancelled, or the PIN was wrong.",
       "Signing with the key file failed: it was cancelled, or the passphrase was wrong."},
      {whilePasting([](FakeDesktop& d) { d.ended = {1}; }), Act::sign,
       "Open your message again in Mail, select the text you signed, and press ⌘V.\n\nQuillseal "},
      {whilePasting([](FakeDesktop& d) { d.active.reset(); }), Act::sign,
       switchBack + "did not paste it for you: another window"},
      {whilePasting([](FakeDesktop& d) { d.active->document = "Rent"; }), Act::sign,
       switchBack + "did not paste it for you: the window shows"},
      {[](FakeDesktop& d) { d.front->categories = d.active->categories = "TerminalEmulator;"; },
       Act::sign, "does not paste into a terminal"},

      // In the browser.
      {inTheBrowser(R"({"status":"complete","signature_id":"s"})"), Act::sign,
       switchBack + "cannot paste it for you here: the signing page"},
      {inTheBrowser(R"({"status":"expired"})"), Act::sign,
       "The request timed out before it was signed. Nothing was signed. Select your text and press "
       "⌘⌥⌃H again."},
      {inTheBrowser(R"({"status":"waiting"})"), Act::sign,
       "Quillseal stopped waiting for the browser. If you did sign, the signature exists and is "
       "valid — press ⌘⌥⌃H again to insert a fresh one, or copy the link from the browser tab."},

      // Enrolment.
      {[](FakeDesktop& d) {
         d.hasKey = false;
         d.strings["SigningMode"] = "enclave";
         d.createFailure = Error({.domain = "", .code = 0, .description = "The disk is full."});
       },
       Act::sign,
       "Could Not Set Up This Mac\nQuillseal could not register this Mac with "
       "https://seal.example.\n\nCould not create the Secure Enclave signing key: The disk is "
       "full.",
       "Could Not Set Up This Computer\nQuillseal could not register this computer with "
       "https://seal.example.\n\nCould not create the signing key: The disk is full."},
      {nothing, Act::enrol,
       "✅ This Mac Is Enrolled\nA signing key was created inside the Secure Enclave. It cannot be "
       "copied off this Mac, and every signature requires Touch ID.\n\nSignatures will be",
       "✅ This Computer Is Enrolled\nA signing key was created inside the TPM. It cannot be copied "
       "off this computer, and every signature requires your PIN.\n\nSignatures will be",
       "✅ This Computer Is Enrolled\nA signing key was created in a key file on this computer. "
       "Every signature requires your passphrase: whoever copies the file and learns it can sign "
       "in your name.\n\nSignatures will be"},
      {[](FakeDesktop& d) {
         d.answers["/api/register_native"] = {{200, R"({"status":"ok","device_id":"d"})"}};
       },
       Act::enrol, "No verified identity is bound to this Mac yet, so signatures"},
      {[](FakeDesktop& d) { d.exportsKey = false; }, Act::enrol,
       "Enrolment Failed\nCould not export the Secure Enclave public key.",
       "Enrolment Failed\nCould not export the public key of the key in the TPM.",
       "Enrolment Failed\nCould not export the public key from the key file."},

      // The settings.
      {[](FakeDesktop& d) { d.hasKey = false; }, Act::settings,
       "\nThis Mac\nNot set up yet. This happens automatically the first time you press ⌘⌥⌃H — "
       "there is nothing to do here.\nNo verified identity is bound to this Mac. Signatures"},
      {[](FakeDesktop& d) { d.hasKey = false; }, Act::settings, "\nEnrol This Mac\n"},
      {nothing, Act::settings, "Enrolled — a signing key exists inside the Secure Enclave.",
       "Enrolled — a signing key exists inside the TPM.",
       "Enrolled — a signing key exists in a key file, encrypted with your passphrase."},
      {nothing, Act::settings,
       "\nRe-enrol This Mac\nRe-enrolling creates a NEW key. Signatures already made remain "
       "verifiable, but this Mac must be re-enrolled on the server.\n"},
      {[](FakeDesktop& d) { d.loadFailure = Error(Error::Fields{}); }, Act::settings,
       "Quillseal could not find out whether this Mac has a signing key: the"},
      {nothing, Act::developmentSettings,
       "not proof of who you are — that comes from the Secure Enclave key below.",
       "not proof of who you are — that comes from the TPM key below.",
       "not proof of who you are — that comes from the signing key below."},

      // The menu and the hotkey.
      {nothing, Act::menu, "\nSign Selected Text (⌘⌥⌃H)\n"},
      {[](FakeDesktop& d) {
         d.hotkeyFailure = Error({.domain = "", .code = 0, .description = "X"});
       },
       Act::menu, "Hotkey Is Not Available"},
  };
}

/// All that the person is shown in the story.
std::string shownIn(const Story& story, const desktop::Wording& wording) {
  FakeDesktop desktop;
  desktop.wording = wording;
  desktop.front = desktop.active = desktop::RunningApplication{
      .instance = 1, .name = "Mail", .bundleIdentifier = "mail", .categories = "", .document = ""};
  desktop.strings["ServerURL"] = "https://seal.example";
  desktop.selection = FakeDesktop::Copy{.text = selection, .html = {}};
  desktop.confirmation = desktop::ConfirmationEntry{.choice = "Email Message", .field = ""};
  story.given(desktop);
  SigningCoordinator coordinator(desktop.services());
  MenuBarManager menu(desktop.services(), coordinator);
  const auto window = desktop.make({.title = "Settings", .width = 1, .height = 1});
  TaskScope tasks;
  switch (story.act) {
    case Act::sign:
      for (int i = 0; i <= SigningCoordinator::mostRuns * desktop.leavesDialogsOpen; ++i)
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
          {.defaults = desktop,
           .keyStore = desktop,
           .log = desktop,
           .loop = desktop.loop,
           .words = desktop},
          coordinator, *window,
          isPackaged ? SettingsView::Build::packaged : SettingsView::Build::development);
      desktop.loop.run();
      break;
    }
    case Act::menu:
      menu.setupMenu();
      HotkeyManager({.alerts = desktop, .hotkey = desktop, .log = desktop}, coordinator)
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
