#pragma once

#include <cstdint>
#include <string_view>

namespace quillseal {

/// The number of words. Each Chinese character, kana or Hangul syllable is a word by itself; any
/// other run between white space is one when it holds a letter or a number.
[[nodiscard]] std::int64_t wordCount(std::string_view text);

/// Whether a character of the text begins with a digit or another numeral.
[[nodiscard]] bool holdsNumber(std::string_view text);

/// Whether a word after the first is capitalised, but not in capitals throughout, as names are.
[[nodiscard]] bool holdsNameAfterFirstWord(std::string_view text);

}  // namespace quillseal
