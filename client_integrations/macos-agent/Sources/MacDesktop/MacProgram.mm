#import "MacDesktop/MacProgram.h"

#import <AppKit/AppKit.h>

namespace quillseal::mac {

void activateProgram() {
  NSApplication* application = NSApp;  // a typed receiver, so that availability is checked
  if (@available(macOS 14.0, *)) {
    [application activate];
  } else {
    [application activateIgnoringOtherApps:YES];
  }
}

void MacProgram::becomeAccessory() {
  [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

void MacProgram::activate() { activateProgram(); }

void MacProgram::showAbout() { [NSApp orderFrontStandardAboutPanel:nil]; }

void MacProgram::terminate() {
  loop_.post([] { [NSApp terminate:nil]; });
}

}  // namespace quillseal::mac
