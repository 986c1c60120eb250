#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "Quillseal/SettingsView.h"
#include "Quillseal/SigningCoordinator.h"
#include "desktop/Desktop.h"
#include "desktop/Ticket.h"
#include "desktop/Window.h"

namespace quillseal {

/// The menu in the status bar and the settings window that it opens. Main thread.
class MenuBarManager {
 public:
  /// Desktop and coordinator outlive this object.
  MenuBarManager(const desktop::Desktop& desktop, SigningCoordinator& coordinator);

  /// Shows the menu and keeps it in step with the settings and the hotkey.
  void setupMenu();

  /// The menu's actions, also reached from the command line.
  void signText();
  void configureServer();
  void showAbout();
  void quitApp();

 private:
  void hotkeyChanged();
  void serverUrlChanged();
  [[nodiscard]] std::string signLine() const;
  [[nodiscard]] std::string serverLine() const;

  desktop::Desktop desktop_;
  SigningCoordinator& coordinator_;
  std::size_t signItemIndex_ = 0;
  std::size_t serverItemIndex_ = 0;
  std::unique_ptr<desktop::Window> settingsWindow_;  ///< made on first use, then kept
  std::unique_ptr<SettingsView> settingsView_;       ///< draws into the window
  desktop::Ticket settingsObserver_;
  desktop::Ticket hotkeyObserver_;
};

}  // namespace quillseal
