#import "MacDesktop/MacAlerts.h"

#include <string>
#include <utility>

#import <AppKit/AppKit.h>
#import <UserNotifications/UserNotifications.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacText.h"

/// Shows notifications also while this program is active.
@interface QSNotificationPresenter : NSObject <UNUserNotificationCenterDelegate>
@end

@implementation QSNotificationPresenter

- (void)userNotificationCenter:(UNUserNotificationCenter*)__unused center
       willPresentNotification:(UNNotification*)__unused notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))completionHandler {
  completionHandler(UNNotificationPresentationOptionBanner | UNNotificationPresentationOptionList);
}

@end

/// Tracks the open menu of this program.
@interface QSMenuWatcher : NSObject
@property(nonatomic, readonly, weak, nullable) NSMenu* openMenu;
/// `closed` is called on the main thread whenever a menu has closed.
- (instancetype)initWithBlock:(void (^)(void))closed;
- (void)stop;
@end

@implementation QSMenuWatcher {
  void (^_closed)(void);
}

- (instancetype)initWithBlock:(void (^)(void))closed {
  self = [super init];
  if (self != nil) {
    _closed = [closed copy];
    NSNotificationCenter* center = NSNotificationCenter.defaultCenter;
    [center addObserver:self
               selector:@selector(menuDidOpen:)
                   name:NSMenuDidBeginTrackingNotification
                 object:nil];
    [center addObserver:self
               selector:@selector(menuDidClose:)
                   name:NSMenuDidEndTrackingNotification
                 object:nil];
  }
  return self;
}

- (void)stop {
  [NSNotificationCenter.defaultCenter removeObserver:self];
}

- (void)menuDidOpen:(NSNotification*)notification {
  _openMenu = notification.object;
}

- (void)menuDidClose:(NSNotification*)__unused notification {
  _openMenu = nil;
  _closed();
}

@end

namespace quillseal::mac {
namespace {

using desktop::ConfirmationForm;

/// The longest text that an alert shows without a scroll view; longer ones would push the buttons
/// off the screen.
constexpr NSUInteger longestPlainText = 2000;
constexpr CGFloat tallestPlainText = 420;
constexpr CGFloat plainTextWidth = 250;
constexpr CGFloat scrollingTextHeight = 240;
constexpr CGFloat gap = 8;

/// Layout of the form with choice, field and note, in points from its lower left corner.
constexpr CGFloat formWidth = 320, formHeight = 74;
constexpr CGFloat choiceY = 50, choiceHeight = 26;
constexpr CGFloat fieldY = 22, fieldHeight = 24;
constexpr CGFloat noteY = 0, noteHeight = 18, noteFontSize = 10;

bool needsScrolling(NSString* text) {
  if (text.length > longestPlainText) return true;
  const NSRect bounds =
      [text boundingRectWithSize:NSMakeSize(plainTextWidth, CGFLOAT_MAX)
                         options:NSStringDrawingUsesLineFragmentOrigin
                      attributes:@{
                        NSFontAttributeName : [NSFont systemFontOfSize:NSFont.smallSystemFontSize]
                      }];
  return NSHeight(bounds) > tallestPlainText;
}

NSView* scrollingText(NSString* text, CGFloat y) {
  NSScrollView* scroller = [NSTextView scrollableTextView];
  scroller.frame = NSMakeRect(0, y, formWidth, scrollingTextHeight);
  scroller.borderType = NSBezelBorder;
  NSTextView* view = scroller.documentView;
  view.richText = NO;
  view.editable = NO;
  view.font = [NSFont systemFontOfSize:NSFont.smallSystemFontSize];
  view.string = text;
  return scroller;
}

/// Makes an alert with `body` and, below it, `form` unless that is nil.
NSAlert* alertFrom(const std::string& title, const std::string& body, desktop::AlertStyle style,
                   NSView* form) {
  NSAlert* alert = [[NSAlert alloc] init];
  alert.messageText = nsString(title);
  alert.alertStyle =
      style == desktop::AlertStyle::warning ? NSAlertStyleWarning : NSAlertStyleInformational;
  NSString* text = nsString(body);
  if (!needsScrolling(text)) {
    alert.informativeText = text;
    alert.accessoryView = form;
    return alert;
  }
  const CGFloat below = form != nil ? NSHeight(form.frame) + gap : 0;
  NSView* scroller = scrollingText(text, below);
  NSView* both = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, formWidth, NSMaxY(scroller.frame))];
  [both addSubview:scroller];
  if (form != nil) [both addSubview:form];
  alert.accessoryView = both;
  return alert;
}

