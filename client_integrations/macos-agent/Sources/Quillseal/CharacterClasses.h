#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string_view>
#include <vector>

#include "Quillseal/PatternSyntax.h"

namespace quillseal::screening {

/// A class of code points that no pattern tells apart.
using ClassId = std::uint16_t;
/// A letter of the folded patterns, by its index in the alphabet; `otherLetter` is any other.
using Letter = std::uint16_t;
inline constexpr Letter otherLetter = 0;

/// A text as the patterns see it: one element for each code point and one more for the end.
class ClassifiedText {
 public:
  explicit ClassifiedText(std::vector<ClassId> elements) : elements_(std::move(elements)) {}

  /// The number of code points.
  [[nodiscard]] std::size_t size() const { return elements_.size() - 1; }
  /// The class of the code point at `position`; `endClass` behind the last one.
  [[nodiscard]] ClassId classAt(std::size_t position) const {
    return elements_[position] & classMask;
  }
  /// Whether ICU's \b holds before the code point at `position` (or at the end).
  [[nodiscard]] bool isWordBoundary(std::size_t position) const {
    return (elements_[position] & boundaryFlag) != 0;
  }

  static constexpr ClassId endClass = 0;
  static constexpr ClassId boundaryFlag = 0x8000;
  static constexpr ClassId classMask = 0x7FFF;

 private:
  std::vector<ClassId> elements_;
};

/// A set of classes, by its place in `ClassSets`.
using ClassSetId = std::uint16_t;

/// Sets of classes, each kept once, 64 classes to a word.
class ClassSets {
 public:
  explicit ClassSets(std::size_t classCount) : words_(classCount / 64 + 1) {}

  /// REQUIRES: bits.size() == words(). Throws PatternError when there are too many.
  ClassSetId intern(const std::vector<std::uint64_t>& bits);

  [[nodiscard]] std::size_t words() const { return words_; }
  [[nodiscard]] bool contains(ClassSetId set, ClassId id) const {
    return (bits_[set * words_ + id / 64] >> (id % 64) & 1) != 0;
  }
  [[nodiscard]] std::vector<std::uint64_t> bits(ClassSetId set) const;

  /// Forgets what only `intern` needs.
  void finish();
  [[nodiscard]] std::size_t memoryUse() const;

 private:
  std::size_t words_;
  std::vector<std::uint64_t> bits_;
  std::map<std::vector<std::uint64_t>, ClassSetId> indexes_;
};

/// Divides the code points into classes, so that a set of code points becomes a set of classes,
/// and says how each class folds. Immutable once built.
class CharacterClasses {
 public:
  /// `alphabet`: the code points that occur in folded texts; the blank is added.
  CharacterClasses(const SetTable& sets, std::vector<char32_t> alphabet);

  [[nodiscard]] std::size_t count() const { return foldings_.size(); }
  [[nodiscard]] std::size_t letterCount() const { return alphabet_.size() + 1; }

  /// REQUIRES: `c` is in the alphabet.
  [[nodiscard]] Letter letterOf(char32_t c) const;
  /// That of the blank.
  [[nodiscard]] Letter spaceLetter() const { return letterOf(U' '); }
  [[nodiscard]] ClassId classOf(char32_t c) const {
    return pages_[pageOf_[c / pageSize] * pageSize + c % pageSize];
  }
  /// REQUIRES: not `otherLetter`.
  [[nodiscard]] char32_t codePointOf(Letter letter) const { return alphabet_[letter - 1]; }
  /// The full case folding of every member of the class.
  [[nodiscard]] std::span<const Letter> folding(ClassId id) const { return foldings_[id]; }
  /// The classes whose folding contains the letter.
  [[nodiscard]] std::span<const ClassId> classesWith(Letter letter) const {
    return classesWith_[letter];
  }
  /// \w
  [[nodiscard]] bool isWord(ClassId id) const { return (traits_[id] & word) != 0; }
  /// \s
  [[nodiscard]] bool isSpace(ClassId id) const { return (traits_[id] & space) != 0; }
  [[nodiscard]] bool isLineTerminator(ClassId id) const { return (traits_[id] & terminator) != 0; }
  [[nodiscard]] bool isLineFeed(ClassId id) const { return (traits_[id] & lineFeed) != 0; }
  [[nodiscard]] bool isCarriageReturn(ClassId id) const {
    return (traits_[id] & carriageReturn) != 0;
  }
  /// The classes of a set, 64 to a word.
  [[nodiscard]] std::span<const std::uint64_t> classesOf(std::size_t set) const {
    return members_[set];
  }

  /// Any bytes; those that do not form UTF-8 count as U+FFFD.
  [[nodiscard]] ClassifiedText classify(std::string_view text) const;

  [[nodiscard]] std::size_t memoryUse() const;

 private:
  /// Bits of `traits_`.
  enum Trait : std::uint8_t {
    word = 1,
    unnoticed = 2,  ///< \b looks through it
    space = 4,
    terminator = 8,
    lineFeed = 16,
    carriageReturn = 32,
  };

  static constexpr std::size_t pageSize = 64;
  std::vector<char32_t> alphabet_;
  std::vector<std::vector<Letter>> foldings_;
  std::vector<std::vector<ClassId>> classesWith_;
  std::vector<std::vector<std::uint64_t>> members_;
  std::vector<std::uint8_t> traits_;
  std::array<std::uint16_t, 0x110000 / pageSize> pageOf_{};
  std::vector<ClassId> pages_;
};

/// Every code point that the folding of `node` may be compared with.
void collectAlphabet(const Node& node, const SetTable& sets, std::vector<char32_t>& alphabet);

/// Sets of at most this many code points count as alternatives of letters.
inline constexpr std::size_t largestLetterSet = 16;

/// The code points of a set of at most `largestLetterSet`; empty when it has more.
[[nodiscard]] std::vector<char32_t> fewCodePoints(const CodePointRanges& ranges);

}  // namespace quillseal::screening
