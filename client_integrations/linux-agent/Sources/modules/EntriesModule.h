#pragma once

#include <memory>

#include "applications/DesktopEntries.h"
#include "gnome/ShortcutSettings.h"

/// The module that holds what needs GIO and its libraries: the desktop entries, and GNOME's
/// settings.
namespace quillseal::linux::EntriesModule {

inline constexpr const char* fileName = "quillseal-entries.so";

/// The functions that the module exports, and their symbols.
using Make = void(std::unique_ptr<DesktopEntries>& made);
inline constexpr const char* make = "quillseal_make_desktop_entries";
using MakeShortcuts = void(std::unique_ptr<ShortcutSettings>& made);
inline constexpr const char* makeShortcuts = "quillseal_make_shortcut_settings";

}  // namespace quillseal::linux::EntriesModule
