#pragma once

#include <functional>
#include <string>

#include "Desktop/KeyEvents.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/DesktopEntries.h"
#include "LinuxDesktop/QtPasteboard.h"
#include "LinuxDesktop/WindowManager.h"
#include "LinuxDesktop/X11Keyboard.h"

namespace quillseal {

/// Synthesised key presses by the XTEST extension.
class XTestKeyEvents : public desktop::KeyEvents {
 public:
  struct Services {
    desktop::MainLoop& loop;
    const WindowManager& windows;
    DesktopEntries& entries;
    X11Keyboard* keyboard;  ///< null where keys cannot be pressed
    QtPasteboard& pasteboard;
    /// Tells the person why keys cannot be pressed in this session.
    std::function<void()> explain;
  };

  explicit XTestKeyEvents(Services services);

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override;
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  /// For programs that copy and paste by the primary selection.
  [[nodiscard]] desktop::Ticket exchangeSelections(desktop::KeyPress press,
                                                   std::function<void()> done);
  void tap(desktop::KeyPress press, const X11Keyboard::Layout& layout);

  Services services_;
};

}  // namespace quillseal
