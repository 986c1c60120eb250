#include "LinuxWording.h"

#include <string>

#include "desktop/SigningHotkey.h"
#include "keyboard/KeyChords.h"

namespace quillseal::linux {
namespace {

/// Sets the sentences for a key in the TPM instead of a file.
void speakOfTpm(desktop::Wording& words, const std::string& tpm) {
  words.proof = words.proofInTitle = "PIN";
  words.deviceKey = tpm + " key";
  words.keyExists = "Enrolled — a signing key exists inside the " + tpm + ".";
  words.keyCreated = "A signing key was created inside the " + tpm +
                     ". It cannot be copied off this computer, and every signature requires your "
                     "PIN.";
  words.publicKeyFailed = "Could not export the public key of the key in the " + tpm + ".";
  words.signingFailed = "Signing with the " + tpm + " failed";
  words.unnamedReason = "it was cancelled, or the PIN was wrong.";
}

void speakOfKeyFile(desktop::Wording& words) {
  words.proof = "passphrase";
  words.proofInTitle = "Passphrase";
  words.deviceKey = "signing key";
  words.keyExists =
      "Enrolled — a signing key exists in a key file, encrypted with your passphrase.";
  words.keyCreated =
      "A signing key was created in a key file on this computer. Every signature requires your "
      "passphrase: anyone who has a copy of the file and the passphrase can sign in your name.";
  words.publicKeyFailed = "Could not export the public key from the key file.";
  words.signingFailed = "Signing with the key file failed";
  words.unnamedReason = "it was cancelled, or the passphrase was wrong.";
}

}  // namespace

desktop::Wording linuxWording(const WordingCircumstances& circumstances) {
  desktop::Wording words;
  words.hotkey = circumstances.otherHotkey.empty() ? nameOf(desktop::signingHotkey)
                                                   : circumstances.otherHotkey;
  words.pasteKey = "Ctrl+V";
  words.machine = "computer";
  words.machineInTitle = "Computer";
  words.exampleApplication = "Thunderbird";
  words.signingKey = "signing key";
  words.keyRequired = "Signing Key Required";
  words.keyUnsupported =
      "This computer has no usable TPM and no place for a key file, so content cannot be signed in "
      "a way that proves a person authorized it.";
  words.scopeNote =
      "The medium and recipient are covered by your signature, so it does not verify cleanly if "
      "the text is moved elsewhere.";
  words.serverAdvice =
      "This build names no signing server. Write a line “ServerURL=” with the address of one into "
      "~/.config/Quillseal/Quillseal.conf, or install a packaged build from your provider.";
  switch (circumstances.key) {
    case KeyPlace::tpm:
      speakOfTpm(words, "TPM");
      break;
    case KeyPlace::tpmSimulator:
      speakOfTpm(words, "TPM simulator");
      break;
    case KeyPlace::keyFile:
      speakOfKeyFile(words);
      break;
  }
  // In advance it is not known which of the two will be used.
  if (circumstances.isDemo) {
    words.proof = "fingerprint or password";
    words.proofInTitle = "Fingerprint or Password";
  }
  return words;
}

}  // namespace quillseal::linux
