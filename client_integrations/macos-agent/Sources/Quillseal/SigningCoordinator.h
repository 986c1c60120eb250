#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Quillseal/AccessibilityManager.h"
#include "Quillseal/ClipboardManager.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "Quillseal/ServerClient.h"
#include "core/tasks/Async.h"
#include "core/tasks/Task.h"
#include "desktop/Desktop.h"

namespace quillseal {

/// How a signature is obtained.
enum class SigningMode {
  enclave,  ///< the device key signs, the server records it
  handoff,  ///< the user signs on a page of the server in the browser
  demo,     ///< a presence check and a demonstration record; no real signature
};

/// Turns a press of the hotkey into a signed block where the text was selected, or on the clipboard
/// alone where that is no longer in front. Main thread; there is one.
///
/// Several runs may be under way, for a second press while the first waits for the user: each keeps
/// to itself what it captured and which tab it came from. Making a key and using the clipboard are
/// done by one task at a time. Destroying the coordinator ends all runs where they wait.
class SigningCoordinator {
 public:
  /// The services outlive the coordinator.
  explicit SigningCoordinator(const desktop::Desktop& desktop);

  /// How many runs may be under way at once: far more than a person has open, and few enough that
  /// a program that keeps asking for signatures costs little.
  static constexpr int mostRuns = 5;

  /// Starts a run of `performSigningWorkflow`, unless `mostRuns` are under way. The user is told of
  /// the first one that is turned away, and of no other until there is room again.
  void startSigning();

  /// One run: capture, refusals, screening, signature, delivery. Tells the user whatever they must
  /// know and never throws.
  [[nodiscard]] Task<> performSigningWorkflow();

  /// How this machine signs. On the first run it tries to make a key, and remembers the outcome.
  /// Throws Cancelled when the person called that off.
  [[nodiscard]] Task<SigningMode> resolveSigningMode();

  /// Whether there is a device key; makes and registers one when there is none. Tells the user of
  /// failures.
  [[nodiscard]] Task<bool> ensureEnrolled();

  /// Makes a new key and registers it, and tells the user how that went. Never throws.
  [[nodiscard]] Task<> enrolDevice();

  /// What a signature by the device key binds, and the subject that its prompt names.
  struct Signable {
    std::string textDigest;
    std::string issued;
    std::string scope;
    std::string imageDigest;
    std::string subject;
    std::string expires;
    std::string commitment;
    std::string nonce;
  };

  /// Signs with the device key and registers the signature; gives its identifier.
  [[nodiscard]] Task<std::string> signOnce(Signable signable);

  /// The same; if the server does not know the device, registers its key again and retries once.
  [[nodiscard]] Task<std::string> signWithRecovery(Signable signable);

  /// Whether an error's description says that the server does not know this device.
  [[nodiscard]] static bool isDeviceNotEnrolled(std::string_view description);

  struct Confirmable {
    std::string text;
    std::string scope;
    std::string issued;
  };

  struct Confirmed {
    std::string medium;
    std::string recipient;
  };

  /// The scope to sign: the captured one, or what the user makes of it in the confirmation dialog
  /// if they asked for that. Nothing when they cancelled.
  [[nodiscard]] Task<std::optional<std::string>> scopeForSigning(Confirmable confirmable);

  [[nodiscard]] Task<std::optional<Confirmed>> confirmSigning(Confirmable confirmable);

  struct HandoffContent {
    std::string text;
    std::optional<std::string> html;
    std::string textDigest;
    std::string issued;
    std::string scope;
    std::string imageDigest;
    std::optional<std::string> sourceBundleID;  ///< of the application the text came from
  };

  /// A signature made in the browser, and what leads back from there.
  struct HandoffResult {
    std::string signatureId;
    std::optional<std::string> signingBrowserBundleID;
    std::optional<std::string> sourceTabID;  ///< the tab that was in front before
    std::string handoffMarker;               ///< the signing tab's URL contains it
  };

  /// Opens the signing page and waits for the signature. Nothing when the wait ended without one;
  /// the user has then been told.
  [[nodiscard]] Task<std::optional<HandoffResult>> signViaBrowser(HandoffContent content);

  /// A browser that is being asked to open a page.
  struct BrowserOpening {
    std::optional<std::string> bundleIdentifier;
    std::shared_ptr<std::optional<Error>> failure;  ///< why neither way of opening worked
    desktop::Ticket ticket;  ///< kept for the other way of opening, if this one fails
  };

  /// Opens `url` in the preferred browser, or else in the default one; without waiting, and as the
  /// desktop sees fit when that fails.
  [[nodiscard]] BrowserOpening openInSigningBrowser(const std::string& url);

 private:
  struct Delivery {
    std::string signatureId;
    std::string issued;
    std::string scope;
    ClipboardManager::AutoPaste autoPaste = ClipboardManager::AutoPaste::yes;
  };

  /// What is to be signed, as it was captured.
  struct Statement {
    std::string text;  ///< without white space at its ends
    std::string issued;
    std::string textDigest;
    std::string imageDigest;
    std::int64_t wordCount = 0;
  };

  Task<> countedRun();
  void turnAway();
  Task<> signSelectedText();
  [[nodiscard]] Task<std::optional<SigningMode>> modeReadyToSign();
  [[nodiscard]] std::string configurationAdvice() const;
  [[nodiscard]] Task<std::optional<CapturedContent>> captureSelection();
  [[nodiscard]] Statement statementOf(const CapturedContent& content);
  [[nodiscard]] Task<bool> passesRefusals(const std::string& text);
  void logScreening(const ContentRisk::Screening& screening);
  Task<> signInBrowser(const Statement& statement, const CapturedContent& content);
  Task<> signHere(SigningMode mode, const Statement& statement, const CapturedContent& content);
  [[nodiscard]] Task<std::optional<std::string>> demonstrate(Signable signable);
  [[nodiscard]] Task<AsyncMutex::Lock> clipboardToWrite();
  Task<> deliver(Delivery delivery, const CapturedContent& content);
  Task<> deliverFromBrowser(Delivery delivery, HandoffResult handoff,
                            const CapturedContent& content);
  [[nodiscard]] Task<ClipboardManager::Injected> inject(Delivery delivery,
                                                        const CapturedContent& content);
  Task<> tellOfSuccess(ClipboardManager::Injected injected, Delivery delivery,
                       const CapturedContent& content);
  void notifyOfSuccess();
  void notify(const desktop::Notification& notification);
  Task<> showAlert(std::string title, std::string body);
  Task<> showAlertOrLog(std::string title, std::string body);
  Task<bool> asksToSignAnyway(std::string warning);
  Task<bool> asksToCopyAgain(std::string cause);
  Task<bool> isConfirmed(desktop::Question question);

  Task<> makeAndRegisterKey();
  Task<> registerDevice();

  void writeDebugCapture(std::string_view text);
  [[nodiscard]] std::string boundIdentity() const;
  [[nodiscard]] SecureEnclaveManager::Services keyServices() const;

  desktop::Desktop desktop_;
  ServerClient serverClient_;
  int runCount_ = 0;
  bool hasTurnedAway_ = false;  ///< since there was room for another run
  // Some steps must not be interrupted by another task's. Two that made a key side by side could
  // leave one on this machine and the other's public half on the server; a copy between writing the
  // block and pasting it would have the copy pasted.
  AsyncMutex keyCreation_{desktop_.loop};
  AsyncMutex clipboard_{desktop_.loop};  ///< and the keyboard: capturing or pasting
  TaskScope runs_;                       ///< last: the tasks use all of the above
};

}  // namespace quillseal
