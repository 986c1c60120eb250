#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text operations on UTF-8 that need Unicode's tables.
///
/// A *scalar* is one Unicode scalar value. A *character* is an extended grapheme cluster (UAX #29):
/// what a reader sees as one sign; CR LF is one character. Every function accepts any bytes; those
/// that do not form UTF-8 behave as U+FFFD, one for each maximal ill-formed part.
namespace quillseal::unicode {

/// `text` with every maximal ill-formed part replaced by U+FFFD. Text that enters the program from
/// outside passes through here once; everything behind that point may rely on well-formed UTF-8.
[[nodiscard]] std::string wellFormed(std::string_view text);

/// Whether `scalar` belongs to the whitespace-and-newline set: general categories Zs, Zl and Zp,
/// U+0009 to U+000D and U+0085. U+200B and U+FEFF do not.
[[nodiscard]] bool isWhitespaceOrNewline(char32_t scalar) noexcept;

/// `text` without the whitespace-and-newline scalars at its two ends. The view points into `text`.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// Full Unicode lower-casing in the root locale (with the final-sigma rule).
[[nodiscard]] std::string lowercased(std::string_view text);

/// Full Unicode upper-casing in the root locale.
[[nodiscard]] std::string uppercased(std::string_view text);

/// The number of characters.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// The first `count` characters, or all of `text` when it has fewer. The view points into `text`.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);

/// `text` with every occurrence of `from` (not empty) replaced by `to`, left to right.
[[nodiscard]] std::string replacingAll(std::string_view text, std::string_view from,
                                       std::string_view to);

}  // namespace quillseal::unicode
