#include "core/reading/ReadingSteps.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <unicode/unorm2.h>

#include "core/text/IcuStatus.h"

namespace quillseal::reading {
namespace {

using Kind = Reading::Kind;

// ---- Cells

bool isLatin(const Cell& cell) {
  return cell.kind == Kind::letter || cell.kind == Kind::accented;
}

bool isLetter(const Cell& cell) {
  return isLatin(cell) || cell.kind == Kind::twin || cell.kind == Kind::foreign ||
         cell.kind == Kind::mark;
}

bool isAlphanumeric(const Cell& cell) {
  return isLetter(cell) || cell.kind == Kind::digit;
}

bool isSpace(const Cell& cell) {
  return cell.kind == Kind::blank || cell.kind == Kind::lineBreak;
}

bool isUpper(const Cell& cell) {
  return (cell.scalar >= U'A' && cell.scalar <= U'Z') ||
         (cell.scalar >= U'\u00C0' && cell.scalar <= U'\u00DE' && cell.scalar != U'\u00D7');
}

void remove(Cell& cell) {
  cell.kind = Kind::invisible;
}

void replace(Cell& cell, char32_t scalar) {
  cell.scalar = scalar;
  cell.kind = compiledTables.of(scalar).kind;
  cell.isCopy = false;
}

std::string_view textOf(Insertion insertion) {
  switch (insertion) {
    case Insertion::blank:
      return " ";
    case Insertion::currency:
      return "$";
    case Insertion::thousands:
      return ",00";
    case Insertion::none:
      break;
  }
  return "";
}

/// Deletes the cells marked as removed and adds those to be inserted.
void tidy(Cells& cells) {
  Cells tidied;
  tidied.reserve(cells.size());
  for (Cell cell : cells) {
    if (cell.kind == Kind::invisible) continue;
    for (const char inserted : textOf(cell.inserted)) {
      const auto scalar = static_cast<char32_t>(inserted);
      tidied.push_back({.scalar = scalar,
                        .start = cell.start,
                        .end = cell.start,
                        .kind = compiledTables.of(scalar).kind});
    }
    cell.inserted = Insertion::none;
    tidied.push_back(cell);
  }
  cells.swap(tidied);
}

/// A word while it is built up, in the form of the table of words.
class Word {
 public:
  void add(char32_t scalar) {
    if ((scalar >= U'A' && scalar <= U'Z') ||
        (scalar >= U'\u00C0' && scalar <= U'\u00DE' && scalar != U'\u00D7'))
      scalar += 0x20;
    if (size_ < letters_.size()) letters_[size_] = static_cast<char>(scalar);
    isTooMuch_ = isTooMuch_ || scalar >= 0x100 || size_ == letters_.size();
    ++size_;
  }

  [[nodiscard]] bool isKnown() const { return !isTooMuch_ && isWord({letters_.data(), size_}); }

  [[nodiscard]] std::size_t size() const { return size_; }

 private:
  std::array<char, longestWord> letters_{};
  std::size_t size_ = 0;
  bool isTooMuch_ = false;
};

/// The letter without its marks.
char32_t plainLetter(const Cell& cell) {
  return cell.kind == Kind::accented ? static_cast<char32_t>(compiledTables.of(cell.scalar).text[0])
                                     : cell.scalar;
}

/// The letters that a twin, a digit or a sign may stand for.
std::string_view lettersOf(const Cell& cell) {
  return compiledTables.of(cell.scalar).view();
}

/// One of them. `way` numbers the combinations of such letters in a word: its remainder by the
/// number of letters here selects the letter, and the quotient is left for the next cell.
char32_t letterOf(const Cell& cell, std::size_t& way) {
  const std::string_view letters = lettersOf(cell);
  const char letter = letters[way % letters.size()];
  way /= letters.size();
  return static_cast<char32_t>(letter);
}

// ---- Segmenting what was run together

/// Divides letters without blanks into known words.
class Segmenter {
 public:
  /// The places behind words, the last one included; empty when it is not made of known words.
  /// `blanks`, ascending, are the places where a blank was written.
  const std::vector<std::size_t>& segment(std::string_view letters,
                                          const std::vector<std::size_t>& blanks = {}) {
    borders_.clear();
    const std::size_t size = letters.size();
    isBlank_.assign(size + 1, 0);
    for (const std::size_t blank : blanks)
      isBlank_[blank] = 1;
    ways_.assign(size + 1, Way{});
    ways_[0].cost = 0;
    for (std::size_t start = 0; start < size; ++start) {
      relax(start, 1, costOfUnknownLetter, WordClass::unknown);
      std::size_t most = std::min<std::size_t>(2, size - start);
      if (size - start > 2)
        most = std::max<std::size_t>(
            2, std::min<std::size_t>(compiledTables.longest[beginningOf(&letters[start])],
                                     size - start));
      for (std::size_t length = 1; length <= most; ++length) {
        const WordClass word = classOf(letters.substr(start, length));
        if (word == WordClass::unknown) continue;
        const bool isShort = length < costOfShortWord.size();
        // Any letters contain short words of other languages and abbreviations by chance.
        if (isShort && word != WordClass::common) continue;
        relax(start, length, isShort ? costOfShortWord[length] : costOfWord, word);
      }
    }
    unknown_ = 0;
    common_ = 0;
    for (std::size_t end = size; end > 0; end -= ways_[end].length) {
      borders_.push_back(end);
      if (ways_[end].word == WordClass::unknown) ++unknown_;
      if (ways_[end].word == WordClass::common) common_ += ways_[end].length;
    }
    std::reverse(borders_.begin(), borders_.end());
    if (unknown_ * lettersForOneUnknown > size) borders_.clear();
    return borders_;
  }

  /// Letters of the last segmentation that are in no word.
  [[nodiscard]] std::size_t unknownLetters() const { return unknown_; }
  /// Letters of the last segmentation that are in common English words.
  [[nodiscard]] std::size_t commonLetters() const { return common_; }

 private:
  // The division that costs least is taken: the one with the fewest words and unknown letters. All
  // figures were found by trial, with the disguised scams and honest texts of docs/screening.md.
  static constexpr std::uint32_t costOfWord = 10;
  /// By length. The shorter a word, the more often other letters contain it by chance.
  static constexpr auto costOfShortWord = std::to_array<std::uint32_t>({0, 22, 16, 11});
  /// As much as three words: names and typing errors are rarer than words.
  static constexpr std::uint32_t costOfUnknownLetter = 30;
  /// Where more than one letter in so many is in no word, the letters are not words run together.
  static constexpr std::size_t lettersForOneUnknown = 10;

  struct Way {
    std::uint32_t cost = UINT32_MAX;
    std::uint16_t length = 0;
    WordClass word = WordClass::unknown;
  };

  void relax(std::size_t start, std::size_t length, std::uint32_t cost, WordClass word) {
    Way& way = ways_[start + length];
    // Of two equal ways, the one that moves fewer blanks.
    const std::uint32_t total = ways_[start].cost + cost - isBlank_[start + length];
    if (total <= way.cost) way = {total, static_cast<std::uint16_t>(length), word};
  }

