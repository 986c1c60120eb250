#import "MacDesktop/MacProgram.h"

#import <AppKit/AppKit.h>

namespace quillseal::mac {

void activateProgram() {
  // Not -activate of macOS 14: the system may silently decline that while another application is
  // active, and for a program of the menu bar another one nearly always is.
  [NSApp activateIgnoringOtherApps:YES];
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
