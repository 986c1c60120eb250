#pragma once

#include <string>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// This program's own standing on the desktop. Main thread.
class Program {
 public:
  virtual ~Program() = default;

  /// Makes it an accessory: no Dock or task-bar entry, no menu bar of its own.
  virtual void becomeAccessory() = 0;

  /// Activates it, also over another active application.
  virtual void activate() = 0;

  /// Shows the standard About panel.
  virtual void showAbout() = 0;

  /// Ends the event loop after the present event, and with it the program. The agent is destroyed
  /// after the loop has ended, never from inside one of its calls.
  virtual void terminate() = 0;

  /// Keeps the system from slowing this program down while the ticket lives, as some do with one
  /// that has no window. `reason` is for the system's own tools. Several may live at once.
  [[nodiscard]] virtual Ticket beginActivity(const std::string& /*reason*/) { return {}; }
};

}  // namespace quillseal::desktop
