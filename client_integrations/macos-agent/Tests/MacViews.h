#pragma once

#include <functional>

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

// Helpers for tests of the macOS shell: find and use controls in its windows.

namespace quillseal::mac {

/// Replaces a method of a class by a block while this object lives.
class Replaced {
 public:
  Replaced(Class kind, SEL selector, id block)
      : method_(::class_getInstanceMethod(kind, selector)),
        original_(::method_setImplementation(method_, ::imp_implementationWithBlock(block))) {}
  Replaced(const Replaced&) = delete;
  Replaced& operator=(const Replaced&) = delete;
  ~Replaced() { ::method_setImplementation(method_, original_); }

 private:
  Method method_;
  IMP original_;
};

/// Returns the first view below `root` of class `kind` that `matches`.
inline NSView* find(NSView* root, Class kind, const std::function<bool(id)>& matches) {
  if ([root isKindOfClass:kind] && matches(root)) return root;
  for (NSView* view in root.subviews) {
    if (NSView* found = find(view, kind, matches)) return found;
  }
  return nil;
}

inline NSTextField* fieldLabelled(NSWindow* window, NSString* label) {
  return (NSTextField*)find(window.contentView, NSTextField.class, [label](NSTextField* field) {
    return [field isEditable] && [field.accessibilityLabel isEqual:label];
  });
}

inline NSTextField* textShowing(NSWindow* window, NSString* text) {
  return (NSTextField*)find(window.contentView, NSTextField.class, [text](NSTextField* field) {
    return ![field isEditable] && [field.stringValue isEqual:text];
  });
}

inline NSButton* buttonTitled(NSWindow* window, NSString* title) {
  return (NSButton*)find(window.contentView, NSButton.class,
                         [title](NSButton* button) { return [button.title isEqual:title]; });
}

inline NSWindow* windowTitled(NSString* title) {
  for (NSWindow* window in NSApp.windows) {
    if ([window.title isEqual:title]) return window;
  }
  return nil;
}

inline NSEvent* keyEvent(NSEventType kind, NSWindow* window, NSString* key,
                         NSEventModifierFlags modifiers = 0) {
  return [NSEvent keyEventWithType:kind
                          location:NSZeroPoint
                     modifierFlags:modifiers
                         timestamp:0
                      windowNumber:window.windowNumber
                           context:nil
                        characters:key
       charactersIgnoringModifiers:key
                         isARepeat:NO
                           keyCode:0];
}

inline void type(NSTextField* field, NSString* text) {
  [(NSTextView*)field.currentEditor insertText:text replacementRange:NSMakeRange(NSNotFound, 0)];
}

/// A modal loop checks after each event whether it was ended; a timer is not an event.
inline void wakeModalLoop() {
  NSEvent* event = [NSEvent otherEventWithType:NSEventTypeApplicationDefined
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                       subtype:0
                                         data1:0
                                         data2:0];
  if (event != nil) [NSApp postEvent:event atStart:NO];
}

}  // namespace quillseal::mac
