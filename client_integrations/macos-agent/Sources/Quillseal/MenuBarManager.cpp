#include "Quillseal/MenuBarManager.h"

#include "Quillseal/BuiltInServer.h"
#include "Quillseal/Settings.h"
#include "desktop/SigningHotkey.h"

namespace quillseal {

using desktop::MenuItem;
using desktop::Modifiers;

MenuBarManager::MenuBarManager(const desktop::Desktop& desktop, SigningCoordinator& coordinator)
    : desktop_(desktop), coordinator_(coordinator) {}

void MenuBarManager::setupMenu() {
  const auto action = [](std::string title, std::string key, std::function<void()> perform) {
    return MenuItem{.kind = MenuItem::Kind::action,
                    .title = std::move(title),
                    .keyEquivalent = std::move(key),
                    .keyModifiers = Modifiers::command,
                    .action = std::move(perform)};
  };
  MenuItem sign = action(signLine(), std::string(1, desktop::letterOf(desktop::signingHotkey.key)),
                         [this] { signText(); });
  sign.keyModifiers = desktop::signingHotkey.modifiers;
  const MenuItem separator{.kind = MenuItem::Kind::separator,
                           .title = {},
                           .keyEquivalent = {},
                           .keyModifiers = Modifiers::none,
                           .action = {}};
  const MenuItem server{.kind = MenuItem::Kind::label,
                        .title = serverLine(),
                        .keyEquivalent = {},
                        .keyModifiers = Modifiers::none,
                        .action = {}};

  desktop::StatusMenu menu{.symbol = "shield.fill",
                           .symbolDescription = "Quill Seal",
                           .title = " 🛡️ Quillseal",
                           .items = {}};
  signItemIndex_ = menu.items.size();
  menu.items.push_back(sign);
  menu.items.push_back(separator);
  serverItemIndex_ = menu.items.size();
  menu.items.push_back(server);
  menu.items.push_back(action("Configure Server...", ",", [this] { configureServer(); }));
  menu.items.push_back(separator);
  menu.items.push_back(action("About Quill Seal", "", [this] { showAbout(); }));
  menu.items.push_back(action("Quit Quill Seal", "q", [this] { quitApp(); }));
  desktop_.statusItem.show(menu);
  settingsObserver_ = desktop_.defaults.observe([this] { serverUrlChanged(); });
  hotkeyObserver_ = desktop_.hotkey.observe([this] { hotkeyChanged(); });
}

void MenuBarManager::signText() {
  coordinator_.startSigning();
}

void MenuBarManager::configureServer() {
  if (!settingsWindow_) {
    settingsWindow_ =
        desktop_.windows.make({.title = "Quill Seal Server Settings", .width = 440, .height = 200});
    settingsView_ = std::make_unique<SettingsView>(
        SettingsView::Services{.defaults = desktop_.defaults,
                               .hotkey = desktop_.hotkey,
                               .keyStore = desktop_.keyStore,
                               .log = desktop_.log,
                               .loop = desktop_.loop,
                               .words = desktop_.words},
        coordinator_, *settingsWindow_,
        BuiltInServer::apiKey().empty() ? SettingsView::Build::development
                                        : SettingsView::Build::packaged);
  }
  desktop_.hotkey.refresh();
  settingsView_->refresh();  // for what else the desktop does not report
  settingsWindow_->bringToFront();
}

void MenuBarManager::showAbout() {
  desktop_.program.activate();
  desktop_.program.showAbout();
}

void MenuBarManager::quitApp() {
  desktop_.program.terminate();
}

void MenuBarManager::hotkeyChanged() {
  desktop_.statusItem.setItemTitle(signItemIndex_, signLine());
  if (settingsView_) settingsView_->refresh();
}

void MenuBarManager::serverUrlChanged() {
  desktop_.statusItem.setItemTitle(serverItemIndex_, serverLine());
}

std::string MenuBarManager::signLine() const {
  return "Sign Selected Text (" +
         (desktop_.hotkey.state().isOff ? "the hotkey is off" : desktop_.words.current().hotkey) +
         ")";
}

std::string MenuBarManager::serverLine() const {
  return "Server: " + Settings::serverURL.value(desktop_.defaults);
}

}  // namespace quillseal
