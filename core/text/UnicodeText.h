#pragma once

#include <cstddef>
#include <memory>
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

/// Whether every byte of `text` is below 0x80.
[[nodiscard]] bool isAscii(std::string_view text) noexcept;

/// The first scalar of `text`; U+FFFD when it starts with an ill-formed part.
/// REQUIRES: text is not empty.
[[nodiscard]] char32_t firstScalar(std::string_view text) noexcept;

/// Reads the scalar at byte `position` and moves `position` behind it.
/// REQUIRES: position < text.size().
[[nodiscard]] char32_t nextScalar(std::string_view text, std::size_t& position) noexcept;

/// Reads the scalar that ends before byte `position` and moves `position` to its start.
/// REQUIRES: 0 < position <= text.size().
[[nodiscard]] char32_t previousScalar(std::string_view text, std::size_t& position) noexcept;

/// Appends `scalar` to `text`.
void append(std::string& text, char32_t scalar);

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

/// Whether a character ends and another one starts at byte `position`, as far as the scalars on its
/// two sides decide it; false where it takes more of the text (or where there is no boundary).
/// REQUIRES: `position` is not inside a scalar.
[[nodiscard]] bool isCertainBoundary(std::string_view text, std::size_t position) noexcept;

/// `text` with every occurrence of `from` (not empty) replaced by `to`, left to right.
[[nodiscard]] std::string replacingAll(std::string_view text, std::string_view from,
                                       std::string_view to);

/// Walks a text character by character in linear time:
///
///     for (CharacterCursor cursor(text); !cursor.atEnd();) use(cursor.next());
///
/// ICU's break iterator is asked only where neither two neighbours nor the rules of emoji decide.
/// The text must outlive the cursor.
class CharacterCursor {
 public:
  explicit CharacterCursor(std::string_view text);
  CharacterCursor(const CharacterCursor&) = delete;
  CharacterCursor& operator=(const CharacterCursor&) = delete;
  ~CharacterCursor();

  [[nodiscard]] bool atEnd() const noexcept { return position_ == text_.size(); }

  /// Bytes before the character that `next` returns.
  [[nodiscard]] std::size_t position() const noexcept { return position_; }

  /// The next character, as a view into the text. REQUIRES: !atEnd().
  [[nodiscard]] std::string_view next();

  /// Takes as many of the next characters as consist of one ASCII byte each, possibly none.
  [[nodiscard]] std::string_view nextAsciiCharacters();

  /// Takes as many of the next characters as it can without ICU, at most `most`. Returns how many.
  std::size_t skipPlainCharacters(std::size_t most);

 private:
  std::size_t skipIndependentScalars(std::size_t most);
  [[nodiscard]] std::size_t nextTableBoundary();

  struct Tables;
  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t stretchStart_ = 0;
  std::size_t stretchEnd_ = 0;  ///< up to here the tables decide
  std::unique_ptr<Tables> tables_;
};

}  // namespace quillseal::unicode
