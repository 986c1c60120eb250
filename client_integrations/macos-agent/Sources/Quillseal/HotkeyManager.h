#pragma once

#include "Quillseal/SigningCoordinator.h"
#include "desktop/Alerts.h"
#include "desktop/Hotkey.h"
#include "desktop/Log.h"

namespace quillseal {

/// The global hotkey (`desktop::signingHotkey`), which signs the selected text. Main thread.
class HotkeyManager {
 public:
  struct Services {
    desktop::Alerts& alerts;
    desktop::Hotkey& hotkey;
    desktop::Log& log;
  };

  /// Services and coordinator outlive the process's event loop: the hotkey is never unregistered.
  HotkeyManager(Services services, SigningCoordinator& coordinator)
      : services_(services), coordinator_(coordinator) {}

  /// Registers the hotkey; when the desktop refuses, tells the user. Each press starts a run.
  void registerHotkey();

 private:
  Services services_;
  SigningCoordinator& coordinator_;
};

}  // namespace quillseal
