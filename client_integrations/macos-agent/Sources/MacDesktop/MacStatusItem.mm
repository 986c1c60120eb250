#import "MacDesktop/MacStatusItem.h"

#include <functional>
#include <vector>

#import <AppKit/AppKit.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

/// Runs the action with the index in the chosen item's tag.
@interface QSMenuTarget : NSObject
- (instancetype)initWithActions:(std::vector<std::function<void()>>)actions;
@end

@implementation QSMenuTarget {
  std::vector<std::function<void()>> _actions;
}

- (instancetype)initWithActions:(std::vector<std::function<void()>>)actions {
  self = [super init];
  if (self != nil) _actions = std::move(actions);
  return self;
}

- (void)choose:(NSMenuItem*)item {
  const auto index = static_cast<std::size_t>(item.tag);
  quillseal::mac::callGuarded([self, index] {
    const auto action = self->_actions.at(index);  // a copy: the action may replace the menu
    action();
  });
}

/// Keeps the menu usable while an alert of the agent is open.
- (BOOL)worksWhenModal {
  return YES;
}

@end

namespace quillseal::mac {
namespace {

NSEventModifierFlags flagsFrom(desktop::Modifiers modifiers) {
  // The agent's values have the same bits as the event flags of AppKit and Core Graphics.
  static_assert(static_cast<NSUInteger>(desktop::Modifiers::control) == NSEventModifierFlagControl);
  static_assert(static_cast<NSUInteger>(desktop::Modifiers::option) == NSEventModifierFlagOption);
  static_assert(static_cast<NSUInteger>(desktop::Modifiers::command) == NSEventModifierFlagCommand);
  return static_cast<NSEventModifierFlags>(modifiers);
}

NSMenuItem* menuItem(const desktop::MenuItem& description, QSMenuTarget* target, NSInteger tag) {
  if (description.kind == desktop::MenuItem::Kind::separator) return NSMenuItem.separatorItem;
  NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:nsString(description.title)
                                                action:nil
                                         keyEquivalent:nsString(description.keyEquivalent)];
  item.keyEquivalentModifierMask = flagsFrom(description.keyModifiers);
  item.enabled = description.kind == desktop::MenuItem::Kind::action;
  if (description.action) {
    item.target = target;
    item.action = @selector(choose:);
    item.tag = tag;
  }
  return item;
}

}  // namespace

MacStatusItem::~MacStatusItem() {
  if (item_ != nil) [NSStatusBar.systemStatusBar removeStatusItem:item_];
}

void MacStatusItem::show(const desktop::StatusMenu& menu) {
  callSystem([&] { render(menu); });
}

void MacStatusItem::setItemTitle(std::size_t index, const std::string& title) {
  callSystem([&] {
    if (index >= static_cast<std::size_t>(item_.menu.numberOfItems)) return;
    [item_.menu itemAtIndex:static_cast<NSInteger>(index)].title = nsString(title);
  });
}

NSMenu* MacStatusItem::menu() const { return item_.menu; }

void MacStatusItem::render(const desktop::StatusMenu& menu) {
  if (item_ == nil) {
    item_ = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
  }
  NSStatusBarButton* button = item_.button;
  button.image = [NSImage imageWithSystemSymbolName:nsString(menu.symbol)
                           accessibilityDescription:nsString(menu.symbolDescription)];
  button.imagePosition = NSImageLeading;
  button.title = nsString(menu.title);

  std::vector<std::function<void()>> actions;
  for (const desktop::MenuItem& item : menu.items) {
    actions.push_back(item.action);
  }
  target_ = [[QSMenuTarget alloc] initWithActions:std::move(actions)];
  NSMenu* shown = [[NSMenu alloc] init];
  shown.autoenablesItems = NO;  // the menu's description decides what is enabled
  NSInteger tag = 0;
  for (const desktop::MenuItem& item : menu.items) {
    [shown addItem:menuItem(item, target_, tag)];
    ++tag;
  }
  item_.menu = shown;
}

}  // namespace quillseal::mac
