#include "portal/PortalHotkey.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "keyboard/Accelerator.h"
#include "keyboard/KeyChords.h"
#include "session/LinuxSettings.h"

namespace quillseal::linux {
namespace {

using namespace std::chrono_literals;

constexpr const char* interface = "org.freedesktop.portal.GlobalShortcuts";
constexpr const char* shortcut = "sign";
constexpr const char* description = "Sign the selected text";

// The desktop reports the release of the first key; people let go of the others right after.
constexpr auto releaseTime = 100ms;
// A portal that ended is started by the next call; it may have ended with the session.
constexpr auto pauseBeforeRestart = 2s;
// A desktop that ends the session again so soon means it.
constexpr auto deliberatelySoon = 1min;
// A portal that ends again so soon may do so because of the hotkey, so there is no new attempt for
// as long.
constexpr auto suspiciouslySoon = 1min;

DesktopBus::Signal signal(const char* name) {
  return {.sender = Portal::service,
          .path = Portal::path,
          .interface = interface,
          .name = name,
          .firstArgument = nullptr};
}

/// The combination as freedesktop.org writes shortcuts: "CTRL+ALT+LOGO+h".
std::string triggerOf(desktop::KeyPress combination) {
  std::string trigger;
  for (const Keysym symbol : chordOf(combination)) {
    switch (symbol) {
      case XKB_KEY_Control_L:
        trigger += "CTRL+";
        break;
      case XKB_KEY_Alt_L:
        trigger += "ALT+";
        break;
      case XKB_KEY_Super_L:
        trigger += "LOGO+";
        break;
      default:
        trigger += desktop::letterOf(combination.key);
    }
  }
  return trigger;
}

/// The keys of a description. GNOME puts them into a sentence of the user's language, such as
/// "Press <Control><Alt><Super>h"; KDE writes them alone, as "Ctrl+Alt+Meta+H".
std::string describedKeys(std::string_view sentence) {
  const std::size_t begin = sentence.find('<');
  if (begin == std::string_view::npos) return std::string(sentence);
  std::size_t end = begin;
  while (end < sentence.size() && sentence[end] == '<') {
    const std::size_t close = sentence.find('>', end);
    if (close == std::string_view::npos) return std::string(sentence);
    end = close + 1;
  }
  const auto isOfName = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; };
  while (end < sentence.size() && isOfName(static_cast<unsigned char>(sentence[end])))
    ++end;
  return nameOfAccelerator(sentence.substr(begin, end - begin));
}

/// The words in such keys, each key by one name.
std::set<std::string> keysIn(std::string_view text) {
  std::set<std::string> keys;
  std::string word;
  const auto end = [&] {
    if (word == "control") word = "ctrl";
    if (word == "meta" || word == "logo") word = "super";
    if (!word.empty()) keys.insert(word);
    word.clear();
  };
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (std::isalnum(byte) != 0 || byte > 0x7F)
      word += static_cast<char>(std::tolower(byte));
    else
      end();
  }
  end();
  return keys;
}

constexpr const char* otherWays =
    " Bind the command “quillseal --sign” to a shortcut in the keyboard settings of your desktop, "
    "or use the menu.";

/// Whether the desktop answered, and the hotkey was not allowed. GNOME answers 2, for a request
/// that has ended in some other way, when the user closes its question.
bool isRefusal(const PortalAnswer& answer) {
  constexpr std::uint32_t cancelled = 1;
  constexpr std::uint32_t endedOtherwise = 2;
  std::uint32_t code = 0;
  return answer.message != nullptr && ::sd_bus_message_rewind(answer.message.get(), 1) >= 0 &&
         ::sd_bus_message_read(answer.message.get(), "u", &code) > 0 &&
         (code == cancelled || code == endedOtherwise);
}

}  // namespace

