// Divides the code points into character classes: two are in one class when no pattern can tell
// them apart.
//
// Algorithm: every set of the patterns, every trait and every folding cuts the code points into
// intervals. Intervals with equal features (memberships, traits, folding) share a class. The
// classes are written as a table with two levels whose equal pages are stored once.
// Bound: O(boundaries * sets) time, at most 8,191 classes; more throws PatternError.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (sets, case, word boundaries).

#include "core/screening/compile/ClassPartition.h"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "core/screening/match/WordBits.h"

namespace quillseal::screening {
namespace {

constexpr char32_t pastLast = 0x110000;

/// A larger set is too unselective for literals.
constexpr std::size_t largestLetterSet = 16;

std::u32string fullFolding(char32_t c) {
  icu::UnicodeString text(static_cast<UChar32>(c));
  text.foldCase(U_FOLD_CASE_DEFAULT);
  std::u32string folded;
  for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
    folded.push_back(static_cast<char32_t>(text.char32At(i)));
  return folded;
}

/// The code points with each trait.
const std::vector<std::pair<ClassTrait, CodePointRanges>>& traitRanges() {
  static const std::vector<std::pair<ClassTrait, CodePointRanges>> ranges{
      {isWordTrait, codePointsOf(wordSet)},
      // ICU's \b looks through these (RegexMatcher::isWordBoundary).
      {isTransparentTrait, codePointsOf(R"([\p{Grapheme_Extend}\p{Cf}])")},
      {isSpaceTrait, codePointsOf(spaceSet)},
      {isTerminatorTrait, {{0x0A, 0x0D}, {0x85, 0x85}, {0x2028, 0x2029}}},
      {isLineFeedTrait, {{'\n', '\n'}}},
      {isCarriageReturnTrait, {{'\r', '\r'}}}};
  return ranges;
}

void sortAndUnite(std::vector<char32_t>& codePoints) {
  std::sort(codePoints.begin(), codePoints.end());
  codePoints.erase(std::unique(codePoints.begin(), codePoints.end()), codePoints.end());
}

/// The features of a code point that patterns can tell apart.
struct Features {
  std::vector<std::uint64_t> sets{};  ///< a bit for each set: whether it is a member
  std::uint8_t traits = 0;
  std::vector<Letter> folding{otherLetter};

  bool operator<(const Features& other) const {
    return std::tie(sets, traits, folding) < std::tie(other.sets, other.traits, other.folding);
  }
};

/// Divides the code points into intervals of the same features.
class Intervals {
 public:
  Intervals(const SetTable& sets, const std::map<char32_t, std::vector<Letter>>& foldings)
      : starts_{0, pastLast} {
    for (std::size_t set = 0; set < sets.size(); ++set)
      cutAt(sets[set]);
    for (const auto& [trait, ranges] : traitRanges())
      cutAt(ranges);
    for (const auto& [c, letters] : foldings)
      cutAt({{c, c}});
    sortAndUnite(starts_);

    features_.resize(count(), {.sets = std::vector<std::uint64_t>(sets.size() / 64 + 1)});
    for (std::size_t set = 0; set < sets.size(); ++set)
      forEachIn(sets[set], [&](Features& features) { setBit(features.sets, set); });
    for (const auto& [trait, ranges] : traitRanges())
      forEachIn(ranges, [&, bit = trait](Features& features) { features.traits |= bit; });
    for (const auto& [c, letters] : foldings)
      features_[indexOf(c)].folding = letters;
  }

  [[nodiscard]] std::size_t count() const { return starts_.size() - 1; }
  [[nodiscard]] char32_t start(std::size_t i) const { return starts_[i]; }
  [[nodiscard]] const Features& features(std::size_t i) const { return features_[i]; }

 private:
  void cutAt(const CodePointRanges& ranges) {
    for (const auto& [first, last] : ranges) {
      starts_.push_back(first);
      starts_.push_back(last + 1);
    }
  }

  /// REQUIRES: cut at these ranges.
  void forEachIn(const CodePointRanges& ranges, const auto& change) {
    for (const auto& [first, last] : ranges)
      for (std::size_t i = indexOf(first); starts_[i] <= last; ++i)
        change(features_[i]);
  }

