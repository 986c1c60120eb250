#import "MacDesktop/MacApplications.h"

#include <algorithm>
#include <string_view>

#import <AppKit/AppKit.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacText.h"

/// Remembers which other application was active last, and notices when a window of this program may
/// have closed. System agents do not count.
@interface QSFrontApplicationObserver : NSObject
@property(nonatomic, readonly, nullable) NSRunningApplication* lastOther;
/// Calls `windowMayHaveGone` with `lastOther` on the main thread; the window may still be on the
/// screen.
- (instancetype)initWithBlock:(void (^)(NSRunningApplication*))windowMayHaveGone;
- (void)stop;
@end

namespace {

/// Returns whether `application` is a system agent such as the Touch ID prompt or the lock screen,
/// which is active only briefly and holds no text of the user.
bool isSystemAgent(NSRunningApplication* application) {
  return application.activationPolicy != NSApplicationActivationPolicyRegular &&
         [application.bundleURL.path hasPrefix:@"/System/"];
}

}  // namespace

@implementation QSFrontApplicationObserver {
  void (^_windowMayHaveGone)(NSRunningApplication*);
}

- (instancetype)initWithBlock:(void (^)(NSRunningApplication*))windowMayHaveGone {
  self = [super init];
  if (self != nil) {
    _windowMayHaveGone = [windowMayHaveGone copy];
    [self remember:NSWorkspace.sharedWorkspace.frontmostApplication];
    [NSWorkspace.sharedWorkspace.notificationCenter
        addObserver:self
           selector:@selector(applicationDidActivate:)
               name:NSWorkspaceDidActivateApplicationNotification
             object:nil];
    for (NSNotificationName name in
         @[ NSWindowWillCloseNotification, quillseal::mac::windowDidGo ]) {
      [NSNotificationCenter.defaultCenter addObserver:self
                                             selector:@selector(windowDidGo:)
                                                 name:name
                                               object:nil];
    }
  }
  return self;
}

- (void)stop {
  [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:self];
  [NSNotificationCenter.defaultCenter removeObserver:self];
}

- (void)applicationDidActivate:(NSNotification*)notification {
  [self remember:notification.userInfo[NSWorkspaceApplicationKey]];
}

- (void)windowDidGo:(NSNotification*)__unused notification {
  _windowMayHaveGone(_lastOther);
}

- (void)remember:(NSRunningApplication*)application {
  if (application == nil || isSystemAgent(application)) return;
  if ([application isEqual:NSRunningApplication.currentApplication]) return;
  _lastOther = application;
}

@end

