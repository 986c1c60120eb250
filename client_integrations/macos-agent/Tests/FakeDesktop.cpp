#include "FakeDesktop.h"

#include <utility>

#include "MacDesktop/MacWords.h"
#include "desktop/SigningHotkey.h"

namespace quillseal::testing {
namespace {

using namespace std::chrono_literals;

/// A key whose signature is the digest itself, so that a test can see what was signed.
class FakeKey final : public desktop::DeviceKey {
 public:
  FakeKey(const FakeDesktop& desktop, std::optional<desktop::Prompt> prompt)
      : desktop_(desktop), prompt_(std::move(prompt)) {}

  [[nodiscard]] std::optional<std::vector<std::uint8_t>> publicKey() const override {
    if (!desktop_.exportsKey) return std::nullopt;
    return std::vector<std::uint8_t>{4, 1, 2};
  }

  [[nodiscard]] std::vector<std::uint8_t> sign(
      const std::array<std::uint8_t, 32>& digest) override {
    if (desktop_.signFailure) throw Error(*desktop_.signFailure);
    return {digest.begin(), digest.end()};
  }

 private:
  const FakeDesktop& desktop_;
  std::optional<desktop::Prompt> prompt_;
};

std::string textOf(const desktop::FormText& text) {
  return text.text;
}

std::string textOf(const desktop::FormStatus& status) {
  return status.text.text;
}

template <typename Labelled>
std::string textOf(const Labelled& row) {
  return row.label;
}

class FakeWindow final : public desktop::Window {
 public:
  explicit FakeWindow(FakeDesktop& desktop) : desktop_(desktop) {}
  void render(const desktop::Form& form) override {
    desktop_.form = form;
    for (const desktop::FormSection& section : form.sections) {
      desktop_.shown += section.header + '\n';
      for (const auto& row : section.rows)
        desktop_.shown +=
            std::visit([](const auto& content) { return textOf(content); }, row) + '\n';
    }
  }
  void bringToFront() override { desktop_.trace.emplace_back("window to front"); }

