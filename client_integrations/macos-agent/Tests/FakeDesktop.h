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
#include <utility>
#include <variant>
#include <vector>

#include "MacDesktop/MacWords.h"
#include "Quillseal/BrowserTabReturn.h"
#include "VirtualLoop.h"
#include "desktop/Desktop.h"
#include "desktop/ScriptRunner.h"
#include "desktop/SigningHotkey.h"

/// A scripted desktop with one small fake for each interface. Public members set the behaviour of
/// desktop, user, server and key store.
namespace quillseal::testing {

using desktop::Ticket;
template <typename T>
using Then = std::function<void(T)>;
using Text = std::optional<std::string>;

/// The state that the fakes share.
struct Record {
  VirtualLoop loop;

  /// All visible actions of the agent, in order.
  std::vector<std::string> trace;

  /// Every text that the user has seen, separated by line feeds.
  std::string shown = "\n";

  /// Number of the call that fails, counting fallible calls from 1; 0 for none.
  int failingCall = 0;
  int calls = 0;
  std::string failedCall;

  static Error error(std::string description) {
    return Error({.domain = "fake", .code = 1, .description = std::move(description)});
  }
  /// Every fallible call begins with this.
  void mayFail(std::string_view call) {
    if (++calls != failingCall) return;
    failedCall = call;
    throw error("The desktop failed.");
  }
  void add(std::string_view call, std::string line) {
    mayFail(call);
    trace.push_back(std::move(line));
  }
  void show(const std::vector<std::string>& texts) {
    for (const std::string& text : texts)
      shown += text + '\n';
  }
  Ticket soon(std::function<void()> completion) { return loop.after({}, std::move(completion)); }
  /// Calls `done` with what `value` is by then.
  template <typename T, typename Value>
  Ticket answer(std::function<void(T)> done, const Value& value) {
    return soon([done = std::move(done), &value] { done(value); });
  }

  /// The trace without log lines.
  [[nodiscard]] std::vector<std::string> userTrace() const {
    std::vector<std::string> lines = trace;
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("log: "); });
    return lines;
  }
};

/// A fake of one interface.
template <typename Interface>
struct Fake : Interface {
  explicit Fake(Record& shared) : record(shared) {}
  Record& record;
};

struct FakeAlerts final : Fake<desktop::Alerts> {
  using Fake::Fake;
  bool leavesDialogsOpen = false;
  desktop::Answer answer = desktop::Answer::confirmed;
  std::optional<desktop::ConfirmationEntry> confirmation;

  Ticket show(const desktop::Alert& alert, std::function<void()> dismissed) override {
    record.add("alert", "alert: " + alert.title + " | " + alert.body);
    record.show({alert.title, alert.body});
    return leavesDialogsOpen ? Ticket() : record.soon(std::move(dismissed));
  }
  Ticket ask(const desktop::Question& asked, Then<desktop::Answer> answered) override {
    record.add("ask", "ask: " + asked.title + " | " + asked.body + buttonsOf(asked));
    record.show({asked.title, asked.body, asked.confirm, asked.cancel});
    return leavesDialogsOpen ? Ticket() : record.answer(std::move(answered), answer);
  }
  Ticket confirm(const desktop::ConfirmationForm& form,
                 Then<std::optional<desktop::ConfirmationEntry>> answered) override {
    const desktop::Question& asked = form.question;
    record.add("confirm", "confirm: " + asked.title + buttonsOf(asked) + ", preset " +
                              form.choices.at(form.selectedChoice));
    record.show(
        {asked.title, asked.body, asked.confirm, asked.cancel, form.fieldPlaceholder, form.note});
    return leavesDialogsOpen ? Ticket() : record.answer(std::move(answered), confirmation);
  }
  void notify(const desktop::Notification& notification) override {
    record.add("notify", "notify: " + notification.title + " | " + notification.body);
    record.show({notification.title, notification.body});
  }

 private:
  static std::string buttonsOf(const desktop::Question& question) {
    return " [" + question.confirm + "] [" + question.cancel + "]";
  }
};