  std::vector<Way> ways_;
  std::vector<std::uint8_t> isBlank_;
  std::size_t unknown_ = 0;
  std::size_t common_ = 0;
  std::vector<std::size_t> borders_;
};

// ---- Forms that depend on their neighbours

/// Wide signs beside Latin letters, flags that are letters, and angle brackets within words, which
/// no digest contains.
bool readByNeighbours(Cells& cells) {
  bool isChanged = false;
  const auto isLetterOfFlag = [&](std::size_t i) {
    return i < cells.size() && cells[i].kind == Kind::pictograph;
  };
  bool areFlags = true;
  const auto isBeside = [&](std::size_t i) {
    return (i > 0 && (isLatin(cells[i - 1]) || cells[i - 1].kind == Kind::digit)) ||
           (i + 1 < cells.size() && (isLatin(cells[i + 1]) || cells[i + 1].kind == Kind::digit));
  };
  const auto isAngle = [&](std::size_t i) {
    return cells[i].scalar == U'<' || cells[i].scalar == U'>';
  };
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (cells[i].kind == Kind::wideSign && isBeside(i)) {
      replace(cells[i], static_cast<char32_t>(compiledTables.of(cells[i].scalar).text[0]));
      isChanged = true;
    } else if (isLetterOfFlag(i)) {
      std::size_t end = i;
      while (isLetterOfFlag(end))
        ++end;
      // Two are a flag, unless a word of more stands before them in the line.
      areFlags = areFlags && end - i <= 2;
      const bool isFlag = areFlags && end - i == 2;
      for (std::size_t k = i; k < end && !isFlag; ++k)
        replace(cells[k], static_cast<char32_t>(compiledTables.of(cells[k].scalar).text[0]));
      isChanged = isChanged || !isFlag;
      i = end - 1;
    } else if (cells[i].kind == Kind::lineBreak) {
      areFlags = true;
    } else if (isAngle(i)) {
      std::size_t end = i;
      while (end < cells.size() && isAngle(end))
        ++end;
      const bool isWithin =
          i > 0 && end < cells.size() && isLatin(cells[i - 1]) && isLatin(cells[end]);
      for (; i < end; ++i)
        if (isWithin) remove(cells[i]);
      isChanged = isChanged || isWithin;
      --i;
    }
  }
  return isChanged;
}

// ---- Letters of other scripts, and marks

/// Reads twins and marks, word by word.
class LetterReader {
 public:
  explicit LetterReader(Cells& cells) : cells_(cells) {}

  bool read() {
    for (std::size_t start = 0; start < cells_.size();) {
      std::size_t end = start;
      while (end < cells_.size() && cells_[end].kind != Kind::lineBreak)
        ++end;
      readLine(start, end);
      start = end + 1;
    }
    return isChanged_;
  }

 private:
  [[nodiscard]] std::size_t endOfWord(std::size_t start, std::size_t end) const {
    while (start < end && isAlphanumeric(cells_[start]))
      ++start;
    return start;
  }

  /// Which scripts the letters of a word belong to.
  struct WordScripts {
    bool hasLatin = false;
    bool hasTwin = false;
    bool hasForeign = false;
  };

  [[nodiscard]] WordScripts scriptsOfWord(std::size_t start, std::size_t end) const {
    WordScripts scripts;
    for (std::size_t i = start; i < end; ++i) {
      scripts.hasLatin = scripts.hasLatin || isLatin(cells_[i]);
      scripts.hasTwin = scripts.hasTwin || cells_[i].kind == Kind::twin;
      scripts.hasForeign = scripts.hasForeign || cells_[i].kind == Kind::foreign;
    }
    return scripts;
  }

  /// Whether most letters of the line are Latin. Those that could be Latin and make a word
  /// count for neither side.
  [[nodiscard]] bool isLatinLine(std::size_t start, std::size_t end) const {
    std::size_t latin = 0;
    std::size_t foreign = 0;
    while (start < end) {
      const std::size_t behind = endOfWord(start, end);
      const auto [hasLatin, hasTwin, hasForeign] = scriptsOfWord(start, behind);
      if (hasLatin)
        ++latin;
      else if (behind - start > 1 && (hasForeign || (hasTwin && !wayToWord(start, behind))))
        ++foreign;
      start = std::max(behind, start + 1);
    }
    return latin >= foreign && (latin > 0 || foreign == 0);
  }

  void readLine(std::size_t start, std::size_t end) {
    const bool isLatin = isLatinLine(start, end);
    while (start < end) {
      const std::size_t behind = endOfWord(start, end);
      if (behind > start) readWord(start, behind, isLatin);
      start = std::max(behind, start + 1);
    }
  }

  void readWord(std::size_t start, std::size_t end, bool isInLatinLine) {
    // Marks that strike words out also stand on the blanks and signs between them.
    for (; start > 0 && start < end && cells_[start].kind == Kind::mark &&
           (cells_[start - 1].scalar < 0x80 || cells_[start - 1].kind == Kind::invisible);
         ++start) {
      remove(cells_[start]);
      isChanged_ = true;
    }
    const auto [hasLatin, hasTwin, hasForeign] = scriptsOfWord(start, end);
    if (hasTwin && (hasLatin || (!hasForeign && isInLatinLine))) readTwins(start, end);
    composeMarks(start, end);
    readMarks(start, end);
  }

  /// Which of the letters that the twins may stand for make a word.
  [[nodiscard]] std::optional<std::size_t> wayToWord(std::size_t start, std::size_t end) const {
    if (end - start > longestWord) return std::nullopt;
    std::size_t ways = 1;
    constexpr std::size_t mostWays = 16;
    for (std::size_t i = start; i < end; ++i)
      if (cells_[i].kind == Kind::twin)
        ways = std::min(ways * lettersOf(cells_[i]).size(), mostWays);
    for (std::size_t way = 0; way < ways; ++way) {
      Word word;
      std::size_t rest = way;
      for (std::size_t i = start; i < end; ++i)
        word.add(cells_[i].kind == Kind::twin ? letterOf(cells_[i], rest) : plainLetter(cells_[i]));
      if (word.isKnown()) return way;
    }
    return std::nullopt;
  }

  /// Reads them as letters that make a word, or else as the likeliest ones.
  void readTwins(std::size_t start, std::size_t end) {
    std::size_t way = wayToWord(start, end).value_or(0);
    for (std::size_t i = start; i < end; ++i)
      if (cells_[i].kind == Kind::twin) replace(cells_[i], letterOf(cells_[i], way));
    isChanged_ = true;
  }

  /// Writes a letter and its only mark as the one letter that they are.
  void composeMarks(std::size_t start, std::size_t end) {
    for (std::size_t i = start; i + 1 < end; ++i) {
      const bool isOneMark = isLatin(cells_[i]) && cells_[i + 1].kind == Kind::mark &&
                             (i + 2 >= end || cells_[i + 2].kind != Kind::mark);
      if (!isOneMark) continue;
      const auto letter = composed(cells_[i].scalar, cells_[i + 1].scalar);
      if (!letter) continue;
      replace(cells_[i], *letter);
      cells_[i].end = cells_[i + 1].end;
      remove(cells_[i + 1]);
      isChanged_ = true;
    }
  }

  /// Removes marks where that turns an unknown word into a known one, or where many are stacked.
  void readMarks(std::size_t start, std::size_t end) {
    Word marked;
    Word plain;
    bool hasMarks = false;
    bool isHeaped = false;
    for (std::size_t i = start; i < end; ++i) {
      const Cell& cell = cells_[i];
      if (cell.kind == Kind::invisible) continue;
      if (cell.kind == Kind::mark) {
        isHeaped = isHeaped ||
                   (i > start && (isLatin(cells_[i - 1]) || cells_[i - 1].kind == Kind::digit));
        continue;
      }
      hasMarks = hasMarks || cell.kind == Kind::accented;
      marked.add(cell.scalar);
      plain.add(plainLetter(cell));
    }
    if (!isHeaped && (!hasMarks || marked.isKnown() || !plain.isKnown())) return;
    for (std::size_t i = start; i < end; ++i) {
      Cell& base = cells_[i];
      if (!isLatin(base) && base.kind != Kind::digit) continue;
      if (base.kind == Kind::accented) {
        replace(base, plainLetter(base));
        isChanged_ = true;
      }
      while (i + 1 < end &&
             (cells_[i + 1].kind == Kind::mark || cells_[i + 1].kind == Kind::invisible)) {
        ++i;
        base.end = cells_[i].end;
        base.isCopy = false;
        remove(cells_[i]);
        isChanged_ = true;
      }
    }
  }

  Cells& cells_;
  bool isChanged_ = false;
};

// ---- Letters set apart

bool isWide(const Cell& cell) {
  return cell.kind == Kind::other && isWideLetter(cell.scalar);
}

/// In Chinese, Japanese and Korean: joins letters that stand one by one, with the same between all
/// of them, and leaves out blanks that are too many to divide words.
class WideJoiner {
 public:
  explicit WideJoiner(Cells& cells) : cells_(cells) {}

  bool join() {
    for (std::size_t i = 0; i < cells_.size();)
      i = isWide(cells_[i]) ? joinBlanks(i) : i + 1;
    for (std::size_t i = 0; i + 2 < cells_.size(); ++i)
      if (isUnit(i)) i = joinUnits(i, WideWords::fewestUnits);
    // What stands between many letters stands between two for the same reason.
    for (std::size_t i = 0; i + 2 < cells_.size() && !signs_.empty(); ++i)
      if (isUnit(i) && signs_.find(cells_[i + 1].scalar) != std::u32string::npos)
        i = joinUnits(i, 2);
    return isChanged_;
  }

