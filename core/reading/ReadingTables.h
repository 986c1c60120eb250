#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

/// What `ReadableText` knows about code points and words. Written when the program is built, from
/// ICU's data and the patterns of the rules.
namespace quillseal::reading {

/// What a reader makes of a code point.
struct Reading {
  enum class Kind : std::uint8_t {
    other,       ///< what it is
    invisible,   ///< nothing
    blank,       ///< white space
    lineBreak,   ///< the end of a line
    letter,      ///< an ASCII letter
    digit,       ///< an ASCII digit
    stop,        ///< a full stop
    sign,        ///< ASCII punctuation or symbol, or one that stands for a letter (`text`)
    separator,   ///< a sign among the letters of Japanese
    same,        ///< always reads as `text`: a compatibility form
    wideSign,    ///< reads as `text` beside Latin letters and digits
    accented,    ///< a Latin letter that may read as `text`
    twin,        ///< a letter of another script that may read as `text`
    foreign,     ///< a letter of another script that is like no Latin one
    mark,        ///< stands on the letter before it
    pictograph,  ///< reads as `text` unless two stand together: the letters of flags
  };

  Kind kind = Kind::other;
  std::array<char, 7> text{};  ///< ended by a zero unless all are used

  [[nodiscard]] std::string_view view() const {
    return {text.data(), ::strnlen(text.data(), text.size())};
  }
};

/// Letters of Chinese, Japanese and Korean, which have three bytes each, are wide ones here.
inline constexpr char32_t firstWideLetter = U'\u3041';
inline constexpr char32_t lastWideLetter = U'\uD7A3';
[[nodiscard]] constexpr bool isWideLetter(char32_t scalar) {
  return scalar >= firstWideLetter && scalar <= lastWideLetter;
}
[[nodiscard]] constexpr bool isHangul(char32_t scalar) {
  return scalar >= U'\uAC00' && scalar <= lastWideLetter;
}

/// Code points in blocks of 64; equal blocks are one.
inline constexpr std::size_t blockSize = 64;

struct Tables {
  std::span<const std::uint16_t> blocks;      ///< of every 64 code points, the block
  std::span<const std::uint16_t> readings;    ///< of every code point of a block, its reading
  std::span<const Reading> distinctReadings;  ///< the first is `other`
  std::span<const std::uint32_t> words;       ///< hash table of fingerprints; zero is empty
  std::span<const std::uint8_t> longest;      ///< word that begins with three given letters

  [[nodiscard]] const Reading& of(char32_t scalar) const {
    return distinctReadings[readings[blocks[scalar / blockSize] * blockSize + scalar % blockSize]];
  }
};

extern const Tables compiledTables;

/// The longest word that is known, in letters.
inline constexpr std::size_t longestWord = 24;

/// The index of three small letters of ASCII in `Tables::longest`.
inline constexpr std::size_t beginnings = 26UL * 26 * 26;
[[nodiscard]] inline std::size_t beginningOf(const char* letters) {
  const auto number = [&](int i) { return static_cast<std::size_t>(letters[i] - 'a'); };
  return (number(0) * 26 + number(1)) * 26 + number(2);
}

/// Words in small letters of Latin-1, one byte each, filled up with zeros.
using WordBytes = std::array<std::uint64_t, longestWord / 8>;

/// The hash of a word.
[[nodiscard]] inline std::uint64_t hashOfWord(const WordBytes& bytes) {
  std::uint64_t hash = bytes[0] * 0x9E3779B97F4A7C15;
  if (bytes[1] != 0) {
    hash = (hash ^ bytes[1]) * 0xC2B2AE3D27D4EB4F;
    hash = ((hash ^ hash >> 32) ^ bytes[2]) * 0x165667B19E3779F9;
  }
  hash ^= hash >> 32;
  hash *= 0xD6E8FEB86659FD93;
  return hash ^ hash >> 32;
}

/// REQUIRES: at most `longestWord` letters.
[[nodiscard]] inline WordBytes bytesOfWord(std::string_view word) {
  WordBytes bytes{};
  std::memcpy(bytes.data(), word.data(), word.size());
  return bytes;
}

enum class WordClass : std::uint8_t {
  unknown,
  ofRules,  ///< in a match of some rule
  common,   ///< a common English word
};

/// Of an entry of the table of words, two bits say what kind of word it is, the others which one.
inline constexpr std::uint32_t commonWordBit = 2;
inline constexpr std::uint32_t wordBit = 1;

[[nodiscard]] inline std::uint32_t fingerprintOf(std::uint64_t hashOfWord) {
  return static_cast<std::uint32_t>(hashOfWord >> 32) & ~(commonWordBit | wordBit);
}

/// Looks a word up. (One of a thousand million unknown words passes for a known one.)
[[nodiscard]] inline WordClass classOf(const WordBytes& word) {
  const std::uint64_t hash = hashOfWord(word);
  const std::size_t mask = compiledTables.words.size() - 1;
  for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
    const std::uint32_t entry = compiledTables.words[slot];
    if (entry == 0) return WordClass::unknown;
    if (((entry ^ fingerprintOf(hash)) & ~(commonWordBit | wordBit)) == 0)
      return (entry & commonWordBit) != 0 ? WordClass::common : WordClass::ofRules;
  }
}

[[nodiscard]] inline WordClass classOf(std::string_view word) {
  if (word.empty() || word.size() > longestWord) return WordClass::unknown;
  return classOf(bytesOfWord(word));
}

[[nodiscard]] inline bool isWord(std::string_view word) {
  return classOf(word) != WordClass::unknown;
}

}  // namespace quillseal::reading
