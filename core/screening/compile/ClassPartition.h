#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "core/screening/compile/PatternSyntax.h"
#include "core/screening/match/CharacterClasses.h"

namespace quillseal::screening {

/// The bits of one set of classes, 64 to a word.
using ClassBits = std::vector<std::uint64_t>;

/// Sets of classes, each kept once.
class ClassSetPool {
 public:
  explicit ClassSetPool(std::size_t classCount)
      : words_(ClassSets::wordsFor(classCount)), blocks_(ClassSets::blocksFor(classCount)) {}

  /// REQUIRES: bits.size() == words(). Throws PatternError when there are too many.
  ClassSetId intern(const ClassBits& bits);

  [[nodiscard]] std::size_t words() const { return words_; }
  [[nodiscard]] const ClassBits& bits(ClassSetId set) const { return *sets_[set]; }
  [[nodiscard]] ClassSetTable<Owned>& table() { return table_; }

 private:
  /// In `words` of the table.
  std::uint16_t indexOf(std::uint64_t word);

  std::size_t words_;
  std::size_t blocks_;
  ClassSetTable<Owned> table_;
  std::map<ClassBits, ClassSetId> indexes_;
  std::vector<const ClassBits*> sets_;  ///< keys of `indexes_`
  std::map<std::uint64_t, std::uint16_t> wordIndexes_;
  std::map<std::vector<std::uint16_t>, std::uint16_t> blockIndexes_;
};

/// Divides the code points into classes, so that a set of code points becomes a set of classes,
/// and says how each class folds.
class ClassPartition {
 public:
  /// `alphabet`: the code points that occur in folded texts; the blank is added. Throws
  /// PatternError when there are too many classes.
  ClassPartition(const SetTable& sets, std::vector<char32_t> alphabet);

  [[nodiscard]] std::size_t count() const { return table_.traits.size(); }
  [[nodiscard]] std::size_t letterCount() const { return alphabet_.size() + 1; }

  /// REQUIRES: `c` is in the alphabet.
  [[nodiscard]] Letter letterOf(char32_t c) const;
  /// That of the blank.
  [[nodiscard]] Letter spaceLetter() const { return letterOf(U' '); }
  /// REQUIRES: not `otherLetter`.
  [[nodiscard]] char32_t codePointOf(Letter letter) const { return alphabet_[letter - 1]; }
  [[nodiscard]] ClassId classOf(char32_t c) const;
  /// The full case folding of every member of the class.
  [[nodiscard]] std::span<const Letter> folding(ClassId id) const;
  /// The classes whose folding contains the letter.
  [[nodiscard]] std::span<const ClassId> classesWith(Letter letter) const {
    return classesWith_[letter];
  }
  [[nodiscard]] bool isWord(ClassId id) const { return (table_.traits[id] & isWordTrait) != 0; }
  [[nodiscard]] bool isSpace(ClassId id) const { return (table_.traits[id] & isSpaceTrait) != 0; }
  /// The classes of a set.
  [[nodiscard]] const ClassBits& classesOf(std::size_t set) const { return members_[set]; }

  [[nodiscard]] CharacterClassTable<Owned>& table() { return table_; }

 private:
  /// How each code point folds whose folding contains a letter of the alphabet.
  [[nodiscard]] std::map<char32_t, std::vector<Letter>> foldingsIntoAlphabet() const;
  /// `classFrom`: where intervals of code points begin, ascending from 0, and their classes.
  /// What the pages say of a class.
  [[nodiscard]] std::uint16_t entryOf(ClassId id) const;
  void fillPages(std::span<const std::pair<char32_t, ClassId>> classFrom);

  std::vector<char32_t> alphabet_;
  std::vector<std::vector<ClassId>> classesWith_;
  std::vector<ClassBits> members_;
  CharacterClassTable<Owned> table_;
};

/// Every code point that the folding of `node` may be compared with.
void collectAlphabet(const Node& node, const SetTable& sets, std::vector<char32_t>& alphabet);

/// The code points of a set of a few; empty when it has more, as it does not count as alternatives
/// of letters then.
[[nodiscard]] std::vector<char32_t> fewCodePoints(const CodePointRanges& ranges);

}  // namespace quillseal::screening
