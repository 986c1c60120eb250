#include "Quillseal/SigningCoordinator.h"

#include <chrono>
#include <cstddef>
#include <exception>
#include <functional>
#include <utility>
#include <vector>

#include "Quillseal/AuthManager.h"
#include "Quillseal/BrowserTabReturn.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/Settings.h"
#include "core/signing/ConfirmationText.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/IdentityName.h"
#include "core/signing/SignedBlock.h"
#include "core/signing/SigningScope.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;

constexpr std::int64_t nonceBytes = 16;
constexpr const char* commitment = "statement";
constexpr auto pollInterval = 2s;
constexpr auto longestWaitForBrowser = 570s;
constexpr auto tabSwitchTime = 500ms;
constexpr std::size_t longestIdentity = 1000;     // bytes
constexpr std::size_t longestPageAddress = 2000;  // bytes
constexpr const char* debugCapturePath = "/Library/Logs/Quillseal-signed-text.txt";

constexpr const char* notConfigured = "Quillseal Is Not Configured";
constexpr std::string_view enclaveWord = "enclave";
constexpr std::string_view handoffWord = "handoff";

Error quillsealError(std::string description) {
  return Error({.domain = "Quillseal", .code = 0, .description = std::move(description)});
}

/// Words for the user, whatever was thrown.
std::string describe(const std::exception& error) {
  const std::string words = error.what();
  if (dynamic_cast<const Error*>(&error) == nullptr)
    return "Something unexpected went wrong in Quillseal (" + words + "). Nothing was signed.";
  return words.empty() ? "The system gave no reason." : words;
}

/// Identifiers from the server are put into links, markup and scripts.
void requireSafe(const std::string& identifier) {
  if (SignedBlock::isSafeIdentifier(identifier)) return;
  throw quillsealError(
      "The server answered with an identifier that Quillseal cannot use safely, so nothing was put "
      "on the clipboard. Check the server address in Settings, or ask your provider.");
}

std::string joinedIds(const std::vector<ContentRisk::Finding>& findings) {
  std::string ids;
  for (const ContentRisk::Finding& finding : findings)
    ids.append(ids.empty() ? "" : ", ").append(finding.id);
  return ids;
}

struct TwoScreenings {
  ContentRisk::Screening asWritten;
  std::optional<ContentRisk::Screening> asRead;  ///< where it reads otherwise, and was not refused
};

TwoScreenings screenTwice(const std::string& text) {
  TwoScreenings screenings{.asWritten = ContentRisk::screen(text), .asRead = {}};
  if (!screenings.asWritten.assessment.isBlocked)
    screenings.asRead = ContentRisk::screenAsRead(text, screenings.asWritten);
  return screenings;
}

bool isSet(const std::optional<std::string>& text) {
  return text && !text->empty();
}

constexpr const char* anotherHasKeyboard =
    "something else has the keyboard, such as an open menu, a question of the desktop or the "
    "screen lock";

std::string hotkeyHeld(const desktop::Wording& words) {
  return "the keys of " + words.hotkey + " were held for too long";
}

/// Why there is nothing to sign.
desktop::Alert alertWithoutText(AccessibilityManager::CopyOutcome outcome,
                                const desktop::Wording& words) {
  using AccessibilityManager::CopyOutcome;
  std::string reason;
  switch (outcome) {
    case CopyOutcome::declined:
      reason = "another window came to the front before the text was copied";
      break;
    case CopyOutcome::keyboardTaken:
      reason = anotherHasKeyboard;
      break;
    case CopyOutcome::keysHeld:
      reason = hotkeyHeld(words);
      break;
    case CopyOutcome::documentChanged:
      reason = "the window showed another document or tab before the text was copied";
      break;
    case CopyOutcome::sourceClosed:
      reason = "the window was closed before the text was copied";
      break;
    default:
      break;
  }
  if (reason.empty()) {
    return {.title = "No Text Found",
            .body = "Please type or highlight some text in " + words.exampleApplication +
                    " (or any app) before pressing " + words.hotkey + "."};
  }
  return {.title = "Not Signed",
          .body = "Nothing was signed: " + reason +
                  ".\n\nGo back to your text, select it and press " + words.hotkey + " again."};
}