NSAlert* alertFrom(const desktop::Question& question, NSView* form) {
  NSAlert* alert = alertFrom(question.title, question.body, question.style, form);
  [alert addButtonWithTitle:nsString(question.confirm)];
  [alert addButtonWithTitle:nsString(question.cancel)].keyEquivalent = @"\033";
  return alert;
}

NSRect band(CGFloat y, CGFloat height) { return NSMakeRect(0, y, formWidth, height); }

NSPopUpButton* choiceOf(const ConfirmationForm& form) {
  NSPopUpButton* choice = [[NSPopUpButton alloc] initWithFrame:band(choiceY, choiceHeight)
                                                     pullsDown:NO];
  for (const std::string& title : form.choices) {
    [choice addItemWithTitle:nsString(title)];
  }
  if (form.selectedChoice < form.choices.size()) {
    [choice selectItemAtIndex:static_cast<NSInteger>(form.selectedChoice)];
  }
  choice.accessibilityLabel = @"Medium";  // the form shows no labels
  return choice;
}

NSTextField* fieldOf(const ConfirmationForm& form) {
  NSTextField* field = [[NSTextField alloc] initWithFrame:band(fieldY, fieldHeight)];
  field.placeholderString = nsString(form.fieldPlaceholder);
  field.usesSingleLineMode = YES;
  field.cell.wraps = NO;
  field.cell.scrollable = YES;
  field.accessibilityLabel = @"Recipient";
  return field;
}

NSTextField* noteOf(const ConfirmationForm& form) {
  NSTextField* note = [NSTextField labelWithString:nsString(form.note)];
  note.frame = band(noteY, noteHeight);
  note.font = [NSFont systemFontOfSize:noteFontSize];
  note.textColor = NSColor.secondaryLabelColor;
  note.lineBreakMode = NSLineBreakByTruncatingTail;
  note.toolTip = nsString(form.note);  // it rarely fits on one line
  return note;
}

/// Runs `alert` modally, with the focus in `field` unless that is nil, until it is answered or
/// stopped.
NSModalResponse runModal(NSAlert* alert, NSView* field) {
  activateProgram();
  [alert layout];  // otherwise runModal does this, after the window has appeared
  NSWindow* window = alert.window;
  if (field != nil) window.initialFirstResponder = field;
  window.preventsApplicationTerminationWhenModal =
      NO;  // so that the user can quit or log out without answering
  // If the system refuses to activate this program, the alert is at least above all windows.
  window.level = NSModalPanelWindowLevel;
  [window center];
  [window orderFrontRegardless];
  return [alert runModal];
}

UNNotificationRequest* requestFor(const desktop::Notification& notification) {
  UNMutableNotificationContent* content = [[UNMutableNotificationContent alloc] init];
  content.title = nsString(notification.title);
  content.body = nsString(notification.body);
  return [UNNotificationRequest requestWithIdentifier:NSUUID.UUID.UUIDString
                                              content:content
                                              trigger:nil];
}

/// Returns the error's domain and code for the end of a log line; empty for nil.
std::string codeOf(NSError* error) {
  return error == nil ? "" : " (error " + std::to_string(error.code) + ")";
}

}  // namespace

struct MacAlerts::OpenAlert {
  NSAlert* alert;
  NSView* field;
  Completion<bool> completion;
};

MacAlerts::MacAlerts(Services services)
    : poster_(services.loop.poster()),
      log_(std::make_shared<desktop::Log*>(&services.log)),
      menus_([[QSMenuWatcher alloc] initWithBlock:^{
        runAfterMenu();
      }]),
      presenter_([[QSNotificationPresenter alloc] init]) {
  // The center throws in a program without a bundle.
  if (NSBundle.mainBundle.bundleIdentifier == nil) return;
  UNUserNotificationCenter.currentNotificationCenter.delegate = presenter_;
}

MacAlerts::~MacAlerts() {
  *log_ = nullptr;
  [menus_ stop];
}

desktop::Ticket MacAlerts::show(const desktop::Alert& alert, std::function<void()> dismissed) {
  NSAlert* shown = callSystem([&] {
    NSAlert* made = alertFrom(alert.title, alert.body, alert.style, nil);
    [made addButtonWithTitle:@"OK"];
    return made;
  });
  return open(shown, nil, [dismissed = std::move(dismissed)](bool) { dismissed(); });
}

