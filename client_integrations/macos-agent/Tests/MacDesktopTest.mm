// The desktop services against macOS itself. The tests run unattended: they ask for no permission,
// and what a machine lacks (an Enclave, a keychain entitlement, the right to come to the front) is
// skipped with a message. They replace what is on the clipboard.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#import <AppKit/AppKit.h>
#import <Carbon/Carbon.h>
#import <LocalAuthentication/LocalAuthentication.h>
#import <objc/runtime.h>

#include "MacDesktop/MacAlerts.h"
#include "MacDesktop/MacApplications.h"
#include "MacDesktop/MacDefaults.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacFiles.h"
#include "MacDesktop/MacHotkey.h"
#include "MacDesktop/MacHttpTransport.h"
#include "MacDesktop/MacKeyEvents.h"
#include "MacDesktop/MacKeyStore.h"
#include "MacDesktop/MacMachineIdentity.h"
#include "MacDesktop/MacMainLoop.h"
#include "MacDesktop/MacPasteboard.h"
#include "MacDesktop/MacPresence.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacScriptRunner.h"
#include "MacDesktop/MacStatusItem.h"
#include "MacDesktop/MacText.h"
#include "MacDesktop/MacWallClock.h"
#include "MacDesktop/MacWindow.h"
#include "MacViews.h"
#include "desktop/SigningHotkey.h"

/// Counts the requests to cancel its tracking.
@interface QSTestMenu : NSMenu
@property(nonatomic) int cancellations;
@end

@implementation QSTestMenu

- (void)cancelTracking {
  ++_cancellations;
}

@end

namespace quillseal::mac {
namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Application : public testing::Environment {
 public:
  void SetUp() override {
    ::signal(SIGPIPE, SIG_IGN);  // of requests that are cancelled
    [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyAccessory];
    [NSApp finishLaunching];
  }
};

const testing::Environment* const application =
    testing::AddGlobalTestEnvironment(new Application);  // owned by the framework

/// Handles events like the application's loop until `done`; false when that takes longer than
/// `seconds`.
bool runUntil(const std::function<bool()>& done, double seconds = 10) {
  NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:seconds];
  while (!done() && limit.timeIntervalSinceNow > 0) {
    @autoreleasepool {
      NSEvent* event = [NSApp nextEventMatchingMask:NSEventMaskAny
                                          untilDate:[NSDate dateWithTimeIntervalSinceNow:0.02]
                                             inMode:NSDefaultRunLoopMode
                                            dequeue:YES];
      if (event != nil) [NSApp sendEvent:event];
    }
  }
  return done();
}

void runFor(double seconds) {
  static_cast<void>(runUntil([] { return false; }, seconds));
}

/// What `start` gives to the function that it is called with, once that has been called.
template <typename Value, typename Start>
Value awaited(const Start& start) {
  std::optional<Value> value;
  const desktop::Ticket ticket = start([&](Value given) { value.emplace(std::move(given)); });
  EXPECT_TRUE(runUntil([&] { return value.has_value(); }, 20));
  return std::move(value).value();
}

/// What `work` throws, as DOMAIN CODE: WORDS; nothing when it throws nothing.
template <typename Work>
std::string errorOf(const Work& work) {
  try {
    work();
  } catch (const Error& error) {
    return error.domain() + " " + std::to_string(error.code()) + ": " + error.what();
  }
  return "";
}

[[noreturn]] void raise() {
  @throw [NSException exceptionWithName:@"TestException" reason:@"deliberate" userInfo:nil];
}

class RecordingLog final : public desktop::Log {
 public:
  void write(std::string_view line) override { lines.emplace_back(line); }

  std::vector<std::string> lines;
};

class MacDesktopTest : public testing::Test {
 protected:
  MacMainLoop loop_;
  RecordingLog log_;
};

TEST(MacErrorTest, TurnsWhatTheSystemRaisesIntoAnError) {
  const std::string raised = errorOf([] { callSystem([] { raise(); }); });
  EXPECT_THAT(raised, AllOf(StartsWith("TestException "), EndsWith(": deliberate")));
  const Error own({.domain = "own", .code = 7, .description = "words"});
  EXPECT_EQ(errorOf([&] { callSystem([&] { throw Error(own); }); }), "own 7: words");
  EXPECT_EQ(callSystem([] { return 3; }), 3);
  callGuarded([] { raise(); });
  callGuarded([] { throw std::runtime_error("deliberate"); });
  EXPECT_STREQ(errorFrom(nil).what(), "");
  EXPECT_EQ(errorFromStatus(-25308).code(), -25308);
}

using MacMainLoopTest = MacDesktopTest;

