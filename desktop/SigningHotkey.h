#pragma once

#include "desktop/KeyEvents.h"

namespace quillseal::desktop {

/// The combination that signs the selected text: Command-Option-Control-H.
inline constexpr KeyPress signingHotkey{
    .key = Key::h, .modifiers = Modifiers::command | Modifiers::option | Modifiers::control};

}  // namespace quillseal::desktop