 private:
  static constexpr std::size_t bytesOfLetter = 3;

  [[nodiscard]] static std::size_t lettersOf(const Cell& cell) {
    return cell.isCopy ? (cell.end - cell.start) / bytesOfLetter : 1;
  }

  /// A letter with no other one beside it.
  [[nodiscard]] bool isUnit(std::size_t i) const {
    return isWide(cells_[i]) && lettersOf(cells_[i]) == 1 && (i == 0 || !isWide(cells_[i - 1])) &&
           (i + 1 == cells_.size() || !isWide(cells_[i + 1]));
  }

  [[nodiscard]] static bool isSeparator(const Cell& cell) {
    constexpr std::u32string_view signs = U"-_*/\\~=+|^#\u00B7\u2022\u2024\u22C5\u30FB\u25CF\u2219";
    return cell.kind == Kind::blank || cell.kind == Kind::stop ||
           signs.find(cell.scalar) != std::u32string_view::npos;
  }

  /// The words from `start` on that have one blank between them; where to go on.
  std::size_t joinBlanks(std::size_t start) {
    WideWords words;
    std::size_t end = start;
    for (;;) {
      std::size_t letters = 0;
      const bool isOfHangul = isHangul(cells_[end].scalar);
      for (; end < cells_.size() && isWide(cells_[end]); ++end)
        letters += lettersOf(cells_[end]);
      words.add(letters, isOfHangul);
      if (end + 1 >= cells_.size() || cells_[end].scalar != U' ' || !isWide(cells_[end + 1])) break;
      ++end;
    }
    if (words.haveManyBlanks())
      for (std::size_t i = start; i < end; ++i)
        if (cells_[i].scalar == U' ') leaveOut(i);
    return end;
  }

  /// The letters from `first` on that the same sign sets apart; where to go on.
  std::size_t joinUnits(std::size_t first, std::size_t fewest) {
    const char32_t sign = cells_[first + 1].scalar;
    if (!isSeparator(cells_[first + 1])) return first;
    std::size_t last = first;
    while (last + 2 < cells_.size() && cells_[last + 1].scalar == sign && isUnit(last + 2))
      last += 2;
    if ((last - first) / 2 + 1 < fewest) return last > first ? last - 1 : first;
    if (sign != U' ' && signs_.find(sign) == std::u32string::npos) signs_ += sign;
    for (std::size_t i = first + 1; i < last; i += 2)
      leaveOut(i);
    return last;
  }

  void leaveOut(std::size_t i) {
    remove(cells_[i]);
    isChanged_ = true;
  }

  Cells& cells_;
  std::u32string signs_;  ///< that were left out
  bool isChanged_ = false;
};

/// Joins single letters that have the same separator between all of them.
class LetterJoiner {
 public:
  LetterJoiner(Cells& cells, Segmenter& segmenter) : cells_(cells), segmenter_(segmenter) {}

  bool join() {
    for (std::size_t i = 0; i + 2 < cells_.size(); ++i) {
      if (!isUnit(i) || !isBorder(cells_[i + 1]) || (i > 0 && isAlphanumeric(cells_[i - 1])))
        continue;
      if (collect(i)) i = joinUnits();
    }
    return isChanged_;
  }

 private:
  struct Unit {
    std::size_t at = 0;
    bool startsWord = false;  ///< behind more blanks than the others
  };

  /// A letter, or a digit or sign that may stand for one.
  [[nodiscard]] bool isUnit(std::size_t i) const {
    const Cell& cell = cells_[i];
    return isLatin(cell) || cell.kind == Kind::digit || cell.scalar == U'@' ||
           cell.scalar == U'$' || cell.scalar == U'\u20AC';
  }

  [[nodiscard]] static bool isBorder(const Cell& cell) {
    if (cell.kind == Kind::blank || cell.kind == Kind::stop) return true;
    constexpr std::u32string_view separators =
        U"-_*/\\~=+,:|^#'\u00B7\u2022\u2024\u22C5\u30FB\u2013\u2014\u25CF\u2219";
    return separators.find(cell.scalar) != std::u32string_view::npos;
  }

  static bool areEqual(const Cell& first, const Cell& second) {
    return first.scalar == second.scalar ||
           (first.kind == Kind::blank && second.kind == Kind::blank);
  }

  /// The cells from `i` on that separate letters; four at most.
  [[nodiscard]] std::size_t separatorLength(std::size_t i) const {
    std::size_t length = 0;
    while (length < 4 && i + length < cells_.size() && isBorder(cells_[i + length]))
      ++length;
    return length;
  }

  [[nodiscard]] bool areBlanks(std::size_t i, std::size_t length) const {
    for (std::size_t k = 0; k < length; ++k)
      if (cells_[i + k].kind != Kind::blank) return false;
    return true;
  }

  /// Collects the single letters from `first` on; whether there are two or more.
  bool collect(std::size_t first) {
    units_.clear();
    units_.push_back({.at = first});
    separator_ = first + 1;
    separatorLength_ = separatorLength(separator_);
    areBlanks_ = areBlanks(separator_, separatorLength_);
    for (;;) {
      const std::size_t from = units_.back().at + 1;
      const std::size_t length = separatorLength(from);
      const std::size_t next = from + length;
      if (length == 0 || next >= cells_.size() || !isUnit(next)) break;
      if (next + 1 < cells_.size() && isAlphanumeric(cells_[next + 1])) break;
      bool isEqual = length == separatorLength_;
      for (std::size_t k = 0; isEqual && k < length; ++k)
        isEqual = areEqual(cells_[from + k], cells_[separator_ + k]);
      const bool isWider = areBlanks_ && length > separatorLength_ && areBlanks(from, length);
      if (!isEqual && !isWider) break;
      units_.push_back({.at = next, .startsWord = !isEqual});
    }
    return units_.size() > 1;
  }

  /// Joins the letters that make words. Returns the cell to go on behind.
  std::size_t joinUnits() {
    isJoined_ = false;
    // With one blank between letters and more between words, the whole text is set apart. Fewer
    // letters may be initials and lists ("A B  C D").
    constexpr std::size_t manyUnits = 8;
    isAllApart_ =
        units_.size() >= manyUnits &&
        std::any_of(units_.begin(), units_.end(), [](const Unit& unit) { return unit.startsWord; });
    for (std::size_t start = 0; start < units_.size();) {
      std::size_t end = start + 1;
      while (end < units_.size() && !units_[end].startsWord)
        ++end;
      joinPiece(start, end);
      start = end;
    }
    // If nothing was joined, the last letter may begin the next group.
    return isJoined_ ? units_.back().at : units_.back().at - 1;
  }

  void joinPiece(std::size_t start, std::size_t end) {
    const std::size_t size = end - start;
    if (size < 2) return;
    letters_.clear();
    std::size_t letters = 0;
    for (std::size_t i = start; i < end; ++i) {
      const Cell& cell = cells_[units_[i].at];
      if (isLatin(cell)) ++letters;
      letters_ += static_cast<char>(plainLetter(cell) | 0x20U);
    }
    if (isAllApart_) return removeBetween(start, end);
    if (2 * letters < size || letters < 2) return;
    const std::size_t last = units_[end - 1].at;
    const bool isPointed = separatorLength_ == 1 && cells_[separator_].kind == Kind::stop;
    const bool endsWithPoint =
        isPointed && last + 1 < cells_.size() && cells_[last + 1].kind == Kind::stop;
    if (endsWithPoint && size <= 3) return joinAbbreviation(start, end);

    // Letters that make no known words are joined only where there are so many that they are no
    // initials, options or abbreviations. Signs between all letters are rarer in those than blanks.
    constexpr std::size_t longEnough = 5;
    constexpr std::size_t longEnoughBetweenSigns = 4;
    const auto& borders = letters == size ? segmenter_.segment(letters_) : noBorders_;
    if (size == 2 && (!areBlanks_ || borders.size() != 1)) return;
    if (borders.empty() && size < (areBlanks_ ? longEnough : longEnoughBetweenSigns)) return;
    removeBetween(start, end);
    for (const std::size_t border : borders)
      if (border < size) cells_[units_[start + border].at].inserted = Insertion::blank;
  }

