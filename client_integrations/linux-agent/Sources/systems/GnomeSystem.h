#pragma once

#include <string>

#include "gnome/GnomeApplications.h"
#include "gnome/ShellExtension.h"
#include "gnome/XwaylandPasteboard.h"
#include "portal/Portal.h"
#include "portal/PortalKeyEvents.h"
#include "portal/PortalRemote.h"
#include "systems/DesktopAccess.h"
#include "systems/DesktopHotkey.h"
#include "systems/WindowingSystem.h"
#include "x11/WindowManager.h"

namespace quillseal::linux {

/// GNOME without a portal for the clipboard: keys through the RemoteDesktop portal, the clipboard
/// through Xwayland, which has that of all programs there and needs no focus, windows through the
/// Shell's extension. REQUIRES: Qt uses Xwayland, and the portal offers keys.
class GnomeSystem : public WindowingSystem, private OwnWindows {
 public:
  GnomeSystem(DesktopAccess access, const Services& services);

  [[nodiscard]] std::string limits() const override { return remote_.obstacle(); }
  [[nodiscard]] std::string advice() const override { return extension_.advice(); }
  [[nodiscard]] bool isNewPress() override { return hotkey_.isNewPress(); }
  [[nodiscard]] desktop::Applications& applications() override { return applications_; }
  [[nodiscard]] desktop::Hotkey& hotkey() override { return hotkey_.hotkey(); }
  [[nodiscard]] desktop::KeyEvents& keys() override { return keys_; }
  [[nodiscard]] desktop::Pasteboard& pasteboard() override { return pasteboard_; }
  [[nodiscard]] const OwnWindows& ownWindows() const override { return *this; }

 private:
  void bringToFront(QWidget& window) const override;

  DesktopAccess access_;
  Portal portal_;
  PortalRemote remote_;
  ShellExtension extension_;
  WindowManager windows_;
  XwaylandPasteboard pasteboard_;
  GnomeApplications applications_;
  DesktopHotkey hotkey_;
  PortalKeyEvents keys_;
};

}  // namespace quillseal::linux
