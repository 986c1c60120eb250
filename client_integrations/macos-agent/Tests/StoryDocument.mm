// The other application of the stories: a text editor that shows a file with all text selected and
// saves every change. QUILLSEAL_STORY_FILE names the file, since AppKit would open an argument
// itself. It ends with the program that started it.
#include <cstdlib>

#import <AppKit/AppKit.h>

@interface QSDocument : NSObject <NSApplicationDelegate, NSTextViewDelegate>
- (instancetype)initWithPath:(NSString*)path;
@end

@implementation QSDocument {
  NSString* _path;
  NSWindow* _window;
  NSTextView* _text;
}

- (instancetype)initWithPath:(NSString*)path {
  self = [super init];
  if (self != nil) _path = [path copy];
  return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)__unused notification {
  const NSRect frame = NSMakeRect(0, 0, 600, 300);
  _window = [[NSWindow alloc] initWithContentRect:frame
                                        styleMask:NSWindowStyleMaskTitled
                                          backing:NSBackingStoreBuffered
                                            defer:NO];
  _window.title = @"Letter";
  _text = [[NSTextView alloc] initWithFrame:frame];
  _text.richText = NO;
  _text.delegate = self;
  NSString* contents = [NSString stringWithContentsOfFile:_path
                                                 encoding:NSUTF8StringEncoding
                                                    error:nil];
  if (contents != nil) _text.string = contents;
  _window.contentView = _text;
  [_window makeFirstResponder:_text];
  [_text selectAll:nil];
  [_window center];
  [_window makeKeyAndOrderFront:nil];
  [NSApp activateIgnoringOtherApps:YES];
}

- (void)textDidChange:(NSNotification*)__unused notification {
  [_text.string writeToFile:_path atomically:YES encoding:NSUTF8StringEncoding error:nil];
}

@end

static NSMenu* editMenu(void) {
  NSMenu* edit = [[NSMenu alloc] initWithTitle:@"Edit"];
  [edit addItemWithTitle:@"Copy" action:@selector(copy:) keyEquivalent:@"c"];
  [edit addItemWithTitle:@"Paste" action:@selector(paste:) keyEquivalent:@"v"];
  [edit addItemWithTitle:@"Select All" action:@selector(selectAll:) keyEquivalent:@"a"];
  NSMenu* menu = [[NSMenu alloc] initWithTitle:@"Letter"];
  [menu addItemWithTitle:@"Letter" action:nil keyEquivalent:@""];
  [menu addItemWithTitle:@"Edit" action:nil keyEquivalent:@""].submenu = edit;
  return menu;
}

int main() {
  @autoreleasepool {
    NSString* path = NSProcessInfo.processInfo.environment[@"QUILLSEAL_STORY_FILE"];
    if (path == nil) return 2;
    NSApplication* application = NSApplication.sharedApplication;
    [application setActivationPolicy:NSApplicationActivationPolicyRegular];
    application.mainMenu = editMenu();
    // The application does not own its delegate.
    NS_VALID_UNTIL_END_OF_SCOPE QSDocument* document = [[QSDocument alloc] initWithPath:path];
    application.delegate = document;
    // The other end of the pipe closes however its program ends.
    dispatch_async(dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), ^{
      [NSFileHandle.fileHandleWithStandardInput readDataToEndOfFile];
      std::_Exit(0);
    });
    [application run];
  }
}