PortalHotkey::PortalHotkey(Services services)
    : services_(std::move(services)),
      onPress_([this](sd_bus_message& message) { press(message); }),
      onRelease_([this](sd_bus_message& message) { release(message); }),
      onChange_([this](sd_bus_message& message) {
        if (session_ != nullptr && session_->isMeantBy(message)) readKeys(message);
      }),
      onOwner_([this](sd_bus_message& message) {
        const char* name = nullptr;
        const char* before = nullptr;
        const char* now = nullptr;
        if (isRefused_ || ::sd_bus_message_read(&message, "sss", &name, &before, &now) <= 0) return;
        if (*now == '\0')
          portalEnded();
        else if (session_ == nullptr && !isBinding_ && services_.loop.now() >= restsUntil_)
          bindAfter(0s);
      }) {}

void PortalHotkey::registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) {
  combination_ = combination;
  pressed_ = std::move(pressed);
  DesktopBus& bus = services_.portal.bus();
  presses_ = bus.subscribe(signal("Activated"), onPress_);
  releases_ = bus.subscribe(signal("Deactivated"), onRelease_);
  changes_ = bus.subscribe(signal("ShortcutsChanged"), onChange_);
  owners_ = bus.subscribe(DesktopBus::ownerChangeOf(Portal::service), onOwner_);
  if (LinuxSettings::hotkeyRefused.isOn(services_.defaults()))
    refuse();
  else
    bindAfter(0s);
}

void PortalHotkey::refuse() {
  isRefused_ = true;
  again_ = {};  // a new attempt, if the session ended before the answer
  turnOff();
}

void PortalHotkey::askAgain() {
  if (!state().isOff) return;
  isWanted_ = true;
  isRefused_ = false;
  setState({});
  bindAfter(0s);
}

void PortalHotkey::bindAfter(std::chrono::milliseconds delay) {
  again_ = services_.loop.after(delay, [this] {
    binding_.emplace();
    binding_->start(bind());
  });
}

Task<> PortalHotkey::bind() {
  const auto begin = services_.loop.now();
  isBinding_ = true;
  held_.release();
  giveUp_ = services_.loop.after(services_.timeout, [this] {
    binding_.reset();
    fail(
        "The portal of your desktop does not answer, so there is no hotkey. If it still does not "
        "work when you have logged out and in, use the menu of Quillseal.");
  });
  session_ = co_await PortalSession::open(services_.portal, interface,
                                          [this](PortalSession::End how) { end(how); });
  giveUp_ = {};  // the user may take any time
  PortalAnswer answer;
  const bool isOpened = session_ != nullptr;
  if (isOpened) answer = co_await requestKeys();
  // The end of the portal, which is also the end of its requests, may be reported to them first.
  if (answer.message == nullptr) co_await sleep(services_.loop, 0ms);
  isBinding_ = false;
  const bool isBoundAgain = lastPortalEnd_ && *lastPortalEnd_ > begin;
  if ((isBoundAgain || (isOpened && session_ == nullptr)) && !isRefusal(answer)) co_return;
  if (answer.outcome == PortalAnswer::Outcome::granted)
    accept(*answer.message);
  else
    reject(isRefusal(answer));
}

Task<PortalAnswer> PortalHotkey::requestKeys() {
  Portal::Message call = services_.portal.newCall(interface, "BindShortcuts", session_->handle());
  const std::string trigger = triggerOf(combination_);
  constexpr const char* noWindow = "";
  if (call == nullptr ||
      ::sd_bus_message_append(call.get(), "a(sa{sv})s", 1, shortcut, 2, "description", "s",
                              description, "preferred_trigger", "s", trigger.c_str(), noWindow) < 0)
    co_return PortalAnswer{};
  Portal::Options none;
  co_return co_await services_.portal.request(std::move(call), std::move(none));
}

void PortalHotkey::accept(sd_bus_message& answer) {
  const bool wasWanted = std::exchange(isWanted_, false);
  desktop::Defaults& defaults = services_.defaults();
  if (LinuxSettings::hotkeyRefused.isOn(defaults))
    LinuxSettings::hotkeyRefused.store(defaults, false);
  if (state().isOff) setState({});
  if (enterOption(answer, {.name = "shortcuts", .type = "a(sa{sv})", .before = "u"}))
    readKeys(answer);
  if (wasWanted && state().isOff)
    services_.notify(
        "Your desktop has no keys for Quillseal’s hotkey. Choose some in its keyboard settings.");
}

