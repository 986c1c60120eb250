#pragma once

#import <Foundation/Foundation.h>

#include "desktop/MainLoop.h"
#include "desktop/Program.h"

namespace quillseal::mac {

/// The agent's control over NSApplication.
class MacProgram final : public desktop::Program {
 public:
  /// `loop` outlives this object.
  explicit MacProgram(desktop::MainLoop& loop) : loop_(loop) {}

  void becomeAccessory() override;
  void activate() override;
  void showAbout() override;
  void terminate() override;
  [[nodiscard]] desktop::Ticket beginActivity(const std::string& reason) override;

 private:
  desktop::MainLoop& loop_;
};

/// Posted when a window of this program has disappeared without a close notification, as alerts do.
extern NSNotificationName const windowDidGo;

/// Brings this program to the front, over another active application. Main thread.
void activateProgram();

}  // namespace quillseal::mac
