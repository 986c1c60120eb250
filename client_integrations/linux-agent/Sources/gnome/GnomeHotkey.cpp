#include "gnome/GnomeHotkey.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <string_view>
#include <utility>

#include "core/text/Error.h"
#include "keyboard/Accelerator.h"
#include "keyboard/HeldHotkey.h"
#include "keyboard/KeyChords.h"
#include "session/LinuxSettings.h"

namespace quillseal::linux {
namespace {

/// The value of `shortcutKeys` for no keys.
constexpr const char* noKeys = "none";

/// GNOME repeats the command of held keys, after 500 ms unless the user chose another delay.
constexpr std::chrono::milliseconds assumedHold{700};

constexpr const char* bindYourself =
    "Bind the command “quillseal --sign” to a shortcut in the keyboard settings of your desktop. "
    "The menu item works in any case.";

/// Quotes for a shell, unless the path needs no quotes.
std::string quoted(const std::string& path) {
  const auto isPlain = [](unsigned char c) {
    return std::isalnum(c) != 0 ||
           std::string_view("/._-+").find(static_cast<char>(c)) != std::string_view::npos;
  };
  if (std::ranges::all_of(path, isPlain)) return path;
  std::string result = "'";
  for (const char c : path)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

/// Whether the text can be keys as GTK writes them. People may have written others, there or here.
bool mayBeKeys(std::string_view text) {
  constexpr std::size_t longest = 100;
  return !text.empty() && text.size() <= longest && std::ranges::all_of(text, [](unsigned char c) {
    return std::isalnum(c) != 0 ||
           std::string_view("<>_").find(static_cast<char>(c)) != std::string_view::npos;
  });
}

constexpr const char* askAdministrator =
    "Ask the administrator for a shortcut that runs “quillseal --sign”. The menu item works in any "
    "case.";

[[noreturn]] void fail(int code, const std::string& problem, const char* advice = bindYourself) {
  throw Error({.domain = "GnomeHotkey", .code = code, .description = problem + " " + advice});
}

[[noreturn]] void failAsUnsupported() {
  fail(2, "This desktop gives programs no hotkey.");
}

}  // namespace

GnomeHotkey::GnomeHotkey(Services services, std::string program)
    : services_(std::move(services)), program_(std::move(program)) {}

void GnomeHotkey::registerHotkey(desktop::KeyPress combination, std::function<void()> /*pressed*/) {
  combination_ = combination;
  try {
    begin();
  } catch (const Error&) {
    turnOff();
    throw;
  }
}

void GnomeHotkey::begin() {
  // What the user answered on GNOME says nothing about another desktop.
  if (!services_.areObeyed()) failAsUnsupported();
  const desktop::Defaults& defaults = services_.defaults();
  if (!LinuxSettings::shortcutOffered.isOn(defaults)) return offer();
  const std::string seen = LinuxSettings::shortcutKeys.value(defaults);
  if (!mayBeKeys(seen)) return read();
  keys_ = seen == noKeys ? std::string() : seen;
  report();
}

void GnomeHotkey::read() {
  keys_ = services_.settings.keys();
  desktop::Defaults& defaults = services_.defaults();
  const std::string seen = keys_.empty() ? noKeys : keys_;
  if (LinuxSettings::shortcutKeys.stored(defaults) != seen && mayBeKeys(seen))
    LinuxSettings::shortcutKeys.store(defaults, seen);
  report();
}

void GnomeHotkey::refresh() {
  if (!combination_ || isAsking_ || !services_.areObeyed()) return;
  try {
    read();
  } catch (const Error&) {
    // Without GIO the keys last seen are the best that is known.
  }
}

void GnomeHotkey::report() {
  if (keys_.empty()) return turnOff();
  const std::string name = nameOfAccelerator(keys_);
  setState({.otherKeys = name == nameOf(*combination_) ? std::string() : name, .isOff = false});
}

void GnomeHotkey::askAgain() {
  if (!combination_ || isAsking_) return;
  try {
    offer();
  } catch (const Error& error) {
    notify(error.what());
  }
}

void GnomeHotkey::offer() {
  const CustomShortcut shortcut{.name = "Sign Selected Text (Quillseal)",
                                .command = quoted(program_) + " --sign",
                                .keys = acceleratorOf(*combination_)};
  const std::string keys = nameOf(*combination_);
  if (!services_.areObeyed()) failAsUnsupported();
  switch (services_.settings.stateOf(shortcut)) {
    case ShortcutState::present:
      LinuxSettings::shortcutOffered.store(services_.defaults(), true);
      return read();
    case ShortcutState::taken:
      fail(1, "Another shortcut of your desktop already uses " + keys + ".");
    case ShortcutState::locked:
      fail(3,
           "The administrator has locked the keyboard settings of your desktop, so Quillseal "
           "cannot add its hotkey there.",
           askAdministrator);
    case ShortcutState::unsupported:
      failAsUnsupported();
    case ShortcutState::missing:
      break;
  }
  isAsking_ = true;
  setState({});
  question_ = services_.alerts().ask(
      {.title = "Add " + keys + " to Your Keyboard Settings?",
       .body = "This desktop gives programs no hotkey. Quillseal can add a shortcut to your own "
               "keyboard settings that signs the selected text. You can change or remove it there "
               "at any time, under Custom Shortcuts. It stays there if you remove Quillseal.\n\n"
               "Without it, sign by the menu, or bind the command “quillseal --sign” to keys of "
               "your choice.",
       .style = desktop::AlertStyle::informational,
       .confirm = "Add Shortcut",
       .cancel = "Don’t Add"},
      [this, shortcut](desktop::Answer answer) { answered(answer, shortcut); });
}

bool GnomeHotkey::isNewPress() {
  const auto now = services_.loop.now();
  if (now <= std::exchange(lastCommand_, now) + longestRepeatDelay) return false;
  refresh();
  return true;
}

bool GnomeHotkey::mayBeHeld() const {
  return services_.loop.now() < lastCommand_ + assumedHold;
}

void GnomeHotkey::answered(desktop::Answer answer, const CustomShortcut& shortcut) {
  isAsking_ = false;
  LinuxSettings::shortcutOffered.store(services_.defaults(), true);
  const bool isAdded = answer == desktop::Answer::confirmed && services_.settings.add(shortcut);
  if (answer == desktop::Answer::confirmed && !isAdded)
    notify(std::string("The shortcut could not be added to your keyboard settings. ") +
           bindYourself);
  read();
}

void GnomeHotkey::notify(const std::string& problem) const {
  services_.alerts().notify({.title = "Quillseal’s Hotkey Is Not Available", .body = problem});
}

}  // namespace quillseal::linux
