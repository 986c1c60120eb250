#include <memory>
#include <optional>

#import <AppKit/AppKit.h>

#include "MacDesktop/MacAlerts.h"
#include "MacDesktop/MacApplications.h"
#include "MacDesktop/MacDefaults.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacFiles.h"
#include "MacDesktop/MacHotkey.h"
#include "MacDesktop/MacHttpTransport.h"
#include "MacDesktop/MacKeyEvents.h"
#include "MacDesktop/MacKeyStore.h"
#include "MacDesktop/MacLog.h"
#include "MacDesktop/MacMachineIdentity.h"
#include "MacDesktop/MacMainLoop.h"
#include "MacDesktop/MacPasteboard.h"
#include "MacDesktop/MacPresence.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacScriptRunner.h"
#include "MacDesktop/MacStatusItem.h"
#include "MacDesktop/MacWallClock.h"
#include "MacDesktop/MacWindow.h"
#include "MacDesktop/MacWords.h"
#include "Quillseal/AppDelegate.h"
#include "Quillseal/BrowserTabReturn.h"
#include "Quillseal/Settings.h"

/// Forwards the application's launch and end to `QuillsealApp`.
@interface QSApplicationDelegate : NSObject <NSApplicationDelegate>
- (void)showSettings:(id)sender;
@end

namespace quillseal::mac {
namespace {

/// The application: the services of this desktop and, between launch and end, the agent.
class QuillsealApp {
 public:
  void launch() {
    agent_.emplace(desktop_);
    agent_->applicationDidFinishLaunching();
  }

  void showSettings() {
    if (agent_) agent_->menuBarManager().configureServer();
  }

  /// Cancels running operations. The services stay alive for workers that still run.
  void end() { agent_.reset(); }

 private:
  MacLog log_;
  MacMainLoop loop_;
  MacAlerts alerts_{{.loop = loop_, .log = log_}};
  MacApplications applications_{loop_};
  MacDefaults defaults_{{.loop = loop_, .log = log_},
                        {std::string(Settings::serverURL.key), std::string(Settings::apiKey.key),
                         std::string(Settings::boundIdentity.key)}};
  MacFiles files_;
  MacHotkey hotkey_{loop_};
  MacHttpTransport http_{loop_};
  MacKeyEvents keys_{loop_};
  MacKeyStore keyStore_{log_};
  MacMachineIdentity machine_;
  MacPasteboard pasteboard_;
  MacPresence presence_{loop_};
  MacProgram program_{loop_};
  MacScriptRunner scripts_{loop_};
  MacStatusItem statusItem_;
  MacWallClock wallClock_;
  MacWindows windows_;
  MacWords words_;
  BrowserTabReturn::ScriptedBrowserTabs browserTabs_{scripts_, log_};
  desktop::Desktop desktop_{
      .alerts = alerts_,
      .applications = applications_,
      .browserTabs = browserTabs_,
      .defaults = defaults_,
      .files = files_,
      .hotkey = hotkey_,
      .http = http_,
      .keys = keys_,
      .keyStore = keyStore_,
      .log = log_,
      .machine = machine_,
      .loop = loop_,
      .pasteboard = pasteboard_,
      .presence = presence_,
      .program = program_,
      .statusItem = statusItem_,
      .wallClock = wallClock_,
      .windows = windows_,
      .words = words_,
  };
  std::optional<AppDelegate> agent_;
};

NSMenuItem* submenu(NSString* title, NSArray<NSMenuItem*>* items) {
  NSMenu* menu = [[NSMenu alloc] initWithTitle:title];
  menu.itemArray = items;
  NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:title action:nil keyEquivalent:@""];
  item.submenu = menu;
  return item;
}

NSMenuItem* command(NSString* title, SEL action, NSString* key) {
  return [[NSMenuItem alloc] initWithTitle:title action:action keyEquivalent:key];
}

/// An accessory application shows no menu bar, but the shortcuts of its text fields and windows
/// come from its main menu.
NSMenu* mainMenu() {
  NSMenu* menu = [[NSMenu alloc] init];
  menu.itemArray = @[
    submenu(@"Quill Seal",
            @[
              command(@"Settings…", @selector(showSettings:), @","),
              command(@"Quit Quill Seal", @selector(terminate:), @"q"),
            ]),
    submenu(@"Edit",
            @[
              command(@"Undo", NSSelectorFromString(@"undo:"), @"z"),
              command(@"Redo", NSSelectorFromString(@"redo:"), @"Z"),
              NSMenuItem.separatorItem,
              command(@"Cut", @selector(cut:), @"x"),
              command(@"Copy", @selector(copy:), @"c"),
              command(@"Paste", @selector(paste:), @"v"),
              command(@"Select All", @selector(selectAll:), @"a"),
            ]),
    submenu(@"Window", @[ command(@"Close", @selector(performClose:), @"w") ]),
  ];
  return menu;
}

}  // namespace
}  // namespace quillseal::mac

@implementation QSApplicationDelegate {
  std::unique_ptr<quillseal::mac::QuillsealApp> _app;
}

- (void)applicationWillFinishLaunching:(NSNotification*)__unused notification {
  NSApp.mainMenu = quillseal::mac::mainMenu();
}

- (void)applicationDidFinishLaunching:(NSNotification*)__unused notification {
  quillseal::mac::callGuarded([self] {
    self->_app = std::make_unique<quillseal::mac::QuillsealApp>();
    self->_app->launch();
  });
}

- (void)showSettings:(id)__unused sender {
  quillseal::mac::callGuarded([self] {
    if (self->_app) self->_app->showSettings();
  });
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)__unused application
                    hasVisibleWindows:(BOOL)__unused visible {
  [self showSettings:nil];
  return NO;
}

- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)__unused application {
  return YES;
}

- (void)applicationWillTerminate:(NSNotification*)__unused notification {
  quillseal::mac::callGuarded([self] {
    if (self->_app) self->_app->end();
  });
}

@end

int main() {
  @autoreleasepool {
    NSApplication* application = NSApplication.sharedApplication;
    // The application does not own its delegate.
    NS_VALID_UNTIL_END_OF_SCOPE QSApplicationDelegate* delegate =
        [[QSApplicationDelegate alloc] init];
    application.delegate = delegate;
    [application run];
  }
}
