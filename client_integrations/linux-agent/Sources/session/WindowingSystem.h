#pragma once

#include <functional>
#include <string>

#include "applications/DesktopEntries.h"
#include "desktop/Applications.h"
#include "desktop/Hotkey.h"
#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "session/Descriptors.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// What is done by other means under X11 than under Wayland. One is chosen when the program starts,
/// by what the display offers. Main thread.
class WindowingSystem {
 public:
  /// All outlive the windowing system.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    DesktopEntries& entries;
    /// Tells the person why keys cannot be pressed in this session.
    std::function<void()> explain;
  };

  virtual ~WindowingSystem() = default;

  /// What does not work in this session and how to go on, as sentences for the person; empty where
  /// everything works.
  [[nodiscard]] virtual std::string limits() const = 0;

  [[nodiscard]] virtual desktop::Applications& applications() = 0;
  [[nodiscard]] virtual desktop::Hotkey& hotkey() = 0;
  [[nodiscard]] virtual desktop::KeyEvents& keys() = 0;
  [[nodiscard]] virtual desktop::Pasteboard& pasteboard() = 0;
  [[nodiscard]] virtual const OwnWindows& ownWindows() const = 0;
};

}  // namespace quillseal::linux