 private:
  FakeDesktop& desktop_;
};

std::string pathOf(const std::string& url) {
  return url.substr(url.find('/', std::string_view("https://").size()));
}

}  // namespace

FakeDesktop::FakeDesktop() : wording(mac::MacWords().current()) {
  answers["/api/register_native"] = {{200, R"({"status":"ok","device_id":"d","identity":"Ada"})"}};
  answers["/api/sign_native"] = {{200, R"({"signature_id":"sig-1"})"}};
  answers["/api/sign_demo"] = {{200, R"({"signature_id":"demo-1","demo":true})"}};
  answers["/api/handoff/create"] = {
      {200, R"({"handoff_id":"H1","url":"https://seal.example/handoff?h=H1"})"}};
  answers["/api/handoff/poll"] = {{200, R"({"status":"waiting"})"},
                                  {200, R"({"status":"complete","signature_id":"web-1"})"}};
}

desktop::Desktop FakeDesktop::services() {
  return {.alerts = *this,
          .applications = *this,
          .browserTabs = tabs_,
          .defaults = *this,
          .files = *this,
          .hotkey = *this,
          .http = *this,
          .keys = *this,
          .keyStore = *this,
          .log = *this,
          .machine = *this,
          .loop = loop,
          .pasteboard = *this,
          .presence = *this,
          .program = *this,
          .statusItem = *this,
          .wallClock = *this,
          .windows = *this,
          .words = *this};
}

std::vector<std::string> FakeDesktop::userTrace() const {
  std::vector<std::string> lines;
  for (const std::string& line : trace)
    if (line.rfind("log: ", 0) != 0) lines.push_back(line);
  return lines;
}

std::vector<std::string> FakeDesktop::sentTo(std::string_view path) const {
  std::vector<std::string> bodies;
  for (const desktop::HttpPost& post : sent)
    if (pathOf(post.url) == path) bodies.push_back(post.body);
  return bodies;
}

void FakeDesktop::forget() {
  trace.clear();
  pastedInto.clear();
  sent.clear();
}

void FakeDesktop::mayFail(std::string_view call) {
  if (++calls != failingCall) return;
  failedCall = call;
  throw Error({.domain = "fake", .code = 1, .description = "The desktop failed."});
}

desktop::Ticket FakeDesktop::finish(std::function<void()> completion) {
  return loop.after(0ms, std::move(completion));
}

desktop::Ticket FakeDesktop::show(const desktop::Alert& alert, std::function<void()> dismissed) {
  mayFail("alert");
  shown += alert.title + "\n" + alert.body + "\n";
  trace.push_back("alert: " + alert.title + " | " + alert.body);
  if (leavesDialogsOpen) return {};
  return finish(std::move(dismissed));
}

desktop::Ticket FakeDesktop::ask(const desktop::Question& question,
                                 std::function<void(desktop::Answer)> answered) {
  mayFail("ask");
  shown += question.title + "\n" + question.body + "\n" + question.confirm + "\n" +
           question.cancel + "\n";
  trace.push_back("ask: " + question.title + " | " + question.body + " [" + question.confirm +
                  "] [" + question.cancel + "]");
  if (leavesDialogsOpen) return {};
  return finish([this, answered = std::move(answered)] { answered(answer); });
}

desktop::Ticket FakeDesktop::confirm(
    const desktop::ConfirmationForm& asked,
    std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) {
  mayFail("confirm");
  shown += asked.question.title + "\n" + asked.question.body + "\n" + asked.question.confirm +
           "\n" + asked.question.cancel + "\n" + asked.fieldPlaceholder + "\n" + asked.note + "\n";
  trace.push_back("confirm: " + asked.question.title + " [" + asked.question.confirm + "] [" +
                  asked.question.cancel + "], preset " + asked.choices.at(asked.selectedChoice));
  if (leavesDialogsOpen) return {};
  return finish([this, answered = std::move(answered)] { answered(confirmation); });
}

void FakeDesktop::notify(const desktop::Notification& notification) {
  mayFail("notify");
  shown += notification.title + "\n" + notification.body + "\n";
  trace.push_back("notify: " + notification.title + " | " + notification.body);
}

std::optional<desktop::RunningApplication> FakeDesktop::frontmost() const {
  return front;
}

bool FakeDesktop::isActive(const desktop::RunningApplication& application) const {
  return active && active->instance == application.instance;
}

void FakeDesktop::activate(const desktop::RunningApplication& application) {
  mayFail("activate");
  trace.push_back("activate " + application.name.value_or("?"));
  if (ended.find(application.instance) == ended.end()) active = application;
}

std::optional<desktop::InstalledApplication> FakeDesktop::defaultApplicationFor(
    const std::string& /*url*/) const {
  return defaultBrowser;
}

desktop::Ticket FakeDesktop::open(const std::string& url,
                                  const desktop::InstalledApplication& application,
                                  std::function<void(std::optional<Error>)> done) {
  mayFail("open with");
  trace.push_back("open " + url + " with " + application.location);
  return finish([this, done = std::move(done)] {
    if (browserOpens) {
      done(std::nullopt);
    } else {
      done(Error({.domain = "fake", .code = 2, .description = "It did not open."}));
    }
  });
}

void FakeDesktop::open(const std::string& url) {
  mayFail("open");
  trace.push_back("open " + url);
  if (!anyBrowserOpens)
    throw Error({.domain = "fake", .code = 3, .description = "There is no browser."});
}

std::optional<std::string> FakeDesktop::string(std::string_view key) const {
  const auto found = strings.find(key);
  return found == strings.end() ? std::nullopt : std::optional(found->second);
}

bool FakeDesktop::boolean(std::string_view key) const {
  return flags.find(key) != flags.end();
}

void FakeDesktop::setString(std::string_view key, std::string_view value) {
  mayFail("set");
  strings[std::string(key)] = value;
  trace.push_back("set " + std::string(key) + " = " + std::string(value));
  loop.post([this] {
    for (const auto& [number, changed] : observers_)
      changed();
  });
}

desktop::Ticket FakeDesktop::observe(std::function<void()> changed) {
  const int number = observerCount_++;
  observers_[number] = std::move(changed);
  return desktop::Ticket([this, number] { observers_.erase(number); });
}

bool FakeDesktop::replace(const std::string& path, std::string_view contents) {
  files[path] = contents;
  return true;
}

void FakeDesktop::registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) {
  if (hotkeyFailure) throw Error(*hotkeyFailure);
  trace.emplace_back(combination == desktop::signingHotkey ? "hotkey ⌘⌥⌃H" : "another hotkey");
  hotkeyPressed = std::move(pressed);
}

void FakeDesktop::show(const desktop::StatusMenu& description) {
  trace.emplace_back("menu");
  menu = description;
  for (const desktop::MenuItem& item : description.items)
    shown += item.title + "\n";
}

void FakeDesktop::setItemTitle(std::size_t index, const std::string& title) {
  menu.items.at(index).title = title;
}

std::unique_ptr<desktop::Window> FakeDesktop::make(const desktop::WindowDescription& description) {
  shown += description.title + "\n";
  trace.push_back("window " + description.title);
  return std::make_unique<FakeWindow>(*this);
}

desktop::Ticket FakeDesktop::send(const desktop::HttpPost& post,
                                  std::function<void(Outcome<desktop::HttpResponse>)> done) {
  mayFail("send");
  const std::string path = pathOf(post.url);
  trace.push_back("POST " + path);
  sent.push_back(post);
  if (sendFailure) return finish([this, done = std::move(done)] { done(*sendFailure); });
  std::deque<Answer>& queue = answers.at(path);
  const Answer response = queue.front();
  if (queue.size() > 1) queue.pop_front();
  return finish([done = std::move(done), response] {
    done(desktop::HttpResponse{.status = response.status, .body = response.body});
  });
}

Error FakeDesktop::error(desktop::transport::ErrorCode code) const {
  return Error({.domain = desktop::transport::errorDomain,
                .code = code,
                .description = "The server gave no usable answer."});
}

desktop::Ticket FakeDesktop::press(desktop::KeyPress press,
                                   const std::optional<desktop::RunningApplication>& target,
                                   std::function<void()> aboutToPress,
                                   std::function<void(desktop::Delivery)> done) {
  mayFail("press");
  return loop.after(fingersLeave, [this, press, target, aboutToPress = std::move(aboutToPress),
                                   done = std::move(done)] {
    if (beforePress) beforePress(press.key);
    if (const auto copied = std::exchange(copiedElsewhere, std::nullopt)) setClipboard(*copied);
    const desktop::Delivery delivery = deliveryTo(target);
    if (delivery == desktop::Delivery::delivered) {
      if (aboutToPress) aboutToPress();
      tap(press);
    }
    done(delivery);
  });
}

desktop::Delivery FakeDesktop::deliveryTo(
    const std::optional<desktop::RunningApplication>& target) {
  using desktop::Delivery;
  if (++presses == declinedPress) return Delivery::declined;
  if (!target) return Delivery::delivered;
  if (ended.count(target->instance) != 0) return Delivery::targetClosed;
  if (!isActive(*target)) return Delivery::declined;
  return active->document == target->document ? Delivery::delivered : Delivery::documentChanged;
}

void FakeDesktop::tap(desktop::KeyPress press) {
  using desktop::Key;
  const bool isCommand = press.modifiers == desktop::Modifiers::command;
  const char* key = press.key == Key::c ? "C" : press.key == Key::a ? "A" : "V";
  trace.push_back(std::string("press ") + (isCommand ? "⌘" : "?") + key);
  if (press.key == Key::v && active) pastedInto.push_back(active->name.value_or("?"));
  if (press.key == Key::a) isAllSelected_ = true;
  if (press.key != Key::c) return;
  const std::optional<Copy> copied = isAllSelected_ ? everything : selection;
  if (copied) copying_ = loop.after(copyTime, [this, copied] { setClipboard(*copied); });
  if (copied && secondThought)
    secondCopying_ = loop.after(copyTime + 50ms, [this] { setClipboard(*secondThought); });
}

void FakeDesktop::setClipboard(const Copy& copy) {
  clipboard = copy;
  ++changeCount_;
  if (const auto changed = std::exchange(clipboardChanged_, nullptr)) changed();
}

desktop::Ticket FakeDesktop::onNextChange(std::function<void()> changed) {
  if (tellsOfClipboardChanges) clipboardChanged_ = std::move(changed);
  return desktop::Ticket([this] { clipboardChanged_ = nullptr; });
}

desktop::Ticket FakeDesktop::fetch(std::function<void()> fetched) {
  return loop.after({}, [this, fetched = std::move(fetched)] {
    fetched_ = clipboard;
    fetched();
  });
}

desktop::Ticket FakeDesktop::beginActivity(const std::string& /*reason*/) {
  ++activities;
  return desktop::Ticket([this] { --activities; });
}

void FakeDesktop::write(const desktop::PasteboardContent& content) {
  mayFail("write clipboard");
  trace.emplace_back("write clipboard");
  setClipboard({.text = content.plainText, .html = content.html});
}

std::unique_ptr<desktop::DeviceKey> FakeDesktop::create() {
  mayFail("create key");
  if (cancelsCreation) throw Cancelled();
  if (lacksEntitlement)
    throw desktop::KeyStoreError(desktop::KeyStoreError::Reason::missingEntitlement,
                                 {.domain = "OSStatus", .code = -34018, .description = "x"});
  if (createFailure) throw Error(*createFailure);
  trace.emplace_back("create key");
  hasKey = true;
  return std::make_unique<FakeKey>(*this, std::nullopt);
}

std::unique_ptr<desktop::DeviceKey> FakeDesktop::load(std::optional<desktop::Prompt> prompt) const {
  if (loadFailure) throw Error(*loadFailure);
  if (!hasKey) return nullptr;
  // The agent's view of the store is const; the recorder's is not.
  if (prompt) const_cast<FakeDesktop*>(this)->trace.push_back("prompt: " + prompt->reason);
  return std::make_unique<FakeKey>(*this, std::move(prompt));
}

void FakeDesktop::remove() noexcept {
  trace.emplace_back("delete key");
  hasKey = false;
}

desktop::PresenceCapability FakeDesktop::canEvaluate(desktop::PresencePolicy policy) const {
  return policy == desktop::PresencePolicy::biometrics ? biometrics : biometricsOrPassword;
}

desktop::Ticket FakeDesktop::evaluate(desktop::PresencePolicy policy, const desktop::Prompt& prompt,
                                      std::function<void(Outcome<bool>)> done) {
  mayFail("presence");
  const bool isPassword = policy == desktop::PresencePolicy::biometricsOrPassword;
  trace.push_back((isPassword ? "presence or password: " : "presence: ") + prompt.reason);
  return finish([this, done = std::move(done)] { done(presence); });
}

desktop::Ticket FakeDesktop::run(const std::string& source,
                                 std::function<void(Outcome<std::optional<std::string>>)> done) {
  mayFail("script");
  trace.push_back("script: " + source);
  Outcome<std::optional<std::string>> result = std::optional<std::string>("true");
  if (!scriptResults.empty()) {
    result = scriptResults.front();
    scriptResults.pop_front();
  }
  return finish([done = std::move(done), result] { done(result); });
}

}  // namespace quillseal::testing
