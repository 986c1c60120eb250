#import "MacDesktop/MacKeyEvents.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#import <Carbon/Carbon.h>
#import <IOKit/IOKitLib.h>

#include "MacDesktop/CfHandle.h"
#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"

namespace quillseal::mac {
namespace {

using std::chrono_literals::operator""ms;

constexpr CGEventFlags modifierFlags = kCGEventFlagMaskCommand | kCGEventFlagMaskAlternate |
                                       kCGEventFlagMaskControl | kCGEventFlagMaskShift;

void post(desktop::KeyPress press) {
  const CfHandle<CGEventSourceRef> source(::CGEventSourceCreate(kCGEventSourceStateHIDSystemState));
  const auto key = static_cast<CGKeyCode>(press.key);
  const CfHandle<CGEventRef> down(::CGEventCreateKeyboardEvent(source.get(), key, true));
  const CfHandle<CGEventRef> up(::CGEventCreateKeyboardEvent(source.get(), key, false));
  for (const CfHandle<CGEventRef>* event : {&down, &up}) {
    if (!*event) continue;
    ::CGEventSetFlags(event->get(), static_cast<CGEventFlags>(press.modifiers));
    ::CGEventPost(kCGHIDEventTap, event->get());
  }
}

/// Returns what would happen to a key that is posted now for `target`. It is declined when another
/// application is known to be active, but not when the system does not say which one is. Without a
/// target, nothing is pressed in a window of this program.
desktop::Delivery prospectOf(const std::optional<desktop::RunningApplication>& target) {
  return callSystem([&] {
    NSRunningApplication* active = NSWorkspace.sharedWorkspace.frontmostApplication;
    if (!target) {
      return [active isEqual:NSRunningApplication.currentApplication]
                 ? desktop::Delivery::declined
                 : desktop::Delivery::delivered;
    }
    const auto process = static_cast<pid_t>(target->instance);
    if (active == nil || active.processIdentifier == process) return desktop::Delivery::delivered;
    NSRunningApplication* wanted =
        [NSRunningApplication runningApplicationWithProcessIdentifier:process];
    return wanted == nil || wanted.terminated ? desktop::Delivery::targetClosed
                                              : desktop::Delivery::declined;
  });
}

/// A press that waits until the user has released the hotkey's modifiers. The events carry their
/// own flags, but some applications read the keyboard's state.
class WaitingPress : public std::enable_shared_from_this<WaitingPress> {
 public:
  struct Request {
    desktop::KeyPress press;
    std::optional<desktop::RunningApplication> target;
    std::function<void()> aboutToPress;
  };

  WaitingPress(desktop::MainLoop& loop, Request request, Completion<desktop::Delivery> completion)
      : loop_(loop),
        request_(std::move(request)),
        completion_(std::move(completion)),
        deadline_(loop.now() + 400ms) {}

  void run() {
    if (!completion_.isPending()) return;
    const CGEventFlags held =
        ::CGEventSourceFlagsState(kCGEventSourceStateHIDSystemState) & modifierFlags;
    if (held != 0 && loop_.now() < deadline_) {
      timer_ = loop_.after(10ms, [self = shared_from_this()] { self->run(); });
      return;
    }
    completion_(deliver());
  }

  void cancel() { timer_ = {}; }

 private:
  desktop::Delivery deliver() {
    try {
      const desktop::Delivery prospect = prospectOf(request_.target);
      if (prospect != desktop::Delivery::delivered) return prospect;
      if (request_.aboutToPress) request_.aboutToPress();
    } catch (const Error&) {
      return desktop::Delivery::declined;
    }
    post(request_.press);
    return desktop::Delivery::delivered;
  }

  desktop::MainLoop& loop_;
  Request request_;
  Completion<desktop::Delivery> completion_;
  desktop::MainLoop::TimePoint deadline_;
  desktop::Ticket timer_;
};

/// Returns the processes that hold secure input, for the end of a log line; empty when not known.
std::string holdersOfSecureInput() {
  const IoHandle root(::IORegistryGetRootEntry(kIOMainPortDefault));
  const CfHandle<CFTypeRef> property(::IORegistryEntryCreateCFProperty(
      root.get(), CFSTR("IOConsoleUsers"), kCFAllocatorDefault, 0));
  std::string text;
  id users = (__bridge id)property.get();
  if (![users isKindOfClass:NSArray.class]) return text;
  for (id user in (NSArray*)users) {
    if (![user isKindOfClass:NSDictionary.class]) continue;
    id holder = ((NSDictionary*)user)[@"kCGSSessionSecureInputPID"];
    if (![holder isKindOfClass:NSNumber.class]) continue;
    text += ", held by process " + std::to_string([holder intValue]);
  }
  return text;
}

}  // namespace

bool MacKeyEvents::isTrusted() const { return ::AXIsProcessTrusted(); }

void MacKeyEvents::askForTrust() {
  callSystem([] {
    NSDictionary* options = @{(__bridge NSString*)kAXTrustedCheckOptionPrompt : @YES};
    ::AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
  });
}

std::string MacKeyEvents::obstacle() const {
  // The system drops posted keys while a password field has the focus or a program has not released
  // Secure Input. The holder's process id is the user's only clue.
  if (!::IsSecureEventInputEnabled()) return {};
  return "secure input is on" + callSystem(holdersOfSecureInput);
}

desktop::Ticket MacKeyEvents::press(desktop::KeyPress press,
                                    const std::optional<desktop::RunningApplication>& target,
                                    std::function<void()> aboutToPress,
                                    std::function<void(desktop::Delivery)> done) {
  const Completion<desktop::Delivery> completion(std::move(done));
  const auto waiting = std::make_shared<WaitingPress>(
      loop_,
      WaitingPress::Request{
          .press = press, .target = target, .aboutToPress = std::move(aboutToPress)},
      completion);
  loop_.post([waiting] { waiting->run(); });
  return completion.ticket([waiting] { waiting->cancel(); });
}

}  // namespace quillseal::mac
