#include "core/text/Words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "core/text/ScalarProperties.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using unicode::CharacterCursor;
using unicode::icuScalar;
using unicode::isLetter;
using unicode::isNumber;
using unicode::isWhitespace;

struct ScalarRange {
  char32_t low;
  char32_t high;
};

/// Scripts written without spaces between words: each of these characters is a word.
constexpr auto cjkRanges = std::to_array<ScalarRange>({
    {0x3040, 0x30FF},    // Hiragana and Katakana
    {0x3400, 0x4DBF},    // CJK Unified Ideographs Extension A
    {0x4E00, 0x9FFF},    // CJK Unified Ideographs
    {0xF900, 0xFAFF},    // CJK Compatibility Ideographs
    {0xAC00, 0xD7AF},    // Hangul Syllables
    {0x20000, 0x2FA1F},  // Supplementary Ideographic Plane to CJK Compatibility Supplement
});

enum class AsciiKind : std::uint8_t { other, space, letterOrNumber };

constexpr std::array<AsciiKind, 128> asciiKinds = [] {
  std::array<AsciiKind, 128> kinds{};
  for (std::size_t c = 0x09; c <= 0x0D; ++c)
    kinds[c] = AsciiKind::space;
  kinds[' '] = AsciiKind::space;
  for (std::size_t c = '0'; c <= '9'; ++c)
    kinds[c] = AsciiKind::letterOrNumber;
  for (std::size_t c = 'A'; c <= 'Z'; ++c)
    kinds[c] = kinds[c + 32] = AsciiKind::letterOrNumber;
  return kinds;
}();

bool isSingleScalar(std::string_view character) {
  std::size_t position = 0;
  static_cast<void>(unicode::nextScalar(character, position));
  return position == character.size();
}

bool isCjkWord(std::string_view character) {
  const char32_t scalar = unicode::firstScalar(character);
  const bool inRange = std::any_of(cjkRanges.begin(), cjkRanges.end(), [&](ScalarRange range) {
    return range.low <= scalar && scalar <= range.high;
  });
  return inRange && isSingleScalar(character);
}

bool isUppercase(std::string_view character) {
  if (isSingleScalar(character) && u_isUUppercase(icuScalar(unicode::firstScalar(character))) != 0)
    return true;
  return unicode::lowercased(character) != character && unicode::uppercased(character) == character;
}

constexpr std::u32string_view punctuation = U"‘’“”\"'()[]{}.,;:!?-";

bool isPunctuation(char32_t scalar) {
  return punctuation.find(scalar) != std::u32string_view::npos;
}

std::string_view withoutPunctuationAtEnds(std::string_view word) {
  std::size_t start = 0;
  while (start < word.size()) {
    std::size_t behind = start;
    if (!isPunctuation(unicode::nextScalar(word, behind))) break;
    start = behind;
  }
  std::size_t end = word.size();
  while (end > start) {
    std::size_t before = end;
    if (!isPunctuation(unicode::previousScalar(word, before))) break;
    end = before;
  }
  return word.substr(start, end - start);
}

bool looksLikeName(std::string_view word) {
  CharacterCursor cursor(word);
  if (cursor.atEnd()) return false;
  const std::string_view initial = cursor.next();
  return !cursor.atEnd() && isUppercase(initial) && unicode::uppercased(word) != word;
}

}  // namespace

std::int64_t wordCount(std::string_view text) {
  std::int64_t words = 0;
  bool pendingHoldsWord = false;
  const auto flush = [&] {
    if (std::exchange(pendingHoldsWord, false)) ++words;
  };
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    for (const char byte : cursor.nextAsciiCharacters()) {
      switch (asciiKinds[static_cast<unsigned char>(byte)]) {
        case AsciiKind::letterOrNumber:
          pendingHoldsWord = true;
          break;
        case AsciiKind::space:
          flush();
          break;
        case AsciiKind::other:
          break;
      }
    }
    if (cursor.atEnd()) break;
    const std::string_view character = cursor.next();
    const char32_t scalar = unicode::firstScalar(character);
    if (isCjkWord(character)) {
      flush();
      ++words;
    } else if (isWhitespace(scalar)) {
      flush();
    } else if (isLetter(scalar) || isNumber(scalar)) {
      pendingHoldsWord = true;
    }
  }
  flush();
  return words;
}

bool holdsNumber(std::string_view text) {
  for (CharacterCursor cursor(text); !cursor.atEnd();)
    if (isNumber(unicode::firstScalar(cursor.next()))) return true;
  return false;
}

bool holdsNameAfterFirstWord(std::string_view text) {
  bool first = true;
  std::size_t wordStart = 0;
  const auto endsWithName = [&](std::size_t wordEnd) {
    if (wordEnd == wordStart || std::exchange(first, false)) return false;
    return looksLikeName(withoutPunctuationAtEnds(text.substr(wordStart, wordEnd - wordStart)));
  };
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    const std::size_t start = cursor.position();
    if (!isWhitespace(unicode::firstScalar(cursor.next()))) continue;
    if (endsWithName(start)) return true;
    wordStart = cursor.position();
  }
  return endsWithName(text.size());
}

}  // namespace quillseal