// Also while posted work stays on the stack and a nested loop runs, as when an alert is open.
TEST_F(MacMainLoopTest, RunsPostedWorkLaterAndInOrderWhateverThatThrows) {
  std::string order;
  loop_.post([&] {
    order += "a";
    throw std::runtime_error("deliberate");
  });
  loop_.post([] { raise(); });
  loop_.post([&] {
    order += "b";
    EXPECT_TRUE(runUntil([&] { return order == "abc"; }));
    loop_.post([&] { order += "e"; });
    order += "d";
  });
  loop_.post([&] { order += "c"; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(runUntil([&] { return order == "abcde"; })) << order;
}

TEST_F(MacMainLoopTest, RunsATimerOnceUnlessItsTicketWasDropped) {
  int dropped = 0, kept = 0;
  static_cast<void>(loop_.after(10ms, [&] { ++dropped; }));
  const desktop::Ticket timer = loop_.after(20ms, [&] { ++kept; });
  runFor(0.2);
  EXPECT_EQ(dropped, 0);
  EXPECT_EQ(kept, 1);
}

TEST_F(MacMainLoopTest, BlocksOnAWorkerAndFinishesOnTheMainThread) {
  std::optional<bool> workedOnMain, finishedOnMain;
  const desktop::Ticket ticket = loop_.runBlocking([&] { workedOnMain = NSThread.isMainThread; },
                                                   [&] { finishedOnMain = NSThread.isMainThread; });
  ASSERT_TRUE(runUntil([&] { return finishedOnMain.has_value(); }));
  EXPECT_EQ(workedOnMain, false);
  EXPECT_EQ(finishedOnMain, true);
}

TEST_F(MacMainLoopTest, TakesPostsFromManyThreadsAndFromSomeThatOutliveIt) {
  auto loop = std::make_unique<MacMainLoop>();
  const MacMainLoop::Poster poster = loop->poster();
  int runs = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([poster, &runs] {
      for (int post = 0; post < 100; ++post) poster.post([&runs] { ++runs; });
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_TRUE(runUntil([&] { return runs == 400; }));
  const desktop::Ticket timer = loop->after(20ms, [&] { ++runs; });
  const desktop::Ticket worker =
      loop->runBlocking([] { std::this_thread::sleep_for(20ms); }, [&] { ++runs; });
  poster.post([&] { ++runs; });
  loop.reset();
  std::thread([poster, &runs] { poster.post([&runs] { ++runs; }); }).join();
  runFor(0.2);
  EXPECT_EQ(runs, 400);
}

TEST(MacTextTest, KeepsWellFormedTextAndMendsTheRest) {
  for (const std::string& text : {std::string("Hi"), std::string("『Zoë』 🛡️"),
                                  std::string("a\0b", 3), std::string()}) {
    EXPECT_EQ(utf8(nsString(text)), text);
  }
  EXPECT_EQ(utf8(nsString("a\xff"
                          "b")),
            "a\uFFFDb");
  const unichar unpaired[] = {'a', 0xd83d, 'b'};
  const std::string mended = utf8([NSString stringWithCharacters:unpaired length:3]);
  EXPECT_EQ(mended.front(), 'a');
  EXPECT_EQ(mended.back(), 'b');
  EXPECT_EQ(utf8(nil), "");
  EXPECT_EQ(optionalUtf8(nil), std::nullopt);
}

TEST(MacTextTest, MakesNoUrlOfWhatIsNone) {
  EXPECT_NE(urlFrom("https://seal.example/handoff?h=1#t=SGk"), nil);
  EXPECT_EQ(urlFrom("https://seal example/"), nil);
}

TEST(MacFilesTest, ReplacesAFileThatOnlyItsOwnerReads) {
  NSString* folder = [NSTemporaryDirectory() stringByAppendingPathComponent:NSUUID.UUID.UUIDString];
  const std::string path = utf8([folder stringByAppendingPathComponent:@"new/text.txt"]);
  MacFiles files;
  ASSERT_TRUE(files.replace(path, "first, and longer"));
  ASSERT_TRUE(files.replace(path, "second"));
  NSString* contents = [NSString stringWithContentsOfFile:nsString(path)
                                                 encoding:NSUTF8StringEncoding
                                                    error:nil];
  EXPECT_EQ(utf8(contents), "second");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600);
  NSString* parent = nsString(path).stringByDeletingLastPathComponent;
  EXPECT_EQ([NSFileManager.defaultManager contentsOfDirectoryAtPath:parent error:nil].count, 1U);
  EXPECT_FALSE(files.replace(path + "/below-a-file", "x"));
  [NSFileManager.defaultManager removeItemAtPath:folder error:nil];
}

TEST(MacMachineIdentityTest, StaysTheSame) {
  const MacMachineIdentity machine;
  const std::optional<std::string> identifier = machine.platformUuid();
  ASSERT_TRUE(identifier.has_value());
  EXPECT_EQ(identifier->size(), 36U);
  EXPECT_EQ(machine.platformUuid(), identifier);
}

TEST(MacWallClockTest, GivesTheDayAndTheZoneOfTheSystem) {
  const MacWallClock clock;
  const std::time_t now = std::time(nullptr);
  struct tm local {};
  ::localtime_r(&now, &local);
  char day[11];
  ASSERT_EQ(std::strftime(day, sizeof day, "%Y-%m-%d", &local), 10U);
  EXPECT_EQ(clock.today(), day);  // not at midnight
  EXPECT_EQ(clock.timeZone().secondsFromGmt, static_cast<int>(local.tm_gmtoff));
  EXPECT_FALSE(clock.timeZone().identifier.empty());
}

class MacPasteboardTest : public testing::Test {
 protected:
  NSPasteboard* general_ = NSPasteboard.generalPasteboard;
  [[nodiscard]] std::optional<std::string> rtf() {
    std::optional<std::string> rtf = "not called";
    const auto ticket =
        pasteboard_.fetchRtf([&](std::optional<std::string> bytes) { rtf = std::move(bytes); });
    return rtf;
  }
  MacPasteboard pasteboard_;
};

TEST_F(MacPasteboardTest, OffersBothFlavoursAndNoOther) {
  [general_ declareTypes:@[ NSPasteboardTypeRTF ] owner:nil];
  [general_ setData:[NSData dataWithBytes:"{}" length:2] forType:NSPasteboardTypeRTF];
  const auto before = pasteboard_.changeCount();
  pasteboard_.write(
      {.plainText = "『Zoë』 🛡️\nline 2", .html = "<p>『Zoë』 🛡️</p>"});
  EXPECT_NE(pasteboard_.changeCount(), before);
  EXPECT_EQ(pasteboard_.plainText(), "『Zoë』 🛡️\nline 2");
  EXPECT_EQ(pasteboard_.html(), "<p>『Zoë』 🛡️</p>");
  EXPECT_EQ([general_ dataForType:NSPasteboardTypeRTF], nil);
  EXPECT_FALSE(pasteboard_.isConcealed());
}

TEST_F(MacPasteboardTest, ReadsWhatOthersOffer) {
  NSString* concealed = @"org.nspasteboard.ConcealedType";
  NSData* copied = [NSData dataWithBytes:"{\\rtf1 x\0y}" length:11];
  [general_ declareTypes:@[ NSPasteboardTypeRTF ] owner:nil];
  [general_ setData:copied forType:NSPasteboardTypeRTF];
  EXPECT_EQ(rtf(), std::string("{\\rtf1 x\0y}", 11));
  [general_ declareTypes:@[ NSPasteboardTypeString, NSPasteboardTypeRTF, concealed ] owner:nil];
  [general_ setString:@"secret" forType:NSPasteboardTypeString];
  [general_ setData:copied forType:NSPasteboardTypeRTF];
  [general_ setData:[NSData data] forType:concealed];
  EXPECT_TRUE(pasteboard_.isConcealed());
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_EQ(pasteboard_.plainText(), "secret");
  EXPECT_EQ(pasteboard_.html(), std::nullopt);
  [general_ clearContents];
  EXPECT_EQ(pasteboard_.plainText(), std::nullopt);
  EXPECT_EQ(rtf(), std::nullopt);
  EXPECT_FALSE(pasteboard_.isConcealed());
}

TEST_F(MacPasteboardTest, OffersNothingWhenItCannotOfferAll) {
  Class kind = object_getClass(general_);
  pasteboard_.write({.plainText = "before", .html = ""});
  {
    const Replaced refusing(kind, @selector(writeObjects:), ^BOOL(id, NSArray*) {
      return NO;
    });
    EXPECT_THAT(errorOf([&] { pasteboard_.write({.plainText = "x", .html = ""}); }),
                EndsWith(": The signed text could not be put on the clipboard."));
  }
  EXPECT_EQ(pasteboard_.plainText(), std::nullopt);
  const Replaced raising(kind, @selector(stringForType:), ^NSString*(id, NSString*) {
    raise();
  });
  EXPECT_NE(errorOf([&] { static_cast<void>(pasteboard_.plainText()); }), "");
  EXPECT_NE(errorOf([&] { static_cast<void>(pasteboard_.html()); }), "");
}

TEST_F(MacPasteboardTest, NamesTheSettingThatKeepsItFromReading) {
  Class kind = object_getClass(general_);
  const SEL selector = NSSelectorFromString(@"accessBehavior");  // of macOS 15.4
  __block NSInteger behavior = 0;
  NSInteger (^answer)(id) = ^NSInteger(id) {
    return behavior;
  };
  if (![general_ respondsToSelector:selector]) {
    EXPECT_EQ(pasteboard_.readingObstacle(), "");
    ASSERT_TRUE(::class_addMethod(kind, selector, ::imp_implementationWithBlock(answer), "q@:"));
  }
  const Replaced settings(kind, selector, answer);
  const std::pair<NSInteger, std::string> cases[] = {
      {0, ""},
      {1, "System Settings asks each time whether Quillseal may paste from other applications"},
      {2, ""},
      {3, "System Settings does not let Quillseal paste from other applications"},
  };
  for (const auto& [value, words] : cases) {
    behavior = value;
    EXPECT_EQ(pasteboard_.readingObstacle(), words);
  }
}

desktop::MenuItem command(const std::string& title, std::function<void()> action) {
  desktop::MenuItem item;
  item.title = title;
  item.action = std::move(action);
  return item;
}

desktop::StatusMenu statusMenu(std::vector<desktop::MenuItem> items) {
  return {.symbol = "shield.fill",
          .symbolDescription = "Quill Seal",
          .title = " Quill",
          .items = std::move(items)};
}

TEST(MacStatusItemTest, ShowsItsMenuAndRunsTheChosenAction) {
  using Kind = desktop::MenuItem::Kind;
  using desktop::Modifiers;
  std::string ran;
  MacStatusItem item;
  item.setItemTitle(0, "nothing is shown yet");
  EXPECT_EQ(item.menu(), nil);
  desktop::MenuItem sign = command("Sign", [&] { ran += "s"; });
  sign.keyEquivalent = "h";
  sign.keyModifiers = Modifiers::command | Modifiers::option | Modifiers::control;
  desktop::MenuItem separator = command("", nullptr);
  separator.kind = Kind::separator;
  desktop::MenuItem label = command("a label", nullptr);
  label.kind = Kind::label;
  item.show(statusMenu({sign, separator, label,
                        command("Throws", [] { throw std::runtime_error("deliberate"); }),
                        command("Replaces", [&] {
                          item.show(statusMenu({command("only", [&] { ran += "o"; })}));
                          ran += "r";
                        })}));
  NSMenu* menu = item.menu();
  ASSERT_EQ(menu.numberOfItems, 5);
  EXPECT_TRUE([menu itemAtIndex:0].isEnabled);
  EXPECT_EQ([menu itemAtIndex:0].keyEquivalentModifierMask,
            NSEventModifierFlagCommand | NSEventModifierFlagOption | NSEventModifierFlagControl);
  EXPECT_TRUE([menu itemAtIndex:1].isSeparatorItem);
  EXPECT_FALSE([menu itemAtIndex:2].isEnabled);
  item.setItemTitle(2, "another label");
  item.setItemTitle(99, "none");
  EXPECT_EQ(utf8([menu itemAtIndex:2].title), "another label");
  for (const NSInteger index : {0, 3, 4}) [menu performActionForItemAtIndex:index];
  EXPECT_EQ(ran, "sr");
  ASSERT_EQ(item.menu().numberOfItems, 1);
  [item.menu() performActionForItemAtIndex:0];
  EXPECT_EQ(ran, "sro");
}

class MacWindowTest : public testing::Test {
 protected:
  std::unique_ptr<desktop::Window> make(const std::string& title) {
    return MacWindows().make({.title = title, .width = 460, .height = 400});
  }

  static desktop::Form form(std::vector<decltype(desktop::FormSection::rows)::value_type> rows) {
    return {.width = 460, .height = 400, .sections = {{.header = "h", .rows = std::move(rows)}}};
  }
};

TEST_F(MacWindowTest, EditsClosesAndReopens) {
  std::string address = "https://a.example";
  std::string key = "k";
  int pressed = 0;
  const auto window = make("Edits");
  const auto rows = [&](const std::string& label) {
    return form({desktop::FormField{.label = "Server URL",
                                    .value = address,
                                    .changed = [&](const std::string& text) { address = text; }},
                 desktop::FormField{.label = "API Key",
                                    .value = key,
                                    .masked = true,
                                    .changed = [&](const std::string& text) { key = text; }},
                 desktop::FormStatus{.symbol = "checkmark.seal.fill", .text = {.text = "Enrolled"}},
                 desktop::FormButton{.label = label, .pressed = [&] { ++pressed; }}});
  };
  window->render(rows("Enrol"));
  window->bringToFront();
  NSWindow* shown = windowTitled(@"Edits");
  ASSERT_TRUE(runUntil([&] { return shown.isVisible; }));
  NSTextField* field = fieldLabelled(shown, @"Server URL");
  ASSERT_NE(field, nil);
  EXPECT_NE(field.currentEditor, nil) << "the first field has the keyboard";

  field.currentEditor.selectedRange = NSMakeRange(field.stringValue.length, 0);
  type(field, @"/x");
  EXPECT_EQ(address, "https://a.example/x");
  field.currentEditor.selectedRange = NSMakeRange(5, 0);
  window->render(rows("Re-enrol"));  // as when the settings were observed to change
  EXPECT_EQ(fieldLabelled(shown, @"Server URL"), field);
  EXPECT_EQ(field.currentEditor.selectedRange.location, 5U);
  EXPECT_TRUE([fieldLabelled(shown, @"API Key") isKindOfClass:NSSecureTextField.class]);
  [buttonTitled(shown, @"Re-enrol") performClick:nil];
  EXPECT_EQ(pressed, 1);

  [shown performClose:nil];
  EXPECT_FALSE(shown.isVisible);
  window->render(form({desktop::FormText{.text = "alone"}}));
  EXPECT_EQ(buttonTitled(shown, @"Re-enrol"), nil);
  window->bringToFront();
  EXPECT_TRUE(shown.isVisible);
  EXPECT_NE(textShowing(shown, @"alone"), nil);
}

TEST_F(MacWindowTest, LeavesTextAloneThatCanOnlyBeCopied) {
  const auto window = make("Selects");
  const auto address = form({desktop::FormText{.text = "https://a.example", .selectable = true}});
  window->render(address);
  window->bringToFront();
  NSWindow* shown = windowTitled(@"Selects");
  ASSERT_TRUE(runUntil([&] { return shown.isVisible; }));
  EXPECT_EQ(shown.firstResponder, shown) << "no text has the keyboard unless it is clicked";
  NSTextField* text = textShowing(shown, @"https://a.example");
  [text selectText:nil];
  text.currentEditor.selectedRange = NSMakeRange(8, 9);
  window->render(address);
  ASSERT_NE(text.currentEditor, nil);
  EXPECT_EQ(text.currentEditor.selectedRange.length, 9U);
}

TEST_F(MacWindowTest, SurvivesActionsThatReplaceTheirOwnRowOrWindow) {
  auto window = make("Replaces");
  window->render(form({desktop::FormButton{.label = "go", .pressed = [&] {
                                             window->render(
                                                 form({desktop::FormText{.text = "gone"}}));
                                           }}}));
  window->bringToFront();
  NSWindow* shown = windowTitled(@"Replaces");
  [buttonTitled(shown, @"go") performClick:nil];
  EXPECT_EQ(buttonTitled(shown, @"go"), nil);
  window->render(form({desktop::FormButton{.label = "end", .pressed = [&] { window.reset(); }}}));
  [buttonTitled(shown, @"end") performClick:nil];
  EXPECT_EQ(window, nullptr);
  EXPECT_FALSE(shown.isVisible);
}

class MacAlertsTest : public MacDesktopTest {
 protected:
  /// Calls `work` whenever a new alert is open, also for nested ones.
  void onAlert(std::function<void(NSWindow*)> work) {
    timers_.push_back(loop_.after(20ms, [this, work = std::move(work)] {
      NSWindow* window = NSApp.modalWindow;
      if (window == nil || [seen_ containsObject:window] || !window.isVisible) {
        onAlert(work);
        return;
      }
      [seen_ addObject:window];
      work(window);
    }));
  }

  desktop::Answer ask() {
    return awaited<desktop::Answer>([&](auto done) { return alerts_.ask(question_, done); });
  }

  static void press(NSWindow* window, NSString* title) {
    NSButton* button = buttonTitled(window, title);
    EXPECT_NE(button, nil) << utf8(title);
    [button performClick:nil];
    wakeModalLoop();
  }

  static void strike(NSWindow* window, NSString* key) {
    [window makeKeyWindow];
    for (const NSEventType kind : {NSEventTypeKeyDown, NSEventTypeKeyUp})
      [NSApp postEvent:keyEvent(kind, window, key) atStart:NO];
  }

  std::vector<desktop::Ticket> timers_;
  NSMutableArray<NSWindow*>* seen_ = [NSMutableArray array];
  MacAlerts alerts_{{.loop = loop_, .log = log_}};
  desktop::Question question_{
      .title = "Sign?", .body = "A body", .confirm = "Sign", .cancel = "Cancel"};
};

TEST_F(MacAlertsTest, IsAnsweredByButtonsAndKeys) {
  for (const auto act : {press, strike}) {
    const bool isKey = act == strike;
    onAlert([=](NSWindow* window) { act(window, isKey ? @"\r" : @"Sign"); });
    EXPECT_EQ(ask(), desktop::Answer::confirmed);
    onAlert([=](NSWindow* window) { act(window, isKey ? @"\033" : @"Cancel"); });
    EXPECT_EQ(ask(), desktop::Answer::cancelled);
  }
}

TEST_F(MacAlertsTest, ConfirmationGivesChoiceAndFieldAndNamesThem) {
  const desktop::ConfirmationForm form{.question = question_,
                                       .choices = {"Email", "Chat", "Document"},
                                       .selectedChoice = 1,
                                       .fieldPlaceholder = "where to",
                                       .note = "small"};
  onAlert([](NSWindow* window) {
    NSTextField* field = fieldLabelled(window, @"Recipient");
    ASSERT_NE(field, nil);
    EXPECT_NE(field.currentEditor, nil) << "the field has the keyboard";
    type(field, @"ada@example.com");
    auto* choice =
        (NSPopUpButton*)find(window.contentView, NSPopUpButton.class, [](id) { return true; });
    EXPECT_EQ(utf8(choice.accessibilityLabel), "Medium");
    EXPECT_EQ(utf8(choice.titleOfSelectedItem), "Chat");
    [choice selectItemAtIndex:2];
    press(window, @"Sign");
  });
  const auto entry = awaited<std::optional<desktop::ConfirmationEntry>>(
      [&](auto done) { return alerts_.confirm(form, done); });
  ASSERT_TRUE(entry.has_value());
  EXPECT_EQ(entry->choice, "Document");
  EXPECT_EQ(entry->field, "ada@example.com");
}

TEST_F(MacAlertsTest, ScrollsALongText) {
  std::string body;
  for (int i = 0; i < 400; ++i) body += "Line " + std::to_string(i) + " of a long text.\n";
  bool dismissed = false;
  const auto shown = alerts_.show({.title = "Long", .body = body}, [&] { dismissed = true; });
  onAlert([&](NSWindow* window) {
    auto* text = (NSTextView*)find(window.contentView, NSTextView.class, [](id) { return true; });
    ASSERT_NE(text, nil);
    EXPECT_FALSE([text isEditable]);
    EXPECT_EQ(utf8(text.string), body);
    EXPECT_LT(NSHeight(window.frame), 700);
    press(window, @"OK");
  });
  EXPECT_TRUE(runUntil([&] { return dismissed; }));
}

TEST_F(MacAlertsTest, GoesWhenItIsWithdrawn) {
  int answers = 0;
  const auto answered = [&](desktop::Answer) { ++answers; };
  { const desktop::Ticket neverShown = alerts_.ask(question_, answered); }
  runFor(0.1);
  EXPECT_EQ(NSApp.modalWindow, nil);
  desktop::Ticket shown = alerts_.ask(question_, answered);
  bool withdrawn = false;
  onAlert([&](NSWindow*) {
    shown = {};
    withdrawn = true;
  });
  EXPECT_TRUE(runUntil([&] { return withdrawn && NSApp.modalWindow == nil; }));
  EXPECT_EQ(answers, 0);
}

TEST_F(MacAlertsTest, LetsWorkGoOnAndAnswersTheNewestFirst) {
  std::string order;
  desktop::Ticket inner, timer, worker;
  const desktop::Ticket outer = alerts_.ask(question_, [&](desktop::Answer) { order += "o"; });
  onAlert([&](NSWindow* below) {
    worker = loop_.runBlocking([] {}, [&] { order += "w"; });
    inner = alerts_.show({.title = "Inner", .body = ""}, [&] { order += "i"; });
    onAlert([&, below](NSWindow* above) {
      timer = loop_.after(50ms, [&, above, below] {
        order += "t";
        press(above, @"OK");
        timer = loop_.after(50ms, [below] { press(below, @"Sign"); });
      });
    });
  });
  EXPECT_TRUE(runUntil([&] { return order.size() == 4; }));
  EXPECT_EQ(order, "wtio");
}

TEST_F(MacAlertsTest, ClosesAnOpenMenuFirst) {
  QSTestMenu* menu = [[QSTestMenu alloc] initWithTitle:@"open"];
  NSNotificationCenter* center = NSNotificationCenter.defaultCenter;
  [center postNotificationName:NSMenuDidBeginTrackingNotification object:menu];
  bool dismissed = false;
  const desktop::Ticket shown =
      alerts_.show({.title = "Over a menu", .body = ""}, [&] { dismissed = true; });
  ASSERT_TRUE(runUntil([&] { return menu.cancellations > 0; }, 2));
  runFor(0.1);
  EXPECT_EQ(NSApp.modalWindow, nil);
  EXPECT_EQ(menu.cancellations, 1);
  [center postNotificationName:NSMenuDidEndTrackingNotification object:menu];
  onAlert([](NSWindow* window) { press(window, @"OK"); });
  EXPECT_TRUE(runUntil([&] { return dismissed; }));
}

TEST_F(MacAlertsTest, CountsAsCancelledWhenItCannotBeShown) {
  __block NSWindow* window = nil;
  const Replaced raising(NSAlert.class, @selector(runModal), ^NSInteger(NSAlert* alert) {
    window = alert.window;
    raise();
  });
  EXPECT_EQ(ask(), desktop::Answer::cancelled);
  EXPECT_FALSE(window.isVisible);
  EXPECT_EQ(log_.lines, std::vector<std::string>{"[sign] an alert could not be shown: deliberate"});
}

desktop::RunningApplication process(std::uint64_t identifier) {
  return {
      .instance = identifier, .name = {}, .bundleIdentifier = {}, .categories = {}, .document = {}};
}

TEST_F(MacDesktopTest, KeepsAppNapOffWhileAnActivityLasts) {
  id token = [[NSObject alloc] init];
  __block NSUInteger options = 0;
  __block int ended = 0;
  Class kind = object_getClass(NSProcessInfo.processInfo);
  const Replaced begin(kind, @selector(beginActivityWithOptions:reason:),
                       ^id(id, uint64_t given, NSString*) {
                         options = static_cast<NSUInteger>(given);
                         return token;
                       });
  const Replaced end(kind, @selector(endActivity:), ^(id, id activity) {
    ended += activity == token ? 1 : 100;
  });
  MacProgram program(loop_);
  {
    const desktop::Ticket activity = program.beginActivity("Signing a text");
    EXPECT_EQ(options, static_cast<NSUInteger>(NSActivityUserInitiatedAllowingIdleSystemSleep));
    EXPECT_EQ(ended, 0);
  }
  EXPECT_EQ(ended, 1);
}

TEST_F(MacDesktopTest, KnowsTerminalsByTheirIdentifiers) {
  const std::string terminal = "TerminalEmulator;";
  for (const char* identifier :
       {"com.apple.Terminal", "com.googlecode.iterm2", "net.kovidgoyal.kitty", "org.alacritty",
        "com.github.wez.wezterm", "com.mitchellh.ghostty", "dev.warp.Warp-Stable", "co.zeit.hyper"})
    EXPECT_EQ(MacApplications::categoriesOf(identifier), terminal);
  EXPECT_EQ(MacApplications::categoriesOf("com.apple.mail"), "");
  EXPECT_EQ(MacApplications::categoriesOf(std::nullopt), "");
}

TEST_F(MacDesktopTest, FindsApplications) {
  MacApplications applications(loop_);
  EXPECT_FALSE(applications.isActive(process(999999)));
  applications.activate(process(999999));
  EXPECT_EQ(applications.preferredBrowser().has_value(),
            std::filesystem::exists("/Applications/Google Chrome.app"));
  EXPECT_EQ(applications.defaultApplicationFor("https://a b/"), std::nullopt);
  EXPECT_TRUE(applications.defaultApplicationFor("https://a.example/").has_value());
}

TEST_F(MacDesktopTest, OpensAnAddressOrTellsWhyNot) {
  MacApplications applications(loop_);
  const desktop::InstalledApplication missing{.location = "/Applications/None of these.app",
                                              .bundleIdentifier = {}};
  for (const std::string& url : {std::string("https://a b/"), std::string("https://a.example/")}) {
    const auto failure = awaited<std::optional<Error>>(
        [&](auto done) { return applications.open(url, missing, done); });
    EXPECT_TRUE(failure.has_value()) << url;
  }
  EXPECT_NE(errorOf([&] { applications.open(std::string("https://a b/")); }), "");
  Class workspace = object_getClass(NSWorkspace.sharedWorkspace);
  const Replaced refusing(workspace, @selector(openURL:), ^BOOL(id, NSURL*) {
    return NO;
  });
  EXPECT_NE(errorOf([&] { applications.open(std::string("https://a.example/")); }), "");
  __block std::string opened;
  const Replaced opening(
      workspace, @selector(openURLs:withApplicationAtURL:configuration:completionHandler:),
      ^(id, NSArray<NSURL*>* urls, NSURL* place, id,
        void (^done)(NSRunningApplication*, NSError*)) {
        opened = utf8([urls.firstObject absoluteString]) + " in " + utf8(place.path);
        done(nil, nil);
      });
  const auto failure = awaited<std::optional<Error>>(
      [&](auto done) { return applications.open("https://a.example/#t=x", missing, done); });
  EXPECT_FALSE(failure.has_value());
  EXPECT_EQ(opened, "https://a.example/#t=x in " + missing.location);
}

/// Behind another application, as the agent starts; skipped where none comes to the front.
template <typename Base>
class BehindAnother : public Base {
 protected:
  void SetUp() override {
    NSRunningApplication* finder = running(@"com.apple.finder");
    [finder activateWithOptions:0];
    if (!runUntil([&] { return finder.isActive; }, 2))
      GTEST_SKIP() << "no application comes to the front";
    source_ = applications_.frontmost();
    ASSERT_TRUE(source_.has_value());
  }

  static NSRunningApplication* running(NSString* identifier) {
    return [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier].firstObject;
  }

  /// Whether this program could be brought to the front, which a Mac without a user may not allow.
  static bool comesToTheFront() {
    activateProgram();
    const auto isInFront = [] {
      return [NSWorkspace.sharedWorkspace.frontmostApplication
          isEqual:NSRunningApplication.currentApplication];
    };
    return runUntil(isInFront, 2);
  }

  [[nodiscard]] bool isSourceActive() const { return applications_.isActive(*source_); }

  MacApplications applications_{this->loop_};
  std::optional<desktop::RunningApplication> source_;
};

using MacActivationTest = BehindAnother<MacDesktopTest>;
using MacAlertActivationTest = BehindAnother<MacAlertsTest>;

TEST_F(MacActivationTest, GivesActivationBackWhenItsLastWindowGoes) {
  const auto first = MacWindows().make({.title = "First", .width = 200, .height = 100});
  const auto second = MacWindows().make({.title = "Second", .width = 200, .height = 100});
  first->bringToFront();
  second->bringToFront();
  if (!comesToTheFront()) GTEST_SKIP() << "this program may not come to the front";
  EXPECT_FALSE(isSourceActive());
  EXPECT_EQ(applications_.frontmost()->instance, source_->instance) << "the one behind its windows";
  [windowTitled(@"Second") performClose:nil];
  runFor(0.3);
  EXPECT_FALSE(isSourceActive()) << "there is still a window";
  [windowTitled(@"First") performClose:nil];
  EXPECT_TRUE(runUntil([&] { return isSourceActive(); }));
}

TEST_F(MacAlertActivationTest, KeepActivationForOneThatFollows) {
  bool cameToTheFront = false, cameBackBetween = false, dismissed = false;
  bool* const cameBack = &cameBackBetween;  // a block would copy the variable
  desktop::Ticket following;
  const desktop::Ticket shown = alerts_.ask(question_, [&](desktop::Answer) {
    following = alerts_.show({.title = "Follows", .body = ""}, [&] { dismissed = true; });
  });
  id observer = nil;
  onAlert([&](NSWindow* question) {
    cameToTheFront = !isSourceActive();
    observer = [NSWorkspace.sharedWorkspace.notificationCenter
        addObserverForName:NSWorkspaceDidActivateApplicationNotification
                    object:nil
                     queue:nil
                usingBlock:^(NSNotification* __unused activation) {
                  *cameBack = true;
                }];
    press(question, @"Sign");
    onAlert([&](NSWindow* above) {
      timers_.push_back(loop_.after(200ms, [&, above] {
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:observer];
        press(above, @"OK");
      }));
    });
  });
  ASSERT_TRUE(runUntil([&] { return dismissed; }));
  if (!cameToTheFront) GTEST_SKIP() << "this program may not come to the front";
  EXPECT_FALSE(cameBackBetween);
  EXPECT_TRUE(runUntil([&] { return isSourceActive(); }, 2));
}

TEST_F(MacActivationTest, TakesNoAgentOfTheSystemForTheSource) {
  NSRunningApplication* agent = running(@"com.apple.dock");
  if (agent == nil) GTEST_SKIP() << "no Dock is running";
  [NSWorkspace.sharedWorkspace.notificationCenter
      postNotificationName:NSWorkspaceDidActivateApplicationNotification
                    object:NSWorkspace.sharedWorkspace
                  userInfo:@{NSWorkspaceApplicationKey : agent}];
  if (!comesToTheFront()) GTEST_SKIP() << "this program may not come to the front";
  EXPECT_EQ(applications_.frontmost()->instance, source_->instance);
}

TEST_F(MacActivationTest, PressesNothingIntoAnotherApplication) {
  MacKeyEvents keys(loop_);
  bool isAboutToPress = false, isAnswered = false;
  const auto press = [&](std::optional<desktop::RunningApplication> target, auto done) {
    return keys.press(
        {desktop::Key::v, desktop::Modifiers::command}, std::move(target),
        [&] { isAboutToPress = true; }, done);
  };
  const auto deliveryTo = [&](std::optional<desktop::RunningApplication> target) {
    return awaited<desktop::Delivery>([&](auto done) { return press(target, done); });
  };
  EXPECT_EQ(deliveryTo(process(static_cast<std::uint64_t>(::getpid()))),
            desktop::Delivery::declined);
  EXPECT_EQ(deliveryTo(process(999999)), desktop::Delivery::targetClosed);
  {
    const desktop::Ticket dropped =
        press(std::nullopt, [&](desktop::Delivery) { isAnswered = true; });
  }
  runFor(0.5);
  EXPECT_FALSE(isAnswered);
  if (!comesToTheFront()) GTEST_SKIP() << "this program may not come to the front";
  EXPECT_FALSE(MacApplications(loop_).frontmost().has_value()) << "only its own windows are there";
  EXPECT_EQ(deliveryTo(std::nullopt), desktop::Delivery::declined);
  EXPECT_FALSE(isAboutToPress);
}

TEST(MacHotkeyTest, PostsEachPressAndSaysWhenTheKeyIsTaken) {
  static MacMainLoop loop;  // both outlive the event loop, as the handler is never removed
  static MacHotkey hotkey(loop);
  static int pressed = 0;
  const auto take = [] { hotkey.registerHotkey(desktop::signingHotkey, [] { ++pressed; }); };
  if (const std::string taken = errorOf(take); !taken.empty())
    GTEST_SKIP() << "another program has the hotkey: " << taken;
  EventRef event = nullptr;
  ASSERT_EQ(::CreateEvent(nullptr, kEventClassKeyboard, kEventHotKeyPressed, 0, 0, &event), noErr);
  for (int i = 0; i < 2; ++i) ::SendEventToEventTarget(event, ::GetApplicationEventTarget());
  ::ReleaseEvent(event);
  EXPECT_EQ(pressed, 0);
  EXPECT_TRUE(runUntil([] { return pressed == 2; }));
  EXPECT_THAT(errorOf(take), HasSubstr("another program"));
}

TEST_F(MacDesktopTest, StoresAndObservesSettings) {
  const std::string key = "QuillsealTest";
  NSUserDefaults* store = NSUserDefaults.standardUserDefaults;
  MacDefaults defaults({.loop = loop_, .log = log_}, {key});
  int changes = 0;
  {
    const desktop::Ticket observer = defaults.observe([&] { ++changes; });
    defaults.setString(key, "https://『Zoë』.example");
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(runUntil([&] { return changes > 0; }));
    EXPECT_EQ(defaults.string(key), "https://『Zoë』.example");
  }
  runFor(0.1);
  const int before = changes;
  defaults.setString(key, "YES");
  runFor(0.2);
  EXPECT_EQ(changes, before);
  EXPECT_TRUE(defaults.boolean(key));
  [store setObject:@[ @1 ] forKey:nsString(key)];
  EXPECT_EQ(defaults.string(key), std::nullopt);
  [store removeObjectForKey:nsString(key)];
  EXPECT_EQ(defaults.string(key), std::nullopt);
  EXPECT_FALSE(defaults.boolean(key));
  EXPECT_TRUE(log_.lines.empty());
}

TEST_F(MacDesktopTest, ScriptsGiveTextNothingOrWhatWentWrong) {
  MacScriptRunner scripts(loop_);
  using Result = Outcome<std::optional<std::string>>;
  const auto run = [&](const std::string& source) {
    return awaited<Result>([&](auto done) { return scripts.run(source, done); });
  };
  EXPECT_EQ(std::get<0>(run("return \"tab 『1』\"")), "tab 『1』");
  EXPECT_EQ(std::get<0>(run("return")), std::nullopt);
  const Error refused = std::get<Error>(run("error \"Not authorized\" number -1743"));
  EXPECT_EQ(refused.code(), -1743);
  EXPECT_THAT(refused.what(), HasSubstr("Not authorized"));
  __block bool onMainThread = false;
  __block std::string source;
  const Replaced raising(NSAppleScript.class, @selector(executeAndReturnError:),
                         ^id(NSAppleScript* script, NSDictionary* __autoreleasing*) {
                           onMainThread = NSThread.isMainThread;
                           source = utf8([script source]);
                           raise();
                         });
  EXPECT_STREQ(std::get<Error>(run("return 1")).what(), "deliberate");
  EXPECT_TRUE(onMainThread) << "the only one that NSAppleScript may run on";
  EXPECT_EQ(source, "with timeout of 5 seconds\nreturn 1\nend timeout");
}

TEST_F(MacDesktopTest, PresenceAnswersUnlessItIsWithdrawn) {
  MacPresence presence(loop_);
  using desktop::PresencePolicy;
  const desktop::PresenceCapability biometrics = presence.canEvaluate(PresencePolicy::biometrics);
  EXPECT_TRUE(biometrics.available || biometrics.reason.has_value());
  EXPECT_TRUE(!biometrics.available || presence.biometry() != desktop::Biometry::none);
  bool answered = false;
  {
    const desktop::Ticket withdrawn =
        presence.evaluate(PresencePolicy::biometrics, {.reason = "test Quillseal", .medium = {}},
                          [&](const Outcome<bool>&) { answered = true; });
  }
  runFor(0.5);
  EXPECT_FALSE(answered);
  // The system treats a prompt without a reason as a program error.
  const auto ask = [&] {
    const desktop::Ticket ticket = presence.evaluate(
        PresencePolicy::biometrics, {.reason = "", .medium = {}}, [](const Outcome<bool>&) {});
  };
  EXPECT_NE(errorOf(ask), "");
}

TEST_F(MacDesktopTest, PresenceTellsWhyItWasNotProven) {
  MacPresence presence(loop_);
  __block NSError* failure = nil;
  id answer = ^(id, LAPolicy, NSString*, void (^reply)(BOOL, NSError*)) {
    NSError* given = failure;
    dispatch_async(dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), ^{
      reply(NO, given);
    });
  };
  const Replaced answering(LAContext.class, @selector(evaluatePolicy:localizedReason:reply:),
                           answer);
  const auto outcome = [&] {
    return awaited<Outcome<bool>>([&](auto done) {
      return presence.evaluate(desktop::PresencePolicy::biometrics, {.reason = "r", .medium = {}},
                               done);
    });
  };
  EXPECT_FALSE(std::get<bool>(outcome()));
  failure = [NSError errorWithDomain:LAErrorDomain
                                code:-8
                            userInfo:@{NSLocalizedDescriptionKey : @"words"}];
  const Error failed = std::get<Error>(outcome());
  EXPECT_EQ(failed.code(), -8);
  EXPECT_STREQ(failed.what(), "words");
}

TEST(MacKeyStoreTest, TakesNoFailureButTwoForAMissingKey) {
  // Not found, and no entitlement.
  for (const std::int64_t missing : {-25300, -34018}) EXPECT_TRUE(MacKeyStore::meansNoKey(missing));
  // Success, no keychain, no interaction, not authenticated, cancelled, a wrong parameter.
  for (const std::int64_t other : {0, -25291, -25308, -25293, -128, -50})
    EXPECT_FALSE(MacKeyStore::meansNoKey(other)) << other;
}

TEST_F(MacDesktopTest, KeyStoreMakesFindsAndDeletesAKey) {
  MacKeyStore store(log_);
  if (!store.isAvailable()) GTEST_SKIP() << "this machine has no Secure Enclave";
  if (store.load(std::nullopt) != nullptr) GTEST_SKIP() << "there is a key of another program";
  std::unique_ptr<desktop::DeviceKey> made;
  try {
    made = store.create();
  } catch (const desktop::KeyStoreError& refusal) {
    EXPECT_EQ(refusal.reason(), desktop::KeyStoreError::Reason::missingEntitlement);
    GTEST_SKIP() << "this build has no keychain access group: " << refusal.what();
  }
  const auto point = made->publicKey();
  ASSERT_TRUE(point.has_value());
  EXPECT_EQ(point->size(), 65U);
  const auto found = store.load(desktop::Prompt{.reason = "test", .medium = {}});
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->publicKey(), point);
  store.remove();
  store.remove();
  EXPECT_EQ(store.load(std::nullopt), nullptr);
  EXPECT_TRUE(log_.lines.empty());
}