/// How the person pastes what Quillseal did not.
desktop::Alert alertToPaste(ClipboardManager::Placement placement,
                            const std::optional<desktop::RunningApplication>& source,
                            const desktop::Wording& words) {
  using ClipboardManager::Placement;
  const bool hasName = source && isSet(source->name);
  const std::string name = hasName ? *source->name : "the application it came from";
  const std::string switchBack = "Switch back to your message in ";
  const std::string selectAndPaste =
      ", select the text you signed, and press " + words.pasteKey + ".\n\n";
  std::string steps;
  switch (placement) {
    case Placement::sourceNotInFront:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: another window is in front, so it would land in "
              "the wrong place.";
      break;
    case Placement::keyboardTaken:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: " + anotherHasKeyboard + ".";
      break;
    case Placement::keysHeld:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: " + hotkeyHeld(words) + ".";
      break;
    case Placement::notAllowed:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: your desktop does not let it press keys.";
      break;
    case Placement::leftLate:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: another window may be in front by now.";
      break;
    case Placement::documentChanged:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: the window shows another document or tab than "
              "the one you signed in, so it would land in the wrong place.";
      break;
    case Placement::sourceClosed:
      steps = "Open your message again in " + name + selectAndPaste +
              "Quillseal did not paste it for you: the window that you signed in is closed.";
      break;
    case Placement::sourceUnknown:
      steps = "Go back to your message" + selectAndPaste +
              "Quillseal did not paste it for you: it does not know which window the text came "
              "from, so it might land in the wrong place.";
      break;
    case Placement::terminal:
      steps =
          "Paste it where you need it.\n\nQuillseal does not paste into a terminal: a shell there "
          "would run each line as a command.";
      break;
    case Placement::maybeTerminal:
      steps = switchBack + name + selectAndPaste +
              "Quillseal did not paste it for you: it does not know this application. If that is a "
              "terminal, do not paste there: a shell would run each line as a command.";
      break;
    default:
      steps = switchBack + (hasName ? name : "your browser") + selectAndPaste +
              "Quillseal cannot paste it for you here: the signing page opened in the same "
              "browser, so it would land in the wrong tab.";
      break;
  }
  return {.title = "Signed — Paste It Into Your Message",
          .body = "The signed content is on your clipboard.\n\n" + steps};
}

}  // namespace

SigningCoordinator::SigningCoordinator(const desktop::Desktop& desktop)
    : desktop_(desktop),
      serverClient_({.defaults = desktop.defaults,
                     .http = desktop.http,
                     .machine = desktop.machine,
                     .wallClock = desktop.wallClock}) {}

void SigningCoordinator::startSigning() {
  if (runCount_ >= mostRuns)
    turnAway();
  else
    runs_.start(countedRun());
}

Task<> SigningCoordinator::countedRun() {
  struct End {
    SigningCoordinator& coordinator;
    ~End() {
      --coordinator.runCount_;
      coordinator.hasTurnedAway_ = false;
    }
  };
  ++runCount_;
  const End end{*this};
  co_await performSigningWorkflow();
}

void SigningCoordinator::turnAway() {
  if (std::exchange(hasTurnedAway_, true)) return;
  desktop_.log.write("[sign] turned away: " + std::to_string(mostRuns) + " runs are under way");
  notify({.title = "Quillseal Is Busy",
          .body = std::to_string(mostRuns) +
                  " texts are still waiting for you. Answer Quillseal’s questions, or sign or "
                  "decline in the browser, and then sign this text again. A text whose page you "
                  "closed waits for ten minutes."});
}

// The workflow ------------------------------------------------------------------------------------

Task<> SigningCoordinator::performSigningWorkflow() {
  std::optional<std::string> failure;
  desktop::Ticket activity;
  try {
    activity = desktop_.program.beginActivity("Signing a text");
    co_await signSelectedText();
  } catch (const Cancelled&) {
    desktop_.log.write("[sign] called off by the user");
  } catch (const std::exception& error) {
    failure = describe(error);
  }
  if (failure) co_await showAlertOrLog("Signing Error", *std::move(failure));
}

Task<> SigningCoordinator::signSelectedText() {
  const std::optional<SigningMode> mode = co_await modeReadyToSign();
  if (!mode) co_return;
  const std::optional<CapturedContent> content = co_await captureSelection();
  if (!content) co_return;
  const Statement statement = statementOf(*content);
  const bool maySign = co_await passesRefusals(statement.text);
  if (!maySign) co_return;
  if (*mode == SigningMode::handoff)
    co_await signInBrowser(statement, *content);
  else
    co_await signHere(*mode, statement, *content);
}

/// Nothing when this machine cannot sign; an alert has then said so.
Task<std::optional<SigningMode>> SigningCoordinator::modeReadyToSign() {
  if (!desktop_.keys.isTrusted()) {
    desktop_.keys.askForTrust();
    co_return std::nullopt;
  }
  const bool canHoldKey = co_await SecureEnclaveManager::isAvailable(keyServices());
  if (!canHoldKey) {
    desktop::Wording words = desktop_.words.current();
    co_await showAlert(std::move(words.keyRequired), std::move(words.keyUnsupported));
    co_return std::nullopt;
  }
  if (!serverClient_.hasServer()) {
    co_await showAlert(notConfigured, configurationAdvice());
    co_return std::nullopt;
  }
  const SigningMode mode = co_await resolveSigningMode();
  if (mode == SigningMode::enclave) {
    const bool isEnrolled = co_await ensureEnrolled();
    if (!isEnrolled) co_return std::nullopt;
  }
  co_return mode;
}

