#include "Quillseal/AppDelegate.h"

#include <string>

#include "Quillseal/ContentRisk.h"

namespace quillseal {

void AppDelegate::applicationDidFinishLaunching() {
  desktop_.program.becomeAccessory();
  signingCoordinator_ = std::make_unique<SigningCoordinator>(desktop_);
  menuBarManager_ = std::make_unique<MenuBarManager>(desktop_, *signingCoordinator_);
  menuBarManager_->setupMenu();
  hotkeyManager_ = std::make_unique<HotkeyManager>(
      HotkeyManager::Services{
          .alerts = desktop_.alerts, .hotkey = desktop_.hotkey, .log = desktop_.log},
      *signingCoordinator_);
  hotkeyManager_->registerHotkey();
  for (const std::string_view rule : ContentRisk::disabledRules())
    desktop_.log.write("[risk] rule " + std::string(rule) + " failed to compile and is disabled");
}

}  // namespace quillseal