  /// "e.g." and "U.S.A." lose their points; "a.m." keeps the last where a sentence may end with it.
  void joinAbbreviation(std::size_t start, std::size_t end) {
    const std::size_t point = units_[end - 1].at + 1;
    std::size_t next = point + 1;
    while (next < cells_.size() && cells_[next].kind == Kind::blank)
      ++next;
    const bool isTime = letters_ == "am" || letters_ == "pm";
    const bool mayEnd = next >= cells_.size() || cells_[next].kind == Kind::lineBreak ||
                        cells_[next].kind == Kind::stop || (isTime && isUpper(cells_[next]));
    removeBetween(start, end);
    if (!mayEnd) remove(cells_[point]);
  }

  void removeBetween(std::size_t start, std::size_t end) {
    isChanged_ = true;
    isJoined_ = true;
    for (std::size_t i = start; i + 1 < end; ++i)
      for (std::size_t k = units_[i].at + 1; k < units_[i + 1].at; ++k)
        remove(cells_[k]);
  }

  Cells& cells_;
  Segmenter& segmenter_;
  std::vector<Unit> units_;
  std::string letters_;
  const std::vector<std::size_t> noBorders_;
  std::size_t separator_ = 0;
  std::size_t separatorLength_ = 0;
  bool areBlanks_ = false;
  bool isAllApart_ = false;
  bool isJoined_ = false;
  bool isChanged_ = false;
};

// ---- Broken words

/// Makes words whole that a hyphen, a sign or the end of a line breaks.
class WordMender {
 public:
  explicit WordMender(Cells& cells) : cells_(cells) {}

  bool mend() {
    for (std::size_t i = 1; i + 1 < cells_.size(); ++i) {
      const Cell& cell = cells_[i];
      const bool mayBreak = cell.kind == Kind::lineBreak || cell.kind == Kind::stop ||
                            isBreakingSign(cell.scalar) || isStraySign(cell.scalar);
      if (!mayBreak || !isLatin(cells_[i - 1])) continue;
      if (cell.kind == Kind::lineBreak) {
        i = mendLine(i, i, false);
      } else if (isLatin(cells_[i + 1]) && cell.scalar != U'=') {
        i = mendWithin(i);
      } else if (isSpace(cells_[i + 1]) && (cell.scalar == U'-' || cell.scalar == U'=')) {
        i = mendLine(i, i + 1, true);
      }
    }
    return isChanged_;
  }

 private:
  static bool isBreakingSign(char32_t scalar) {
    return scalar == U'-' || scalar == U'_' || scalar == U'=';
  }

  /// Signs that have no ordinary use between the letters of a word.
  static bool isStraySign(char32_t scalar) {
    constexpr std::u32string_view signs = U"*~^\u00B7\u2022\u2024\u22C5\u30FB\u25CF\u2219";
    return signs.find(scalar) != std::u32string_view::npos;
  }

  [[nodiscard]] std::size_t startOfWord(std::size_t end) const {
    while (end > 0 && isLatin(cells_[end - 1]))
      --end;
    return end;
  }

  [[nodiscard]] std::size_t endOfWord(std::size_t start) const {
    while (start < cells_.size() && isLatin(cells_[start]))
      ++start;
    return start;
  }

  void add(Word& word, std::size_t start, std::size_t end) const {
    // Nothing longer is a word.
    end = std::min(end, start + longestWord + 1);
    for (std::size_t i = start; i < end; ++i)
      word.add(cells_[i].scalar);
  }

  [[nodiscard]] bool isKnown(std::size_t start, std::size_t end) const {
    Word word;
    add(word, start, end);
    return word.isKnown();
  }

  void removeCells(std::size_t start, std::size_t end) {
    for (; start < end; ++start)
      remove(cells_[start]);
    isChanged_ = true;
  }

  /// Mends a word that a line break divides, with or without the sign at `sign`. Returns where to
  /// go on.
  std::size_t mendLine(std::size_t sign, std::size_t space, bool hasSign) {
    std::size_t lineBreaks = 0;
    std::size_t next = space;
    for (; next < cells_.size(); ++next) {
      const Cell& cell = cells_[next];
      const bool isQuoteMark = lineBreaks > 0 && (cell.scalar == U'>' || cell.scalar == U'|');
      if (cell.kind == Kind::lineBreak) {
        const bool isPair = cell.scalar == U'\n' && cells_[next - 1].scalar == U'\r';
        lineBreaks += isPair ? 0 : 1;
      } else if (cell.kind != Kind::blank && !isQuoteMark) {
        break;
      }
    }
    const std::size_t goOn = next > 0 ? next - 1 : 0;
    if (next >= cells_.size() || !isLatin(cells_[next]) || lineBreaks > 1) return goOn;

    const std::size_t first = startOfWord(sign);
    const std::size_t end = endOfWord(next);
    Word whole;
    add(whole, first, sign);
    add(whole, next, end);
    const bool areWords = isKnown(first, sign) && isKnown(next, end);
    if (areWords || (isUpper(cells_[next]) && !isUpper(cells_[sign - 1]))) {
      // "sign-in" at the end of a line keeps its hyphen.
      if (hasSign && lineBreaks == 1 && cells_[sign].scalar == U'-' && !whole.isKnown())
        removeCells(sign + 1, next);
      else if (hasSign && lineBreaks == 1 && whole.isKnown())
        removeCells(sign, next);
      return goOn;
    }
    if (whole.isKnown() || (hasSign && lineBreaks == 1)) removeCells(sign, next);
    return goOn;
  }

  /// Mends a word that one sign divides, once or more often. Returns where to go on.
  std::size_t mendWithin(std::size_t sign) {
    const char32_t separator = cells_[sign].scalar;
    const std::size_t first = startOfWord(sign);
    std::size_t end = endOfWord(sign + 1);
    bool areWords = isKnown(first, sign) && isKnown(sign + 1, end);
    Word whole;
    add(whole, first, sign);
    add(whole, sign + 1, end);
    while (end + 1 < cells_.size() && cells_[end].scalar == separator && isLatin(cells_[end + 1])) {
      const std::size_t behind = endOfWord(end + 1);
      areWords = areWords && isKnown(end + 1, behind);
      if (whole.size() <= longestWord) add(whole, end + 1, behind);
      end = behind;
    }
    if ((!areWords || isStraySign(separator)) && !isOfAddress(first, end) && whole.isKnown())
      for (std::size_t i = sign; i < end; ++i)
        if (!isLatin(cells_[i])) removeCells(i, i + 1);
    return end - 1;
  }

  /// Whether its neighbours make it a part of an address.
  [[nodiscard]] bool isOfAddress(std::size_t start, std::size_t end) const {
    const auto isSign = [&](std::size_t i) {
      return cells_[i].scalar == U'@' || cells_[i].scalar == U'/';
    };
    return (start > 0 && isSign(start - 1)) || (end < cells_.size() && isSign(end));
  }

  Cells& cells_;
  bool isChanged_ = false;
};

// ---- Digits and signs for letters

class SignReader {
 public:
  explicit SignReader(Cells& cells) : cells_(cells) {}

  bool read() {
    findTokens();
    if (!hasSigns_) return false;
    std::size_t words = 0;
    std::size_t spelt = 0;
    for (const Token& token : tokens_) {
      if (token.signs == 0)
        ++words;
      else if (token.letters > 0 && !isMeasure(token) && isSpelt(token, false))
        ++spelt;
    }
    // Where many words are spelt with digits, so may be numbers and names.
    constexpr std::size_t fewSpelt = 2;
    if (spelt >= fewSpelt && 3 * spelt >= words)
      for (const Token& token : tokens_)
        if (token.signs > 0 && !isAmount(token))
          isSpelt(token, token.letters > 0 || isEnding(token));
    return isChanged_;
  }

 private:
  /// Letters, digits and signs in a row.
  struct Token {
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t letters = 0;
    std::size_t signs = 0;
    bool isSmall = false;  ///< has a small letter
  };

