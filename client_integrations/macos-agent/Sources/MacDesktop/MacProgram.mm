#import "MacDesktop/MacProgram.h"

#import <AppKit/AppKit.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {

NSNotificationName const windowDidGo = @"QSWindowDidGo";

void activateProgram() {
  // Not -activate of macOS 14: the system may silently decline that while another application is
  // active, and for a program of the menu bar another one nearly always is.
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
    // The Mac may fall asleep over a run that waits for its user; only App Nap is kept off.
    id<NSObject> activity = [NSProcessInfo.processInfo
        beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                          reason:nsString(reason)];
    return desktop::Ticket([activity] { [NSProcessInfo.processInfo endActivity:activity]; });
  });
}

}  // namespace quillseal::mac
