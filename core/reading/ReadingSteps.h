#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/reading/ReadingTables.h"

/// The steps by which `ReadableText` undoes disguises.
namespace quillseal::reading {

/// What is read before a cell although it was not written.
enum class Insertion : std::uint8_t { none, blank, currency, thousands };

/// A code point as it is read, with the bytes it was written in.
struct Cell {
  char32_t scalar = 0;
  std::uint32_t start = 0;
  std::uint32_t end = 0;
  Reading::Kind kind = Reading::Kind::other;
  Insertion inserted = Insertion::none;
  bool isCopy = false;  ///< its bytes are read as they were written
};

using Cells = std::vector<Cell>;

/// What a text contains, so that steps without work are left out.
struct Contents {
  bool hasLettersOrStops = false;      ///< of Latin, or that read as such
  bool hasLettersOrDigits = false;     ///< of Latin, or that read as such
  bool hasLettersBeyondAscii = false;  ///< accented, of other scripts, or with marks
  bool hasFormsByNeighbour = false;    ///< wide signs, letters of flags, angle brackets
  bool hasWideLetters = false;
  bool hasWideApart = false;  ///< wide letters that may be set apart
};

/// Counts known and unknown words in a row. The limits were found by trial, with the disguised
/// scams and honest texts of docs/screening.md.
class KnownWords {
 public:
  /// `isName`: a capital followed by small letters. Names are in no table of words, so one of
  /// ordinary length does not count as unknown.
  void add(std::size_t letters, bool isKnown, bool isName) {
    if (isKnown) {
      known_ += letters;
    } else if (!isName || letters > longestName) {
      unknown_ += letters;
      ++unknownWords_;
    }
  }

  /// Whether so many words are unknown that blanks may have been moved, added or removed.
  [[nodiscard]] bool mayHaveMovedBlanks() const {
    // A moved blank makes two unknown words; a removed one makes one long word.
    constexpr std::size_t fewWords = 2;
    constexpr std::size_t fewLetters = 8;
    // A rare word or a typing error in a long sentence is not a disguise.
    constexpr std::size_t knownForOneUnknown = 8;
    const bool isMuch = unknownWords_ >= fewWords ? unknown_ >= fewLetters : unknown_ > longestName;
    return isMuch && knownForOneUnknown * unknown_ >= known_;
  }

  /// Whether a third of all letters or more are in unknown words.
  [[nodiscard]] bool areManyUnknown() const { return 2 * unknown_ >= known_; }

 private:
  /// In letters. Longer capitalised words are taken for words that were run together.
  static constexpr std::size_t longestName = 13;

  std::size_t known_ = 0;
  std::size_t unknown_ = 0;
  std::size_t unknownWords_ = 0;
};

/// Words of wide letters in a row, with a blank between them.
class WideWords {
 public:
  void add(std::size_t letters, bool isHangul) {
    letters_ += letters;
    ++count_;
    hasHangul_ = hasHangul_ || isHangul;
    singles_ = letters == 1 ? singles_ + 1 : 0;
    mostSingles_ = std::max(mostSingles_, singles_);
  }

  /// Whether letters stand one by one.
  [[nodiscard]] bool haveUnits() const { return mostSingles_ >= fewestUnits; }

  /// Whether the blanks are too many to divide words: words of Korean have three letters on
  /// average, and Chinese and Japanese put no blanks between words.
  [[nodiscard]] bool haveManyBlanks() const {
    const std::size_t few = hasHangul_ ? 5 : 3;
    const std::size_t meanLength = hasHangul_ ? 2 : 4;
    return count_ >= few && letters_ < meanLength * count_;
  }

  /// From this many single letters in a row on, they count as set apart.
  static constexpr std::size_t fewestUnits = 3;

 private:
  std::size_t count_ = 0;
  std::size_t letters_ = 0;
  std::size_t singles_ = 0;
  std::size_t mostSingles_ = 0;
  bool hasHangul_ = false;
};

/// The letter that two code points are equal to, if any (canonical composition of Unicode).
[[nodiscard]] std::optional<char32_t> composed(char32_t letter, char32_t joined);

/// Repeats all steps until none changes anything, or a fixed number of rounds is reached. Returns
/// whether any did.
bool undoDisguises(Cells& cells, const Contents& contents);

/// Whether the `length` letters of ASCII before a full stop may be an abbreviation.
[[nodiscard]] bool mayBeAbbreviation(const char* letters, std::size_t length);

}  // namespace quillseal::reading