/// A server that answers by path, on its own thread.
class LocalServer {
 public:
  LocalServer() {
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address_;
    auto* const address = reinterpret_cast<sockaddr*>(&address_);
    EXPECT_EQ(::bind(listener_, address, size), 0);
    EXPECT_EQ(::getsockname(listener_, address, &size), 0);
    EXPECT_EQ(::listen(listener_, 8), 0);
    thread_ = std::thread([this] {
      pollfd waiting{.fd = listener_, .events = POLLIN, .revents = 0};
      while (!isEnding_)
        if (::poll(&waiting, 1, 50) > 0) answer(::accept(listener_, nullptr, nullptr));
    });
  }
  LocalServer(const LocalServer&) = delete;
  LocalServer& operator=(const LocalServer&) = delete;
  ~LocalServer() {
    isEnding_ = true;
    thread_.join();
    for (std::FILE* client : clients_) std::fclose(client);
    ::close(listener_);
  }

  [[nodiscard]] std::string url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(ntohs(address_.sin_port)) + path;
  }

  std::atomic<bool> isRedirected = false;

 private:
  void answer(int client) {
    std::FILE* const stream = clients_.emplace_back(::fdopen(client, "r"));
    char line[4096] = "", path[64] = "";
    std::size_t length = 0;
    static_cast<void>(std::fscanf(stream, "POST %63s", path));
    while (std::fgets(line, sizeof line, stream) != nullptr && std::strcmp(line, "\r\n") != 0)
      static_cast<void>(std::sscanf(line, "Content-Length: %zu", &length));
    std::string content(length, '\0'), start = "200 OK";
    if (std::fread(content.data(), 1, length, stream) != length) return;  // the client went away
    if (std::string_view(path) == "/silent") return;
    if (std::string_view(path) == "/unavailable") start = "503 Service Unavailable";
    if (std::string_view(path) == "/redirect") start = "302 Found\r\nLocation: /redirected";
    if (std::string_view(path) == "/redirected") isRedirected = true;
    if (std::sscanf(path, "/big/%zu", &length) == 1) content.assign(length, 'x');
    std::FILE* const reply = ::fdopen(::dup(client), "w");
    std::fprintf(reply, "HTTP/1.1 %s\r\nConnection: close\r\nContent-Length: %zu\r\n\r\n",
                 start.c_str(), content.size());
    std::fwrite(content.data(), 1, content.size(), reply);
    std::fclose(reply);
    ::shutdown(client, SHUT_RDWR);
  }

  const int listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address_{};
  std::atomic<bool> isEnding_ = false;
  std::vector<std::FILE*> clients_;
  std::thread thread_;
};

