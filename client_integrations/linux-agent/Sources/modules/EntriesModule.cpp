#include "modules/EntriesModule.h"

#include "applications/GioDesktopEntries.h"
#include "gnome/GioShortcutSettings.h"

extern "C" __attribute__((visibility("default"))) void quillseal_make_desktop_entries(
    std::unique_ptr<quillseal::linux::DesktopEntries>& made) {
  made = std::make_unique<quillseal::linux::GioDesktopEntries>();
}

extern "C" __attribute__((visibility("default"))) void quillseal_make_shortcut_settings(
    std::unique_ptr<quillseal::linux::ShortcutSettings>& made) {
  made = std::make_unique<quillseal::linux::GioShortcutSettings>();
}
