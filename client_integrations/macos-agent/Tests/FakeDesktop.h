#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Quillseal/BrowserTabReturn.h"
#include "VirtualLoop.h"
#include "desktop/Desktop.h"
#include "desktop/ScriptRunner.h"

namespace quillseal::testing {

/// A scripted desktop. The public members say what it is like and how its user, server and key
/// store behave; `trace` tells, in one order, all that the agent did that somebody could notice.
class FakeDesktop final : public desktop::Alerts,
                          public desktop::Applications,
                          public desktop::Defaults,
                          public desktop::Files,
                          public desktop::Hotkey,
                          public desktop::HttpTransport,
                          public desktop::KeyEvents,
                          public desktop::KeyStore,
                          public desktop::Log,
                          public desktop::MachineIdentity,
                          public desktop::Pasteboard,
                          public desktop::Presence,
                          public desktop::Program,
                          public desktop::ScriptRunner,
                          public desktop::StatusItem,
                          public desktop::WallClock,
                          public desktop::Windows,
                          public desktop::Words {
 public:
  FakeDesktop();

  /// The interfaces, all implemented by this object.
  [[nodiscard]] desktop::Desktop services();

  VirtualLoop loop;
  std::vector<std::string> trace;

  /// The trace without log lines, and the bodies of what was sent to `path`.
  [[nodiscard]] std::vector<std::string> userTrace() const;
  [[nodiscard]] std::vector<std::string> sentTo(std::string_view path) const;

  std::vector<desktop::HttpPost> sent;

  /// Empties the trace and the lists of what was sent and pasted.
  void forget();

  // What a copy yields.
  struct Copy {
    std::optional<std::string> text;
    std::optional<std::string> html;
    bool isConcealed = false;
  };
  std::optional<Copy> selection;   ///< by Command-C
  std::optional<Copy> everything;  ///< by Command-C after Command-A
  std::chrono::milliseconds copyTime{40};
  std::optional<Copy> secondThought;  ///< replaces the copy 50 ms after it
  Copy clipboard;
  std::optional<Copy> copiedElsewhere;  ///< by another program while keys wait for the fingers
  bool tellsOfClipboardChanges = true;

  // The person.
  bool isPersonTrusting = true;  ///< grants accessibility
  bool leavesDialogsOpen = false;
  desktop::Answer answer = desktop::Answer::confirmed;
  std::optional<desktop::ConfirmationEntry> confirmation;
  Outcome<bool> presence = true;
  desktop::PresenceCapability biometrics{.available = true, .reason = {}};
  desktop::PresenceCapability biometricsOrPassword{.available = true, .reason = {}};
  desktop::Biometry biometryOfMachine = desktop::Biometry::touchId;

  // Applications and browsers.
  std::optional<desktop::RunningApplication> front;
  std::optional<desktop::RunningApplication> active;  ///< after the agent has been in front
  std::set<std::uint64_t> ended;                      ///< instances that have quit
  std::vector<std::string> pastedInto;                ///< what was active at each Command-V
  std::function<void(desktop::Key)> beforePress;      ///< what happens while keys wait
  std::chrono::milliseconds fingersLeave{0};          ///< the modifiers, after that long
  std::optional<desktop::InstalledApplication> chrome, defaultBrowser;
  bool browserOpens = true;
  bool anyBrowserOpens = true;
  std::deque<Outcome<std::optional<std::string>>> scriptResults;  ///< empty: "true"

  // Settings, machine and keys.
  std::map<std::string, std::string, std::less<>> strings;
  std::set<std::string, std::less<>> flags;
  std::string date = "2026-03-01";
  desktop::TimeZone zone{.identifier = "Europe/Berlin", .secondsFromGmt = 3600};
  std::optional<std::string> machineUuid = "MACHINE-1";
  bool canHoldKey = true, hasKey = true, exportsKey = true;
  std::optional<Error> createFailure;
  bool lacksEntitlement = false;
  bool cancelsCreation = false;
  std::optional<Error> signFailure;
  std::optional<Error> loadFailure;
  std::string keyAdvice;

  /// What the server answers at a path, one after the other; the last is repeated.
  struct Answer {
    int status = 200;
    std::string body;
  };
  std::map<std::string, std::deque<Answer>, std::less<>> answers;
  std::optional<Error> sendFailure;  ///< in place of every answer

  /// The fallible call with this number fails, counting from 1; none for 0.
  int failingCall = 0;
  int calls = 0;
  std::string failedCall;

  /// The key press with this number is declined, counting from 1; none for 0.
  int declinedPress = 0;
  int presses = 0;
  int activities = 0;  ///< begun and not ended
  std::string clipboardObstacle, keyObstacle;

  desktop::Wording wording;  ///< as on macOS

  /// Every text that was put before the person, between line feeds.
  std::string shown = "\n";

  // What was registered.
  std::function<void()> hotkeyPressed;
  std::optional<Error> hotkeyFailure;
  desktop::StatusMenu menu;
  desktop::Form form;
  std::map<std::string, std::string, std::less<>> files;

  // Alerts
  desktop::Ticket show(const desktop::Alert& alert, std::function<void()> dismissed) override;
  desktop::Ticket ask(const desktop::Question& question,
                      std::function<void(desktop::Answer)> answered) override;
  desktop::Ticket confirm(
      const desktop::ConfirmationForm& form,
      std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) override;
  void notify(const desktop::Notification& notification) override;

  // Applications
  std::optional<desktop::RunningApplication> frontmost() const override;
  bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;
  std::optional<desktop::InstalledApplication> preferredBrowser() const override { return chrome; }
  std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& url) const override;
  desktop::Ticket open(const std::string& url, const desktop::InstalledApplication& application,
                       std::function<void(std::optional<Error>)> done) override;
  void open(const std::string& url) override;