desktop::Ticket MacAlerts::ask(const desktop::Question& question,
                               std::function<void(desktop::Answer)> answered) {
  NSAlert* shown = callSystem([&] { return alertFrom(question, nil); });
  return open(shown, nil, [answered = std::move(answered)](bool first) {
    answered(first ? desktop::Answer::confirmed : desktop::Answer::cancelled);
  });
}

desktop::Ticket MacAlerts::confirm(
    const ConfirmationForm& form,
    std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) {
  NSPopUpButton* choice = callSystem([&] { return choiceOf(form); });
  NSTextField* field = callSystem([&] { return fieldOf(form); });
  NSAlert* alert = callSystem([&] {
    NSView* view = [[NSView alloc] initWithFrame:band(0, formHeight)];
    view.subviews = @[ choice, field, noteOf(form) ];
    return alertFrom(form.question, view);
  });
  return open(alert, field, [choice, field, answered = std::move(answered)](bool first) {
    if (!first) {
      answered(std::nullopt);
      return;
    }
    answered(desktop::ConfirmationEntry{.choice = utf8(choice.titleOfSelectedItem),
                                        .field = utf8(field.stringValue)});
  });
}

void MacAlerts::notify(const desktop::Notification& notification) {
  if (NSBundle.mainBundle.bundleIdentifier == nil) return;
  const MacMainLoop::Poster poster = poster_;
  const std::shared_ptr<desktop::Log*> log = log_;
  void (^report)(const char*, NSError*) = ^(const char* what, NSError* error) {
    const std::string line = "[sign] " + std::string(what) + codeOf(error);
    poster.post([log, line] {
      if (*log != nullptr) (*log)->write(line);
    });
  };
  UNUserNotificationCenter* center =
      callSystem([] { return UNUserNotificationCenter.currentNotificationCenter; });
  UNNotificationRequest* request = callSystem([&] { return requestFor(notification); });
  void (^authorised)(BOOL, NSError*) = ^(BOOL granted, NSError* refusal) {
    if (!granted) {
      report("notifications are not allowed", refusal);
      return;
    }
    [center addNotificationRequest:request
             withCompletionHandler:^(NSError* failure) {
               if (failure != nil) report("the notification was not shown", failure);
             }];
  };
  callSystem([&] {
    // The system asks the user once and answers at once afterwards.
    [center requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                          completionHandler:authorised];
  });
}

desktop::Ticket MacAlerts::open(NSAlert* alert, NSView* field, std::function<void(bool)> answered) {
  const auto open = std::make_shared<OpenAlert>(OpenAlert{
      .alert = alert, .field = field, .completion = Completion<bool>(std::move(answered))});
  poster_.post([this, open] { run(open); });
  return open->completion.ticket([this] { stopWithdrawn(); });
}

void MacAlerts::run(const std::shared_ptr<OpenAlert>& open) {
  if (!open->completion.isPending()) return;
  if (NSMenu* menu = menus_.openMenu) {
    // A modal loop inside the menu's would leave the menu on the screen and the alert without the
    // keyboard.
    waiting_.push_back(open);
    [menu cancelTracking];
    return;
  }
  open_.push_back(open);
  bool isFirstButton = false;
  try {
    isFirstButton =
        callSystem([&] { return runModal(open->alert, open->field); }) == NSAlertFirstButtonReturn;
  } catch (const Error& error) {
    (*log_)->write(std::string("[sign] an alert could not be shown: ") + error.what());
    // The window may already be on the screen, and nothing else would close it.
    callGuarded([&] { [open->alert.window orderOut:nil]; });
  }
  open_.pop_back();
  stopWithdrawn();
  open->completion(isFirstButton);
  // This comes last: if the answer opens another alert, that must exist before activation is given
  // back. Otherwise it would lose the focus, and the user would type into the other application.
  [NSNotificationCenter.defaultCenter postNotificationName:windowDidGo object:nil];
}

void MacAlerts::runAfterMenu() {
  for (const std::shared_ptr<OpenAlert>& open : std::exchange(waiting_, {})) {
    poster_.post([this, open] { run(open); });
  }
}

void MacAlerts::stopWithdrawn() {
  if (open_.empty() || open_.back()->completion.isPending()) return;
  // Only the innermost modal loop can be stopped, and it checks for that after its next event.
  [NSApp stopModalWithCode:NSModalResponseAbort];
  NSEvent* event = [NSEvent otherEventWithType:NSEventTypeApplicationDefined
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                       subtype:0
                                         data1:0
                                         data2:0];
  if (event != nil) [NSApp postEvent:event atStart:YES];
}

}  // namespace quillseal::mac
