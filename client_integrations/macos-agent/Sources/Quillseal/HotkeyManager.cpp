#include "Quillseal/HotkeyManager.h"

#include <string>

#include "core/text/Error.h"
#include "desktop/SigningHotkey.h"

namespace quillseal {

void HotkeyManager::registerHotkey() {
  try {
    services_.hotkey.registerHotkey(desktop::signingHotkey,
                                    [&coordinator = coordinator_] { coordinator.startSigning(); });
  } catch (const Error& error) {
    // A notification: at log-in an alert would stand in the way of somebody who signs by the menu.
    services_.log.write(std::string("[sign] the hotkey could not be registered: ") + error.what());
    services_.alerts.notify({.title = "Quillseal’s Hotkey Is Not Available", .body = error.what()});
  }
}

}  // namespace quillseal
