#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "core/screening/match/StoredTables.h"
#include "core/screening/match/WordBits.h"

/// The screening engine: regular expressions in ICU's syntax, many at once over one text, with
/// exactly the matches of ICU's own engine and in linear time.
/// core/screening/README.md explains it.
namespace quillseal::screening {

/// A class of code points that no pattern tells apart.
using ClassId = std::uint16_t;
/// A letter of the folded patterns, by its index in the alphabet; `otherLetter` is any other.
using Letter = std::uint16_t;
inline constexpr Letter otherLetter = 0;

/// No upper limit of a repetition or a distance.
inline constexpr std::uint32_t unbounded = std::numeric_limits<std::uint32_t>::max();

/// A text as the patterns see it: one element for each code point and one more for the end.
class ClassifiedText {
 public:
  ClassifiedText(std::unique_ptr<ClassId[]> elements, std::size_t size)
      : elements_(std::move(elements)), size_(size) {}

  /// The number of code points.
  [[nodiscard]] std::size_t size() const { return size_; }
  /// The class of the code point at `position`; `endClass` behind the last one.
  [[nodiscard]] ClassId classAt(std::size_t position) const {
    return elements_[position] & classMask;
  }
  /// Whether ICU's \b holds before the code point at `position` (or at the end).
  [[nodiscard]] bool isWordBoundary(std::size_t position) const {
    return (elements_[position] & boundaryFlag) != 0;
  }

  /// Whether it and the code point before are white space.
  [[nodiscard]] bool continuesSpace(std::size_t position) const {
    return (elements_[position] & continuesSpaceFlag) != 0;
  }
  /// Whether it and the code point before are word characters.
  [[nodiscard]] bool continuesWord(std::size_t position) const {
    return (elements_[position] & continuesWordFlag) != 0;
  }

  static constexpr ClassId endClass = 0;
  static constexpr ClassId boundaryFlag = 0x8000;
  static constexpr ClassId continuesSpaceFlag = 0x4000;
  static constexpr ClassId continuesWordFlag = 0x2000;
  static constexpr ClassId classMask = 0x1FFF;

 private:
  std::unique_ptr<ClassId[]> elements_;
  std::size_t size_;
};

/// A set of classes, by its place in `ClassSets`.
using ClassSetId = std::uint16_t;
/// How many there are at most, so that a bit is left for other use.
inline constexpr std::size_t maxClassSets = 0x7FFF;

/// The bits of sets of classes, 64 classes to a word and as many words for each set.
template <template <typename> typename Array>
struct ClassSetTable {
  // Sets differ in few classes, so most of their words are alike and kept once. The first words
  // have the classes of alphabets. The others are mostly empty, so blocks of them are shared, too.
  Array<std::uint64_t> words;      ///< 64 classes each
  Array<std::uint16_t> nearWords;  ///< by set: which of `words` are its first `nearCount`
  Array<std::uint16_t> blockOf;    ///< by set: its other words, in units of `blockSize`
  Array<std::uint16_t> blocks;     ///< which of `words`

  static constexpr std::size_t nearCount = 3;
  static constexpr std::size_t blockSize = 8;

  void transfer(auto& archive) { archive(words, nearWords, blockOf, blocks); }
};

class ClassSets {
 public:
  ClassSets(TableReader& tables, std::size_t classCount) : blocks_(blocksFor(classCount)) {
    table_.transfer(tables);
  }

  [[nodiscard]] bool contains(ClassSetId set, ClassId id) const {
    const std::size_t word = id / 64;
    return (table_.words[word < Table::nearCount ? table_.nearWords[set * Table::nearCount + word]
                                                 : farWord(set, word - Table::nearCount)] >>
                (id % 64) &
            1) != 0;
  }

  static constexpr std::size_t wordsFor(std::size_t classCount) { return classCount / 64 + 1; }
  /// Of each set, behind its near words.
  static constexpr std::size_t blocksFor(std::size_t classCount) {
    const std::size_t words = wordsFor(classCount);
    return words <= Table::nearCount
               ? 0
               : (words - Table::nearCount + Table::blockSize - 1) / Table::blockSize;
  }

 private:
  using Table = ClassSetTable<Stored>;

  [[nodiscard]] std::uint16_t farWord(ClassSetId set, std::size_t word) const {
    const std::size_t block = table_.blockOf[set * blocks_ + word / Table::blockSize];
    return table_.blocks[block * Table::blockSize + word % Table::blockSize];
  }

  std::size_t blocks_;
  Table table_;
};

/// What is known of a class, as bits.
enum ClassTrait : std::uint8_t {
  isWordTrait = 1,
  isTransparentTrait = 2,  ///< \b looks through it
  isSpaceTrait = 4,
  isTerminatorTrait = 8,
  isLineFeedTrait = 16,
  isCarriageReturnTrait = 32,
};

template <template <typename> typename Array>
struct CharacterClassTable {
  Array<std::uint16_t> pageOf;         ///< by code point, in units of `pageSize`
  Array<std::uint16_t> pages;          ///< the class with the flags of its traits
  Array<std::uint8_t> traits;          ///< by class
  Array<std::uint32_t> foldingStarts;  ///< by class, and the end
  Array<Letter> foldings;

  static constexpr std::size_t pageSize = 64;
  static constexpr std::uint16_t wordFlag = ClassifiedText::continuesWordFlag;
  static constexpr std::uint16_t spaceFlag = ClassifiedText::continuesSpaceFlag;
  static constexpr std::uint16_t opaqueFlag = 0x8000;

  void transfer(auto& archive) { archive(pageOf, pages, traits, foldingStarts, foldings); }
};

/// The class of every code point, and what is known of each class.
class CharacterClasses {
 public:
  explicit CharacterClasses(TableReader& tables) { table_.transfer(tables); }

  [[nodiscard]] std::size_t count() const { return table_.traits.size(); }

  /// The full case folding of every member of the class.
  [[nodiscard]] std::span<const Letter> folding(ClassId id) const {
    const std::uint32_t start = table_.foldingStarts[id];
    return table_.foldings.subspan(start, table_.foldingStarts[id + std::size_t{1}] - start);
  }
  /// \w
  [[nodiscard]] bool isWord(ClassId id) const { return has(id, isWordTrait); }
  /// \s
  [[nodiscard]] bool isSpace(ClassId id) const { return has(id, isSpaceTrait); }
  [[nodiscard]] bool isLineTerminator(ClassId id) const { return has(id, isTerminatorTrait); }
  [[nodiscard]] bool isLineFeed(ClassId id) const { return has(id, isLineFeedTrait); }
  [[nodiscard]] bool isCarriageReturn(ClassId id) const { return has(id, isCarriageReturnTrait); }

  /// Any bytes; those that do not form UTF-8 count as U+FFFD.
  [[nodiscard]] ClassifiedText classify(std::string_view text) const;

 private:
  /// The class and its flags.
  [[nodiscard]] std::uint16_t entryOf(std::size_t page, std::size_t offset) const {
    return table_.pages[table_.pageOf[page] * CharacterClassTable<Stored>::pageSize + offset];
  }
  [[nodiscard]] bool has(ClassId id, ClassTrait trait) const {
    return (table_.traits[id] & trait) != 0;
  }

  CharacterClassTable<Stored> table_;
};

}  // namespace quillseal::screening
