#pragma once

#include "Quillseal/Settings.h"

/// The settings that only Linux desktops have; the agent's own are in `Settings`.
namespace quillseal::linux::LinuxSettings {

/// Whether the user's last answer to the desktop's question for the hotkey was a refusal.
inline constexpr Settings::Flag hotkeyRefused{.key = "HotkeyRefused"};

/// Whether the user has answered the offer to add a shortcut on GNOME, with yes or no, or has the
/// shortcut already.
inline constexpr Settings::Flag shortcutOffered{.key = "ShortcutOffered"};
/// The keys that this shortcut had when it was last seen, as GTK writes them; "none" for none.
inline constexpr Settings::Text shortcutKeys{.key = "ShortcutKeys", .fallback = Settings::nothing};

}  // namespace quillseal::linux::LinuxSettings
