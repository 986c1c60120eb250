#import "MacDesktop/MacText.h"

#include "core/text/UnicodeText.h"

namespace quillseal::mac {

NSString* nsString(std::string_view text) {
  NSString* result = [[NSString alloc] initWithBytes:text.data()
                                              length:text.size()
                                            encoding:NSUTF8StringEncoding];
  if (result != nil) return result;
  const std::string mended = unicode::wellFormed(text);
  result = [[NSString alloc] initWithBytes:mended.data()
                                    length:mended.size()
                                  encoding:NSUTF8StringEncoding];
  return result != nil ? result : @"";
}

std::string utf8(NSString* text) {
  if (text == nil) return {};
  // Not UTF8String, which ends at a NUL and fails on an unpaired surrogate.
  NSData* data = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  return {static_cast<const char*>(data.bytes), data.length};
}

std::optional<std::string> optionalUtf8(NSString* text) {
  if (text == nil) return std::nullopt;
  return utf8(text);
}

NSURL* urlFrom(std::string_view text) {
  NSString* string = nsString(text);
  if (@available(macOS 14.0, *)) {
    return [NSURL URLWithString:string encodingInvalidCharacters:NO];
  }
  return [NSURL URLWithString:string];
}

}  // namespace quillseal::mac