Task<std::optional<CapturedContent>> SigningCoordinator::captureSelection() {
  const AccessibilityManager::Services services{.applications = desktop_.applications,
                                                .keys = desktop_.keys,
                                                .log = desktop_.log,
                                                .loop = desktop_.loop,
                                                .pasteboard = desktop_.pasteboard};
  AsyncMutex::Lock lock = co_await clipboard_.lock();
  AccessibilityManager::Capture capture =
      co_await AccessibilityManager::captureSelectedContent(services);
  lock.reset();
  const bool isExplained = capture.outcome == AccessibilityManager::CopyOutcome::notAllowed;
  if (!capture.content && !isExplained) {
    desktop::Alert alert = alertWithoutText(capture.outcome, desktop_.words.current());
    co_await showAlert(std::move(alert.title), std::move(alert.body));
  }
  co_return std::move(capture.content);
}

SigningCoordinator::Statement SigningCoordinator::statementOf(const CapturedContent& content) {
  Statement statement;
  statement.issued = desktop_.wallClock.today();
  statement.text = unicode::trimmed(content.plainText);
  const std::string normalized = CryptoManager::normalizeText(statement.text);
  statement.textDigest = CryptoManager::sha256Hex(normalized);
  const std::vector<std::string> imageURLs = CryptoManager::imageURLs(content.htmlContent);
  statement.imageDigest = CryptoManager::imageManifestDigest(imageURLs);
  statement.wordCount = CryptoManager::countWords(statement.text);
  desktop_.log.write("[sign] " + std::to_string(imageURLs.size()) +
                     " image reference(s), manifest " + statement.imageDigest);
  desktop_.log.write("[sign] " + std::to_string(statement.wordCount) + " words / " +
                     std::to_string(unicode::characterCount(normalized)) +
                     " normalized characters / digest " + statement.textDigest);
  if (Settings::debugCapture.isOn(desktop_.defaults)) writeDebugCapture(statement.text);
  return statement;
}

void SigningCoordinator::logScreening(const ContentRisk::Screening& screening) {
  for (const ContentRisk::Hit& hit : screening.hits) {
    if (hit.isEngineFailure) {
      desktop_.log.write("[risk] rule " + std::string(hit.id) +
                         " could not be searched for to the end and counts as a hit");
    }
  }
  const ContentRisk::Assessment& assessment = screening.assessment;
  if (assessment.findings.empty()) return;
  desktop_.log.write("[risk] score " + std::to_string(assessment.score) + ", " +
                     std::to_string(assessment.findings.size()) +
                     " finding(s): " + joinedIds(assessment.findings));
}

/// Whether the text may be signed, by the rules and by the user where the rules leave it to them.
Task<bool> SigningCoordinator::passesRefusals(const std::string& text) {
  const std::string refusal = CryptoManager::signingRefusal(text);
  if (!refusal.empty()) {
    co_await showAlert("Not signed — too short", refusal);
    co_return false;
  }
  // Screening a very long text takes a while, and the event loop must go on meanwhile.
  auto screen = [text] { return screenTwice(text); };
  const TwoScreenings screenings = co_await offload(desktop_.loop, std::move(screen));
  logScreening(screenings.asWritten);
  if (screenings.asRead) logScreening(*screenings.asRead);
  // The second assessment includes all hits of the first, so it decides.
  const ContentRisk::Assessment& assessment =
      (screenings.asRead ? *screenings.asRead : screenings.asWritten).assessment;
  if (assessment.isBlocked) {
    co_await showAlert(ContentRisk::refusalTitle(assessment), ContentRisk::explanation(assessment));
    co_return false;
  }
  if (!assessment.shouldWarn) co_return true;
  const bool signAnyway = co_await asksToSignAnyway(ContentRisk::warning(assessment));
  co_return signAnyway;
}

Task<> SigningCoordinator::signInBrowser(const Statement& statement,
                                         const CapturedContent& content) {
  // Filled member by member: with HTML in it, GCC 12 destroys what designated initialisers make
  // here twice.
  HandoffContent page;
  page.text = statement.text;
  page.html = content.htmlContent;
  page.textDigest = statement.textDigest;
  page.issued = statement.issued;
  page.scope = content.scope;
  page.imageDigest = statement.imageDigest;
  if (content.sourceApplication) page.sourceBundleID = content.sourceApplication->bundleIdentifier;
  std::optional<HandoffResult> handoff = co_await signViaBrowser(std::move(page));
  if (!handoff) co_return;
  Delivery delivery{
      .signatureId = handoff->signatureId, .issued = statement.issued, .scope = content.scope};
  co_await deliverFromBrowser(std::move(delivery), *std::move(handoff), content);
}