void PortalHotkey::reject(bool isRefused) {
  if (isRefused) {
    LinuxSettings::hotkeyRefused.store(services_.defaults(), true);
    refuse();
    return fail(std::string("Quillseal’s hotkey is off, because it was not allowed. You can turn "
                            "it on in the settings of Quillseal.") +
                otherWays);
  }
  if (session_ == nullptr)
    return fail(
        "The portal of your desktop does not accept Quillseal, so there is no hotkey. Install the "
        "Debian package of Quillseal if it is not installed, or start Quillseal again.");
  fail(std::string("Your desktop gave Quillseal no hotkey.") + otherWays);
}

void PortalHotkey::fail(const std::string& problem) {
  session_ = nullptr;
  isBinding_ = false;
  isWanted_ = false;
  turnOff();
  services_.notify(problem);
}

void PortalHotkey::portalEnded() {
  const auto now = services_.loop.now();
  if (lastPortalEnd_ && now < *lastPortalEnd_ + suspiciouslySoon)
    restsUntil_ = now + suspiciouslySoon;
  lastPortalEnd_ = now;
  bindAfter(std::max<std::chrono::milliseconds>(
      pauseBeforeRestart, std::chrono::ceil<std::chrono::milliseconds>(restsUntil_ - now)));
}

void PortalHotkey::end(PortalSession::End how) {
  session_ = nullptr;
  held_.release();
  if (how == PortalSession::End::withPortal) return;  // see `portalEnded`
  const auto now = services_.loop.now();
  const bool isDeliberate = lastEnd_ && now < *lastEnd_ + deliberatelySoon;
  lastEnd_ = now;
  if (!isDeliberate) return bindAfter(pauseBeforeRestart);
  refuse();
  services_.notify(std::string("Your desktop has ended Quillseal’s hotkey.") + otherWays);
}

/// Reads the list of shortcuts that comes next in the message.
void PortalHotkey::readKeys(sd_bus_message& shortcuts) {
  if (::sd_bus_message_enter_container(&shortcuts, 'a', "(sa{sv})") <= 0) return;
  while (::sd_bus_message_enter_container(&shortcuts, 'r', "sa{sv}") > 0) {
    const char* id = nullptr;
    const char* keys = nullptr;
    if (::sd_bus_message_read(&shortcuts, "s", &id) <= 0) return;
    if (std::string_view(id) != shortcut) {
      if (::sd_bus_message_skip(&shortcuts, "a{sv}") < 0 ||
          ::sd_bus_message_exit_container(&shortcuts) < 0)
        return;
      continue;
    }
    // GNOME describes no keys where the user has removed them.
    if (!enterOption(shortcuts, {.name = "trigger_description"}) ||
        ::sd_bus_message_read(&shortcuts, "s", &keys) <= 0)
      return turnOff();
    const std::string name = *keys == '\0' ? unknownKeys : describedKeys(keys);
    const bool isAsAsked = keysIn(name) == keysIn(nameOf(combination_));
    return setState({.otherKeys = isAsAsked ? std::string() : name, .isOff = false});
  }
}

bool PortalHotkey::mayBeHeld() const {
  return held_.isDown() || services_.loop.now() < lastRelease_ + releaseTime;
}

void PortalHotkey::press(sd_bus_message& signal) {
  const char* id = nullptr;
  if (session_ == nullptr || !session_->isMeantBy(signal) ||
      ::sd_bus_message_read(&signal, "s", &id) <= 0 || std::string_view(id) != shortcut)
    return;
  const auto token = textOption(signal, {.name = "activation_token", .before = "ost"});
  if (token && services_.activated) services_.activated(*token);
  if (held_.press(services_.loop.now())) services_.loop.post(pressed_);
}

void PortalHotkey::release(sd_bus_message& signal) {
  const char* id = nullptr;
  if (session_ == nullptr || !session_->isMeantBy(signal) ||
      ::sd_bus_message_read(&signal, "s", &id) <= 0 || std::string_view(id) != shortcut)
    return;
  held_.release();
  lastRelease_ = services_.loop.now();
}

}  // namespace quillseal::linux
