#pragma once

#include <string>

#include "Quillseal/Settings.h"
#include "Quillseal/SigningCoordinator.h"
#include "core/tasks/Async.h"
#include "core/tasks/Task.h"
#include "desktop/Defaults.h"
#include "desktop/Hotkey.h"
#include "desktop/KeyStore.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "desktop/Window.h"
#include "desktop/Wording.h"

namespace quillseal {

/// The content of the settings window: which server is used, whether the hotkey is off, whether
/// this machine holds a key, and a button to enrol it. Draws itself into the window whenever
/// something it shows has changed. Main thread.
class SettingsView {
 public:
  struct Services {
    desktop::Defaults& defaults;
    desktop::Hotkey& hotkey;
    desktop::KeyStore& keyStore;
    desktop::Log& log;
    desktop::MainLoop& loop;
    desktop::Words& words;
  };

  /// Users of a development build enter the server; a packaged one brings its own.
  enum class Build { packaged, development };

  /// All of these outlive the view.
  SettingsView(Services services, SigningCoordinator& coordinator, desktop::Window& window,
               Build build);

  /// What the window shows now.
  [[nodiscard]] desktop::Form form();

  /// Draws again, after a change that the view does not observe: one of the hotkey or the desktop.
  void refresh() { render(); }

 private:
  void render();
  void enrol();
  Task<> enrolDevice();
  Task<> readEnrolled();

  [[nodiscard]] desktop::FormSection serverSection();
  [[nodiscard]] desktop::FormSection hotkeySection();
  [[nodiscard]] desktop::FormSection machineSection();
  [[nodiscard]] desktop::FormField field(std::string label, Settings::Text setting);

  Services services_;
  SigningCoordinator& coordinator_;
  desktop::Window& window_;
  Build build_;
  bool isEnrolled_ = false;
  std::string lookupFailure_;  ///< why it is not known whether there is a key; else empty
  bool isEnrolling_ = false;
  desktop::Ticket defaultsObserver_;
  TaskScope tasks_;  ///< last: the tasks use all of the above
};

}  // namespace quillseal
