#pragma once

#include <functional>
#include <memory>
#include <string>

#include "gnome/ShellExtension.h"
#include "portal/Portal.h"
#include "portal/PortalKeyEvents.h"
#include "portal/PortalRemote.h"
#include "systems/DesktopAccess.h"
#include "systems/DesktopHotkey.h"
#include "systems/WindowingSystem.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Keys, hotkey and clipboard through the portal, for desktops whose compositor keeps keys to
/// itself. Clipboard and windows come from the compositor where it offers those.
class PortalSystem : public WindowingSystem, private OwnWindows {
 public:
  /// REQUIRES: `access.reachesApplicationsByPortal()`.
  PortalSystem(DesktopAccess access, const Services& services);

  [[nodiscard]] std::string limits() const override { return remote_.obstacle(); }
  [[nodiscard]] std::string advice() const override {
    return windows_ == nullptr ? extension_.advice() : std::string();
  }
  [[nodiscard]] desktop::Applications& applications() override { return *applications_; }
  [[nodiscard]] bool isNewPress() override { return hotkey_.isNewPress(); }
  [[nodiscard]] desktop::Hotkey& hotkey() override { return hotkey_.hotkey(); }
  [[nodiscard]] desktop::KeyEvents& keys() override { return keys_; }
  [[nodiscard]] desktop::Pasteboard& pasteboard() override { return *pasteboard_; }
  [[nodiscard]] const OwnWindows& ownWindows() const override { return *this; }

 private:
  [[nodiscard]] std::unique_ptr<desktop::Applications> makeApplications(const Services& services);
  [[nodiscard]] std::unique_ptr<desktop::Pasteboard> makePasteboard(const Services& services);
  void bringToFront(QWidget& window) const override;

  DesktopAccess access_;
  std::unique_ptr<WaylandWindows> windows_;  // null where the compositor does not list them
  ShellExtension extension_;
  Portal portal_;
  PortalRemote remote_;
  std::unique_ptr<desktop::Applications> applications_;
  std::unique_ptr<desktop::Pasteboard> pasteboard_;
  DesktopHotkey hotkey_;
  PortalKeyEvents keys_;
};

}  // namespace quillseal::linux
