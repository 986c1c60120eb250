// Plays stories with the whole application: its own main(), a development server, another
// application with the text, and a user. The user is a thread of this process that looks at
// windows, presses buttons and keys, and chooses from menus.
//
// The settings are those of this program's own bundle identifier. The clipboard's content is
// replaced. The environment names the two other programs:
//   QUILLSEAL_DEV_SERVER      the development server
//   QUILLSEAL_STORY_DOCUMENT  the application with the text
// What a Mac lacks or does not allow is skipped with a message. Without the right to press keys
// (Accessibility) or without a Secure Enclave nothing can be signed. Without a keychain access
// group no device key can be made; the stories then sign demonstrations, with a simulated finger.
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#import <Carbon/Carbon.h>
#import <CryptoTokenKit/CryptoTokenKit.h>
#import <LocalAuthentication/LocalAuthentication.h>

#include "MacDesktop/MacText.h"
#include "MacViews.h"
#include "Quillseal/CryptoManager.h"

/// Runs work on the main thread.
@interface QSErrand : NSObject
@property(nonatomic, copy) void (^work)(void);
- (void)run;
@end

@implementation QSErrand

- (void)run {
  _work();
}

@end

/// The bundle and script names of Safari.
@interface QSBrowser : NSObject
@property(nonatomic, readonly) NSString* bundleIdentifier;
@property(nonatomic, copy) NSString* stringValue;
@end

@implementation QSBrowser

- (NSString*)bundleIdentifier {
  return @"com.apple.Safari";
}

@end

