#import "MacDesktop/MacApplications.h"

#import <AppKit/AppKit.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

/// Remembers which other application was active last.
@interface QSFrontApplicationObserver : NSObject
@property(nonatomic, readonly, nullable) NSRunningApplication* lastOther;
- (void)stop;
@end

@implementation QSFrontApplicationObserver

- (instancetype)init {
  self = [super init];
  if (self != nil) {
    [self remember:NSWorkspace.sharedWorkspace.frontmostApplication];
    [NSWorkspace.sharedWorkspace.notificationCenter
        addObserver:self
           selector:@selector(applicationDidActivate:)
               name:NSWorkspaceDidActivateApplicationNotification
             object:nil];
  }
  return self;
}

- (void)stop {
  [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:self];
}

- (void)applicationDidActivate:(NSNotification*)notification {
  [self remember:notification.userInfo[NSWorkspaceApplicationKey]];
}

- (void)remember:(NSRunningApplication*)application {
  if (application != nil && ![application isEqual:NSRunningApplication.currentApplication]) {
    _lastOther = application;
  }
}

@end

namespace quillseal::mac {
namespace {

NSRunningApplication* running(const desktop::RunningApplication& application) {
  const auto process = static_cast<pid_t>(application.instance);
  return [NSRunningApplication runningApplicationWithProcessIdentifier:process];
}

desktop::InstalledApplication installedAt(NSURL* location) {
  return {.location = utf8(location.path),
          .bundleIdentifier = optionalUtf8([NSBundle bundleWithURL:location].bundleIdentifier)};
}

}  // namespace

MacApplications::MacApplications(desktop::MainLoop& loop)
    : loop_(loop), observer_([[QSFrontApplicationObserver alloc] init]) {}

MacApplications::~MacApplications() { [observer_ stop]; }

std::optional<desktop::RunningApplication> MacApplications::frontmost() const {
  NSRunningApplication* front = NSWorkspace.sharedWorkspace.frontmostApplication;
  if ([front isEqual:NSRunningApplication.currentApplication]) {
    NSRunningApplication* other = observer_.lastOther;
    if (other != nil && !other.terminated) front = other;
  }
  if (front == nil) return std::nullopt;
  return desktop::RunningApplication{
      .instance = static_cast<std::uint64_t>(front.processIdentifier),
      .name = optionalUtf8(front.localizedName),
      .bundleIdentifier = optionalUtf8(front.bundleIdentifier),
      .categories = {},
      .document = {}};
}

bool MacApplications::isActive(const desktop::RunningApplication& application) const {
  return running(application).active;
}

void MacApplications::activate(const desktop::RunningApplication& application) {
  NSRunningApplication* target = running(application);
  if (target == nil) return;
  if (@available(macOS 14.0, *)) {
    // Activation is cooperative there: it is taken from the front application, which has to make
    // way where that is this program.
    NSRunningApplication* front = NSWorkspace.sharedWorkspace.frontmostApplication;
    NSApplication* own = NSApp;  // a typed receiver, so that availability is checked
    if ([front isEqual:NSRunningApplication.currentApplication]) {
      [own yieldActivationToApplication:target];
    }
    if (front != nil && [target activateFromApplication:front options:0]) return;
  }
  [target activateWithOptions:0];
}

std::optional<desktop::InstalledApplication> MacApplications::applicationAt(
    const std::string& path) const {
  NSString* location = nsString(path);
  if (![NSFileManager.defaultManager fileExistsAtPath:location]) return std::nullopt;
  return installedAt([NSURL fileURLWithPath:location]);
}

std::optional<desktop::InstalledApplication> MacApplications::defaultApplicationFor(
    const std::string& url) const {
  NSURL* target = urlFrom(url);
  if (target == nil) return std::nullopt;
  NSURL* application = [NSWorkspace.sharedWorkspace URLForApplicationToOpenURL:target];
  if (application == nil) return std::nullopt;
  return installedAt(application);
}

desktop::Ticket MacApplications::open(const std::string& url,
                                      const desktop::InstalledApplication& application,
                                      std::function<void(std::optional<Error>)> done) {
  const Completion<std::optional<Error>> completion(std::move(done));
  NSURL* target = urlFrom(url);
  if (target == nil) {
    completion(errorFrom([NSError errorWithDomain:NSURLErrorDomain
                                             code:NSURLErrorBadURL
                                         userInfo:nil]));
    return {};
  }
  NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
  configuration.activates = YES;
  desktop::MainLoop* loop = &loop_;
  [NSWorkspace.sharedWorkspace openURLs:@[ target ]
                   withApplicationAtURL:[NSURL fileURLWithPath:nsString(application.location)]
                          configuration:configuration
                      completionHandler:^(NSRunningApplication* __unused opened, NSError* failure) {
                        std::optional<Error> error;
                        if (failure != nil) error = errorFrom(failure);
                        loop->post([completion, error] { completion(error); });
                      }];
  return completion.ticket();
}

void MacApplications::open(const std::string& url) {
  NSURL* target = urlFrom(url);
  if (target != nil) [NSWorkspace.sharedWorkspace openURL:target];
}

}  // namespace quillseal::mac
