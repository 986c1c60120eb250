#pragma once

#include <memory>

#include "Quillseal/HotkeyManager.h"
#include "Quillseal/MenuBarManager.h"
#include "Quillseal/SigningCoordinator.h"
#include "desktop/Desktop.h"
#include "desktop/Ticket.h"

namespace quillseal {

/// Owns the agent's long-lived objects. A shell makes one, calls `applicationDidFinishLaunching`
/// when its event loop is ready, and destroys it after the loop has ended. Main thread.
class AppDelegate {
 public:
  /// The desktop's services outlive this object.
  explicit AppDelegate(const desktop::Desktop& desktop) : desktop_(desktop) {}

  /// Starts the agent: an accessory with a menu in the status bar and a global hotkey. Asks for no
  /// permission; capture does when it runs.
  void applicationDidFinishLaunching();

  /// The menu, whose actions other triggers may call too. REQUIRES: launched.
  [[nodiscard]] MenuBarManager& menuBarManager() { return *menuBarManager_; }

 private:
  desktop::Desktop desktop_;
  // The menu's settings use the coordinator to their end, so it is destroyed last.
  std::unique_ptr<SigningCoordinator> signingCoordinator_;
  std::unique_ptr<MenuBarManager> menuBarManager_;
  std::unique_ptr<HotkeyManager> hotkeyManager_;
};

}  // namespace quillseal