  static bool isSign(const Cell& cell) {
    return cell.kind == Kind::digit || (cell.kind == Kind::sign && !lettersOf(cell).empty());
  }

  /// Exclamation marks end more sentences than they stand for letters at the end of words.
  [[nodiscard]] bool isPart(std::size_t i) const {
    const Cell& cell = cells_[i];
    if (cell.scalar != U'!' && cell.scalar != U'|') return isLatin(cell) || isSign(cell);
    return i + 1 < cells_.size() && isLatin(cells_[i + 1]);
  }

  void findTokens() {
    for (std::size_t i = 0; i < cells_.size();) {
      if (!isPart(i)) {
        ++i;
        continue;
      }
      Token token{.start = i};
      for (; i < cells_.size() && isPart(i); ++i) {
        if (isLatin(cells_[i])) {
          ++token.letters;
          token.isSmall = token.isSmall || !isUpper(cells_[i]);
        } else {
          ++token.signs;
        }
      }
      token.end = i;
      hasSigns_ = hasSigns_ || token.signs > 0;
      if (token.letters + token.signs <= longestWord) tokens_.push_back(token);
    }
  }

  /// "100k", "15th" and "2.5k" are numbers.
  [[nodiscard]] bool isMeasure(const Token& token) const {
    std::size_t digits = token.start;
    while (digits < token.end && cells_[digits].kind == Kind::digit)
      ++digits;
    constexpr std::size_t longestUnit = 2;
    const std::size_t rest = token.end - digits;
    const bool isFraction =
        token.start > 1 && cells_[token.start - 2].kind == Kind::digit &&
        (cells_[token.start - 1].scalar == U'.' || cells_[token.start - 1].scalar == U',');
    return rest > 0 && rest == token.letters && rest <= longestUnit &&
           (digits - token.start >= 2 || (isFraction && digits > token.start));
  }

  /// Whether no letter is in it, and it is a sum of money or a part of a longer number.
  [[nodiscard]] bool isAmount(const Token& token) const {
    if (token.letters > 0) return false;
    const auto isOfNumber = [&](std::size_t i) {
      constexpr std::u32string_view signs = U".,:/%#-$+@";
      return signs.find(cells_[i].scalar) != std::u32string_view::npos;
    };
    const std::size_t before = token.start;
    const bool isJoined =
        before > 1 && isOfNumber(before - 1) && cells_[before - 2].kind == Kind::digit;
    const bool isContinued = token.end + 1 < cells_.size() && isOfNumber(token.end) &&
                             cells_[token.end + 1].kind == Kind::digit;
    return isJoined || isContinued || cells_[before].kind != Kind::digit;
  }

  /// Whether it stands for the letters behind an apostrophe.
  [[nodiscard]] bool isEnding(const Token& token) const {
    return token.end - token.start <= 2 && token.start > 1 &&
           (cells_[token.start - 1].scalar == U'\'' ||
            cells_[token.start - 1].scalar == U'\u2019') &&
           isLatin(cells_[token.start - 2]);
  }

  /// Tries the letters that the signs may stand for and writes the first word found, or else, if
  /// `inAnyCase`, the likeliest letters.
  bool isSpelt(const Token& token, bool inAnyCase) {
    std::size_t ways = 1;
    constexpr std::size_t mostWays = 16;
    for (std::size_t i = token.start; i < token.end; ++i)
      if (!isLatin(cells_[i])) ways = std::min(ways * lettersOf(cells_[i]).size(), mostWays);
    for (std::size_t way = 0; way < ways; ++way) {
      Word word;
      std::size_t rest = way;
      for (std::size_t i = token.start; i < token.end; ++i)
        word.add(isLatin(cells_[i]) ? plainLetter(cells_[i]) : letterOf(cells_[i], rest));
      if (!word.isKnown()) continue;
      spell(token, way);
      return true;
    }
    if (!inAnyCase) return false;
    spell(token, 0);
    return true;
  }

  void spell(const Token& token, std::size_t way) {
    for (std::size_t i = token.start; i < token.end; ++i) {
      if (isLatin(cells_[i])) continue;
      const char32_t letter = letterOf(cells_[i], way);
      const bool isCapital = !token.isSmall && token.letters > 0;
      replace(cells_[i], isCapital ? letter - 0x20 : letter);
    }
    isChanged_ = true;
  }

  Cells& cells_;
  std::vector<Token> tokens_;
  bool hasSigns_ = false;
  bool isChanged_ = false;
};

// ---- Blanks that were moved

class BlankMover {
 public:
  BlankMover(Cells& cells, Segmenter& segmenter) : cells_(cells), segmenter_(segmenter) {}

  bool move() {
    for (std::size_t start = 0; start < cells_.size();) {
      const std::size_t end = findWords(start);
      // All words at once where many are unknown, or else around each unknown one.
      if (counts_.mayHaveMovedBlanks() && !(counts_.areManyUnknown() && isMoved(start, end, true)))
        moveAroundUnknown();
      start = std::max(end, start + 1);
    }
    return isChanged_;
  }

 private:
  struct Found {
    std::size_t start = 0;
    std::size_t end = 0;
    bool isKnown = false;
  };

  static bool isPlainLetter(const Cell& cell) { return cell.kind == Kind::letter; }

  /// Collects the words that only blanks separate. Returns their end.
  std::size_t findWords(std::size_t start) {
    counts_ = {};
    words_.clear();
    std::size_t end = start;
    while (end < cells_.size() && (isPlainLetter(cells_[end]) || cells_[end].kind == Kind::blank)) {
      Word word;
      const std::size_t first = end;
      while (end < cells_.size() && isPlainLetter(cells_[end])) {
        if (word.size() <= longestWord) word.add(cells_[end].scalar);
        ++end;
      }
      if (end > first) {
        const bool isName =
            end - first > 1 && isUpper(cells_[first]) && !isUpper(cells_[first + 1]);
        counts_.add(end - first, word.isKnown(), isName);
        words_.push_back({.start = first, .end = end, .isKnown = word.isKnown()});
      }
      while (end < cells_.size() && cells_[end].kind == Kind::blank)
        ++end;
    }
    return end;
  }

  /// Divides each unknown word with its two neighbours anew, if all of it is known words.
  void moveAroundUnknown() {
    for (std::size_t i = 0; i < words_.size(); ++i) {
      if (words_[i].isKnown) continue;
      const std::size_t first = i > 0 ? i - 1 : 0;
      std::size_t last = i;
      while (last + 1 < words_.size() && (!words_[last].isKnown || !words_[last + 1].isKnown ||
                                          (last + 2 < words_.size() && !words_[last + 2].isKnown)))
        ++last;
      static_cast<void>(isMoved(words_[first].start, words_[last].end, false));
      i = last;
    }
  }

  bool isMoved(std::size_t start, std::size_t end, bool mayHaveUnknown) {
    letters_.clear();
    blanks_.clear();
    for (std::size_t i = start; i < end; ++i) {
      if (isPlainLetter(cells_[i]))
        letters_ += static_cast<char>(cells_[i].scalar | 0x20U);
      else
        blanks_.push_back(letters_.size());
    }
    const auto& borders = segmenter_.segment(letters_, blanks_);
    // Random letters contain short words by chance, so the words must have three letters on
    // average.
    constexpr std::size_t meanLength = 3;
    if (borders.empty() || borders.size() * meanLength > letters_.size() ||
        (!mayHaveUnknown && segmenter_.unknownLetters() > 0) ||
        2 * segmenter_.commonLetters() < letters_.size())
      return false;
    std::size_t letter = 0;
    auto border = borders.begin();
    bool isAfterBlank = true;
    for (std::size_t i = start; i < end; ++i) {
      if (!isPlainLetter(cells_[i])) {
        // Blanks at the ends stay.
        const bool isWithin = letter > 0 && letter < letters_.size();
        if (isWithin && (letter != *border || isAfterBlank)) {
          remove(cells_[i]);
          isChanged_ = true;
        } else {
          isAfterBlank = true;
        }
        continue;
      }
      if (letter > 0 && letter == *border && !isAfterBlank) {
        cells_[i].inserted = Insertion::blank;
        isChanged_ = true;
      }
      if (letter == *border) ++border;
      isAfterBlank = false;
      ++letter;
    }
    return true;
  }

