#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"
#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandPasteboard.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// Synthesised key presses. A press waits up to a second for its target to be active and to show
/// the same document as when the target was determined; otherwise it is declined. It does not wait
/// for keys that the user still holds, which do not affect either kind of keyboard.
class WaylandKeyEvents : public desktop::KeyEvents {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    WaylandConnection& connection;
    const WaylandWindows& windows;
    WaylandPasteboard& pasteboard;
    AgentKeyboard& keyboard;
    /// Tells the user why keys cannot be pressed in this session.
    std::function<void()> showLimits;
  };

  explicit WaylandKeyEvents(Services services) : services_(std::move(services)) {}

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override { services_.showLimits(); }
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  class Press;

  Services services_;
};

}  // namespace quillseal::linux
