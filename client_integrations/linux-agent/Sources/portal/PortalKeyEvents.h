#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/tasks/Task.h"
#include "desktop/Applications.h"
#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "portal/PortalRemote.h"

namespace quillseal::linux {

/// Key presses through the RemoteDesktop portal. They count as pressed on the user's keyboard, so a
/// press waits until the user has let go of the hotkey, and is declined where they do not.
///
/// Where the application in front is not known (there is no target), the only keys are Ctrl+Insert,
/// which copies everywhere and does no harm in a terminal; selecting all and pasting are declined.
class PortalKeyEvents : public desktop::KeyEvents {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    PortalRemote& remote;
    const desktop::Applications& applications;
    const desktop::Pasteboard& pasteboard;
    /// Whether the user may still hold the keys of the hotkey.
    std::function<bool()> isHotkeyHeld;
    /// Whether the screen lock or the like takes the keys from a window that still counts as
    /// active.
    std::function<bool()> isKeyboardTaken;
    /// Calls back once the state of the windows is the latest; empty where it always is.
    std::function<desktop::Ticket(std::function<void()>)> catchUp{};
    /// Tells the user why keys cannot be pressed in this session.
    std::function<void()> showLimits;
    /// Tells the user something in a notification.
    std::function<void(const std::string&)> notify;
  };

  explicit PortalKeyEvents(Services services) : services_(std::move(services)) {}

  [[nodiscard]] bool isTrusted() const override;
  /// Opens a session, for which the desktop may ask the user, and tells them what came of it.
  void askForTrust() override;
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  struct Request {
    desktop::KeyPress press;
    std::optional<desktop::RunningApplication> target;
    std::function<void()> aboutToPress;
  };

  [[nodiscard]] Task<desktop::Delivery> deliver(Request request);
  [[nodiscard]] Task<desktop::Delivery> deliverOrShowLimits(Request request);
  [[nodiscard]] Task<desktop::Delivery> readiness();
  [[nodiscard]] Task<bool> isHotkeyReleased();
  [[nodiscard]] Task<desktop::Delivery> latestDelivery(const Request& request);
  [[nodiscard]] desktop::Delivery deliveryNow(const Request& request) const;

  Services services_;
  desktop::Ticket asking_;
};

}  // namespace quillseal::linux
