#import "MacDesktop/MacProgram.h"

#import <AppKit/AppKit.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {

NSNotificationName const windowDidGo = @"QSWindowDidGo";

void activateProgram() {
  // Not -activate of macOS 14: the system may silently decline it while another application is
  // active, which is nearly always so for a menu bar program.
  [NSApp activateIgnoringOtherApps:YES];
}

void MacProgram::becomeAccessory() {
  callSystem([] { [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory]; });
}

void MacProgram::activate() { callSystem(activateProgram); }

void MacProgram::showAbout() {
  callSystem([] { [NSApp orderFrontStandardAboutPanel:nil]; });
}

void MacProgram::terminate() {
  loop_.post([] { [NSApp terminate:nil]; });
}

desktop::Ticket MacProgram::beginActivity(const std::string& reason) {
  return callSystem([&] {
    // Only App Nap is prevented; the Mac may sleep while a run waits for the user.
    id<NSObject> activity = [NSProcessInfo.processInfo
        beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                          reason:nsString(reason)];
    return desktop::Ticket([activity] { [NSProcessInfo.processInfo endActivity:activity]; });
  });
}

}  // namespace quillseal::mac
