#pragma once

#include <optional>
#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace quillseal::mac {

/// `text` as Foundation has it; ill-formed bytes become U+FFFD.
[[nodiscard]] NSString* _Nonnull nsString(std::string_view text);

/// `text` in UTF-8; unpaired surrogates become a replacement character, nil the empty string.
[[nodiscard]] std::string utf8(NSString* _Nullable text);

/// The same, with nil as nothing.
[[nodiscard]] std::optional<std::string> optionalUtf8(NSString* _Nullable text);

/// `text` as a URL, or nil when it is none. Nothing is escaped to make it one.
[[nodiscard]] NSURL* _Nullable urlFrom(std::string_view text);

}  // namespace quillseal::mac