  [[nodiscard]] std::size_t indexOf(char32_t start) const {
    return static_cast<std::size_t>(std::lower_bound(starts_.begin(), starts_.end(), start) -
                                    starts_.begin());
  }

  std::vector<char32_t> starts_;
  std::vector<Features> features_;
};

}  // namespace

ClassSetId ClassSetPool::intern(const ClassBits& bits) {
  using Table = ClassSetTable<Owned>;
  const std::size_t count = sets_.size();
  if (count == maxClassSets) throw PatternError("too many sets");
  const auto [known, isNew] = indexes_.try_emplace(bits, static_cast<ClassSetId>(count));
  if (!isNew) return known->second;
  sets_.push_back(&known->first);

  std::vector<std::uint16_t> words;
  for (const std::uint64_t word : bits)
    words.push_back(indexOf(word));
  // What is missing in the last block is never looked up.
  words.resize(Table::nearCount + blocks_ * Table::blockSize);
  const auto far = words.cbegin() + Table::nearCount;
  table_.nearWords.insert(table_.nearWords.end(), words.cbegin(), far);
  for (std::size_t i = 0; i < blocks_; ++i) {
    const auto start = far + static_cast<std::ptrdiff_t>(i * Table::blockSize);
    std::vector<std::uint16_t> block(start, start + Table::blockSize);
    const auto [same, isOther] =
        blockIndexes_.try_emplace(block, static_cast<std::uint16_t>(blockIndexes_.size()));
    if (isOther) table_.blocks.insert(table_.blocks.end(), block.begin(), block.end());
    table_.blockOf.push_back(same->second);
  }
  if (blockIndexes_.size() > std::numeric_limits<std::uint16_t>::max())
    throw PatternError("too many sets");
  return known->second;
}

std::uint16_t ClassSetPool::indexOf(std::uint64_t word) {
  if (table_.words.size() > std::numeric_limits<std::uint16_t>::max())
    throw PatternError("too many sets");
  const auto [known, isNew] =
      wordIndexes_.try_emplace(word, static_cast<std::uint16_t>(table_.words.size()));
  if (isNew) table_.words.push_back(word);
  return known->second;
}

ClassPartition::ClassPartition(const SetTable& sets, std::vector<char32_t> alphabet)
    : alphabet_(std::move(alphabet)) {
  alphabet_.push_back(U' ');
  sortAndUnite(alphabet_);

  const Intervals intervals(sets, foldingsIntoAlphabet());
  static_assert(ClassifiedText::endClass == 0);  // so the first class is that of the end
  std::vector<Features> classes(1);
  std::map<Features, ClassId> known;
  std::vector<std::pair<char32_t, ClassId>> classFrom;
  for (std::size_t i = 0; i < intervals.count(); ++i) {
    const auto [entry, isNew] =
        known.try_emplace(intervals.features(i), static_cast<ClassId>(classes.size()));
    classFrom.emplace_back(intervals.start(i), entry->second);
    if (isNew) classes.push_back(entry->first);
    if (classes.size() > ClassifiedText::classMask) throw PatternError("too many classes");
  }

  for (const Features& features : classes) {
    table_.traits.push_back(features.traits);
    table_.foldingStarts.push_back(static_cast<std::uint32_t>(table_.foldings.size()));
    table_.foldings.insert(table_.foldings.end(), features.folding.begin(), features.folding.end());
  }
  table_.foldingStarts.push_back(static_cast<std::uint32_t>(table_.foldings.size()));

  classesWith_.resize(letterCount());
  members_.assign(sets.size(), ClassBits(ClassSets::wordsFor(count())));
  for (std::size_t id = ClassifiedText::endClass + 1; id < count(); ++id) {
    for (const Letter letter : classes[id].folding)
      if (letter != otherLetter) classesWith_[letter].push_back(static_cast<ClassId>(id));
    for (std::size_t set = 0; set < sets.size(); ++set)
      if (hasBit(classes[id].sets, set)) setBit(members_[set], id);
  }
  fillPages(classFrom);
}

std::map<char32_t, std::vector<Letter>> ClassPartition::foldingsIntoAlphabet() const {
  std::map<char32_t, std::vector<Letter>> foldings;
  for (const char32_t c : alphabet_)
    foldings[c] = {letterOf(c)};
  // The property speaks of decomposed texts; what folds to its own decomposition has the other one.
  constexpr std::string_view changing =
      R"([\p{Changes_When_Casemapped}\p{Changes_When_Casefolded}])";
  for (const auto& [first, last] : codePointsOf(changing)) {
    for (char32_t c = first; c <= last; ++c) {
      std::vector<Letter> letters;
      for (const char32_t folded : fullFolding(c)) {
        const bool known = std::binary_search(alphabet_.begin(), alphabet_.end(), folded);
        letters.push_back(known ? letterOf(folded) : otherLetter);
      }
      if (std::any_of(letters.begin(), letters.end(), [](Letter l) { return l != otherLetter; }))
        foldings[c] = std::move(letters);
    }
  }
  return foldings;
}

void ClassPartition::fillPages(std::span<const std::pair<char32_t, ClassId>> classFrom) {
  constexpr std::size_t pageSize = CharacterClassTable<Owned>::pageSize;
  std::map<std::vector<std::uint16_t>, std::uint16_t> pages;
  std::size_t interval = 0;
  for (std::size_t page = 0; page < pastLast / pageSize; ++page) {
    std::vector<std::uint16_t> content(pageSize);
    for (std::size_t i = 0; i < pageSize; ++i) {
      if (interval + 1 < classFrom.size() && classFrom[interval + 1].first == page * pageSize + i)
        ++interval;
      content[i] = entryOf(classFrom[interval].second);
    }
    const auto [known, isNew] =
        pages.try_emplace(std::move(content), static_cast<std::uint16_t>(pages.size()));
    if (isNew) table_.pages.insert(table_.pages.end(), known->first.begin(), known->first.end());
    table_.pageOf.push_back(known->second);
  }
}

std::uint16_t ClassPartition::entryOf(ClassId id) const {
  using Table = CharacterClassTable<Owned>;
  const bool isTransparent = (table_.traits[id] & isTransparentTrait) != 0;
  return static_cast<std::uint16_t>(id | (isWord(id) ? Table::wordFlag : 0) |
                                    (isSpace(id) ? Table::spaceFlag : 0) |
                                    (isTransparent ? 0 : Table::opaqueFlag));
}

Letter ClassPartition::letterOf(char32_t c) const {
  return static_cast<Letter>(std::lower_bound(alphabet_.begin(), alphabet_.end(), c) -
                             alphabet_.begin() + 1);
}

ClassId ClassPartition::classOf(char32_t c) const {
  constexpr std::size_t pageSize = CharacterClassTable<Owned>::pageSize;
  return table_.pages[table_.pageOf[c / pageSize] * pageSize + c % pageSize] &
         ClassifiedText::classMask;
}

std::span<const Letter> ClassPartition::folding(ClassId id) const {
  const std::uint32_t start = table_.foldingStarts[id];
  return std::span(table_.foldings)
      .subspan(start, table_.foldingStarts[id + std::size_t{1}] - start);
}

std::vector<char32_t> fewCodePoints(const CodePointRanges& ranges) {
  std::size_t count = 0;
  for (const auto& [first, last] : ranges)
    count += last - first + 1;
  std::vector<char32_t> codePoints;
  if (count > largestLetterSet) return codePoints;
  for (const auto& [first, last] : ranges)
    for (char32_t c = first; c <= last; ++c)
      codePoints.push_back(c);
  return codePoints;
}

void collectAlphabet(const Node& node, const SetTable& sets, std::vector<char32_t>& alphabet) {
  if (node.kind == Node::Kind::foldedText)
    alphabet.insert(alphabet.end(), node.text.begin(), node.text.end());
  if (node.kind == Node::Kind::set) {
    for (const char32_t c : fewCodePoints(sets[node.set])) {
      const std::u32string folded = fullFolding(c);
      alphabet.insert(alphabet.end(), folded.begin(), folded.end());
    }
  }
  for (const Node& child : node.children)
    collectAlphabet(child, sets, alphabet);
}

}  // namespace quillseal::screening
