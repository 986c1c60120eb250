#include "session/PlatformWording.h"

#include <type_traits>
#include <variant>

#include "core/text/UnicodeText.h"

namespace quillseal::PlatformWording {

namespace {

enum class Match {
  whole,      ///< the paragraph is exactly this
  beginning,  ///< the paragraph begins with this; what follows stays
  end,        ///< the paragraph ends with this; what precedes stays
  opening,    ///< the text begins with this; all that follows, other paragraphs too, stays
};

/// In the new texts, {place} is "TPM" or "TPM simulator", {proof} and {Proof} what the person
/// enters or shows.
struct Row {
  Match match;
  std::string_view from;
  std::string_view to;
  std::string_view toWithKeyFile = to;
};

constexpr Row rows[] = {
    // The menu.
    {Match::whole, "Sign Selected Text (⌘⌥⌃H)", "Sign Selected Text (Ctrl+Alt+Super+H)"},

    // The key's errors.
    {Match::beginning,
     "Could not create the Secure Enclave signing key: ", "Could not create the signing key: "},
    {Match::whole, "Secure Enclave signing failed: user cancelled or biometric failed",
     "Signing with the {place} failed: it was cancelled, or the PIN was wrong.",
     "Signing with the key file failed: it was cancelled, or the passphrase was wrong."},
    {Match::beginning, "Secure Enclave signing failed: ", "Signing with the {place} failed: ",
     "Signing with the key file failed: "},
    {Match::whole,
     "This Mac has no Secure Enclave, so content cannot be signed in a way that proves a person "
     "authorized it.",
     "This computer has no usable TPM and no place for a key file, so content cannot be signed in "
     "a way that proves a person authorized it."},
    {Match::whole,
     "No Secure Enclave signing key is enrolled. Enrol this Mac in Quillseal Settings.",
     "No signing key is enrolled. Enrol this computer in Quillseal Settings."},
    {Match::whole, "Could not export the Secure Enclave public key.",
     "Could not export the public key of the key in the {place}.",
     "Could not export the public key from the key file."},

    // The settings.
    {Match::whole,
     "This key authorizes the app build. It is not proof of who you are — that comes from the "
     "Secure Enclave key below.",
     "This key authorizes the app build. It is not proof of who you are — that comes from the "
     "{place} key below.",
     "This key authorizes the app build. It is not proof of who you are — that comes from the "
     "signing key below."},
    {Match::whole, "This Mac", "This Computer"},
    {Match::whole, "Enrolled — a signing key exists inside the Secure Enclave.",
     "Enrolled — a signing key exists inside the {place}.",
     "Enrolled — a signing key exists in a key file, encrypted with your passphrase."},
    {Match::whole,
     "Not set up yet. This happens automatically the first time you press ⌘⌥⌃H — there is nothing "
     "to do here.",
     "Not set up yet. This happens automatically the first time you press Ctrl+Alt+Super+H — there "
     "is nothing to do here."},
    {Match::beginning, "No verified identity is bound to this Mac",
     "No verified identity is bound to this computer"},
    {Match::whole, "Re-enrol This Mac", "Re-enrol This Computer"},
    {Match::whole, "Enrol This Mac", "Enrol This Computer"},
    {Match::whole,
     "Re-enrolling creates a NEW key. Signatures already made remain verifiable, but this Mac must "
     "be re-enrolled on the server.",
     "Re-enrolling creates a NEW key. Signatures already made remain verifiable, but this computer "
     "must be re-enrolled on the server."},

    // Configuration.
    {Match::whole,
     "This build names no signing server. Set “ServerURL” to the address of one with “defaults "
     "write”, or install a packaged build from your provider.",
     "This build names no signing server. Write a line “ServerURL=” with the address of one into "
     "~/.config/Quillseal/Quillseal.conf, or install a packaged build from your provider."},

    // Enrolment.
    {Match::whole, "Could Not Set Up This Mac", "Could Not Set Up This Computer"},
    {Match::beginning, "Quillseal could not register this Mac with ",
     "Quillseal could not register this computer with "},
    {Match::whole, "✅ This Mac Is Enrolled", "✅ This Computer Is Enrolled"},
    {Match::whole,
     "A signing key was created inside the Secure Enclave. It cannot be copied off this Mac, and "
     "every signature requires Touch ID.",
     "A signing key was created inside the {place}. It cannot be copied off this computer, and "
     "every signature requires your PIN.",
     "A signing key was created in a key file on this computer. Every signature requires your "
     "passphrase: whoever copies the file and learns it can sign in your name."},

    // A run.
    {Match::whole, "Secure Enclave Required", "Signing Key Required"},
    {Match::whole,
     "Please type or highlight some text in Outlook (or any app) before pressing ⌘⌥⌃H.",
     "Please type or highlight some text in Thunderbird (or any app) before pressing "
     "Ctrl+Alt+Super+H."},
    {Match::whole, "Go back to your text, select it and press ⌘⌥⌃H again.",
     "Go back to your text, select it and press Ctrl+Alt+Super+H again."},
    {Match::end, ", select the text you signed, and press ⌘V.",
     ", select the text you signed, and press Ctrl+V."},
    {Match::whole,
     "Quillseal stopped waiting for the browser. If you did sign, the signature exists and is "
     "valid — press ⌘⌥⌃H again to insert a fresh one, or copy the link from the browser tab.",
     "Quillseal stopped waiting for the browser. If you did sign, the signature exists and is "
     "valid — press Ctrl+Alt+Super+H again to insert a fresh one, or copy the link from the "
     "browser tab."},
    {Match::whole,
     "The request timed out before it was signed. Nothing was signed. Select your text and press "
     "⌘⌥⌃H again.",
     "The request timed out before it was signed. Nothing was signed. Select your text and press "
     "Ctrl+Alt+Super+H again."},

    // The confirmation. Its text goes on with the text to be signed.
    {Match::opening,
     "You are about to cryptographically authorize the following text with your fingerprint.\n\n",
     "You are about to cryptographically authorize the following text with your {proof}.\n\n"},
    {Match::whole,
     "The medium and recipient are covered by your fingerprint, so this signature does not verify "
     "cleanly if the text is moved elsewhere.",
     "The medium and recipient are covered by your signature, so it does not verify cleanly if the "
     "text is moved elsewhere."},
    {Match::whole, "Sign with Touch ID", "Sign with {Proof}"},
};

struct ProofNames {
  std::string_view inSentence;
  std::string_view inTitle;
};

ProofNames namesOf(Proof proof) {
  switch (proof) {
    case Proof::pin:
      return {.inSentence = "PIN", .inTitle = "PIN"};
    case Proof::passphrase:
      return {.inSentence = "passphrase", .inTitle = "Passphrase"};
    case Proof::presence:
      break;
  }
  return {.inSentence = "fingerprint or password", .inTitle = "Fingerprint or Password"};
}

std::string newText(const Row& row, const Circumstances& circumstances) {
  const ProofNames proof = namesOf(circumstances.proof);
  std::string text(circumstances.key == KeyPlace::keyFile ? row.toWithKeyFile : row.to);
  text = unicode::replacingAll(
      text, "{place}", circumstances.key == KeyPlace::tpmSimulator ? "TPM simulator" : "TPM");
  text = unicode::replacingAll(text, "{proof}", proof.inSentence);
  return unicode::replacingAll(text, "{Proof}", proof.inTitle);
}

std::string adaptedParagraph(std::string_view paragraph, const Circumstances& circumstances) {
  for (const Row& row : rows) {
    if (row.match == Match::whole && paragraph == row.from) return newText(row, circumstances);
    if (row.match == Match::beginning && paragraph.starts_with(row.from))
      return newText(row, circumstances).append(paragraph.substr(row.from.size()));
    if (row.match == Match::end && paragraph.ends_with(row.from))
      return std::string(paragraph.substr(0, paragraph.size() - row.from.size()))
          .append(newText(row, circumstances));
  }
  return std::string(paragraph);
}

void adapt(std::string& text, const Circumstances& circumstances) {
  text = adapted(std::string_view(text), circumstances);
}

}  // namespace

Circumstances withKeyIn(KeyPlace place) noexcept {
  return {.key = place, .proof = place == KeyPlace::keyFile ? Proof::passphrase : Proof::pin};
}

std::string adapted(std::string_view text, const Circumstances& circumstances) {
  for (const Row& row : rows)
    if (row.match == Match::opening && text.starts_with(row.from))
      return newText(row, circumstances).append(text.substr(row.from.size()));

  constexpr std::string_view gap = "\n\n";
  std::string result;
  for (;;) {
    const std::size_t end = text.find(gap);
    result += adaptedParagraph(text.substr(0, end), circumstances);
    if (end == std::string_view::npos) return result;
    result += gap;
    text.remove_prefix(end + gap.size());
  }
}

desktop::Alert adapted(desktop::Alert alert, const Circumstances& circumstances) {
  adapt(alert.title, circumstances);
  adapt(alert.body, circumstances);
  return alert;
}

desktop::Question adapted(desktop::Question question, const Circumstances& circumstances) {
  adapt(question.title, circumstances);
  adapt(question.body, circumstances);
  adapt(question.confirm, circumstances);
  adapt(question.cancel, circumstances);
  return question;
}

desktop::ConfirmationForm adapted(desktop::ConfirmationForm form,
                                  const Circumstances& circumstances) {
  form.question = adapted(std::move(form.question), circumstances);
  adapt(form.note, circumstances);
  return form;
}

desktop::Form adapted(desktop::Form form, const Circumstances& circumstances) {
  for (desktop::FormSection& section : form.sections) {
    adapt(section.header, circumstances);
    for (auto& row : section.rows) {
      std::visit(
          [&](auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, desktop::FormStatus>) {
              adapt(content.text.text, circumstances);
            } else if constexpr (std::is_same_v<Content, desktop::FormText>) {
              adapt(content.text, circumstances);
            } else {
              adapt(content.label, circumstances);
            }
          },
          row);
    }
  }
  return form;
}

desktop::StatusMenu adapted(desktop::StatusMenu menu, const Circumstances& circumstances) {
  for (desktop::MenuItem& item : menu.items)
    adapt(item.title, circumstances);
  return menu;
}

}  // namespace quillseal::PlatformWording
