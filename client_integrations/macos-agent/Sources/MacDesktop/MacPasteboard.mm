#import "MacDesktop/MacPasteboard.h"

#import <AppKit/AppKit.h>

#include "Desktop/Error.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {

std::int64_t MacPasteboard::changeCount() const {
  return NSPasteboard.generalPasteboard.changeCount;
}

// macOS tells nobody when the pasteboard changes.
desktop::Ticket MacPasteboard::onNextChange(std::function<void()> /*changed*/) { return {}; }

bool MacPasteboard::isConcealed() const {
  // The mark that password managers agreed on: http://nspasteboard.org
  NSArray<NSPasteboardType>* types = NSPasteboard.generalPasteboard.types;
  return [types containsObject:@"org.nspasteboard.ConcealedType"];
}

std::optional<std::string> MacPasteboard::plainText() const {
  return optionalUtf8([NSPasteboard.generalPasteboard stringForType:NSPasteboardTypeString]);
}

std::optional<std::string> MacPasteboard::html() const {
  return optionalUtf8([NSPasteboard.generalPasteboard stringForType:NSPasteboardTypeHTML]);
}

std::optional<std::string> MacPasteboard::rtf() const {
  NSData* data = [NSPasteboard.generalPasteboard dataForType:NSPasteboardTypeRTF];
  if (data == nil) return std::nullopt;
  return std::string(static_cast<const char*>(data.bytes), data.length);
}

void MacPasteboard::write(const desktop::PasteboardContent& content) {
  // One item with both flavours: no reader can see the first without the second.
  NSPasteboardItem* item = [[NSPasteboardItem alloc] init];
  const bool prepared = [item setString:nsString(content.plainText)
                                forType:NSPasteboardTypeString] &&
                        [item setString:nsString(content.html) forType:NSPasteboardTypeHTML];
  NSPasteboard* pasteboard = NSPasteboard.generalPasteboard;
  [pasteboard clearContents];
  if (prepared && [pasteboard writeObjects:@[ item ]]) return;
  [pasteboard clearContents];
  throw Error({.domain = "Pasteboard",
               .code = 1,
               .description = "The signed text could not be put on the clipboard."});
}

}  // namespace quillseal::mac
