#include "MacDesktop/MacWords.h"

#include "desktop/SigningHotkey.h"

namespace quillseal::mac {
namespace {

/// Returns the key press as menus show it.
std::string nameOf(desktop::KeyPress press) {
  using desktop::Modifiers;
  std::string name;
  if (desktop::contains(press.modifiers, Modifiers::command)) name += "⌘";
  if (desktop::contains(press.modifiers, Modifiers::option)) name += "⌥";
  if (desktop::contains(press.modifiers, Modifiers::control)) name += "⌃";
  return name + static_cast<char>(desktop::letterOf(press.key) - 'a' + 'A');
}

}  // namespace

desktop::Wording MacWords::current() const {
  return {
      .hotkey = nameOf(desktop::signingHotkey),
      .pasteKey = "⌘V",
      .machine = "Mac",
      .machineInTitle = "Mac",
      .proof = "fingerprint",
      .proofInTitle = "Touch ID",
      .exampleApplication = "Outlook",
      .deviceKey = "Secure Enclave key",
      .signingKey = "Secure Enclave signing key",
      .keyRequired = "Secure Enclave Required",
      .keyUnsupported =
          "This Mac has no Secure Enclave, so content cannot be signed in a way that proves a "
          "person authorized it.",
      .keyExists = "Enrolled — a signing key exists inside the Secure Enclave.",
      .keyCreated =
          "A signing key was created inside the Secure Enclave. It cannot be copied off this Mac, "
          "and every signature requires Touch ID.",
      .publicKeyFailed = "Could not export the Secure Enclave public key.",
      .signingFailed = "Secure Enclave signing failed",
      .unnamedReason = "user cancelled or biometric failed",
      .scopeNote =
          "The medium and recipient are covered by your fingerprint, so this signature does not "
          "verify cleanly if the text is moved elsewhere.",
      .serverAdvice =
          "This build names no signing server. Set “ServerURL” to the address of one with "
          "“defaults write”, or install a packaged build from your provider.",
  };
}

}  // namespace quillseal::mac