  // Defaults
  std::optional<std::string> string(std::string_view key) const override;
  bool boolean(std::string_view key) const override;
  void setString(std::string_view key, std::string_view value) override;
  desktop::Ticket observe(std::function<void()> changed) override;

  // Files, Hotkey, Log, MachineIdentity, Program, StatusItem, WallClock, Windows, Words
  std::string homeDirectory() const override { return "/home/ada"; }
  bool replace(const std::string& path, std::string_view contents) override;
  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;
  void write(std::string_view line) override { trace.push_back("log: " + std::string(line)); }
  std::optional<std::string> platformUuid() const override { return machineUuid; }
  void becomeAccessory() override { trace.emplace_back("become accessory"); }
  void activate() override { trace.emplace_back("activate Quillseal"); }
  void showAbout() override { trace.emplace_back("about"); }
  void terminate() override { trace.emplace_back("terminate"); }
  desktop::Ticket beginActivity(const std::string& reason) override;
  void show(const desktop::StatusMenu& description) override;
  void setItemTitle(std::size_t index, const std::string& title) override;
  std::string today() const override { return date; }
  desktop::TimeZone timeZone() const override { return zone; }
  std::unique_ptr<desktop::Window> make(const desktop::WindowDescription& description) override;

  desktop::Wording current() const override { return wording; }

  // HttpTransport
  desktop::Ticket send(const desktop::HttpPost& post,
                       std::function<void(Outcome<desktop::HttpResponse>)> done) override;
  Error error(desktop::transport::ErrorCode code) const override;

  // KeyEvents
  bool isTrusted() const override { return isPersonTrusting; }
  void askForTrust() override { trace.emplace_back("ask for trust"); }
  desktop::Ticket press(desktop::KeyPress press,
                        const std::optional<desktop::RunningApplication>& target,
                        std::function<void()> aboutToPress,
                        std::function<void(desktop::Delivery)> done) override;

  std::string obstacle() const override { return keyObstacle; }

  // KeyStore
  bool isAvailable() const override { return canHoldKey; }
  std::unique_ptr<desktop::DeviceKey> create() override;
  std::unique_ptr<desktop::DeviceKey> load(std::optional<desktop::Prompt> prompt) const override;
  void remove() noexcept override;
  std::string advice() const override { return keyAdvice; }

  // Pasteboard
  std::int64_t changeCount() const override { return changeCount_; }
  desktop::Ticket onNextChange(std::function<void()> changed) override;
  desktop::Ticket fetch(std::function<void()> fetched) override;
  std::string readingObstacle() const override { return clipboardObstacle; }
  bool isConcealed() const override { return fetched_.isConcealed; }
  std::optional<std::string> plainText() const override { return fetched_.text; }
  std::optional<std::string> html() const override { return fetched_.html; }
  void write(const desktop::PasteboardContent& content) override;

  // Presence
  desktop::PresenceCapability canEvaluate(desktop::PresencePolicy policy) const override;
  desktop::Biometry biometry() const override { return biometryOfMachine; }
  desktop::Ticket evaluate(desktop::PresencePolicy policy, const desktop::Prompt& prompt,
                           std::function<void(Outcome<bool>)> done) override;

  // ScriptRunner
  desktop::Ticket run(const std::string& source,
                      std::function<void(Outcome<std::optional<std::string>>)> done) override;

 private:
  void mayFail(std::string_view call);
  void setClipboard(const Copy& copy);
  [[nodiscard]] desktop::Delivery deliveryTo(
      const std::optional<desktop::RunningApplication>& target);
  void tap(desktop::KeyPress press);
  desktop::Ticket finish(std::function<void()> completion);

  BrowserTabReturn::ScriptedBrowserTabs tabs_{*this, *this};
  std::map<int, std::function<void()>> observers_;
  int observerCount_ = 0;
  std::int64_t changeCount_ = 0;
  Copy fetched_;
  std::function<void()> clipboardChanged_;
  bool isAllSelected_ = false;
  desktop::Ticket copying_, secondCopying_;
};

}  // namespace quillseal::testing
