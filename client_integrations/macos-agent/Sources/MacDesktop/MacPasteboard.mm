#import "MacDesktop/MacPasteboard.h"

#import <AppKit/AppKit.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"
#include "core/text/Error.h"

namespace quillseal::mac {
namespace {

/// Whether this program may read the pasteboard: NSPasteboardAccessBehavior of macOS 15.4.
enum AccessBehavior : NSInteger { systemDefault = 0, asks = 1, allows = 2, denies = 3 };

/// Looked up by name, so that the program also builds with an earlier SDK.
std::optional<NSInteger> accessBehavior() {
  NSString* const property = @"accessBehavior";
  NSPasteboard* pasteboard = NSPasteboard.generalPasteboard;
  if (![pasteboard respondsToSelector:NSSelectorFromString(property)]) return std::nullopt;
  id value = [pasteboard valueForKey:property];
  if (![value isKindOfClass:NSNumber.class]) return std::nullopt;
  return [value integerValue];
}

std::optional<std::string> stringOf(NSPasteboardType type) {
  return callSystem(
      [&] { return optionalUtf8([NSPasteboard.generalPasteboard stringForType:type]); });
}

}  // namespace

std::int64_t MacPasteboard::changeCount() const {
  return callSystem([] { return std::int64_t{NSPasteboard.generalPasteboard.changeCount}; });
}

// macOS does not report changes of the pasteboard.
desktop::Ticket MacPasteboard::onNextChange(std::function<void()> /*changed*/) { return {}; }

std::string MacPasteboard::readingObstacle() const {
  const std::optional<NSInteger> behavior = callSystem(accessBehavior);
  if (behavior == AccessBehavior::denies) {
    return "System Settings does not let Quillseal paste from other applications";
  }
  if (behavior == AccessBehavior::asks) {
    return "System Settings asks each time whether Quillseal may paste from other applications";
  }
  return {};
}

bool MacPasteboard::isConcealed() const {
  return callSystem([] {
    // The convention of password managers: http://nspasteboard.org
    NSArray<NSPasteboardType>* types = NSPasteboard.generalPasteboard.types;
    return static_cast<bool>([types containsObject:@"org.nspasteboard.ConcealedType"]);
  });
}

std::optional<std::string> MacPasteboard::plainText() const {
  return stringOf(NSPasteboardTypeString);
}

std::optional<std::string> MacPasteboard::html() const { return stringOf(NSPasteboardTypeHTML); }

desktop::Ticket MacPasteboard::fetchRtf(std::function<void(std::optional<std::string>)> done) {
  std::optional<std::string> rtf;
  if (!isConcealed()) {
    rtf = callSystem([]() -> std::optional<std::string> {
      NSData* data = [NSPasteboard.generalPasteboard dataForType:NSPasteboardTypeRTF];
      if (data.length == 0) return std::nullopt;
      return std::string(static_cast<const char*>(data.bytes), data.length);
    });
  }
  done(std::move(rtf));
  return {};
}

void MacPasteboard::write(const desktop::PasteboardContent& content) {
  const bool isWritten = callSystem([&] {
    // One item with both types, so that no reader sees one without the other.
    NSPasteboardItem* item = [[NSPasteboardItem alloc] init];
    const bool isPrepared = [item setString:nsString(content.plainText)
                                    forType:NSPasteboardTypeString] &&
                            [item setString:nsString(content.html) forType:NSPasteboardTypeHTML];
    NSPasteboard* pasteboard = NSPasteboard.generalPasteboard;
    [pasteboard clearContents];
    if (isPrepared && [pasteboard writeObjects:@[ item ]]) return true;
    [pasteboard clearContents];
    return false;
  });
  if (isWritten) return;
  throw Error({.domain = "Pasteboard",
               .code = 1,
               .description = "The signed text could not be put on the clipboard."});
}

}  // namespace quillseal::mac
