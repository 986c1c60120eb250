#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/KeyEvents.h"
#include "keyboard/Keysym.h"

namespace quillseal::linux {

/// Stands for keys that the desktop does not name: on Hyprland the user chooses them in its
/// configuration.
inline constexpr const char* unknownKeys = "the shortcut of your choice";

/// Returns the keys to press on a Linux keyboard for a key press of the agent, modifiers first.
///
/// Command becomes Control, as in the shortcuts of applications. Together with Control, Command
/// becomes Super, since one key cannot be both.
[[nodiscard]] std::vector<Keysym> chordOf(desktop::KeyPress press);

/// Returns the usual key code of a letter that the agent presses, in the numbering of X and XKB
/// (evdev plus 8); 0 for other symbols.
[[nodiscard]] std::uint8_t usualKeyOf(Keysym symbol);

/// Returns the key code of a symbol that has the same key in every layout, in evdev's numbering
/// (linux/input-event-codes.h); nothing for others.
[[nodiscard]] std::optional<std::uint32_t> fixedKeyOf(Keysym symbol);

/// What decides which keys an application understands.
struct ApplicationKind {
  std::string_view categories;   ///< of its desktop file
  std::string_view windowClass;  ///< the class part of WM_CLASS; empty where it is not known
};

/// Whether an application is a terminal, by its categories or because it is known as one.
[[nodiscard]] bool isTerminal(const ApplicationKind& kind);

/// Returns whether the terminal has no key that copies: it copies every selection to the primary
/// selection.
[[nodiscard]] bool copiesBySelecting(std::string_view windowClass);

/// Returns the chord that copies, pastes or selects all in an application of this kind, empty when
/// nothing may be pressed. In a terminal Ctrl+C would end the running program, so Shift is added. A
/// terminal may have no key that copies, has none that selects all, and is never pasted into.
[[nodiscard]] std::vector<Keysym> chordFor(desktop::KeyPress press, const ApplicationKind& kind);

/// Returns the shortcut in words: "Ctrl+Alt+Super+H".
[[nodiscard]] std::string nameOf(desktop::KeyPress press);

/// The same for a key by its character, given in lower case.
[[nodiscard]] std::string nameOf(desktop::Modifiers modifiers, std::string_view key);

}  // namespace quillseal::linux