/// With the device key, or as a demonstration.
Task<> SigningCoordinator::signHere(SigningMode mode, const Statement& statement,
                                    const CapturedContent& content) {
  const std::string nonce = CryptoManager::randomHex(nonceBytes);
  if (nonce.empty()) {
    throw quillsealError(
        "The system’s random source failed, so nothing was signed. Restart the computer and try "
        "again.");
  }
  Confirmable confirmable{
      .text = statement.text, .scope = content.scope, .issued = statement.issued};
  const std::optional<std::string> scope = co_await scopeForSigning(std::move(confirmable));
  if (!scope) co_return;
  Signable signable{.textDigest = statement.textDigest,
                    .issued = statement.issued,
                    .scope = *scope,
                    .imageDigest = statement.imageDigest,
                    .subject = promptSubject(statement.text),
                    .expires = CryptoManager::expiryDateFor(
                        {.issued = statement.issued, .wordCount = statement.wordCount}),
                    .commitment = commitment,
                    .nonce = nonce};
  Delivery delivery{.signatureId = {}, .issued = statement.issued, .scope = *scope};
  if (mode == SigningMode::enclave) {
    delivery.signatureId = co_await signWithRecovery(std::move(signable));
  } else {
    std::optional<std::string> signatureId = co_await demonstrate(std::move(signable));
    if (!signatureId) co_return;
    delivery.signatureId = *std::move(signatureId);
  }
  requireSafe(delivery.signatureId);
  co_await deliver(std::move(delivery), content);
}

/// A record without a real signature. Nothing without proof of presence.
Task<std::optional<std::string>> SigningCoordinator::demonstrate(Signable signable) {
  const AuthManager::Services presence{.loop = desktop_.loop, .presence = desktop_.presence};
  desktop::Prompt prompt{.reason = "Sign " + signable.subject, .medium = signable.scope};
  const bool isPresent = co_await AuthManager::authenticate(presence, std::move(prompt));
  if (!isPresent) co_return std::nullopt;
  std::string method = co_await AuthManager::biometryMethod(presence);
  ServerClient::DemoContent record{.textDigest = std::move(signable.textDigest),
                                   .issued = std::move(signable.issued),
                                   .scope = std::move(signable.scope),
                                   .imageDigest = std::move(signable.imageDigest),
                                   .method = std::move(method),
                                   .expires = std::move(signable.expires),
                                   .commitment = std::move(signable.commitment),
                                   .nonce = std::move(signable.nonce)};
  std::string signatureId = co_await serverClient_.signDemo(std::move(record));
  requireSafe(signatureId);
  desktop_.log.write("[demo] simulated signature " + signatureId + " — not evidence of anything");
  co_return signatureId;
}

// The desktop may ask the user first, and other runs can copy meanwhile.
Task<AsyncMutex::Lock> SigningCoordinator::clipboardToWrite() {
  co_await completionOf<void>([this](std::function<void()> ready) {
    return desktop_.pasteboard.prepareWrite(std::move(ready));
  });
  AsyncMutex::Lock lock = co_await clipboard_.lock();
  co_return lock;
}

Task<> SigningCoordinator::deliver(Delivery delivery, const CapturedContent& content) {
  AsyncMutex::Lock lock = co_await clipboardToWrite();
  ClipboardManager::Injected injected = co_await inject(delivery, content);
  lock.reset();
  co_await tellOfSuccess(std::move(injected), std::move(delivery), content);
}

/// Offers to copy the block again for as long as it is nowhere.
Task<> SigningCoordinator::tellOfSuccess(ClipboardManager::Injected injected, Delivery delivery,
                                         const CapturedContent& content) {
  using ClipboardManager::AutoPaste;
  using ClipboardManager::Placement;
  while (injected.placement == Placement::notOnClipboard) {
    const bool mayTryAgain = co_await asksToCopyAgain(std::move(injected.cause));
    if (!mayTryAgain) co_return;
    if (delivery.autoPaste == AutoPaste::yes) delivery.autoPaste = AutoPaste::tooLate;
    AsyncMutex::Lock lock = co_await clipboardToWrite();
    injected = co_await inject(delivery, content);
    lock.reset();
  }
  if (injected.placement == Placement::pasted) {
    notifyOfSuccess();
    co_return;
  }
  desktop::Alert alert =
      alertToPaste(injected.placement, content.sourceApplication, desktop_.words.current());
  co_await showAlert(std::move(alert.title), std::move(alert.body));
}

void SigningCoordinator::notifyOfSuccess() {
  notify({.title = "✅ Signature Generated!", .body = "Signed content copied and injected."});
}

void SigningCoordinator::notify(const desktop::Notification& notification) {
  try {
    desktop_.alerts.notify(notification);
  } catch (const Error& error) {
    desktop_.log.write(std::string("[inject] no notification could be shown: ") + error.what());
  }
}

