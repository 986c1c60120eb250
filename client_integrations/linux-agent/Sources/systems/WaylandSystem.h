#pragma once

#include <memory>
#include <string>

#include "portal/Portal.h"
#include "session/DesktopBus.h"
#include "systems/DesktopAccess.h"
#include "systems/WindowingSystem.h"
#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandApplications.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandKeyEvents.h"
#include "wayland/WaylandPasteboard.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Clipboard, keys and windows through the compositor, for native applications and those under
/// Xwayland alike.
class WaylandSystem : public WindowingSystem, private OwnWindows {
 public:
  /// REQUIRES: `access.reachesApplicationsByCompositor()`. The portal has the hotkey if it offers
  /// one, unless the compositor has it.
  WaylandSystem(DesktopAccess access, const Services& services);

  [[nodiscard]] std::string limits() const override;
  [[nodiscard]] desktop::Applications& applications() override { return applications_; }
  [[nodiscard]] desktop::Hotkey& hotkey() override { return *hotkey_; }
  [[nodiscard]] desktop::KeyEvents& keys() override { return keys_; }
  [[nodiscard]] desktop::Pasteboard& pasteboard() override { return pasteboard_; }
  [[nodiscard]] const OwnWindows& ownWindows() const override { return *this; }

 private:
  void bringToFront(QWidget& window) const override;

  std::unique_ptr<WaylandConnection> connection_;
  std::unique_ptr<DesktopBus> bus_;
  std::unique_ptr<DesktopBus> portalBus_;
  std::unique_ptr<WaylandWindows> windows_;
  WaylandPasteboard pasteboard_;
  WaylandApplications applications_;
  std::unique_ptr<Portal> portal_;  // null where it has no hotkey
  std::unique_ptr<desktop::Hotkey> hotkey_;
  std::unique_ptr<AgentKeyboard> keyboard_;
  WaylandKeyEvents keys_;
};

}  // namespace quillseal::linux
