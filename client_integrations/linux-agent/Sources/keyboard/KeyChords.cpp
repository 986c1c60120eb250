#include "keyboard/KeyChords.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace quillseal::linux {
namespace {

using desktop::contains;
using desktop::Key;
using desktop::KeyPress;
using desktop::Modifiers;

// Terminals without a desktop file, or whose desktop file lacks the category.
constexpr auto terminalClasses = std::to_array<std::string_view>(
    {"alacritty", "com.mitchellh.ghostty", "kitty", "konsole", "org.wezfurlong.wezterm",
     "st-256color", "terminator", "urxvt", "xfce4-terminal"});

// Terminals that copy by selecting, as the first X terminals did.
constexpr auto selectingClasses = std::to_array<std::string_view>({"uxterm", "xterm", "urxvt"});

struct ModifierKey {
  Keysym symbol;
  std::string_view name;
};
constexpr std::array modifierKeys = {ModifierKey{XKB_KEY_Control_L, "Ctrl"},
                                     ModifierKey{XKB_KEY_Alt_L, "Alt"},
                                     ModifierKey{XKB_KEY_Super_L, "Super"}};

bool isHeld(Keysym modifier, Modifiers modifiers) {
  const bool control = contains(modifiers, Modifiers::control);
  const bool command = contains(modifiers, Modifiers::command);
  switch (modifier) {
    case XKB_KEY_Control_L:
      return control || command;
    case XKB_KEY_Alt_L:
      return contains(modifiers, Modifiers::option);
    default:
      return control && command;
  }
}

Keysym symbolOf(Key key) {
  return XKB_KEY_a + static_cast<Keysym>(desktop::letterOf(key) - 'a');
}

bool isOneOf(std::string_view windowClass, const auto& classes) {
  return std::ranges::any_of(classes, [&](std::string_view candidate) {
    return std::ranges::equal(windowClass, candidate, {},
                              [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  });
}

}  // namespace

bool isTerminal(const ApplicationKind& kind) {
  return kind.categories.find("TerminalEmulator") != std::string_view::npos ||
         isOneOf(kind.windowClass, terminalClasses) || copiesBySelecting(kind.windowClass);
}

bool copiesBySelecting(std::string_view windowClass) {
  return isOneOf(windowClass, selectingClasses);
}

std::vector<Keysym> chordOf(KeyPress press) {
  std::vector<Keysym> chord;
  for (const auto& [symbol, name] : modifierKeys)
    if (isHeld(symbol, press.modifiers)) chord.push_back(symbol);
  chord.push_back(symbolOf(press.key));
  return chord;
}

std::uint8_t usualKeyOf(Keysym symbol) {
  switch (symbol) {
    case XKB_KEY_a:
      return 38;
    case XKB_KEY_c:
      return 54;
    case XKB_KEY_h:
      return 43;
    case XKB_KEY_v:
      return 55;
    default:
      return 0;
  }
}

std::optional<std::uint32_t> fixedKeyOf(Keysym symbol) {
  switch (symbol) {
    case XKB_KEY_Control_L:
      return KEY_LEFTCTRL;
    case XKB_KEY_Shift_L:
      return KEY_LEFTSHIFT;
    case XKB_KEY_Insert:
      return KEY_INSERT;
    default:
      return std::nullopt;
  }
}

std::vector<Keysym> chordFor(KeyPress press, const ApplicationKind& kind) {
  if (!isTerminal(kind)) return chordOf(press);
  if (press.key != Key::c || copiesBySelecting(kind.windowClass)) return {};
  return {XKB_KEY_Control_L, XKB_KEY_Shift_L, XKB_KEY_c};
}

std::string nameOf(KeyPress press) {
  const char letter = desktop::letterOf(press.key);
  return nameOf(press.modifiers, std::string_view(&letter, 1));
}

std::string nameOf(Modifiers modifiers, std::string_view key) {
  std::string result;
  for (const auto& [symbol, name] : modifierKeys)
    if (isHeld(symbol, modifiers)) result.append(name) += '+';
  std::ranges::transform(key, std::back_inserter(result),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return result;
}

}  // namespace quillseal::linux