  Cells& cells_;
  Segmenter& segmenter_;
  KnownWords counts_;
  std::vector<Found> words_;
  std::string letters_;
  std::vector<std::size_t> blanks_;
  bool isChanged_ = false;
};

// ---- Sums of money

/// Writes every sum in the form that rules made for dollars know: "$12,499".
class AmountReader {
 public:
  explicit AmountReader(Cells& cells) : cells_(cells) {}

  bool read() {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
      const bool isStart =
          cells_[i].kind == Kind::digit &&
          (i == 0 || !isAlphanumeric(cells_[i - 1]) || isCurrency(startOfWord(i), i));
      if (isStart) i = readNumber(i) - 1;
    }
    return isChanged_;
  }

 private:
  [[nodiscard]] bool isDigit(std::size_t i) const {
    return i < cells_.size() && cells_[i].kind == Kind::digit;
  }

  [[nodiscard]] bool isBlank(std::size_t i) const {
    return i < cells_.size() && cells_[i].kind == Kind::blank;
  }

  static bool isCurrencySign(const Cell& cell) {
    constexpr std::u32string_view signs = U"$\u00A3\u00A5\u0E3F";
    // All other currency signs are in one block of Unicode.
    return (cell.scalar >= U'\u20A0' && cell.scalar <= U'\u20C0') ||
           signs.find(cell.scalar) != std::u32string_view::npos;
  }

  [[nodiscard]] std::size_t endOfDigits(std::size_t i) const {
    while (isDigit(i))
      ++i;
    return i;
  }

  /// The end of the number. Groups of three digits may stand behind blanks or apostrophes.
  std::size_t endOfNumber(std::size_t start) {
    std::size_t end = endOfDigits(start);
    if (end - start <= group && hasGroups(end)) {
      const char32_t separator = cells_[end].scalar;
      while (isDigit(end + 1) && cells_[end].scalar == separator) {
        replace(cells_[end], U',');
        isChanged_ = true;
        end = endOfDigits(end + 1);
      }
    }
    while (isDigit(end + 1) && (cells_[end].scalar == U'.' || cells_[end].scalar == U','))
      end = endOfDigits(end + 1);
    return end;
  }

  /// Whether all groups from a blank or an apostrophe on have three digits: a telephone number is
  /// no sum.
  [[nodiscard]] bool hasGroups(std::size_t at) const {
    if (at >= cells_.size() || !isDigit(at + 1)) return false;
    const char32_t separator = cells_[at].scalar;
    if (!isBlank(at) && separator != U'\'' && separator != U'\u2019') return false;
    // More groups than this are a list of numbers.
    constexpr int mostGroups = 5;
    for (int groups = 0; at < cells_.size() && cells_[at].scalar == separator && isDigit(at + 1);
         ++groups) {
      const std::size_t end = endOfDigits(at + 1);
      if (end - at - 1 != group || groups == mostGroups) return false;
      at = end;
    }
    return true;
  }

  std::size_t readNumber(std::size_t start) {
    std::size_t end = endOfNumber(start);
    const bool hasCurrency = readBefore(start) || readBehind(start, end);
    const bool isThousands = end < cells_.size() && (cells_[end].scalar | 0x20U) == U'k' &&
                             (end + 1 == cells_.size() || !isAlphanumeric(cells_[end + 1]));
    if (isThousands && (hasCurrency || isMoved(start))) {
      replace(cells_[end], U'0');
      cells_[end].inserted = Insertion::thousands;
      isChanged_ = true;
      ++end;
    }
    return end;
  }

  /// A sign or a code before the number.
  bool readBefore(std::size_t start) {
    std::size_t end = start;
    while (end > 0 && isBlank(end - 1) && start - end < 2)
      --end;
    if (end == 0) return false;
    if (isCurrencySign(cells_[end - 1])) {
      std::size_t first = end - 1;
      constexpr std::size_t longestCountry = 3;
      while (first > 0 && isUpper(cells_[first - 1]) && end - 1 - first <= longestCountry)
        --first;
      const bool isCountry =
          end - 1 - first <= longestCountry && (first == 0 || !isAlphanumeric(cells_[first - 1]));
      write(isCountry ? first : end - 1, end - 1, start);
      return true;
    }
    const std::size_t first = startOfWord(end);
    if (first == end || !isCurrency(first, end)) return false;
    write(first, first, start);
    return true;
  }

  /// Replaces the currency from `first` up to the number by one sign.
  void write(std::size_t first, std::size_t sign, std::size_t number) {
    for (std::size_t i = first; i < number; ++i) {
      if (i == sign) {
        if (cells_[i].scalar == U'$') continue;
        replace(cells_[i], U'$');
      } else {
        remove(cells_[i]);
      }
      isChanged_ = true;
    }
  }

  /// A sign, a code or a name behind the number.
  bool readBehind(std::size_t start, std::size_t end) {
    std::size_t first = end;
    while (isBlank(first) && first - end < 2)
      ++first;
    if (first >= cells_.size()) return false;
    std::size_t behind = first + 1;
    if (!isCurrencySign(cells_[first])) {
      behind = first;
      while (behind < cells_.size() && isLatin(cells_[behind]) && behind - first <= longestName)
        ++behind;
      if (behind == first || !isCurrency(first, behind)) return false;
    } else if (behind < cells_.size() && isAlphanumeric(cells_[behind])) {
      return false;
    }
    for (std::size_t i = end; i < behind; ++i)
      remove(cells_[i]);
    cells_[start].inserted = Insertion::currency;
    return isChanged_ = true;
  }

  [[nodiscard]] std::size_t startOfWord(std::size_t end) const {
    std::size_t start = end;
    while (start > 0 && isLatin(cells_[start - 1]) && end - start <= longestName)
      --start;
    return start;
  }

  template <std::size_t size>
  [[nodiscard]] bool isOneOf(const std::array<std::string_view, size>& words, std::size_t start,
                             std::size_t end) const {
    std::array<char, longestName> word{};
    if (start == end || end - start > word.size()) return false;
    for (std::size_t i = start; i < end; ++i)
      word[i - start] = static_cast<char>(plainLetter(cells_[i]) | 0x20U);
    return std::find(words.begin(), words.end(), std::string_view(word.data(), end - start)) !=
           words.end();
  }

  [[nodiscard]] bool isCurrency(std::size_t start, std::size_t end) const {
    constexpr auto names = std::to_array<std::string_view>(
        {"eur", "usd",  "gbp",   "chf",    "cad",     "aud",    "nzd",    "jpy",     "cny",
         "inr", "brl",  "sek",   "nok",    "dkk",     "pln",    "sgd",    "hkd",     "zar",
         "ngn", "euro", "euros", "dollar", "dollars", "pounds", "francs", "franken", "reais"});
    return isOneOf(names, start, end);
  }

  /// Whether the word before the number is a verb that moves money.
  [[nodiscard]] bool isMoved(std::size_t number) const {
    std::size_t end = number;
    while (end > 0 && isBlank(end - 1))
      --end;
    constexpr auto verbs = std::to_array<std::string_view>(
        {"wire", "transfer", "remit", "send", "pay", "release", "deposit", "invest"});
    return isOneOf(verbs, startOfWord(end), end);
  }

  static constexpr std::size_t longestName = 8;
  static constexpr std::size_t group = 3;

  Cells& cells_;
  bool isChanged_ = false;
};

// ---- White space

/// Reads blanks in a row as one, and the line breaks between words that have a line each as blanks.
/// No digest contains them. Other line breaks stay, as a sentence may begin there, and so do the
/// blanks behind the end of a sentence.
class WhiteSpaceReader {
 public:
  explicit WhiteSpaceReader(Cells& cells) : cells_(cells) {}

  bool read() {
    bool startsLine = true;
    for (std::size_t i = 0; i < cells_.size();) {
      if (!isSpace(cells_[i])) {
        ++i;
        continue;
      }
      const std::size_t start = i;
      i = endOfSpace(start);
      if (i == cells_.size()) break;
      const std::size_t lineBreaks = lineBreaksIn(start, i);
      const bool isOneBlank = lineBreaks == 0 ? start > 0 && !endsSentence(cells_[start - 1])
                                              : lineBreaks == 1 && startsLine && divides(start, i);
      if (isOneBlank) write(start, i);
      startsLine = lineBreaks > 0;
    }
    return isChanged_;
  }

