#pragma once

#include <optional>
#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace quillseal::mac {

/// Converts UTF-8 to NSString; ill-formed bytes become U+FFFD.
[[nodiscard]] NSString* _Nonnull nsString(std::string_view text);

/// Converts to UTF-8; unpaired surrogates become a replacement character, nil becomes the empty
/// string.
[[nodiscard]] std::string utf8(NSString* _Nullable text);

/// The same, but nothing for nil.
[[nodiscard]] std::optional<std::string> optionalUtf8(NSString* _Nullable text);

/// Parses a URL without escaping anything; nil when `text` is not a URL.
[[nodiscard]] NSURL* _Nullable urlFrom(std::string_view text);

}  // namespace quillseal::mac
