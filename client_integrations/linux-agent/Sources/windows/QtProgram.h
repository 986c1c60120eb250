#pragma once

#include "desktop/Program.h"
#include "desktop/Ticket.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

class QtProgram : public desktop::Program {
 public:
  explicit QtProgram(const OwnWindows& windows) : windows_(windows) {}

  void becomeAccessory() override;
  /// Does nothing: on X11 windows are activated, not programs, and each window of the agent
  /// activates itself.
  void activate() override {}
  void showAbout() override;
  void terminate() override;

 private:
  const OwnWindows& windows_;
  desktop::Ticket about_;
};

}  // namespace quillseal::linux