struct FakeApplications final : Fake<desktop::Applications> {
  using Fake::Fake;
  std::optional<desktop::RunningApplication> front;
  std::optional<desktop::RunningApplication> active;  ///< active after the agent was
  std::set<std::uint64_t> ended;                      ///< instances of applications that have quit
  std::optional<desktop::InstalledApplication> chrome, defaultBrowser;
  bool browserOpens = true, anyBrowserOpens = true;

  std::optional<desktop::RunningApplication> frontmost() const override { return front; }
  bool isActive(const desktop::RunningApplication& application) const override {
    return active && active->instance == application.instance;
  }
  void activate(const desktop::RunningApplication& application) override {
    record.add("activate", "activate " + application.name.value_or("?"));
    if (!ended.contains(application.instance)) active = application;
  }
  std::optional<desktop::InstalledApplication> preferredBrowser() const override { return chrome; }
  std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& /*url*/) const override {
    return defaultBrowser;
  }
  Ticket open(const std::string& url, const desktop::InstalledApplication& application,
              Then<std::optional<Error>> done) override {
    record.add("open with", "open " + url + " with " + application.location);
    return record.soon([this, done = std::move(done)] {
      done(browserOpens ? std::nullopt : std::optional(Record::error("It did not open.")));
    });
  }
  void open(const std::string& url) override {
    record.add("open", "open " + url);
    if (!anyBrowserOpens) throw Record::error("There is no browser.");
  }
};

struct FakeDefaults final : Fake<desktop::Defaults> {
  using Fake::Fake;
  std::map<std::string, std::string, std::less<>> strings;
  std::set<std::string, std::less<>> flags;

  Text string(std::string_view key) const override {
    const auto found = strings.find(key);
    return found == strings.end() ? std::nullopt : Text(found->second);
  }
  bool boolean(std::string_view key) const override {
    return flags.contains(key) || string(key) == "true";
  }
  void setString(std::string_view key, std::string_view value) override {
    record.add("set", "set " + std::string(key) + " = " + std::string(value));
    strings[std::string(key)] = value;
    record.loop.post([this] {
      for (const auto& [number, changed] : observers_)
        changed();
    });
  }
  Ticket observe(std::function<void()> changed) override {
    const int number = observerCount_++;
    observers_[number] = std::move(changed);
    return Ticket([this, number] { observers_.erase(number); });
  }

 private:
  std::map<int, std::function<void()>> observers_;
  int observerCount_ = 0;
};

struct FakeFiles final : Fake<desktop::Files> {
  using Fake::Fake;
  std::map<std::string, std::string, std::less<>> contents;

  std::string homeDirectory() const override { return "/home/ada"; }
  bool replace(const std::string& path, std::string_view text) override {
    contents[path] = text;
    return true;
  }
};

struct FakeHotkey final : Fake<desktop::Hotkey> {
  using Fake::Fake;
  std::function<void()> pressed;
  std::optional<Error> failure;
  desktop::HotkeyState now;
  std::function<void()> changed;

  desktop::HotkeyState state() const override { return now; }
  Ticket observe(std::function<void()> observer) override {
    changed = std::move(observer);
    return Ticket([this] { changed = nullptr; });
  }
  void refresh() override { changed(); }
  void askAgain() override { record.trace.emplace_back("ask for the hotkey again"); }
  void registerHotkey(desktop::KeyPress combination, std::function<void()> action) override {
    if (failure) throw Error(*failure);
    record.trace.emplace_back(combination == desktop::signingHotkey ? "hotkey ⌘⌥⌃H"
                                                                    : "another hotkey");
    pressed = std::move(action);
  }
};