 private:
  [[nodiscard]] std::size_t endOfSpace(std::size_t i) const {
    while (i < cells_.size() && isSpace(cells_[i]))
      ++i;
    return i;
  }

  [[nodiscard]] std::size_t lineBreaksIn(std::size_t start, std::size_t end) const {
    std::size_t lineBreaks = 0;
    for (std::size_t i = start; i < end; ++i) {
      const bool isPair = cells_[i].scalar == U'\n' && i > start && cells_[i - 1].scalar == U'\r';
      if (cells_[i].kind == Kind::lineBreak && !isPair) ++lineBreaks;
    }
    return lineBreaks;
  }

  static bool endsSentence(const Cell& cell) {
    return cell.kind == Kind::stop || cell.scalar == U'!' || cell.scalar == U'?';
  }

  /// Whether a word ends before the line break and the next one has its line for itself.
  [[nodiscard]] bool divides(std::size_t start, std::size_t end) const {
    const auto isPart = [](const Cell& cell) {
      return isLatin(cell) || cell.kind == Kind::digit || cell.scalar == U'$';
    };
    if (start == 0 || !isPart(cells_[end])) return false;
    if (!isPart(cells_[start - 1]) && cells_[start - 1].scalar != U',') return false;
    std::size_t next = end;
    while (next < cells_.size() && !isSpace(cells_[next]))
      ++next;
    const std::size_t behind = endOfSpace(next);
    return behind == cells_.size() || lineBreaksIn(next, behind) > 0;
  }

  void write(std::size_t start, std::size_t end) {
    if (end - start == 1 && cells_[start].scalar == U' ') return;
    replace(cells_[start], U' ');
    cells_[start].end = cells_[end - 1].end;
    for (std::size_t i = start + 1; i < end; ++i)
      remove(cells_[i]);
    isChanged_ = true;
  }

  Cells& cells_;
  bool isChanged_ = false;
};

// ---- Points that end no sentence

/// Abbreviations that end with a point, in English, German, French, Spanish, Portuguese and
/// Dutch. Those of `onlyBeforeNumbers` are ordinary words elsewhere.
constexpr auto abbreviations = std::to_array<std::string_view>(
    {"abs",  "acct", "admin", "adv",  "amt",  "anh",  "apt",  "approx", "apr",  "art",  "assoc",
     "asst", "aug",  "av",    "ave",  "avda", "betr", "bijv", "bldg",   "blvd", "bzgl", "bzw",
     "capt", "cf",   "cia",   "cie",  "cmdr", "col",  "cpl",  "ct",     "dec",  "dept", "dhr",
     "dipl", "dir",  "dr",    "dra",  "drs",  "eg",   "esq",  "est",    "evtl", "excl", "ext",
     "feb",  "fl",   "fr",    "ft",   "gen",  "ggf",  "gov",  "hon",    "hr",   "hrn",  "ie",
     "incl", "ing",  "inkl",  "jan",  "jr",   "jul",  "jun",  "lic",    "lt",   "ltda", "maj",
     "mevr", "mgr",  "min",   "mio",  "mme",  "mr",   "mrd",  "mrs",    "ms",   "mt",   "nov",
     "oct",  "okt",  "phd",   "prof", "rd",   "rep",  "resp", "rev",    "rua",  "sen",  "sept",
     "sgt",  "sr",   "sra",   "sta",  "str",  "supt", "zzgl", "vs"});
constexpr auto onlyBeforeNumbers = std::to_array<std::string_view>(
    {"a",   "acc",  "aprox", "art", "bal", "ca",  "cap", "ch",  "ed", "eq",
     "fig", "inv",  "iss",   "lit", "no",  "nos", "nr",  "num", "op", "p",
     "pag", "para", "pos",   "pp",  "ref", "sec", "tel", "vol"});
constexpr auto onlyBeforeSmallLetters = std::to_array<std::string_view>(
    {"bros", "co", "corp", "etc", "inc", "lda", "ltd", "st", "usw", "sq", "univ", "plc"});

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

constexpr std::size_t longestAbbreviation = 6;

class PointReader {
 public:
  explicit PointReader(Cells& cells) : cells_(cells) {}

  bool read() {
    for (std::size_t i = 0; i < cells_.size(); ++i)
      if (cells_[i].kind == Kind::stop) i = readPoint(i);
    return isChanged_;
  }

 private:
  /// The hyphenation point: looks like a full stop, and no rule takes it for one.
  static constexpr char32_t pointOfAddress = U'\u2027';

  [[nodiscard]] const Cell* at(std::size_t i) const {
    return i < cells_.size() ? &cells_[i] : nullptr;
  }

  void change(std::size_t i, char32_t scalar) {
    replace(cells_[i], scalar);
    isChanged_ = true;
  }

  void leaveOut(std::size_t i) {
    remove(cells_[i]);
    isChanged_ = true;
  }

  /// The cell to go on behind.
  std::size_t readPoint(std::size_t point) {
    std::size_t end = point;
    while (end < cells_.size() && cells_[end].kind == Kind::stop)
      ++end;
    if (end - point > 1) {
      readEllipsis(point, end);
      return end - 1;
    }
    const Cell* before = point > 0 ? &cells_[point - 1] : nullptr;
    const Cell* after = at(point + 1);
    if (after == nullptr) return point;
    const bool isWithin = isAlphanumeric(*after) && before != nullptr && isAlphanumeric(*before);
    if (isWithin && point >= endOfToken_) findToken(point);
    if (isWithin && isAddress_) {
      if (goesOn_) readAddress(point);
      return endOfToken_ - 1;
    }
    if (after->kind == Kind::digit && (before == nullptr || before->kind != Kind::letter)) {
      // A number, a time, a date, a version.
      change(point, isInTelephoneNumber(point) ? U'-' : U',');
    } else if (isWithin) {
      // Two words without a blank between them, or a name with a point in it.
      if (isNumbered_)
        change(point, pointOfAddress);
      else if (!isUpper(*after))
        change(point, U' ');
    } else if (before != nullptr && isAlphanumeric(*before)) {
      readAbbreviation(point);
    }
    return point;
  }

  /// Whether it divides groups of three, three and four digits.
  [[nodiscard]] bool isInTelephoneNumber(std::size_t point) const {
    const auto isSeparator = [&](std::size_t i) {
      return cells_[i].kind == Kind::stop || cells_[i].scalar == U'-';
    };
    constexpr std::size_t mostDigits = 16;
    std::size_t start = point;
    while (start > 0 && point - start < mostDigits &&
           (cells_[start - 1].kind == Kind::digit || isSeparator(start - 1)))
      --start;
    std::array<std::size_t, 3> lastGroups{};
    std::size_t i = start;
    for (; i < cells_.size() && i - start < 2 * mostDigits; ++i) {
      if (cells_[i].kind == Kind::digit)
        ++lastGroups[2];
      else if (isSeparator(i) && i + 1 < cells_.size() && cells_[i + 1].kind == Kind::digit)
        lastGroups = {lastGroups[1], lastGroups[2], 0};
      else
        break;
    }
    return lastGroups == std::array<std::size_t, 3>{3, 3, 4};
  }

  void readEllipsis(std::size_t start, std::size_t end) {
    std::size_t next = end;
    while (next < cells_.size() && cells_[next].kind == Kind::blank)
      ++next;
    if (next >= cells_.size() || cells_[next].kind == Kind::lineBreak) return;
    for (std::size_t i = start; i < end; ++i)
      leaveOut(i);
    if (end < cells_.size() && !isSpace(cells_[end])) cells_[end].inserted = Insertion::blank;
  }

  /// Finds the characters around the point, up to the next blank on each side.
  void findToken(std::size_t point) {
    std::size_t start = point;
    while (start > 0 && !isSpace(cells_[start - 1]))
      --start;
    std::size_t end = point;
    while (end < cells_.size() && !isSpace(cells_[end]))
      ++end;
    // Punctuation at its end belongs to the sentence.
    while (end > point + 1 && !isAlphanumeric(cells_[end - 1]))
      --end;
    isAddress_ = isHostName(point, end);
    isNumbered_ = false;
    for (std::size_t i = start; i < end; ++i) {
      isAddress_ = isAddress_ || cells_[i].scalar == U'@' || cells_[i].scalar == U'/';
      isNumbered_ = isNumbered_ || cells_[i].kind == Kind::digit;
    }
    endOfToken_ = end;
    goesOn_ = isAddress_ && goesOn(end);
  }

