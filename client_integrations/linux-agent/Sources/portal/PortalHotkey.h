#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/tasks/Async.h"
#include "desktop/Defaults.h"
#include "desktop/MainLoop.h"
#include "keyboard/HeldHotkey.h"
#include "keyboard/ObservedHotkey.h"
#include "portal/Portal.h"

namespace quillseal::linux {

/// The global hotkey through the GlobalShortcuts portal. The desktop may ask the user, who may
/// choose other keys. It is bound again when the portal or the agent restarts, unless the user has
/// refused it: that is kept in the settings.
class PortalHotkey : public ObservedHotkey {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Portal& portal;
    /// Found at each use, since the desktop's services are made after this object.
    std::function<desktop::Defaults&()> defaults;
    /// Tells the user something in a notification.
    std::function<void(const std::string&)> notify;
    /// Gets the token with which a window of this program may take the focus after a press; may be
    /// empty.
    std::function<void(const std::string&)> activated;
    std::chrono::milliseconds timeout = Portal::timeout;
  };

  explicit PortalHotkey(Services services);

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

  void askAgain() override;

  /// Whether the user may still hold keys of the hotkey.
  [[nodiscard]] bool mayBeHeld() const;

 private:
  [[nodiscard]] Task<> bind();
  [[nodiscard]] Task<PortalAnswer> requestKeys();
  void accept(sd_bus_message& answer);
  void reject(bool isRefused);
  void fail(const std::string& problem);
  void portalEnded();
  void end(PortalSession::End how);
  void refuse();
  void bindAfter(std::chrono::milliseconds delay);
  void readKeys(sd_bus_message& shortcuts);
  void press(sd_bus_message& signal);
  void release(sd_bus_message& signal);

  Services services_;
  desktop::KeyPress combination_{};
  std::function<void()> pressed_;
  std::unique_ptr<PortalSession> session_;
  bool isBinding_ = false;
  bool isRefused_ = false;  ///< by the user; not asked for until they want it
  bool isWanted_ = false;   ///< the user has asked for it since it was off
  HeldHotkey held_;
  desktop::MainLoop::TimePoint lastRelease_;
  std::optional<desktop::MainLoop::TimePoint> lastEnd_;  ///< of a session
  std::optional<desktop::MainLoop::TimePoint> lastPortalEnd_;
  desktop::MainLoop::TimePoint restsUntil_;  ///< not bound by itself before
  DesktopBus::Receiver onPress_;
  DesktopBus::Receiver onRelease_;
  DesktopBus::Receiver onChange_;
  DesktopBus::Receiver onOwner_;
  DesktopBus::Subscription presses_;
  DesktopBus::Subscription releases_;
  DesktopBus::Subscription changes_;
  DesktopBus::Subscription owners_;
  desktop::Ticket again_;
  desktop::Ticket giveUp_;
  std::optional<TaskScope> binding_;
};

}  // namespace quillseal::linux