struct FakeHttp final : Fake<desktop::HttpTransport> {
  using Fake::Fake;
  /// The server's answers for a path, in order; the last is repeated.
  struct Answer {
    int status = 200;
    std::string body;
  };
  std::map<std::string, std::deque<Answer>, std::less<>> answers{
      {"/api/register_native", {{200, R"({"status":"ok","device_id":"d","identity":"Ada"})"}}},
      {"/api/sign_native", {{200, R"({"signature_id":"sig-1"})"}}},
      {"/api/sign_demo", {{200, R"({"signature_id":"demo-1","demo":true})"}}},
      {"/api/handoff/create",
       {{200, R"({"handoff_id":"H1","url":"https://seal.example/handoff?h=H1"})"}}},
      {"/api/handoff/poll",
       {{200, R"({"status":"waiting"})"},
        {200, R"({"status":"complete","signature_id":"web-1"})"}}}};
  std::optional<Error> failure;  ///< replaces every answer
  std::chrono::milliseconds takes{0};
  std::vector<desktop::HttpPost> sent;

  /// Returns the request bodies that were sent to `path`.
  [[nodiscard]] std::vector<std::string> sentTo(std::string_view path) const {
    std::vector<std::string> bodies;
    for (const desktop::HttpPost& post : sent)
      if (pathOf(post.url) == path) bodies.push_back(post.body);
    return bodies;
  }
  Ticket send(const desktop::HttpPost& post, Then<Outcome<desktop::HttpResponse>> done) override {
    const std::string path = pathOf(post.url);
    record.add("send", "POST " + path);
    sent.push_back(post);
    if (failure)
      return record.loop.after(takes, [this, done = std::move(done)] { done(*failure); });
    std::deque<Answer>& queue = answers.at(path);
    const Answer answer = queue.front();
    if (queue.size() > 1) queue.pop_front();
    return record.loop.after(takes, [done = std::move(done), answer] {
      done(desktop::HttpResponse{.status = answer.status, .body = answer.body});
    });
  }
  Error error(desktop::transport::ErrorCode code) const override {
    return Error({.domain = desktop::transport::errorDomain,
                  .code = code,
                  .description = "The server gave no usable answer."});
  }

 private:
  static std::string pathOf(const std::string& url) {
    return url.substr(url.find('/', std::string_view("https://").size()));
  }
};

/// The content that a copy puts on the clipboard.
struct Copy {
  Text text;
  Text html;
  bool isConcealed = false;
  Text rtf{};
};

struct FakePasteboard final : Fake<desktop::Pasteboard> {
  using Fake::Fake;
  Copy clipboard;
  bool reportsChanges = true;
  std::string obstacle;
  std::optional<Error> refusal;  ///< of what is written next
  bool takes = true;             ///< what is written, in the end
  std::chrono::milliseconds lookTime{0};

  void put(const Copy& copy) {
    clipboard = copy;
    ++changeCount_;
    if (const auto changed = std::exchange(changed_, nullptr)) changed();
  }
  std::int64_t changeCount() const override { return changeCount_; }
  Ticket onNextChange(std::function<void()> changed) override {
    if (reportsChanges) changed_ = std::move(changed);
    return Ticket([this] { changed_ = nullptr; });
  }
  Ticket fetch(std::function<void()> done) override {
    return record.soon([this, done = std::move(done)] {
      fetched_ = clipboard;
      done();
    });
  }
  std::string readingObstacle() const override { return obstacle; }
  bool isConcealed() const override { return fetched_.isConcealed; }
  Text plainText() const override { return fetched_.text; }
  Text html() const override { return fetched_.html; }
  Ticket fetchRtf(std::function<void(Text)> done) override {
    record.add("fetch RTF", "fetch RTF");
    return record.answer(std::move(done), clipboard.rtf);
  }
  Ticket prepareWrite(std::function<void()> ready) override {
    return record.soon([this, ready = std::move(ready)] {
      ++prepared_;
      ready();
    });
  }
  void write(const desktop::PasteboardContent& content) override {
    if (prepared_-- == 0) throw std::logic_error("nothing was prepared");
    record.mayFail("write clipboard");
    if (const auto once = std::exchange(refusal, std::nullopt)) throw Error(*once);
    record.trace.emplace_back("write clipboard");
    put({.text = content.plainText, .html = content.html});
  }
  bool isWritten() const override {
    record.loop.leap(lookTime);
    return takes;
  }

 private:
  std::int64_t changeCount_ = 0;
  int prepared_ = 0;  ///< writes that may come
  Copy fetched_;
  std::function<void()> changed_;
};

struct FakeKeyEvents final : Fake<desktop::KeyEvents> {
  FakeKeyEvents(Record& shared, FakeApplications& ours, FakePasteboard& pasteboard)
      : Fake(shared), applications_(ours), pasteboard_(pasteboard) {}
  bool isPersonTrusting = true;  ///< the user grants accessibility
  std::string heldUpBy;
  std::optional<Copy> selection;   ///< copied by Command-C
  std::optional<Copy> everything;  ///< copied by Command-C after Command-A
  std::chrono::milliseconds copyTime{40};
  std::optional<Copy> secondThought;              ///< replaces the copy 50 ms after it
  std::chrono::milliseconds fingersLeave{0};      ///< when the modifiers are released
  std::optional<Copy> copiedElsewhere;            ///< copied by another program meanwhile
  std::function<void(desktop::Key)> beforePress;  ///< what happens meanwhile
  int presses = 0;
  int declinedPress = 0;  ///< number of the press, from 1
  desktop::Delivery declinedAs = desktop::Delivery::declined;
  std::vector<std::string> pastedInto;  ///< the active application at each Command-V

  bool isTrusted() const override { return isPersonTrusting; }
  void askForTrust() override { record.trace.emplace_back("ask for trust"); }
  std::string obstacle() const override { return heldUpBy; }
  Ticket press(desktop::KeyPress press, const std::optional<desktop::RunningApplication>& target,
               std::function<void()> aboutToPress, Then<desktop::Delivery> done) override {
    record.mayFail("press");
    const auto act = [this, press, target, about = std::move(aboutToPress),
                      done = std::move(done)] {
      if (beforePress) beforePress(press.key);
      if (const auto copied = std::exchange(copiedElsewhere, std::nullopt))
        pasteboard_.put(*copied);
      const desktop::Delivery delivery = deliveryTo(target);
      if (delivery == desktop::Delivery::delivered) {
        if (about) about();
        tap(press);
      }
      done(delivery);
    };
    return record.loop.after(fingersLeave, act);
  }

 private:
  [[nodiscard]] desktop::Delivery deliveryTo(
      const std::optional<desktop::RunningApplication>& target) {
    using desktop::Delivery;
    if (++presses == declinedPress) return declinedAs;
    if (!target) return Delivery::delivered;
    if (applications_.ended.contains(target->instance)) return Delivery::targetClosed;
    if (!applications_.isActive(*target)) return Delivery::declined;
    return applications_.active->document == target->document ? Delivery::delivered
                                                              : Delivery::documentChanged;
  }
  void tap(desktop::KeyPress press) {
    using desktop::Key;
    const bool isCommand = press.modifiers == desktop::Modifiers::command;
    const char* key = press.key == Key::c ? "C" : press.key == Key::a ? "A" : "V";
    record.trace.push_back(std::string("press ") + (isCommand ? "⌘" : "?") + key);
    if (press.key == Key::v && applications_.active)
      pastedInto.push_back(applications_.active->name.value_or("?"));
    isAllSelected_ = isAllSelected_ || press.key == Key::a;
    if (press.key != Key::c) return;
    const std::optional<Copy> copied =
        std::exchange(isAllSelected_, false) ? everything : selection;
    if (!copied) return;
    if (copyTime.count() == 0) return pasteboard_.put(*copied);
    copying_ = record.loop.after(copyTime, [this, copied] { pasteboard_.put(*copied); });
    if (secondThought)
      secondCopying_ = record.loop.after(copyTime + std::chrono::milliseconds(50),
                                         [this] { pasteboard_.put(*secondThought); });
  }

  FakeApplications& applications_;
  FakePasteboard& pasteboard_;
  bool isAllSelected_ = false;
  Ticket copying_, secondCopying_;
};

struct FakeKeyStore final : Fake<desktop::KeyStore> {
  using Fake::Fake;
  bool canHoldKey = true, hasKey = true, exportsKey = true, cancelsCreation = false;
  bool lacksEntitlement = false;
  std::optional<Error> createFailure, loadFailure, signFailure;
  std::string keyAdvice;

  bool isAvailable() const override { return canHoldKey; }
  std::unique_ptr<desktop::DeviceKey> create() override {
    record.mayFail("create key");
    if (cancelsCreation) throw Cancelled();
    if (lacksEntitlement)
      throw desktop::KeyStoreError(desktop::KeyStoreError::Reason::missingEntitlement,
                                   {.domain = "OSStatus", .code = -34018, .description = "x"});
    if (createFailure) throw Error(*createFailure);
    record.trace.emplace_back("create key");
    hasKey = true;
    return std::make_unique<Key>(*this);
  }
  std::unique_ptr<desktop::DeviceKey> load(std::optional<desktop::Prompt> prompt) const override {
    if (loadFailure) throw Error(*loadFailure);
    if (!hasKey) return nullptr;
    if (prompt) record.trace.push_back("prompt: " + prompt->reason);
    return std::make_unique<Key>(*this);
  }
  void remove() noexcept override {
    record.trace.emplace_back("delete key");
    hasKey = false;
  }
  std::string advice() const override { return keyAdvice; }

 private:
  /// A key whose signature is the digest itself, so that a test sees what was signed.
  struct Key final : desktop::DeviceKey {
    explicit Key(const FakeKeyStore& owner) : store(owner) {}
    std::optional<std::vector<std::uint8_t>> publicKey() const override {
      if (!store.exportsKey) return std::nullopt;
      return std::vector<std::uint8_t>{4, 1, 2};
    }
    std::vector<std::uint8_t> sign(const std::array<std::uint8_t, 32>& digest) override {
      if (store.signFailure) throw Error(*store.signFailure);
      return {digest.begin(), digest.end()};
    }
    const FakeKeyStore& store;
  };
};

struct FakeLog final : Fake<desktop::Log> {
  using Fake::Fake;
  void write(std::string_view line) override {
    record.trace.push_back("log: " + std::string(line));
  }
};

struct FakeMachine final : Fake<desktop::MachineIdentity> {
  using Fake::Fake;
  Text uuid = "MACHINE-1";
  Text platformUuid() const override { return uuid; }
};

struct FakePresence final : Fake<desktop::Presence> {
  using Fake::Fake;
  Outcome<bool> outcome = true;
  desktop::PresenceCapability biometrics{.available = true, .reason = {}};
  desktop::PresenceCapability biometricsOrPassword{.available = true, .reason = {}};
  desktop::Biometry ofMachine = desktop::Biometry::touchId;

  desktop::PresenceCapability canEvaluate(desktop::PresencePolicy policy) const override {
    return policy == desktop::PresencePolicy::biometrics ? biometrics : biometricsOrPassword;
  }
  desktop::Biometry biometry() const override { return ofMachine; }
  Ticket evaluate(desktop::PresencePolicy policy, const desktop::Prompt& prompt,
                  Then<Outcome<bool>> done) override {
    const bool isPassword = policy == desktop::PresencePolicy::biometricsOrPassword;
    record.add("presence", (isPassword ? "presence or password: " : "presence: ") + prompt.reason);
    return record.answer(std::move(done), outcome);
  }
};

struct FakeProgram final : Fake<desktop::Program> {
  using Fake::Fake;
  int activities = 0;  ///< started and not ended

  void becomeAccessory() override { record.trace.emplace_back("become accessory"); }
  void activate() override { record.trace.emplace_back("activate Quillseal"); }
  void showAbout() override { record.trace.emplace_back("about"); }
  void terminate() override { record.trace.emplace_back("terminate"); }
  Ticket beginActivity(const std::string& /*reason*/) override {
    ++activities;
    return Ticket([this] { --activities; });
  }
};

struct FakeScripts final : Fake<desktop::ScriptRunner> {
  using Fake::Fake;
  std::deque<Outcome<Text>> results;  ///< empty: "true"

  Ticket run(const std::string& source, Then<Outcome<Text>> done) override {
    record.add("script", "script: " + source);
    if (results.empty()) results.emplace_back(Text("true"));
    Outcome<Text> result = std::move(results.front());
    results.pop_front();
    return record.soon([done = std::move(done), result] { done(result); });
  }
};

struct FakeStatusItem final : Fake<desktop::StatusItem> {
  using Fake::Fake;
  desktop::StatusMenu menu;

  void show(const desktop::StatusMenu& description) override {
    record.trace.emplace_back("menu");
    menu = description;
    for (const desktop::MenuItem& item : description.items)
      record.show({item.title});
  }
  void setItemTitle(std::size_t index, const std::string& title) override {
    menu.items.at(index).title = title;
  }
};

struct FakeWallClock final : Fake<desktop::WallClock> {
  using Fake::Fake;
  std::string date = "2026-03-01";
  desktop::TimeZone zone{.identifier = "Europe/Berlin", .secondsFromGmt = 3600};

  std::string today() const override { return date; }
  desktop::TimeZone timeZone() const override { return zone; }
};

struct FakeWindows final : Fake<desktop::Windows> {
  using Fake::Fake;
  desktop::Form form;  ///< of the last window

  std::unique_ptr<desktop::Window> make(const desktop::WindowDescription& description) override {
    record.show({description.title});
    record.trace.push_back("window " + description.title);
    return std::make_unique<Window>(*this);
  }

 private:
  struct Window final : desktop::Window {
    explicit Window(FakeWindows& owner) : windows(owner) {}
    void render(const desktop::Form& form) override {
      windows.form = form;
      for (const desktop::FormSection& section : form.sections) {
        windows.record.show({section.header});
        for (const auto& row : section.rows)
          windows.record.show({std::visit([](const auto& shown) { return textOf(shown); }, row)});
      }
    }
    void bringToFront() override { windows.record.trace.emplace_back("window to front"); }

    static std::string textOf(const desktop::FormText& row) { return row.text; }
    static std::string textOf(const desktop::FormStatus& row) { return row.text.text; }
    static std::string textOf(const desktop::FormField& row) { return row.label; }
    static std::string textOf(const desktop::FormButton& row) { return row.label; }

    FakeWindows& windows;
  };
};

struct FakeWords final : Fake<desktop::Words> {
  using Fake::Fake;
  desktop::Wording wording = mac::MacWords().current();
  std::string advice;
  desktop::Wording current() const override { return wording; }
  std::string desktopAdvice() const override { return advice; }
};

struct FakeDesktop : Record {
  FakeAlerts alerts{*this};
  FakeApplications applications{*this};
  FakeDefaults defaults{*this};
  FakeFiles files{*this};
  FakeHotkey hotkey{*this};
  FakeHttp http{*this};
  FakeKeyStore keyStore{*this};
  FakeLog log{*this};
  FakeMachine machine{*this};
  FakePasteboard pasteboard{*this};
  FakeKeyEvents keys{*this, applications, pasteboard};
  FakePresence presence{*this};
  FakeProgram program{*this};
  FakeScripts scripts{*this};
  FakeStatusItem statusItem{*this};
  FakeWallClock wallClock{*this};
  FakeWindows windows{*this};
  FakeWords words{*this};
  BrowserTabReturn::ScriptedBrowserTabs browserTabs{scripts, log};

  [[nodiscard]] desktop::Desktop services() {
    return {alerts,  applications, browserTabs, defaults, files, hotkey,     http,
            keys,    keyStore,     log,         machine,  loop,  pasteboard, presence,
            program, statusItem,   wallClock,   windows,  words};
  }

  /// Clears the trace and the lists of requests and pastes.
  void forget() {
    trace.clear();
    keys.pastedInto.clear();
    http.sent.clear();
  }
};

}  // namespace quillseal::testing