class MacHttpTransportTest : public MacDesktopTest {
 protected:
  using Answer = Outcome<desktop::HttpResponse>;

  Answer post(const std::string& url, const std::string& body = "{}",
              std::chrono::seconds timeout = 60s) {
    return awaited<Answer>([&](auto done) {
      return transport_.send(
          {.url = url, .headers = {{"X-Key", "k"}}, .body = body, .timeout = timeout}, done);
    });
  }

  std::int64_t codeOf(const Answer& answer) {
    const auto* error = std::get_if<Error>(&answer);
    if (error == nullptr) return 0;
    EXPECT_EQ(error->domain(), desktop::transport::errorDomain);
    return error->code();
  }

  LocalServer server_;
  MacHttpTransport transport_{loop_};
};

TEST_F(MacHttpTransportTest, GivesStatusAndBodyAsTheyComeAndFollowsNoRedirect) {
  const std::string body("{\"a\":\"『Zoë』\"}\0x", 18);
  const auto echoed = std::get<desktop::HttpResponse>(post(server_.url("/echo"), body));
  EXPECT_EQ(echoed.status, 200);
  EXPECT_EQ(echoed.body, body);
  EXPECT_EQ(std::get<desktop::HttpResponse>(post(server_.url("/unavailable"))).status, 503);
  const Answer answer = post(server_.url("/redirect"));
  const auto* response = std::get_if<desktop::HttpResponse>(&answer);
  EXPECT_TRUE(response == nullptr || response->status == 302);
  EXPECT_FALSE(server_.isRedirected);
}