/// The caller holds `clipboard_`.
Task<ClipboardManager::Injected> SigningCoordinator::inject(Delivery delivery,
                                                            const CapturedContent& content) {
  const ClipboardManager::Services services{.applications = desktop_.applications,
                                            .keys = desktop_.keys,
                                            .log = desktop_.log,
                                            .loop = desktop_.loop,
                                            .pasteboard = desktop_.pasteboard};
  ClipboardManager::Injection injection{.signatureId = std::move(delivery.signatureId),
                                        .issuedDate = std::move(delivery.issued),
                                        .scope = std::move(delivery.scope),
                                        .server = serverClient_.effectiveServerURL(),
                                        .autoPaste = delivery.autoPaste};
  ClipboardManager::Injected injected =
      co_await ClipboardManager::injectSignedContent(services, std::move(injection), content);
  co_return injected;
}

Task<> SigningCoordinator::showAlert(std::string title, std::string body) {
  const desktop::Alert alert{.title = std::move(title), .body = std::move(body)};
  co_await completionOf<void>([this, &alert](std::function<void()> dismissed) {
    return desktop_.alerts.show(alert, std::move(dismissed));
  });
}

/// For tasks that must not throw.
Task<> SigningCoordinator::showAlertOrLog(std::string title, std::string body) {
  try {
    co_await showAlert(title, body);
  } catch (const std::exception& error) {
    desktop_.log.write("[sign] no alert could be shown for: " + title + ": " + body + " (" +
                       error.what() + ")");
  }
}

Task<bool> SigningCoordinator::asksToSignAnyway(std::string warning) {
  desktop::Question question{.title = "Sign this anyway?",
                             .body = std::move(warning),
                             .style = desktop::AlertStyle::warning,
                             .confirm = "Sign Anyway",
                             .cancel = "Cancel"};
  const bool answer = co_await isConfirmed(std::move(question));
  co_return answer;
}

Task<bool> SigningCoordinator::asksToCopyAgain(std::string cause) {
  const std::string problem =
      cause.empty() ? ": your desktop did not take it, or another program has copied since." : ".";
  desktop::Question question{.title = "Signed — Not on Your Clipboard",
                             .body =
                                 "Your text is signed, but the signed content is not on your "
                                 "clipboard" +
                                 problem + (cause.empty() ? "" : "\n\n" + cause) +
                                 "\n\nChoose Copy Again to try once more. If you close this "
                                 "message instead, sign your text again when you need it.",
                             .style = desktop::AlertStyle::warning,
                             .confirm = "Copy Again",
                             .cancel = "Close"};
  const bool answer = co_await isConfirmed(std::move(question));
  co_return answer;
}

Task<bool> SigningCoordinator::isConfirmed(desktop::Question question) {
  const auto answer = co_await completionOf<desktop::Answer>(
      [this, &question](std::function<void(desktop::Answer)> answered) {
        return desktop_.alerts.ask(question, std::move(answered));
      });
  co_return answer == desktop::Answer::confirmed;
}

void SigningCoordinator::writeDebugCapture(std::string_view text) {
  const std::string path = desktop_.files.homeDirectory() + debugCapturePath;
  // Nothing depends on this file, so a failure is not reported.
  static_cast<void>(desktop_.files.replace(path, text));
  desktop_.log.write("[sign] captured text written to " + path);
}

// Modes, enrolment and recovery -------------------------------------------------------------------

Task<SigningMode> SigningCoordinator::resolveSigningMode() {
  if (Settings::demoSigning.isOn(desktop_.defaults)) co_return SigningMode::demo;
  const bool hasKey = co_await SecureEnclaveManager::hasKey(keyServices());
  if (hasKey) co_return SigningMode::enclave;
  const AsyncMutex::Lock lock = co_await keyCreation_.lock();
  // Another task may have made a key, or a run have decided, while this one waited.
  const bool hasKeyNow = co_await SecureEnclaveManager::hasKey(keyServices());
  if (hasKeyNow) co_return SigningMode::enclave;
  if (const auto remembered = Settings::signingMode.stored(desktop_.defaults))
    co_return *remembered == handoffWord ? SigningMode::handoff : SigningMode::enclave;

  bool isMade = false;
  try {
    co_await SecureEnclaveManager::createKey(keyServices());
    isMade = true;
  } catch (const Error& error) {
    desktop_.log.write(std::string("[sign] signing in the browser from now on: ") + error.what());
  }
  if (isMade) {
    Settings::signingMode.store(desktop_.defaults, enclaveWord);
    co_return SigningMode::enclave;
  }
  co_await SecureEnclaveManager::deleteKey(keyServices());
  Settings::signingMode.store(desktop_.defaults, handoffWord);
  co_return SigningMode::handoff;
}

