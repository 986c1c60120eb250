#pragma once

#include "desktop/Program.h"
#include "desktop/Ticket.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

class QtProgram : public desktop::Program {
 public:
  explicit QtProgram(const OwnWindows& windows) : windows_(windows) {}

  void becomeAccessory() override;
  /// Nothing: on X11 a window is activated, not a program, and every window of this one does so.
  void activate() override {}
  void showAbout() override;
  void terminate() override;

 private:
  const OwnWindows& windows_;
  desktop::Ticket about_;
};

}  // namespace quillseal::linux