namespace quillseal::mac {
namespace {

constexpr const char* letter =
    "Dear Ms Whitcombe, thank you for the visit on 14 March. The second draft suits us well. Zoë";
constexpr const char* scam =
    "Your account has been suspended. Verify your account within 24 hours and send me the "
    "verification code you just got, or it will be closed.";

// The user ----------------------------------------------------------------------------------------

/// Runs `work` on the main thread, also while an alert is open there, and returns its result.
template <typename Work>
auto onMain(const Work& work) {
  using Result = std::invoke_result_t<Work>;
  const Work* const given = &work;  // a block would copy it
  QSErrand* errand = [[QSErrand alloc] init];
  const auto run = [errand] {
    [errand performSelectorOnMainThread:@selector(run)
                             withObject:nil
                          waitUntilDone:YES
                                  modes:@[
                                    NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                    NSEventTrackingRunLoopMode
                                  ]];
  };
  if constexpr (std::is_void_v<Result>) {
    errand.work = ^{
      (*given)();
    };
    run();
  } else {
    std::optional<Result> result;
    std::optional<Result>* const out = &result;
    errand.work = ^{
      out->emplace((*given)());
    };
    run();
    return *std::move(result);
  }
}

/// Returns whether `condition`, evaluated on the main thread, becomes true within `seconds`.
bool await(const std::function<bool()>& condition, double seconds = 20) {
  NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:seconds];
  while (limit.timeIntervalSinceNow > 0) {
    @autoreleasepool {
      if (onMain(condition)) return true;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return false;
}

NSMenu* statusMenu = nil;  ///< main thread; noticed while it was filled

NSMenuItem* itemStarting(NSString* start) {
  for (NSMenuItem* item in statusMenu.itemArray) {
    if ([item.title hasPrefix:start]) return item;
  }
  return nil;
}

void choose(NSString* start) {
  onMain([&] {
    [statusMenu performActionForItemAtIndex:[statusMenu indexOfItem:itemStarting(start)]];
  });
}

void pressHotkey() {
  onMain([] {
    EventRef event = nullptr;
    ::CreateEvent(nullptr, kEventClassKeyboard, kEventHotKeyPressed, 0, 0, &event);
    ::SendEventToEventTarget(event, ::GetApplicationEventTarget());
    ::ReleaseEvent(event);
  });
}

/// Presses a shortcut of the main menu; false when the menu has no such shortcut.
bool pressShortcut(NSString* key) {
  return onMain([&] {
    return static_cast<bool>(
        [NSApp.mainMenu performKeyEquivalent:keyEvent(NSEventTypeKeyDown, NSApp.keyWindow, key,
                                                      NSEventModifierFlagCommand)]);
  });
}

NSWindow* settings() { return windowTitled(@"Quill Seal Server Settings"); }

void closeSettings() {
  onMain([] { [settings() performClose:nil]; });
}

bool awaitSettings(bool isOpen) {
  return await([isOpen] { return static_cast<bool>(settings().isVisible) == isOpen; });
}

bool isShown(NSString* title) {
  return NSApp.modalWindow != nil && textShowing(NSApp.modalWindow, title) != nil;
}

bool awaitAlert(NSString* title) {
  return await([title] { return isShown(title); });
}

/// Returns all texts of the open alert.
std::string alertText() {
  return onMain([] {
    std::string text;
    static_cast<void>(
        find(NSApp.modalWindow.contentView, NSTextField.class, [&](NSTextField* field) {
          text += utf8(field.stringValue) + "\n";
          return false;
        }));
    return text;
  });
}

/// Presses a button of the open alert and waits until it has closed.
bool press(NSString* title) {
  NSWindow* alert = onMain([] { return NSApp.modalWindow; });
  onMain([&] {
    [buttonTitled(alert, title) performClick:nil];
    wakeModalLoop();
  });
  return await([&] { return NSApp.modalWindow != alert; });
}

template <typename Value>
void set(NSString* key, Value value) {
  onMain([&] { [NSUserDefaults.standardUserDefaults setObject:value forKey:key]; });
}

std::optional<std::string> clipboard(NSPasteboardType type) {
  return onMain([&] { return optionalUtf8([NSPasteboard.generalPasteboard stringForType:type]); });
}

// Other programs ----------------------------------------------------------------------------------

NSString* environment(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing changes it
  return value == nullptr ? @"" : @(value);
}

NSTask* taskOf(NSString* program, NSArray<NSString*>* arguments) {
  NSTask* task = [[NSTask alloc] init];
  task.launchPath = program;
  task.arguments = arguments;
  return task;
}

/// Returns the server's answer to a POST of `body`, or to a GET; nothing when it refuses.
std::optional<std::string> answerOf(NSString* url, NSString* body) {
  NSMutableArray* arguments = [@[ @"-sf", url ] mutableCopy];
  if (body != nil)
    [arguments addObjectsFromArray:@[ @"-H", @"Content-Type: application/json", @"-d", body ]];
  NSTask* curl = taskOf(@"/usr/bin/curl", arguments);
  NSPipe* output = [NSPipe pipe];
  curl.standardOutput = output;
  [curl launch];
  NSData* data = [output.fileHandleForReading readDataToEndOfFile];
  [curl waitUntilExit];
  if (curl.terminationStatus != 0) return std::nullopt;
  return utf8([[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding]);
}

/// A program that runs as long as this one.
class Server {
 public:
  void start() {
    NSString* folder =
        [NSTemporaryDirectory() stringByAppendingPathComponent:NSUUID.UUID.UUIDString];
    [NSFileManager.defaultManager createDirectoryAtPath:folder
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:nil];
    // The shell ends the server and removes its records however this program ends. Only the server
    // writes into the pipe, so that reading ends if it did not start.
    NSString* commands = @"\"$1\" --port 0 --database \"$0/registry.sqlite\" & "
                         @"exec >/dev/null; cat; kill $!; wait; rm -r \"$0\"";
    task_ = taskOf(@"/bin/sh", @[ @"-c", commands, folder, environment("QUILLSEAL_DEV_SERVER") ]);
    task_.standardInput = [NSPipe pipe];
    NSPipe* output = [NSPipe pipe];
    task_.standardOutput = output;
    [task_ launch];
    NSString* line = [[NSString alloc] initWithData:output.fileHandleForReading.availableData
                                           encoding:NSUTF8StringEncoding];
    const NSRange address = [line rangeOfString:@"http://"];
    if (address.location == NSNotFound) return;
    url_ = [[line substringFromIndex:address.location]
        stringByTrimmingCharactersInSet:NSCharacterSet.whitespaceAndNewlineCharacterSet];
  }

  [[nodiscard]] NSString* url() const { return url_; }

 private:
  NSTask* task_ = nil;
  NSString* url_ = nil;
};

Server& server() {
  static Server only;
  return only;
}

/// A text in another application, completely selected while this object lives.
class Document {
 public:
  explicit Document(const std::string& text)
      : path_([NSTemporaryDirectory() stringByAppendingPathComponent:NSUUID.UUID.UUIDString]),
        task_(taskOf(environment("QUILLSEAL_STORY_DOCUMENT"), @[])) {
    [nsString(text) writeToFile:path_ atomically:YES encoding:NSUTF8StringEncoding error:nil];
    NSMutableDictionary* own = [NSProcessInfo.processInfo.environment mutableCopy];
    own[@"QUILLSEAL_STORY_FILE"] = path_;
    task_.environment = own;
    task_.standardInput = life_;
    [task_ launch];
  }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document() {
    [life_.fileHandleForWriting closeFile];
    [task_ waitUntilExit];
    [NSFileManager.defaultManager removeItemAtPath:path_ error:nil];
  }

  [[nodiscard]] bool comesToTheFront() const {
    return await([this] {
      return NSWorkspace.sharedWorkspace.frontmostApplication.processIdentifier ==
             task_.processIdentifier;
    });
  }

  [[nodiscard]] std::string text() const {
    return utf8([NSString stringWithContentsOfFile:path_ encoding:NSUTF8StringEncoding error:nil]);
  }

  /// Returns whether the text soon becomes a signed block that contains `part`.
  [[nodiscard]] bool becomesSigned(const std::string& part) const {
    return await([&] {
      return text().find("Check this signature → ") != std::string::npos &&
             text().find(part) != std::string::npos;
    });
  }

 private:
  NSString* path_;
  NSTask* task_;
  NSPipe* life_ = [NSPipe pipe];  // the document ends with it
};

// The stories, in their order ---------------------------------------------------------------------

class Story : public testing::Test {
 protected:
  void TearDown() override {
    set(@"ConfirmBeforeSigning", @NO);
    set(@"ServerURL", server().url());
  }

  /// Opens an application with `text` for a new run.
  void open(const std::string& text) {
    if (!::AXIsProcessTrusted()) {
      GTEST_SKIP() << "this program may not press keys: System Settings → Privacy & Security → "
                      "Accessibility";
    }
    document_.emplace(text);
    if (!document_->comesToTheFront()) GTEST_SKIP() << "no application comes to the front here";
    onMain([] { [NSPasteboard.generalPasteboard clearContents]; });
  }

  /// Opens `text` and presses the hotkey.
  void openAndSign(const std::string& text) {
    open(text);
    if (!IsSkipped()) pressHotkey();
  }

  /// Waits for an alert that begins with `title` and says `words`, presses one of its buttons, and
  /// expects the text as it was.
  void expectRefusal(NSString* title, const std::string& words, const std::string& text,
                     NSString* button = @"OK") const {
    ASSERT_TRUE(awaitAlert(title));
    EXPECT_NE(alertText().find(words), std::string::npos) << alertText();
    EXPECT_TRUE(press(button));
    expectNothingSigned(text);
  }

  /// The text is as it was, and no block is on the clipboard.
  void expectNothingSigned(const std::string& text) const {
    EXPECT_EQ(document_->text(), text);
    EXPECT_EQ(clipboard(NSPasteboardTypeString).value_or("").find("QUILLSEAL"), std::string::npos);
    EXPECT_EQ(clipboard(NSPasteboardTypeHTML).value_or("").find("QUILLSEAL"), std::string::npos);
  }

  /// Returns the link at the end of the signed text.
  [[nodiscard]] NSString* link() const {
    const std::string text = document_->text();
    return nsString(text.substr(text.rfind("http://")));
  }

  std::optional<Document> document_;

 private:
  // A Mac without a Secure Enclave signs nothing; this lets it make signatures that need none.
  Replaced enclave_ {
    TKTokenWatcher.class, @selector(tokenIDs), ^NSArray*(id) { return @[ @"com.apple.setoken" ]; }
  };
};

TEST_F(Story, StartsInTheMenuBarAlone) {
  ASSERT_TRUE(await([] { return itemStarting(@"Sign Selected Text") != nil; }));
  EXPECT_EQ(utf8(onMain([] { return itemStarting(@"Server: ").title; })),
            "Server: " + utf8(server().url()));
  EXPECT_EQ(onMain([] { return settings(); }), nil);
  EXPECT_EQ(onMain([] { return NSApp.modalWindow; }), nil);
}

TEST_F(Story, OpensSettingsFromTheMenuAndAnew) {
  choose(@"Configure Server");
  ASSERT_TRUE(awaitSettings(true));
  closeSettings();
  ASSERT_TRUE(awaitSettings(false));
  // As when the user opens the running application again.
  onMain([] { [NSApp.delegate applicationShouldHandleReopen:NSApp hasVisibleWindows:NO]; });
  ASSERT_TRUE(awaitSettings(true));
  closeSettings();
}

TEST_F(Story, OpensAndClosesSettingsByKey) {
  EXPECT_TRUE(pressShortcut(@","));
  ASSERT_TRUE(awaitSettings(true));
  if (!await([] { return static_cast<bool>(NSApp.isActive); }, 3)) {
    closeSettings();
    GTEST_SKIP() << "this program may not come to the front";
  }
  onMain([] { [settings() makeKeyWindow]; });
  EXPECT_TRUE(pressShortcut(@"w"));
  EXPECT_TRUE(awaitSettings(false));
}

/// Stands for the browser, which is not started: the test acts on the page directly.
class Browser {
 public:
  explicit Browser(BOOL canBeOpened = YES)
      : withApplication_(object_getClass(NSWorkspace.sharedWorkspace),
                         @selector(openURLs:withApplicationAtURL:configuration:completionHandler:),
                         ^(id, NSArray<NSURL*>* urls, NSURL*, id,
                           void (^done)(NSRunningApplication*, NSError*)) {
                           opened = canBeOpened ? [urls.firstObject absoluteString] : nil;
                           done(nil, canBeOpened ? nil : failure());
                         }),
        alone_(object_getClass(NSWorkspace.sharedWorkspace), @selector(openURL:),
               ^BOOL(id, NSURL* url) {
                 opened = canBeOpened ? url.absoluteString : nil;
                 return canBeOpened;
               }) {
    opened = nil;
  }

  [[nodiscard]] bool awaitPage() const {
    return await([] { return opened != nil; });
  }

  /// Performs the page's button `act` ("sign", "decline").
  [[nodiscard]] bool actOnPage(NSString* act, const std::string& text) const {
    NSString* page = [opened componentsSeparatedByString:@"#"].firstObject;
    NSString* handoff = [page componentsSeparatedByString:@"?h="].lastObject;
    const std::string digest = CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
    NSString* body = [NSString stringWithFormat:@"{\"handoff_id\":\"%@\",\"text_digest\":\"%s\"}",
                                                handoff, digest.c_str()];
    return answerOf(page, nil).has_value() &&
           answerOf([server().url() stringByAppendingFormat:@"/handoff/%@", act], body).has_value();
  }

 private:
  static NSError* failure() {
    return [NSError errorWithDomain:NSCocoaErrorDomain
                               code:NSFileNoSuchFileError
                           userInfo:@{NSLocalizedDescriptionKey : @"no such browser"}];
  }

  static inline NSString* opened = nil;
  Replaced withApplication_;
  Replaced alone_;
};

// Must run before there is a device key, which would sign.
TEST_F(Story, SignsInTheBrowser) {
  const Browser browser;
  openAndSign(letter);
  if (IsSkipped()) return;
  ASSERT_TRUE(browser.awaitPage());
  expectNothingSigned(letter);
  ASSERT_TRUE(browser.actOnPage(@"sign", letter));
  ASSERT_TRUE(document_->becomesSigned(letter)) << alertText();
  EXPECT_TRUE(answerOf(link(), nil).has_value());
}

TEST_F(Story, SignsNothingThatIsDeclinedInTheBrowser) {
  const Browser browser;
  openAndSign(letter);
  if (IsSkipped()) return;
  ASSERT_TRUE(browser.awaitPage());
  ASSERT_TRUE(browser.actOnPage(@"decline", letter));
  expectRefusal(@"Signing Request Expired", "", letter);
}

TEST_F(Story, TellsThatNoBrowserOpens) {
  const Browser browser(NO);
  openAndSign(letter);
  if (!IsSkipped()) expectRefusal(@"Signing Error", "No browser could be opened.", letter);
}

[[noreturn]] void raise() {
  @throw [NSException exceptionWithName:@"TestException" reason:@"deliberate" userInfo:nil];
}

// The text is in the browser that signs it, so the browser's scripts decide where it is pasted.
TEST_F(Story, ReturnsToTheTabOfTheTextOrLeavesThePastingToTheUser) {
  const struct {
    const char* what;
    NSString* answer;   // of each script
    NSInteger failure;  // 0: none
    bool raises;
  } cases[] = {
      {"the tab is back", @"true", 0, false},
      {"nothing is answered", nil, 0, false},
      {"another thing is answered", @"missing value", 0, false},
      {"automation is refused", nil, -1743, false},
      {"the browser hangs", nil, -1712, false},
      {"the system raises", nil, 0, true},
  };
  open(letter);
  if (IsSkipped()) return;
  QSBrowser* safari = [[QSBrowser alloc] init];
  const Replaced bundle(object_getClass(NSBundle.class), @selector(bundleWithURL:),
                        ^id(id, NSURL* place) {
                          NSString* path = place.path;
                          if (path == nil || [path hasSuffix:@".app"]) return safari;
                          return [NSBundle bundleWithPath:path];
                        });
  Class running =
      onMain([] { return object_getClass(NSWorkspace.sharedWorkspace.frontmostApplication); });
  const Replaced source(running, @selector(bundleIdentifier), ^NSString*(id) {
    return safari.bundleIdentifier;
  });
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    document_.reset();
    document_.emplace(letter);
    ASSERT_TRUE(document_->comesToTheFront());
    safari.stringValue = c.answer;
    const NSInteger failure = c.failure;
    const bool raises = c.raises;
    const Replaced scripts(NSAppleScript.class, @selector(executeAndReturnError:),
                           ^id(id, NSDictionary* __autoreleasing* error) {
                             if (raises) raise();
                             if (failure != 0) *error = @{NSAppleScriptErrorNumber : @(failure)};
                             return failure == 0 ? safari : nil;
                           });
    const Browser browser;
    pressHotkey();
    ASSERT_TRUE(browser.awaitPage());
    ASSERT_TRUE(browser.actOnPage(@"sign", letter));
    if ([c.answer isEqual:@"true"]) {
      EXPECT_TRUE(document_->becomesSigned(letter)) << alertText();
      continue;
    }
    ASSERT_TRUE(awaitAlert(@"Signed — Paste It Into Your Message"));
    EXPECT_TRUE(press(@"OK"));
    EXPECT_EQ(document_->text(), letter);
    EXPECT_NE(clipboard(NSPasteboardTypeString).value_or("").find("QUILLSEAL"), std::string::npos);
  }
}

bool hasDeviceKey = false;

TEST_F(Story, EnrolsThisMac) {
  choose(@"Configure Server");
  ASSERT_TRUE(await([] { return buttonTitled(settings(), @"Enrol This Mac") != nil; }));
  onMain([] { [buttonTitled(settings(), @"Enrol This Mac") performClick:nil]; });
  ASSERT_TRUE(await([] { return NSApp.modalWindow != nil; }));
  const std::string told = alertText();
  EXPECT_TRUE(press(@"OK"));
  hasDeviceKey = told.find("✅ This Mac Is Enrolled") != std::string::npos;
  if (!hasDeviceKey) {
    EXPECT_NE(told.find("Enrolment Failed"), std::string::npos) << told;
    EXPECT_TRUE(await([] { return buttonTitled(settings(), @"Enrol This Mac") != nil; }));
    closeSettings();
    GTEST_SKIP() << "no device key can be made here: " << told;
  }
  EXPECT_TRUE(await([] { return buttonTitled(settings(), @"Re-enrol This Mac") != nil; }));
  closeSettings();
}

/// Signs with the device key or, if there is none, as a demonstration.
class SigningHere : public Story {
 protected:
  void SetUp() override { set(@"DemoSigning", hasDeviceKey ? @NO : @YES); }
  void TearDown() override {
    set(@"DemoSigning", @NO);
    Story::TearDown();
  }

  static inline NSError* refusal = nil;  ///< of the Touch ID prompt

 private:
  Replaced usable_ {
    LAContext.class, @selector(canEvaluatePolicy:error:),
        ^BOOL(id, LAPolicy, NSError* __autoreleasing*) {
          return YES;
        }
  };
  Replaced finger_ {
    LAContext.class, @selector(evaluatePolicy:localizedReason:reply:),
        ^(id, LAPolicy, NSString*, void (^reply)(BOOL, NSError*)) {
          reply(refusal == nil, refusal);
        }
  };
  Replaced kind_ {
    LAContext.class, @selector(biometryType), ^NSInteger(id) {
      return LABiometryTypeTouchID;
    }
  };
};

TEST_F(SigningHere, PastesTheSignedText) {
  openAndSign(letter);
  if (IsSkipped()) return;
  ASSERT_TRUE(document_->becomesSigned(letter)) << alertText();
  EXPECT_EQ(clipboard(NSPasteboardTypeString), document_->text());
  EXPECT_NE(clipboard(NSPasteboardTypeHTML).value_or("").find("QUILLSEAL"), std::string::npos);
  EXPECT_TRUE(answerOf(link(), nil).has_value());
}

TEST_F(SigningHere, AsksWhereToAndSignsThat) {
  set(@"ConfirmBeforeSigning", @YES);
  openAndSign(letter);
  if (IsSkipped()) return;
  ASSERT_TRUE(awaitAlert(@"Sign this content?"));
  onMain([] { type(fieldLabelled(NSApp.modalWindow, @"Recipient"), @"ada@example.com"); });
  EXPECT_TRUE(press(@"Sign with Touch ID"));
  EXPECT_TRUE(document_->becomesSigned("ada@example.com"));
}

TEST_F(SigningHere, SignsNothingThatIsNotConfirmed) {
  set(@"ConfirmBeforeSigning", @YES);
  openAndSign(letter);
  if (IsSkipped()) return;
  expectRefusal(@"Sign this content?", "", letter, @"Cancel");
  // The run ends where the next one can begin.
  pressHotkey();
  expectRefusal(@"Sign this content?", "", letter, @"Cancel");
}

TEST_F(SigningHere, RefusesWhatNobodyShouldSign) {
  openAndSign(scam);
  if (!IsSkipped()) expectRefusal(@"Not signed — this looks like a scam", "", scam);
}

TEST_F(SigningHere, TellsWhenThereIsNoText) {
  openAndSign("");
  if (!IsSkipped()) expectRefusal(@"No Text Found", "", "");
}

// Makes each call fail once in a run: the alert has the system's message, nothing is signed, and
// the next run works.
TEST_F(SigningHere, TellsTheSystemsWordsAndGoesOn) {
  open(letter);
  if (IsSkipped()) return;
  set(@"DemoSigning", @YES);
  Class pasteboard = object_getClass(NSPasteboard.generalPasteboard);
  Class workspace = object_getClass(NSWorkspace.sharedWorkspace);
  // Answers nil or NO; may raise before that, once, as windows that come up look at it, too.
  const auto failing = [](bool raises) {
    __block bool isToRaise = raises;
    return ^id(id, id) {
      if (std::exchange(isToRaise, false)) raise();
      return nil;
    };
  };
  const struct {
    const char* what;
    Class kind;
    SEL selector;
    bool raises;
    NSString* title;
    std::string words;
  } cases[] = {
      {"the pasteboard raises", pasteboard, @selector(stringForType:), true, @"Signing Error",
       "deliberate"},
      {"the pasteboard gives nothing", pasteboard, @selector(stringForType:), false,
       @"No Text Found", "Please type or highlight"},
      {"the pasteboard takes nothing", pasteboard, @selector(writeObjects:), false,
       @"Signed — Not on Your Clipboard", "The signed text could not be put on the clipboard."},
      {"the system does not say what is in front", workspace, @selector(frontmostApplication), true,
       @"Signing Error", "deliberate"},
      {"the finger is locked out", nil, nullptr, false, @"Signing Error", "Biometry is locked."},
      {"the server is not there", nil, nullptr, false, @"Signing Error", "connect"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    std::unique_ptr<Replaced> fault;
    onMain([&] {
      if (c.kind != nil) fault = std::make_unique<Replaced>(c.kind, c.selector, failing(c.raises));
    });
    if (c.words == "Biometry is locked.")
      refusal = [NSError errorWithDomain:LAErrorDomain
                                    code:-8  // locked out
                                userInfo:@{NSLocalizedDescriptionKey : @"Biometry is locked."}];
    if (c.words == "connect") set(@"ServerURL", @"http://127.0.0.1:1");
    pressHotkey();
    ASSERT_TRUE(await([] { return NSApp.modalWindow != nil; }));
    onMain([&] { fault.reset(); });
    refusal = nil;
    set(@"ServerURL", server().url());
    const bool isSignedAlready = [c.title hasPrefix:@"Signed"] != NO;
    expectRefusal(c.title, c.words, letter, isSignedAlready ? @"Close" : @"OK");
    EXPECT_TRUE(document_->comesToTheFront()) << "given back";
  }
  pressHotkey();
  EXPECT_TRUE(document_->becomesSigned(letter)) << alertText();
}

std::atomic<bool> hasOpenRun = false;

// Runs last: the program is quit while this alert is open, if there can be one, and cancels the
// run.
TEST_F(SigningHere, LeavesAnAlertOpen) {
  openAndSign("Hi");
  if (IsSkipped()) return;
  ASSERT_TRUE(awaitAlert(@"Not signed — too short"));
  hasOpenRun = true;
  static const Replaced end(object_getClass(NSProcessInfo.processInfo), @selector(endActivity:),
                            ^(id, id) {
                              hasOpenRun = false;
                            });
}

// The program -------------------------------------------------------------------------------------

std::atomic<bool> isTold = false;
std::atomic<int> status = 1;

/// Runs the stories and quits, as a user does.
void tell() {
  @autoreleasepool {
    int count = 1;
    char name[] = "quillseal_mac_story";
    char* arguments[] = {name, nullptr};
    testing::InitGoogleTest(&count, arguments);
    status = RUN_ALL_TESTS();
    isTold = true;
    choose(@"Quit");
  }
  std::this_thread::sleep_for(std::chrono::seconds(20));
  std::fprintf(stderr, "the application did not quit\n");
  std::_Exit(1);
}

}  // namespace
}  // namespace quillseal::mac

/// Starts the stories beside the unmodified application.
@interface QSStory : NSObject
@end

@implementation QSStory

+ (void)load {
  @autoreleasepool {
    const std::pair<SEL, NSNotificationName> notifications[] = {
        {@selector(willLaunch:), NSApplicationWillFinishLaunchingNotification},
        {@selector(didLaunch:), NSApplicationDidFinishLaunchingNotification},
        {@selector(menuDidAddItem:), NSMenuDidAddItemNotification}};
    for (const auto& [selector, name] : notifications)
      [NSNotificationCenter.defaultCenter addObserver:self selector:selector name:name object:nil];
  }
  // The application exits with status 0 whatever the stories' results.
  std::atexit([] {
    if (!quillseal::mac::isTold) std::fprintf(stderr, "the application ended early\n");
    if (quillseal::mac::hasOpenRun) std::fprintf(stderr, "a run was not called off\n");
    const bool isWell = quillseal::mac::isTold && !quillseal::mac::hasOpenRun;
    if (!isWell || quillseal::mac::status != 0) std::_Exit(1);
  });
}

+ (void)willLaunch:(NSNotification*)__unused notification {
  quillseal::mac::server().start();
  NSUserDefaults* store = NSUserDefaults.standardUserDefaults;
  NSString* domain = NSBundle.mainBundle.bundleIdentifier;
  if (domain != nil) [store removePersistentDomainForName:domain];
  [store setObject:quillseal::mac::server().url() forKey:@"ServerURL"];
  [store setObject:@"handoff" forKey:@"SigningMode"];
}

+ (void)didLaunch:(NSNotification*)__unused notification {
  std::thread(quillseal::mac::tell).detach();
}

+ (void)menuDidAddItem:(NSNotification*)notification {
  NSMenu* menu = notification.object;
  if ([[menu itemAtIndex:0].title hasPrefix:@"Sign Selected Text"])
    quillseal::mac::statusMenu = menu;
}

@end