Task<bool> SigningCoordinator::ensureEnrolled() {
  AsyncMutex::Lock lock = co_await keyCreation_.lock();
  const bool hasKey = co_await SecureEnclaveManager::hasKey(keyServices());
  if (hasKey) co_return true;
  if (serverClient_.effectiveAPIKey().empty()) {
    lock.reset();
    co_await showAlert(notConfigured, configurationAdvice());
    co_return false;
  }
  std::string failure;
  try {
    co_await makeAndRegisterKey();
    co_return true;
  } catch (const Cancelled&) {
    throw;
  } catch (const std::exception& error) {
    failure = describe(error);
  }
  lock.reset();
  const desktop::Wording words = desktop_.words.current();
  std::string title = "Could Not Set Up This " + words.machineInTitle;
  std::string body = "Quillseal could not register this " + words.machine + " with " +
                     serverClient_.effectiveServerURL() + ".\n\n" + failure;
  co_await showAlert(std::move(title), std::move(body));
  co_return false;
}

/// What to do where the server or its API key is missing.
std::string SigningCoordinator::configurationAdvice() const {
  if (serverClient_.effectiveAPIKey().empty()) {
    return "This build has no server API key. Open Settings and enter the server URL and native "
           "API key, or install a packaged build from your provider.";
  }
  if (BuiltInServer::apiKey().empty())
    return "No signing server is set. Open Settings and enter the server URL.";
  return desktop_.words.current().serverAdvice;
}

Task<> SigningCoordinator::enrolDevice() {
  if (!serverClient_.hasServer()) {
    // Checked before a new key replaces the present one.
    co_await showAlertOrLog(notConfigured, configurationAdvice());
    co_return;
  }
  std::optional<std::string> failure;
  try {
    const AsyncMutex::Lock lock = co_await keyCreation_.lock();
    co_await makeAndRegisterKey();
  } catch (const Cancelled&) {
    co_return;
  } catch (const std::exception& error) {
    failure = describe(error);
  }
  if (failure) {
    co_await showAlertOrLog("Enrolment Failed", *std::move(failure));
    co_return;
  }
  const std::string identity = boundIdentity();
  const desktop::Wording words = desktop_.words.current();
  std::string body = words.keyCreated + "\n\n";
  body += identity.empty()
              ? "No verified identity is bound to this " + words.machine +
                    " yet, so signatures will be reported as \"anonymous human\" — proof that a "
                    "person signed, but not who."
              : "Signatures will be attributed to " + IdentityName::shown(identity) + ".";
  std::string title = "✅ This " + words.machineInTitle + " Is Enrolled";
  co_await showAlertOrLog(std::move(title), std::move(body));
}

/// The caller holds `keyCreation_`. Leaves no key behind when it fails, so that the next run starts
/// clean.
Task<> SigningCoordinator::makeAndRegisterKey() {
  std::exception_ptr failure;
  try {
    co_await SecureEnclaveManager::createKey(keyServices());
    co_await registerDevice();
    co_return;
  } catch (const Cancelled&) {
    throw;
  } catch (...) {
    failure = std::current_exception();
  }
  co_await SecureEnclaveManager::deleteKey(keyServices());
  std::rethrow_exception(failure);
}

/// Registers the present key with the server and stores the identity that it binds.
Task<> SigningCoordinator::registerDevice() {
  const SecureEnclaveManager::Key key = co_await SecureEnclaveManager::loadKey(keyServices());
  std::string publicKey = co_await SecureEnclaveManager::exportPublicKey(keyServices(), key);
  ServerClient::EnrolRequest request{.deviceId = serverClient_.hardwareUUID(),
                                     .publicKey = std::move(publicKey),
                                     .apiKey = serverClient_.effectiveAPIKey()};
  const ServerClient::EnrolResponse response = co_await serverClient_.enrol(std::move(request));
  const std::string identity = response.identity.value_or("");
  if (identity.size() > longestIdentity) {
    throw quillsealError(
        "The server answered with a name that is too long to be one. Check the server address in "
        "Settings, or ask your provider.");
  }
  if (!identity.empty() && !IdentityName::isPlain(identity)) {
    throw quillsealError(
        "The server answered with a name that holds invisible characters, or nothing else, and "
        "could pass for another one (" +
        IdentityName::shown(identity) +
        "). Check the server address in Settings, or ask your provider.");
  }
  Settings::boundIdentity.store(desktop_.defaults, identity);
}

Task<std::string> SigningCoordinator::signOnce(Signable signable) {
  const std::string identity = boundIdentity();
  const std::string signerKey = serverClient_.hardwareUUID();
  SecureEnclaveManager::SigningRequest request{
      .textHashHex = CryptoManager::canonicalV3({.textDigest = signable.textDigest,
                                                 .issued = signable.issued,
                                                 .scope = signable.scope,
                                                 .snapshotDigest = {},
                                                 .identity = identity,
                                                 .signerKey = signerKey,
                                                 .expires = signable.expires,
                                                 .nonce = signable.nonce,
                                                 .commitment = signable.commitment}),
      .prompt = {
          .reason = "Sign " + signable.subject + " as " +
                    (identity.empty() ? "an anonymous human" : IdentityName::shown(identity)),
          .medium = signable.scope}};
  std::string signature = co_await SecureEnclaveManager::sign(keyServices(), std::move(request));
  ServerClient::Content content{.textDigest = std::move(signable.textDigest),
                                .snapshotDigest = {},
                                .issued = std::move(signable.issued),
                                .scope = std::move(signable.scope),
                                .imageDigest = std::move(signable.imageDigest),
                                .expires = std::move(signable.expires),
                                .commitment = std::move(signable.commitment),
                                .nonce = std::move(signable.nonce),
                                .enclaveSignature = std::move(signature)};
  std::string signatureId = co_await serverClient_.signContent(std::move(content));
  co_return signatureId;
}

