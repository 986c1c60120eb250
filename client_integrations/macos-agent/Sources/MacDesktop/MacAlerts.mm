#import "MacDesktop/MacAlerts.h"

#include <string>
#include <utility>

#import <AppKit/AppKit.h>
#import <UserNotifications/UserNotifications.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacText.h"

/// Lets notifications appear while this program is active, too.
@interface QSNotificationPresenter : NSObject <UNUserNotificationCenterDelegate>
@end

@implementation QSNotificationPresenter

- (void)userNotificationCenter:(UNUserNotificationCenter*)__unused center
       willPresentNotification:(UNNotification*)__unused notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))completionHandler {
  completionHandler(UNNotificationPresentationOptionBanner | UNNotificationPresentationOptionList);
}

@end

namespace quillseal::mac {
namespace {

using desktop::ConfirmationForm;

/// What an alert shows at its own place; longer texts, which would push the buttons off the screen,
/// scroll in a box.
constexpr NSUInteger longestPlainText = 2000;
constexpr CGFloat tallestPlainText = 420;
constexpr CGFloat plainTextWidth = 250;
constexpr CGFloat scrollingTextHeight = 240;
constexpr CGFloat gap = 8;

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
  scroller.frame = NSMakeRect(0, y, ConfirmationForm::width, scrollingTextHeight);
  scroller.borderType = NSBezelBorder;
  NSTextView* view = scroller.documentView;
  view.richText = NO;
  view.editable = NO;
  view.font = [NSFont systemFontOfSize:NSFont.smallSystemFontSize];
  view.string = text;
  return scroller;
}

/// An alert with `body` and, below it, `form` unless that is nil.
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
  NSView* both = [[NSView alloc]
      initWithFrame:NSMakeRect(0, 0, ConfirmationForm::width, NSMaxY(scroller.frame))];
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

NSRect band(int y, int height) { return NSMakeRect(0, y, ConfirmationForm::width, height); }

NSPopUpButton* choiceOf(const ConfirmationForm& form) {
  NSPopUpButton* choice = [[NSPopUpButton alloc] initWithFrame:band(form.choiceY, form.choiceHeight)
                                                     pullsDown:NO];
  for (const std::string& title : form.choices) {
    [choice addItemWithTitle:nsString(title)];
  }
  if (form.selectedChoice < form.choices.size()) {
    [choice selectItemAtIndex:static_cast<NSInteger>(form.selectedChoice)];
  }
  return choice;
}

NSTextField* fieldOf(const ConfirmationForm& form) {
  NSTextField* field = [[NSTextField alloc] initWithFrame:band(form.fieldY, form.fieldHeight)];
  field.placeholderString = nsString(form.fieldPlaceholder);
  field.usesSingleLineMode = YES;
  field.cell.wraps = NO;
  field.cell.scrollable = YES;
  return field;
}

NSTextField* noteOf(const ConfirmationForm& form) {
  NSTextField* note = [NSTextField labelWithString:nsString(form.note)];
  note.frame = band(form.noteY, form.noteHeight);
  note.font = [NSFont systemFontOfSize:form.noteFontSize];
  note.textColor = NSColor.secondaryLabelColor;
  note.lineBreakMode = NSLineBreakByTruncatingTail;
  note.toolTip = nsString(form.note);  // one line rarely holds it
  return note;
}

/// For the end of a line of the log; nothing for nil.
std::string codeOf(NSError* error) {
  return error == nil ? "" : " (error " + std::to_string(error.code) + ")";
}

}  // namespace

struct MacAlerts::OpenAlert {
  NSAlert* alert;
  Completion<bool> completion;
};

MacAlerts::MacAlerts(Services services)
    : services_(services), presenter_([[QSNotificationPresenter alloc] init]) {
  // Outside of a bundle, where the center has nobody to speak for, it throws.
  if (NSBundle.mainBundle.bundleIdentifier == nil) return;
  UNUserNotificationCenter.currentNotificationCenter.delegate = presenter_;
}

MacAlerts::~MacAlerts() = default;

desktop::Ticket MacAlerts::show(const desktop::Alert& alert, std::function<void()> dismissed) {
  NSAlert* shown = alertFrom(alert.title, alert.body, alert.style, nil);
  [shown addButtonWithTitle:@"OK"];
  return open(shown, [dismissed = std::move(dismissed)](bool) { dismissed(); });
}

desktop::Ticket MacAlerts::ask(const desktop::Question& question,
                               std::function<void(desktop::Answer)> answered) {
  return open(alertFrom(question, nil), [answered = std::move(answered)](bool first) {
    answered(first ? desktop::Answer::confirmed : desktop::Answer::cancelled);
  });
}

desktop::Ticket MacAlerts::confirm(
    const ConfirmationForm& form,
    std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) {
  NSPopUpButton* choice = choiceOf(form);
  NSTextField* field = fieldOf(form);
  NSView* view = [[NSView alloc] initWithFrame:band(0, ConfirmationForm::height)];
  view.subviews = @[ choice, field, noteOf(form) ];
  NSAlert* alert = alertFrom(form.question, view);
  [alert layout];
  alert.window.initialFirstResponder = field;
  return open(alert, [choice, field, answered = std::move(answered)](bool first) {
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
  UNMutableNotificationContent* content = [[UNMutableNotificationContent alloc] init];
  content.title = nsString(notification.title);
  content.body = nsString(notification.body);
  UNNotificationRequest* request =
      [UNNotificationRequest requestWithIdentifier:NSUUID.UUID.UUIDString
                                           content:content
                                           trigger:nil];
  UNUserNotificationCenter* center = UNUserNotificationCenter.currentNotificationCenter;
  desktop::Log* log = &services_.log;
  // The system asks the user the first time and answers at once from then on.
  [center requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                        completionHandler:^(BOOL granted, NSError* refusal) {
                          if (!granted) {
                            log->write("[sign] notifications are not allowed" + codeOf(refusal));
                            return;
                          }
                          [center addNotificationRequest:request
                                   withCompletionHandler:^(NSError* failure) {
                                     if (failure == nil) return;
                                     log->write("[sign] the notification was not shown" +
                                                codeOf(failure));
                                   }];
                        }];
}

desktop::Ticket MacAlerts::open(NSAlert* alert, std::function<void(bool)> answered) {
  const auto open = std::make_shared<OpenAlert>(
      OpenAlert{.alert = alert, .completion = Completion<bool>(std::move(answered))});
  services_.loop.post([this, open] { run(open); });
  return open->completion.ticket([this] { stopWithdrawn(); });
}

void MacAlerts::run(const std::shared_ptr<OpenAlert>& open) {
  if (!open->completion.isPending()) return;
  open_.push_back(open);
  activateProgram();
  [open->alert layout];  // else done by runModal only, after the window was shown
  NSWindow* window = open->alert.window;
  window.preventsApplicationTerminationWhenModal = NO;  // quitting and logging out need no answer
  // In case the system does not let this program become active: at least on top of all windows.
  window.level = NSModalPanelWindowLevel;
  [window center];
  [window orderFrontRegardless];
  const NSModalResponse response = [open->alert runModal];
  open_.pop_back();
  stopWithdrawn();
  open->completion(response == NSAlertFirstButtonReturn);
}

void MacAlerts::stopWithdrawn() {
  if (open_.empty() || open_.back()->completion.isPending()) return;
  // Only the innermost modal loop can be stopped, and it looks at that after its next event.
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
