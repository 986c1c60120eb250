#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/KeyEvents.h"
#include "x11/X11Keyboard.h"

namespace quillseal::linux {

/// The keys of a Linux keyboard that stand for a key press of the agent: modifiers first.
///
/// Command is Control, as in the shortcuts of applications. Where Control is asked for beside it,
/// Command is the key with the logo of the desktop (Super), since one key cannot be both.
[[nodiscard]] std::vector<Keysym> chordOf(desktop::KeyPress press);

/// The key that a letter of the agent's is on, on every PC keyboard, in the numbering of X and XKB,
/// which is that of evdev plus 8; 0 for other symbols.
[[nodiscard]] std::uint8_t usualKeyOf(Keysym symbol);

/// Whether an application of this kind is a terminal, by the categories of its desktop file or
/// because it is known as one.
[[nodiscard]] bool isTerminal(std::string_view categories, std::string_view windowClass);

/// Whether the terminal has no chord that copies: in it, whatever is selected has been copied, to
/// the primary selection.
[[nodiscard]] bool copiesBySelecting(std::string_view windowClass);

/// The chord that copies, pastes or selects all in an application of this kind. In a terminal
/// Ctrl+C would end the program that runs there, so Shift is added; a terminal may have no key that
/// copies, has none that selects all, and is never pasted into: an empty chord means that nothing
/// may be pressed.
[[nodiscard]] std::vector<Keysym> chordFor(desktop::KeyPress press, std::string_view categories,
                                           std::string_view windowClass);

/// The combination in words: "Ctrl+Alt+Super+H".
[[nodiscard]] std::string nameOf(desktop::KeyPress press);

/// The same for a key by its character, given in lower case.
[[nodiscard]] std::string nameOf(desktop::Modifiers modifiers, std::string_view key);

}  // namespace quillseal::linux