Task<std::string> SigningCoordinator::signWithRecovery(Signable signable) {
  std::optional<std::string> signatureId;
  try {
    signatureId = co_await signOnce(signable);
  } catch (const Error& error) {
    if (!isDeviceNotEnrolled(error.what())) throw;
  }
  if (!signatureId) {
    AsyncMutex::Lock lock = co_await keyCreation_.lock();
    co_await registerDevice();
    lock.reset();
    signatureId = co_await signOnce(std::move(signable));
  }
  co_return *std::move(signatureId);
}

bool SigningCoordinator::isDeviceNotEnrolled(std::string_view description) {
  const std::string lower = unicode::lowercased(description);
  return lower.find("not enrolled") != std::string::npos ||
         lower.find("not registered") != std::string::npos;
}

std::string SigningCoordinator::boundIdentity() const {
  return unicode::wellFormed(Settings::boundIdentity.value(desktop_.defaults));
}

SecureEnclaveManager::Services SigningCoordinator::keyServices() const {
  return {.keyStore = desktop_.keyStore,
          .log = desktop_.log,
          .loop = desktop_.loop,
          .words = desktop_.words};
}

// Confirmation ------------------------------------------------------------------------------------

Task<std::optional<std::string>> SigningCoordinator::scopeForSigning(Confirmable confirmable) {
  if (!Settings::confirmBeforeSigning.isOn(desktop_.defaults))
    co_return std::move(confirmable.scope);
  const std::optional<Confirmed> confirmed = co_await confirmSigning(std::move(confirmable));
  if (!confirmed) co_return std::nullopt;
  co_return SigningScope::composeScope(
      {.base = confirmed->medium, .recipient = confirmed->recipient});
}

Task<std::optional<SigningCoordinator::Confirmed>> SigningCoordinator::confirmSigning(
    Confirmable confirmable) {
  const std::string identity = IdentityName::shown(boundIdentity());
  const desktop::Wording words = desktop_.words.current();
  const desktop::ConfirmationForm form{
      .question = {.title = "Sign this content?",
                   .body =
                       confirmationText({.text = confirmable.text,
                                         .scope = confirmable.scope,
                                         .issued = confirmable.issued,
                                         .identity = identity,
                                         .proof = words.proof,
                                         .isDemo = Settings::demoSigning.isOn(desktop_.defaults)}),
                   .style = desktop::AlertStyle::informational,
                   .confirm = "Sign with " + words.proofInTitle,
                   .cancel = "Cancel"},
      .choices = {SigningScope::mediumOptions.begin(), SigningScope::mediumOptions.end()},
      .selectedChoice = SigningScope::defaultMediumIndex(confirmable.scope),
      .fieldPlaceholder = "Recipient, e.g. ada@example.com (optional)",
      .note = words.scopeNote};
  using Entry = std::optional<desktop::ConfirmationEntry>;
  const Entry entry =
      co_await completionOf<Entry>([this, &form](std::function<void(Entry)> answered) {
        return desktop_.alerts.confirm(form, std::move(answered));
      });
  if (!entry) co_return std::nullopt;
  const std::string recipient = unicode::wellFormed(entry->field);
  co_return Confirmed{.medium = unicode::wellFormed(entry->choice),
                      .recipient = std::string(unicode::trimmed(recipient))};
}

// The browser -------------------------------------------------------------------------------------

