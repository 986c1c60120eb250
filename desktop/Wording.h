#pragma once

#include <string>

namespace quillseal::desktop {

/// The words in which the agent speaks of this desktop, its keys and the place of the device key.
/// Sentences that are the same everywhere are the agent's own; those that differ are here as a
/// whole. Examples are those of macOS.
struct Wording {
  std::string hotkey;              ///< "⌘⌥⌃H"
  std::string pasteKey;            ///< "⌘V"
  std::string machine;             ///< in a sentence: "Mac"
  std::string machineInTitle;      ///< "Mac"
  std::string proof;               ///< what a person signs with, in a sentence: "fingerprint"
  std::string proofInTitle;        ///< on the button that signs: "Touch ID"
  std::string exampleApplication;  ///< in which people write: "Outlook"

  // Of the device key; sentences end with a full stop.
  std::string deviceKey;        ///< by the place it is in: "Secure Enclave key"
  std::string signingKey;       ///< by its purpose: "Secure Enclave signing key"
  std::string keyRequired;      ///< title of the alert that shows `keyUnsupported`
  std::string keyUnsupported;   ///< there is no place for a key
  std::string keyExists;        ///< status in the settings
  std::string keyCreated;       ///< where it is and what using it takes
  std::string publicKeyFailed;  ///< the public half cannot be read
  std::string signingFailed;    ///< before a colon and the reason: "Secure Enclave signing failed"
  std::string unnamedReason;    ///< the reason when the platform gives none

  std::string scopeNote;  ///< a sentence: the signature covers medium and recipient
  std::string
      serverAdvice;  ///< a sentence: no server is set in a packaged build, and how to set it
};

/// Where the agent gets its words. Main thread.
class Words {
 public:
  virtual ~Words() = default;

  /// Called again for every text, since the key's place can change. Does not block.
  [[nodiscard]] virtual Wording current() const = 0;

  /// What would make this program more useful on the desktop, in sentences for the settings; empty
  /// for nothing.
  [[nodiscard]] virtual std::string desktopAdvice() const { return {}; }
};

}  // namespace quillseal::desktop