TEST_F(MacHttpTransportTest, RefusesAnAnswerOfMoreThanEightMebibytes) {
  EXPECT_EQ(std::get<desktop::HttpResponse>(post(server_.url("/big/8388608"))).body.size(),
            8388608U);
  EXPECT_EQ(codeOf(post(server_.url("/big/8388609"))),
            desktop::transport::dataLengthExceedsMaximum);
}

TEST_F(MacHttpTransportTest, TellsWhyNothingWasSentOrAnswered) {
  EXPECT_EQ(codeOf(post("https://seal example/api")), desktop::transport::badUrl);
  EXPECT_EQ(codeOf(post("http://127.0.0.1:1/api")), desktop::transport::cannotConnectToHost);
  EXPECT_EQ(codeOf(post(server_.url("/silent"), "{}", 1s)), desktop::transport::timedOut);
}

TEST_F(MacHttpTransportTest, IsSilentOnceARequestOrAllOfItIsGone) {
  bool answered = false;
  const auto done = [&](const Answer&) { answered = true; };
  {
    const auto dropped =
        transport_.send({.url = server_.url("/echo"), .headers = {}, .body = "{}"}, done);
  }
  {
    const MacMainLoop loop;
    MacHttpTransport ended(loop);
    const desktop::Ticket open =
        ended.send({.url = server_.url("/silent"), .headers = {}, .body = "{}"}, done);
    runFor(0.1);
  }  // the session reports the end of its requests after all of this is destroyed
  runFor(0.5);
  EXPECT_FALSE(answered);
}

}  // namespace
}  // namespace quillseal::mac