namespace quillseal::mac {
namespace {

/// Nothing is pasted into these: a line break could run the command before it.
constexpr std::string_view terminals[] = {
    "co.zeit.hyper",         "com.apple.Terminal",    "com.github.wez.wezterm",
    "com.googlecode.iterm2", "com.mitchellh.ghostty", "dev.warp.Warp-Stable",
    "io.alacritty",          "net.kovidgoyal.kitty",  "org.alacritty",
};

NSRunningApplication* running(const desktop::RunningApplication& application) {
  const auto process = static_cast<pid_t>(application.instance);
  return [NSRunningApplication runningApplicationWithProcessIdentifier:process];
}

desktop::InstalledApplication installedAt(NSURL* location) {
  return {.location = utf8(location.path),
          .bundleIdentifier = optionalUtf8([NSBundle bundleWithURL:location].bundleIdentifier)};
}

void bringToFront(NSRunningApplication* target) {
  if (@available(macOS 14.0, *)) {
    // Activation is cooperative there: if this program is in front, it must yield.
    NSRunningApplication* front = NSWorkspace.sharedWorkspace.frontmostApplication;
    NSApplication* own = NSApp;  // a typed receiver, so that availability is checked
    if ([front isEqual:NSRunningApplication.currentApplication]) {
      [own yieldActivationToApplication:target];
    }
    if (front != nil && [target activateFromApplication:front options:0]) return;
  }
  [target activateWithOptions:0];
}

/// Returns whether a window of this program is visible that can have the focus; those of the status
/// bar and of menus cannot.
bool hasOwnWindow() {
  for (NSWindow* window in NSApp.windows) {
    if (window.visible && window.canBecomeKeyWindow) return true;
  }
  return false;
}

void giveActivationBack(NSRunningApplication* other) {
  NSRunningApplication* front = NSWorkspace.sharedWorkspace.frontmostApplication;
  if (![front isEqual:NSRunningApplication.currentApplication]) return;
  if (other == nil || other.terminated || hasOwnWindow()) return;
  bringToFront(other);
}

}  // namespace

MacApplications::MacApplications(const MacMainLoop& loop) : poster_(loop.poster()) {
  const MacMainLoop::Poster poster = poster_;
  void (^windowMayHaveGone)(NSRunningApplication*) = ^(NSRunningApplication* lastOther) {
    poster.post([lastOther] { giveActivationBack(lastOther); });
  };
  observer_ = callSystem(
      [&] { return [[QSFrontApplicationObserver alloc] initWithBlock:windowMayHaveGone]; });
}

// macOS has no such categories; these are the desktop entry specification's, which the agent reads.
std::string MacApplications::categoriesOf(const std::optional<std::string>& bundleIdentifier) {
  const bool isTerminal = bundleIdentifier && std::find(std::begin(terminals), std::end(terminals),
                                                        *bundleIdentifier) != std::end(terminals);
  return isTerminal ? "TerminalEmulator;" : "";
}

MacApplications::~MacApplications() { [observer_ stop]; }

std::optional<desktop::RunningApplication> MacApplications::frontmost() const {
  return callSystem([this]() -> std::optional<desktop::RunningApplication> {
    NSRunningApplication* front = NSWorkspace.sharedWorkspace.frontmostApplication;
    if ([front isEqual:NSRunningApplication.currentApplication]) {
      front = observer_.lastOther;
    }
    if (front == nil || front.terminated) return std::nullopt;
    std::optional<std::string> bundleIdentifier = optionalUtf8(front.bundleIdentifier);
    std::string categories = categoriesOf(bundleIdentifier);
    return desktop::RunningApplication{
        .instance = static_cast<std::uint64_t>(front.processIdentifier),
        .name = optionalUtf8(front.localizedName),
        .bundleIdentifier = std::move(bundleIdentifier),
        .categories = std::move(categories),
        .document = {}};
  });
}

bool MacApplications::isActive(const desktop::RunningApplication& application) const {
  return callSystem([&] { return static_cast<bool>(running(application).active); });
}

void MacApplications::activate(const desktop::RunningApplication& application) {
  callSystem([&] {
    NSRunningApplication* target = running(application);
    if (target != nil) bringToFront(target);
  });
}

std::optional<desktop::InstalledApplication> MacApplications::preferredBrowser() const {
  return callSystem([]() -> std::optional<desktop::InstalledApplication> {
    NSString* location = @"/Applications/Google Chrome.app";
    if (![NSFileManager.defaultManager fileExistsAtPath:location]) return std::nullopt;
    return installedAt([NSURL fileURLWithPath:location]);
  });
}

std::optional<desktop::InstalledApplication> MacApplications::defaultApplicationFor(
    const std::string& url) const {
  return callSystem([&]() -> std::optional<desktop::InstalledApplication> {
    NSURL* target = urlFrom(url);
    if (target == nil) return std::nullopt;
    NSURL* application = [NSWorkspace.sharedWorkspace URLForApplicationToOpenURL:target];
    if (application == nil) return std::nullopt;
    return installedAt(application);
  });
}

desktop::Ticket MacApplications::open(const std::string& url,
                                      const desktop::InstalledApplication& application,
                                      std::function<void(std::optional<Error>)> done) {
  const Completion<std::optional<Error>> completion(std::move(done));
  NSURL* target = callSystem([&] { return urlFrom(url); });
  if (target == nil) {
    completion(errorFrom([NSError errorWithDomain:NSURLErrorDomain
                                             code:NSURLErrorBadURL
                                         userInfo:nil]));
    return {};
  }
  const MacMainLoop::Poster poster = poster_;
  void (^opened)(NSRunningApplication*, NSError*) =
      ^(NSRunningApplication* __unused launched, NSError* failure) {
        std::optional<Error> error;
        if (failure != nil) error = errorFrom(failure);
        poster.post([completion, error] { completion(error); });
      };
  callSystem([&] {
    NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
    configuration.activates = YES;
    [NSWorkspace.sharedWorkspace openURLs:@[ target ]
                     withApplicationAtURL:[NSURL fileURLWithPath:nsString(application.location)]
                            configuration:configuration
                        completionHandler:opened];
  });
  return completion.ticket();
}

void MacApplications::open(const std::string& url) {
  const bool isOpened = callSystem([&] {
    NSURL* target = urlFrom(url);
    return target != nil && [NSWorkspace.sharedWorkspace openURL:target];
  });
  if (isOpened) return;
  throw Error({.domain = "NSWorkspace",
               .code = 0,
               .description = "No browser could be opened. Choose a default browser in System "
                              "Settings and try again."});
}

}  // namespace quillseal::mac