  /// Replaces the points of an address by a character that ends no sentence.
  void readAddress(std::size_t point) {
    for (std::size_t i = point; i < endOfToken_; ++i) {
      const char32_t scalar = cells_[i].scalar;
      if (scalar == U'.' || scalar == U'?' || scalar == U'!') change(i, pointOfAddress);
    }
  }

  /// Whether the sentence goes on behind an address.
  [[nodiscard]] bool goesOn(std::size_t end) const {
    bool isNextLine = false;
    while (end < cells_.size() && !isAlphanumeric(cells_[end])) {
      if (cells_[end].kind == Kind::stop || cells_[end].scalar == U'!' ||
          cells_[end].scalar == U'?')
        return false;
      if (cells_[end].kind == Kind::lineBreak) {
        if (isNextLine && cells_[end - 1].kind == Kind::lineBreak &&
            cells_[end - 1].scalar != U'\r')
          return false;
        isNextLine = true;
      }
      ++end;
    }
    return end < cells_.size() && !(isNextLine && isUpper(cells_[end]));
  }

  /// Whether the last part is one of the common ends of host names.
  [[nodiscard]] bool isHostName(std::size_t point, std::size_t end) const {
    std::size_t start = end;
    while (start > point && isLatin(cells_[start - 1]))
      --start;
    if (start == end || cells_[start - 1].kind != Kind::stop) return false;
    constexpr auto ends = std::to_array<std::string_view>(
        {"app", "at",   "au", "be",   "biz",  "br",  "ca",  "cc",  "ch",     "cn",
         "co",  "com",  "de", "dev",  "edu",  "es",  "eu",  "exe", "fr",     "gov",
         "in",  "info", "io", "it",   "jp",   "me",  "net", "nl",  "online", "org",
         "pdf", "pt",   "ru", "shop", "site", "top", "tv",  "uk",  "us",     "xyz"});
    return contains(ends, smallLetters(start, end));
  }

  /// Up to `longestAbbreviation` letters.
  [[nodiscard]] std::string_view smallLetters(std::size_t start, std::size_t end) const {
    std::size_t size = 0;
    for (; start < end && size < word_.size(); ++start)
      word_[size++] = static_cast<char>(plainLetter(cells_[start]) | 0x20U);
    return {word_.data(), start < end ? 0 : size};
  }

  void readAbbreviation(std::size_t point) {
    const Cell& after = cells_[point + 1];
    if (after.scalar == U',' || after.scalar == U';' || after.scalar == U':' ||
        after.scalar == U'-' || after.scalar == U'\u2013' || after.scalar == U'\u2014') {
      leaveOut(point);
      return;
    }
    std::size_t next = point + 1;
    while (next < cells_.size() &&
           (cells_[next].kind == Kind::blank || cells_[next].scalar == U')'))
      ++next;
    if (next >= cells_.size() || cells_[next].kind == Kind::lineBreak) {
      // A line may end behind an abbreviation, but a paragraph does not.
      const bool goesOn = next + 1 < cells_.size() && isAlphanumeric(cells_[next + 1]) &&
                          !isUpper(cells_[next + 1]);
      if (!goesOn) return;
      ++next;
    }
    std::size_t start = point;
    while (start > 0 && point - start <= longestAbbreviation && isAlphanumeric(cells_[start - 1]))
      --start;
    if (cells_[point - 1].kind == Kind::digit) {
      if (isOrdinal(start, next)) leaveOut(point);
      return;
    }
    const std::string_view word = smallLetters(start, point);
    if (word.empty()) return;
    const Cell& follower = cells_[next];
    const bool isNumber = follower.kind == Kind::digit || follower.scalar == U'#' ||
                          follower.scalar == U'$' || follower.scalar == U'\u20AC';
    const bool isInitial = word.size() == 1 && isUpper(cells_[start]) && word != "i" &&
                           isUpper(follower) && !isCommonWord(next);
    if (isInitial || contains(abbreviations, word) ||
        (isNumber && contains(onlyBeforeNumbers, word)) ||
        ((isNumber || (isLatin(follower) && !isUpper(follower))) &&
         contains(onlyBeforeSmallLetters, word)))
      leaveOut(point);
  }

  [[nodiscard]] bool isCommonWord(std::size_t start) const {
    std::string word;
    for (; start < cells_.size() && isLatin(cells_[start]) && word.size() <= longestWord; ++start)
      word += static_cast<char>(plainLetter(cells_[start]) | 0x20U);
    return classOf(word) == WordClass::common;
  }

  /// "14. März" is a date; "der 3. brief" is the third.
  [[nodiscard]] bool isOrdinal(std::size_t start, std::size_t next) const {
    // At the start of a line it numbers what follows.
    if (start == 0 || cells_[start - 1].kind == Kind::lineBreak) return false;
    if (!isLatin(cells_[next])) return false;
    if (!isUpper(cells_[next])) return true;
    std::size_t end = next;
    while (end < cells_.size() && end - next < 3 && isLatin(cells_[end]))
      ++end;
    constexpr auto months =
        std::to_array<std::string_view>({"jan", "feb", "mar", "apr", "mai", "jun", "jul", "aug",
                                         "sep", "okt", "nov", "dez", "quart", "jah"});
    return contains(months, smallLetters(next, end));
  }

  Cells& cells_;
  mutable std::array<char, longestAbbreviation> word_{};
  std::size_t endOfToken_ = 0;
  bool isAddress_ = false;
  bool isNumbered_ = false;
  bool goesOn_ = false;
  bool isChanged_ = false;
};

}  // namespace

std::optional<char32_t> composed(char32_t letter, char32_t joined) {
  static const UNormalizer2* const normalizer = [] {
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* instance = unorm2_getNFCInstance(&status);
    requireSuccess(status);
    return instance;
  }();
  const UChar32 one =
      unorm2_composePair(normalizer, static_cast<UChar32>(letter), static_cast<UChar32>(joined));
  return one < 0 ? std::nullopt : std::optional(static_cast<char32_t>(one));
}

bool mayBeAbbreviation(const char* letters, std::size_t length) {
  if (length > longestAbbreviation) return false;
  if (length < 2) return true;
  std::array<char, longestAbbreviation> small{};
  for (std::size_t i = 0; i < length; ++i)
    small[i] = static_cast<char>(letters[i] | 0x20);
  const std::string_view word(small.data(), length);
  return contains(abbreviations, word) || contains(onlyBeforeNumbers, word) ||
         contains(onlyBeforeSmallLetters, word);
}

bool undoDisguises(Cells& cells, const Contents& contents) {
  Segmenter segmenter;
  bool isChanged = false;
  const auto take = [&](bool changes) {
    if (changes) tidy(cells);
    isChanged = isChanged || changes;
    return changes;
  };
  if (!contents.hasLettersOrStops && !contents.hasWideApart) return false;
  bool hasLettersOrDigits = contents.hasLettersOrDigits;
  constexpr int mostRounds = 8;
  for (int round = 0; round < mostRounds; ++round) {
    bool isChangedNow = false;
    if (contents.hasFormsByNeighbour && take(readByNeighbours(cells)))
      isChangedNow = hasLettersOrDigits = true;
    if (contents.hasLettersBeyondAscii) isChangedNow |= take(LetterReader(cells).read());
    if (contents.hasWideLetters) isChangedNow |= take(WideJoiner(cells).join());
    if (hasLettersOrDigits) {
      isChangedNow |= take(LetterJoiner(cells, segmenter).join());
      isChangedNow |= take(WordMender(cells).mend());
      isChangedNow |= take(SignReader(cells).read());
      isChangedNow |= take(BlankMover(cells, segmenter).move());
      isChangedNow |= take(AmountReader(cells).read());
    }
    isChangedNow |= take(PointReader(cells).read());
    isChangedNow |= take(WhiteSpaceReader(cells).read());
    if (!isChangedNow) break;
  }
  return isChanged;
}

}  // namespace quillseal::reading
