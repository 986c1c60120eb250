#import "MacDesktop/MacHotkey.h"

#include <utility>

#import <Carbon/Carbon.h>

#include "MacDesktop/MacError.h"

namespace quillseal::mac {
namespace {

constexpr EventHotKeyID hotkeyId{.signature = 1, .id = 1};

UInt32 carbonModifiers(desktop::Modifiers modifiers) {
  using desktop::Modifiers;
  return (contains(modifiers, Modifiers::command) ? cmdKey : 0U) |
         (contains(modifiers, Modifiers::option) ? optionKey : 0U) |
         (contains(modifiers, Modifiers::control) ? controlKey : 0U);
}

void requireNoError(OSStatus status) {
  if (status == noErr) return;
  throw Error({.domain = "NSOSStatusErrorDomain",
               .code = status,
               .description = "The hotkey could not be registered, perhaps because another program "
                              "uses it. Choose \"Sign Selected Text\" from the menu bar instead."});
}

}  // namespace

void MacHotkey::registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) {
  pressed_ = std::move(pressed);
  EventHotKeyRef hotkey = nullptr;  // not kept: registered until the process ends
  requireNoError(::RegisterEventHotKey(
      static_cast<UInt32>(combination.key), carbonModifiers(combination.modifiers), hotkeyId,
      ::GetApplicationEventTarget(), kEventHotKeyNoOptions, &hotkey));
  const EventTypeSpec type{.eventClass = kEventClassKeyboard, .eventKind = kEventHotKeyPressed};
  const EventHandlerUPP handler = [](EventHandlerCallRef, EventRef, void* self) -> OSStatus {
    callGuarded([self] {
      auto& hotkey = *static_cast<MacHotkey*>(self);
      hotkey.poster_.post(hotkey.pressed_);
    });
    return noErr;
  };
  const OSStatus installed =
      ::InstallEventHandler(::GetApplicationEventTarget(), handler, 1, &type, this, nullptr);
  // Without a handler, a registered combination would be lost to all programs.
  if (installed != noErr) ::UnregisterEventHotKey(hotkey);
  requireNoError(installed);
}

}  // namespace quillseal::mac
