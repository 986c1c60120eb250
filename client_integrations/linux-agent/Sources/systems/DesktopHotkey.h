#pragma once

#include <optional>
#include <string>

#include "gnome/GnomeHotkey.h"
#include "gnome/ShellExtension.h"
#include "portal/PortalHotkey.h"
#include "systems/WindowingSystem.h"

namespace quillseal::linux {

/// The hotkey on desktops that are used through their portal: from the portal if it offers hotkeys,
/// else a shortcut in GNOME's keyboard settings.
class DesktopHotkey {
 public:
  /// All outlive this object.
  struct Sources {
    DesktopBus& bus;
    Portal& portal;
    bool isInPortal;                  ///< the portal has hotkeys
    const ShellExtension* extension;  ///< which knows what the user holds; null for none
    std::string program;              ///< the path of the executable that a shortcut runs
  };

  DesktopHotkey(const WindowingSystem::Services& services, Sources sources);

  [[nodiscard]] desktop::Hotkey& hotkey();

  /// See `WindowingSystem`.
  [[nodiscard]] bool isNewPress();

  /// Whether the user may still hold keys of the hotkey.
  [[nodiscard]] bool mayBeHeld() const;

 private:
  const ShellExtension* extension_;
  std::optional<PortalHotkey> inPortal_;
  std::optional<GnomeHotkey> inSettings_;  // if not in the portal
};

}  // namespace quillseal::linux
