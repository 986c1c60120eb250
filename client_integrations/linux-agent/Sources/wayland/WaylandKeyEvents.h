#pragma once

#include <functional>
#include <optional>

#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandKeyboard.h"
#include "wayland/WaylandPasteboard.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Synthesised key presses on a keyboard of the agent's own. A press is declined unless its target
/// is the active window and shows what it showed when the target was named, for which it waits a
/// second. What the person still holds down is of the other keyboard, so that nothing waits for it.
class WaylandKeyEvents : public desktop::KeyEvents {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    WaylandConnection& connection;
    const WaylandWindows& windows;
    WaylandPasteboard& pasteboard;
    /// Tells the person why keys cannot be pressed in this session.
    std::function<void()> explain;
  };

  explicit WaylandKeyEvents(Services services);

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override { services_.explain(); }
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  class Press;

  Services services_;
  WaylandKeyboard keyboard_;
};

}  // namespace quillseal::linux
