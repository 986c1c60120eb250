#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text/UnicodeText.h"
#include "session/PlatformWording.h"

namespace quillseal::PlatformWording {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr Circumstances withTpm = {.key = KeyPlace::tpm, .proof = Proof::pin};
constexpr Circumstances withFile = {.key = KeyPlace::keyFile, .proof = Proof::passphrase};

// Where nothing but machine and keys have other names.
constexpr std::string_view renamed[] = {
    "Sign Selected Text (⌘⌥⌃H)",
    "This Mac",
    "Re-enrol This Mac",
    "Enrol This Mac",
    "Could Not Set Up This Mac",
    "✅ This Mac Is Enrolled",
    "Not set up yet. This happens automatically the first time you press ⌘⌥⌃H — there is nothing "
    "to do here.",
    "No verified identity is bound to this Mac. Signatures will be shown to readers as "
    "\"anonymous human\" — proof that a person signed, but not who. That is not a basis for "
    "trusting a payment request.",
    "Re-enrolling creates a NEW key. Signatures already made remain verifiable, but this Mac must "
    "be re-enrolled on the server.",
    "The signed content is on your clipboard.\n\nSwitch back to your message in Chromium, select "
    "the text you signed, and press ⌘V.\n\nQuillseal cannot paste it for you here: the signing "
    "page opened in the same browser, so it would land in the wrong tab.",
    "The signed content is on your clipboard.\n\nOpen your message again in Chromium, select the "
    "text you signed, and press ⌘V.\n\nQuillseal did not paste it for you: the window that you "
    "signed in is closed.",
    "Nothing was signed: another window came to the front before the text was copied.\n\nGo back "
    "to your text, select it and press ⌘⌥⌃H again.",
    "Quillseal stopped waiting for the browser. If you did sign, the signature exists and is "
    "valid — press ⌘⌥⌃H again to insert a fresh one, or copy the link from the browser tab.",
    "The request timed out before it was signed. Nothing was signed. Select your text and press "
    "⌘⌥⌃H again.",
    // Texts that a row too greedy would take for its own.
    "Server: https://seal.example.com",
    "Enrolment Failed",
    "•  Credential phishing — asks the reader to verify an account\n\nReword these parts, or don’t "
    "sign it.",
    "Sign this anyway?",
    "Could not build the signing URL.",
    "Signed — Paste It Into Your Message",
    "",
};

std::string renamedWordByWord(std::string_view text) {
  std::string result(text);
  for (const auto& [from, to] : {std::pair{"⌘⌥⌃H", "Ctrl+Alt+Super+H"},
                                 {"⌘V", "Ctrl+V"},
                                 {"This Mac", "This Computer"},
                                 {"this Mac", "this computer"}})
    result = unicode::replacingAll(result, from, to);
  return result;
}

struct Row {
  std::string_view text;
  std::string_view tpm;
  std::string_view keyFile = tpm;
};

constexpr Row rewritten[] = {
    {"This key authorizes the app build. It is not proof of who you are — that comes from the "
     "Secure Enclave key below.",
     "This key authorizes the app build. It is not proof of who you are — that comes from the TPM "
     "key below.",
     "This key authorizes the app build. It is not proof of who you are — that comes from the "
     "signing key below."},
    {"This build names no signing server. Set “ServerURL” to the address of one with “defaults "
     "write”, or install a packaged build from your provider.",
     "This build names no signing server. Write a line “ServerURL=” with the address of one into "
     "~/.config/Quillseal/Quillseal.conf, or install a packaged build from your provider."},
    {"Enrolled — a signing key exists inside the Secure Enclave.",
     "Enrolled — a signing key exists inside the TPM.",
     "Enrolled — a signing key exists in a key file, encrypted with your passphrase."},
    {"Quillseal could not register this Mac with https://a.example.\n\n"
     "Could not create the Secure Enclave signing key: the disk is full.",
     "Quillseal could not register this computer with https://a.example.\n\n"
     "Could not create the signing key: the disk is full."},
    {"A signing key was created inside the Secure Enclave. It cannot be copied off this Mac, and "
     "every signature requires Touch ID.\n\nNo verified identity is bound to this Mac yet.",
     "A signing key was created inside the TPM. It cannot be copied off this computer, and every "
     "signature requires your PIN.\n\nNo verified identity is bound to this computer yet.",
     "A signing key was created in a key file on this computer. Every signature requires your "
     "passphrase: whoever copies the file and learns it can sign in your name.\n\n"
     "No verified identity is bound to this computer yet."},
    {"This Mac has no Secure Enclave, so content cannot be signed in a way that proves a person "
     "authorized it.",
     "This computer has no usable TPM and no place for a key file, so content cannot be signed in "
     "a way that proves a person authorized it."},
    {"Secure Enclave signing failed: the PIN was wrong three times.",
     "Signing with the TPM failed: the PIN was wrong three times.",
     "Signing with the key file failed: the PIN was wrong three times."},
    {"Secure Enclave signing failed: user cancelled or biometric failed",
     "Signing with the TPM failed: it was cancelled, or the PIN was wrong.",
     "Signing with the key file failed: it was cancelled, or the passphrase was wrong."},
    {"No Secure Enclave signing key is enrolled. Enrol this Mac in Quillseal Settings.",
     "No signing key is enrolled. Enrol this computer in Quillseal Settings."},
    {"Could not export the Secure Enclave public key.",
     "Could not export the public key of the key in the TPM.",
     "Could not export the public key from the key file."},
    {"Secure Enclave Required", "Signing Key Required"},
    {"Please type or highlight some text in Outlook (or any app) before pressing ⌘⌥⌃H.",
     "Please type or highlight some text in Thunderbird (or any app) before pressing "
     "Ctrl+Alt+Super+H."},
    {"The medium and recipient are covered by your fingerprint, so this signature does not verify "
     "cleanly if the text is moved elsewhere.",
     "The medium and recipient are covered by your signature, so it does not verify cleanly if the "
     "text is moved elsewhere."},
    {"Sign with Touch ID", "Sign with PIN", "Sign with Passphrase"},
};

TEST(PlatformWording, EveryTextReadsAsIfWrittenForTheMachine) {
  for (const Row& row : rewritten) {
    EXPECT_EQ(adapted(row.text, withTpm), row.tpm);
    EXPECT_EQ(adapted(row.text, withFile), row.keyFile);
    for (const Circumstances& circumstances :
         {withTpm, withFile, Circumstances{.key = KeyPlace::tpm, .proof = Proof::presence}}) {
      const std::string text = adapted(row.text, circumstances);
      for (const char* word : {"Mac", "Enclave", "Touch ID", "⌘", "⌥", "⌃", "biometric", "{", "}"})
        EXPECT_THAT(text, Not(HasSubstr(word)));
      EXPECT_EQ(adapted(text, circumstances), text);
    }
  }
  for (const std::string_view text : renamed) {
    EXPECT_EQ(adapted(text, withTpm), renamedWordByWord(text));
    EXPECT_EQ(adapted(text, withFile), renamedWordByWord(text));
  }
}

TEST(PlatformWording, NamesASimulator) {
  EXPECT_EQ(adapted("Enrolled — a signing key exists inside the Secure Enclave.",
                    withKeyIn(KeyPlace::tpmSimulator)),
            "Enrolled — a signing key exists inside the TPM simulator.");
}

// What is about to be signed is shown as it is, even where it speaks as the agent does.
TEST(PlatformWording, TheTextToBeSignedIsUntouched) {
  const std::string opening =
      "You are about to cryptographically authorize the following text with your ";
  const std::string rest =
      ".\n\nThis Mac\n\nCould Not Set Up This Mac\n\nSign with Touch ID and your fingerprint: "
      "press ⌘V.\n\n, select the text you signed, and press ⌘V.\n\nContext: This Mac";
  struct Case {
    Circumstances circumstances;
    std::string proof;
    std::string button;
  };
  const Case cases[] = {
      {withTpm, "PIN", "Sign with PIN"},
      {withFile, "passphrase", "Sign with Passphrase"},
      {{.key = KeyPlace::tpm, .proof = Proof::presence},
       "fingerprint or password",
       "Sign with Fingerprint or Password"},
  };
  for (const Case& row : cases) {
    const desktop::ConfirmationForm form = adapted(
        desktop::ConfirmationForm{
            .question = {.title = "Sign this content?",
                         .body = opening + "fingerprint" + rest,
                         .style = desktop::AlertStyle::informational,
                         .confirm = "Sign with Touch ID",
                         .cancel = "Cancel"},
            .choices = {"This Mac"},
            .selectedChoice = 0,
            .fieldPlaceholder = "Recipient",
            .note = "The medium and recipient are covered by your fingerprint, so this "
                    "signature does not verify cleanly if the text is moved elsewhere."},
        row.circumstances);
    EXPECT_EQ(form.question.body, opening + row.proof + rest);
    EXPECT_EQ(form.question.confirm, row.button);
    EXPECT_EQ(form.choices.front(), "This Mac");
    EXPECT_THAT(form.note, HasSubstr("your signature"));
  }
}

TEST(PlatformWording, ReachesEveryPartOfAFormButWhatTheUserTyped) {
  desktop::Form form;
  form.sections = {
      {.header = "This Mac",
       .rows = {desktop::FormStatus{.symbol = "This Mac",
                                    .symbolColour = desktop::TextColour::green,
                                    .text = {.text = "Enrol This Mac"}},
                desktop::FormText{.text = "Re-enrol This Mac"},
                desktop::FormButton{.label = "Enrol This Mac", .enabled = true, .pressed = {}},
                desktop::FormField{
                    .label = "This Mac", .value = "This Mac", .masked = false, .changed = {}}}}};
  const desktop::FormSection section = adapted(form, withTpm).sections.front();
  EXPECT_EQ(section.header, "This Computer");
  EXPECT_EQ(std::get<desktop::FormStatus>(section.rows[0]).text.text, "Enrol This Computer");
  EXPECT_EQ(std::get<desktop::FormText>(section.rows[1]).text, "Re-enrol This Computer");
  EXPECT_EQ(std::get<desktop::FormButton>(section.rows[2]).label, "Enrol This Computer");
  EXPECT_EQ(std::get<desktop::FormField>(section.rows[3]).label, "This Computer");
  EXPECT_EQ(std::get<desktop::FormField>(section.rows[3]).value, "This Mac");
}

}  // namespace
}  // namespace quillseal::PlatformWording
