#pragma once

#include <functional>
#include <string>

#include "applications/DesktopEntries.h"
#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"
#include "x11/QtPasteboard.h"
#include "x11/WindowManager.h"
#include "x11/X11Keyboard.h"

namespace quillseal::linux {

/// Synthesised key presses through the XTEST extension. A press waits up to a second for its target
/// to be active and to show the same document as when the target was determined; otherwise it is
/// declined.
class XTestKeyEvents : public desktop::KeyEvents {
 public:
  struct Services {
    desktop::MainLoop& loop;
    const WindowManager& windows;
    DesktopEntries& entries;
    X11Keyboard* keyboard;  ///< null where keys cannot be pressed
    QtPasteboard& pasteboard;
    /// Tells the user why keys cannot be pressed in this session.
    std::function<void()> showLimits;
  };

  explicit XTestKeyEvents(Services services);

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override;
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  class Press;

  Services services_;
};

}  // namespace quillseal::linux