Task<std::optional<SigningCoordinator::HandoffResult>> SigningCoordinator::signViaBrowser(
    HandoffContent content) {
  ServerClient::HandoffCreateRequest request{.textDigest = std::move(content.textDigest),
                                             .snapshotDigest = {},
                                             .issued = std::move(content.issued),
                                             .scope = std::move(content.scope),
                                             .imageDigest = std::move(content.imageDigest),
                                             .apiKey = serverClient_.effectiveAPIKey()};
  const ServerClient::HandoffCreateResponse created =
      co_await serverClient_.createHandoff(std::move(request));
  requireSafe(created.handoffId);

  const HandoffPage::Fragment fragment = HandoffPage::fragmentFor(content.text, content.html);
  if (fragment.omittedHtmlLength) {
    desktop_.log.write(
        "[handoff] formatting omitted: " + std::to_string(*fragment.omittedHtmlLength) +
        " encoded chars exceeds the " + std::to_string(HandoffPage::longestEncodedHtml) +
        " limit for a URL fragment; showing plain text instead");
  }
  desktop_.log.write(
      "[handoff] fragment " + std::to_string(fragment.text.size()) + " chars (text " +
      std::to_string(unicode::characterCount(content.text)) + ", html " +
      (isSet(content.html) ? std::to_string(unicode::characterCount(*content.html)) : "none") +
      ")");
  const std::string url = created.url + "#" + fragment.text;
  if (created.url.size() > longestPageAddress || !HandoffPage::isOpenable(url))
    throw quillsealError("Could not build the signing URL.");

  HandoffResult result{.signatureId = {},
                       .signingBrowserBundleID = {},
                       .sourceTabID = {},
                       .handoffMarker = "/handoff?h=" + created.handoffId};
  result.sourceTabID =
      co_await BrowserTabReturn::currentTabID(desktop_.browserTabs, content.sourceBundleID);
  // It goes into a script.
  if (result.sourceTabID && !SignedBlock::isSafeIdentifier(*result.sourceTabID))
    result.sourceTabID.reset();
  const BrowserOpening opening = openInSigningBrowser(url);
  result.signingBrowserBundleID = opening.bundleIdentifier;

  const auto deadline = desktop_.loop.now() + longestWaitForBrowser;
  while (desktop_.loop.now() < deadline) {
    co_await sleep(desktop_.loop, pollInterval);
    if (opening.failure && *opening.failure) throw Error(**opening.failure);
    ServerClient::HandoffPollRequest poll{.handoffId = created.handoffId,
                                          .apiKey = serverClient_.effectiveAPIKey()};
    ServerClient::HandoffPollResponse answer = co_await serverClient_.pollHandoff(std::move(poll));
    if (answer.status == "complete" && isSet(answer.signatureId)) {
      requireSafe(*answer.signatureId);
      result.signatureId = *std::move(answer.signatureId);
      co_return result;
    }
    if (answer.status == "expired") {
      std::string advice =
          "The request timed out before it was signed. Nothing was signed. Select your text and "
          "press " +
          desktop_.words.current().hotkey + " again.";
      co_await showAlert("Signing Request Expired", std::move(advice));
      co_return std::nullopt;
    }
  }
  std::string advice =
      "Quillseal stopped waiting for the browser. If you did sign, the signature exists and is "
      "valid — press " +
      desktop_.words.current().hotkey +
      " again to insert a fresh one, or copy the link from the browser tab.";
  co_await showAlert("Still Waiting", std::move(advice));
  co_return std::nullopt;
}

SigningCoordinator::BrowserOpening SigningCoordinator::openInSigningBrowser(
    const std::string& url) {
  std::optional<desktop::InstalledApplication> browser = desktop_.applications.preferredBrowser();
  if (!browser) browser = desktop_.applications.defaultApplicationFor(url);
  if (!browser) {
    desktop_.applications.open(url);
    return {};
  }
  // A browser that takes its time to start must not hold up the polling.
  auto failure = std::make_shared<std::optional<Error>>();
  desktop::Ticket ticket = desktop_.applications.open(
      url, *browser, [this, url, failure](const std::optional<Error>& problem) {
        if (!problem) return;
        desktop_.log.write(std::string("[handoff] the browser was not opened: ") + problem->what());
        try {
          desktop_.applications.open(url);
        } catch (const Error& error) {
          *failure = error;
        }
      });
  return {.bundleIdentifier = browser->bundleIdentifier,
          .failure = std::move(failure),
          .ticket = std::move(ticket)};
}

Task<> SigningCoordinator::deliverFromBrowser(Delivery delivery, HandoffResult handoff,
                                              const CapturedContent& content) {
  const auto& source = content.sourceApplication;
  const bool isSigningBrowser = source && source->bundleIdentifier &&
                                source->bundleIdentifier == handoff.signingBrowserBundleID;
  if (!isSigningBrowser) {
    co_await deliver(std::move(delivery), content);
    co_return;
  }
  AsyncMutex::Lock lock = co_await clipboardToWrite();
  BrowserTabReturn::SigningTab tab{.bundleID = handoff.signingBrowserBundleID,
                                   .urlContains = std::move(handoff.handoffMarker),
                                   .tabID = std::move(handoff.sourceTabID)};
  const bool isRestored =
      co_await BrowserTabReturn::closeSigningTabAndRestore(desktop_.browserTabs, std::move(tab));
  if (isRestored) {
    co_await sleep(desktop_.loop, tabSwitchTime);
    desktop_.log.write("[tabreturn] signing tab closed, original tab restored");
  }
  // Elsewhere than in the original tab the paste would land in the signing tab.
  if (!isRestored) delivery.autoPaste = ClipboardManager::AutoPaste::no;
  ClipboardManager::Injected injected = co_await inject(delivery, content);
  lock.reset();
  co_await tellOfSuccess(std::move(injected), std::move(delivery), content);
}

}  // namespace quillseal
