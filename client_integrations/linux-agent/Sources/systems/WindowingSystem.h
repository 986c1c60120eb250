#pragma once

#include <functional>
#include <string>

#include "applications/DesktopEntries.h"
#include "desktop/Alerts.h"
#include "desktop/Applications.h"
#include "desktop/Defaults.h"
#include "desktop/Hotkey.h"
#include "desktop/KeyEvents.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "gnome/ShortcutSettings.h"
#include "session/Descriptors.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// The services that differ between desktops: X11, Wayland compositors, portals, GNOME up to 44.
/// One implementation is chosen at the program's start. Main thread.
class WindowingSystem {
 public:
  /// All outlive the windowing system.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    desktop::Log& log;
    DesktopEntries& entries;
    ShortcutSettings& shortcuts;
    /// Shows an alert that says why keys cannot be pressed in this session (`limits`).
    std::function<void()> showLimits;
    /// Shows a notification with this sentence.
    std::function<void(const std::string&)> notify;
    /// Found at each use, since they are made after the windowing system.
    std::function<desktop::Alerts&()> alerts;
    std::function<desktop::Defaults&()> defaults;
  };

  virtual ~WindowingSystem() = default;

  /// Says what does not work in this session and what to do, in sentences for the user; empty where
  /// everything works.
  [[nodiscard]] virtual std::string limits() const = 0;

  /// Says what would make Quillseal more useful in this session, in sentences for the user; empty
  /// for nothing.
  [[nodiscard]] virtual std::string advice() const { return {}; }

  /// Whether a command to sign that has just arrived is a new one: a desktop may repeat a
  /// shortcut's command while the keys are held. To be called once for each.
  [[nodiscard]] virtual bool isNewPress() { return true; }

  [[nodiscard]] virtual desktop::Applications& applications() = 0;
  [[nodiscard]] virtual desktop::Hotkey& hotkey() = 0;
  [[nodiscard]] virtual desktop::KeyEvents& keys() = 0;
  [[nodiscard]] virtual desktop::Pasteboard& pasteboard() = 0;
  [[nodiscard]] virtual const OwnWindows& ownWindows() const = 0;
};

}  // namespace quillseal::linux
