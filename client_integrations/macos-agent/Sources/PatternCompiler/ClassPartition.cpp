#include "PatternCompiler/ClassPartition.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>

#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace quillseal::screening {
namespace {

constexpr char32_t behindLast = 0x110000;

/// A larger set says too little about what stands in a match.
constexpr std::size_t largestLetterSet = 16;

std::u32string fullFolding(char32_t c) {
  icu::UnicodeString text(static_cast<UChar32>(c));
  text.foldCase(U_FOLD_CASE_DEFAULT);
  std::u32string folded;
  for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
    folded.push_back(static_cast<char32_t>(text.char32At(i)));
  return folded;
}

/// Stretches of code points that every set contains wholly or not at all.
class Stretches {
 public:
  void cutAt(const CodePointRanges& ranges) {
    for (const auto& [first, last] : ranges) {
      starts_.push_back(first);
      starts_.push_back(last + 1);
    }
  }

  void finish(std::size_t labels) {
    starts_.push_back(0);
    starts_.push_back(behindLast);
    std::sort(starts_.begin(), starts_.end());
    starts_.erase(std::unique(starts_.begin(), starts_.end()), starts_.end());
    labels_.assign(count(), std::string(labels, '\0'));
  }

  void label(const CodePointRanges& ranges, std::size_t label, std::uint8_t bits = 1) {
    for (const auto& [first, last] : ranges)
      for (std::size_t i = indexOf(first); starts_[i] <= last; ++i)
        labels_[i][label] = static_cast<char>(labels_[i][label] | bits);
  }

  void append(char32_t codePoint, const std::string& text) { labels_[indexOf(codePoint)] += text; }

  [[nodiscard]] std::size_t count() const { return starts_.size() - 1; }
  [[nodiscard]] char32_t start(std::size_t i) const { return starts_[i]; }
  [[nodiscard]] const std::string& labels(std::size_t i) const { return labels_[i]; }

 private:
  [[nodiscard]] std::size_t indexOf(char32_t c) const {
    return static_cast<std::size_t>(std::lower_bound(starts_.begin(), starts_.end(), c) -
                                    starts_.begin());
  }

  std::vector<char32_t> starts_;
  std::vector<std::string> labels_;
};

/// What the traits stand for.
const std::vector<std::pair<ClassTrait, CodePointRanges>>& traitRanges() {
  static const std::vector<std::pair<ClassTrait, CodePointRanges>> ranges{
      {isWordTrait, codePointsOf(wordSet)},
      // ICU's \b looks through these (RegexMatcher::isWordBoundary).
      {isUnnoticedTrait, codePointsOf(R"([\p{Grapheme_Extend}\p{Cf}])")},
      {isSpaceTrait, codePointsOf(spaceSet)},
      {isTerminatorTrait, {{0x0A, 0x0D}, {0x85, 0x85}, {0x2028, 0x2029}}},
      {isLineFeedTrait, {{'\n', '\n'}}},
      {isCarriageReturnTrait, {{'\r', '\r'}}}};
  return ranges;
}

}  // namespace

ClassSetId ClassSetPool::intern(const ClassBits& bits) {
  const std::size_t count = table_.bits.size() / words_;
  if (count == std::numeric_limits<ClassSetId>::max()) throw PatternError("too many sets");
  const auto [known, isNew] = indexes_.try_emplace(bits, static_cast<ClassSetId>(count));
  if (isNew) table_.bits.insert(table_.bits.end(), bits.begin(), bits.end());
  return known->second;
}

ClassBits ClassSetPool::bits(ClassSetId set) const {
  const auto first = table_.bits.begin() + static_cast<std::ptrdiff_t>(std::size_t{set} * words_);
  return {first, first + static_cast<std::ptrdiff_t>(words_)};
}

ClassPartition::ClassPartition(const SetTable& sets, std::vector<char32_t> alphabet)
    : alphabet_(std::move(alphabet)) {
  alphabet_.push_back(U' ');
  std::sort(alphabet_.begin(), alphabet_.end());
  alphabet_.erase(std::unique(alphabet_.begin(), alphabet_.end()), alphabet_.end());

  const std::map<char32_t, std::vector<Letter>> foldings = foldingsIntoAlphabet();
  const std::size_t setCount = sets.size();
  Stretches stretches;
  for (std::size_t set = 0; set < setCount; ++set)
    stretches.cutAt(sets[set]);
  for (const auto& trait : traitRanges())
    stretches.cutAt(trait.second);
  for (const auto& folding : foldings)
    stretches.cutAt({{folding.first, folding.first}});
  stretches.finish(setCount + 1);
  for (std::size_t set = 0; set < setCount; ++set)
    stretches.label(sets[set], set);
  for (const auto& [trait, ranges] : traitRanges())
    stretches.label(ranges, setCount, trait);
  for (const auto& [c, letters] : foldings) {
    std::string text;
    for (const Letter letter : letters) {
      text.push_back(static_cast<char>(letter & 0xFF));
      text.push_back(static_cast<char>(letter >> 8));
    }
    stretches.append(c, text);
  }

  // Stretches of the same labels are one class; the first class is that of the end.
  std::map<std::string, ClassId> classes;
  std::vector<const std::string*> labelsOfClass;
  const auto addClass = [&](std::uint8_t traits, const std::vector<Letter>& folding) {
    if (count() >= ClassifiedText::classMask) throw PatternError("too many classes");
    table_.traits.push_back(traits);
    table_.foldingStarts.push_back(static_cast<std::uint32_t>(table_.foldings.size()));
    table_.foldings.insert(table_.foldings.end(), folding.begin(), folding.end());
  };
  const std::vector<Letter> foldsToOther{otherLetter};
  addClass(0, foldsToOther);
  labelsOfClass.push_back(nullptr);
  std::vector<std::pair<char32_t, ClassId>> classFrom;
  for (std::size_t i = 0; i < stretches.count(); ++i) {
    const std::string& labels = stretches.labels(i);
    const auto [known, isNew] = classes.try_emplace(labels, static_cast<ClassId>(count()));
    classFrom.emplace_back(stretches.start(i), known->second);
    if (!isNew) continue;
    const auto folding = foldings.find(stretches.start(i));
    addClass(static_cast<std::uint8_t>(labels[setCount]),
             folding == foldings.end() ? foldsToOther : folding->second);
    labelsOfClass.push_back(&known->first);
  }
  table_.foldingStarts.push_back(static_cast<std::uint32_t>(table_.foldings.size()));

  classesWith_.resize(letterCount());
  members_.assign(setCount, ClassBits(ClassSets::wordsFor(count())));
  for (std::size_t id = 1; id < count(); ++id) {
    for (const Letter letter : folding(static_cast<ClassId>(id)))
      if (letter != otherLetter) classesWith_[letter].push_back(static_cast<ClassId>(id));
    for (std::size_t set = 0; set < setCount; ++set)
      if ((*labelsOfClass[id])[set] != 0) members_[set][id / 64] |= std::uint64_t{1} << (id % 64);
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
  std::map<std::vector<ClassId>, std::uint16_t> pages;
  std::size_t stretch = 0;
  for (std::size_t page = 0; page < behindLast / pageSize; ++page) {
    std::vector<ClassId> content(pageSize);
    for (std::size_t i = 0; i < pageSize; ++i) {
      if (stretch + 1 < classFrom.size() && classFrom[stretch + 1].first == page * pageSize + i)
        ++stretch;
      content[i] = classFrom[stretch].second;
    }
    const auto [known, isNew] =
        pages.try_emplace(std::move(content), static_cast<std::uint16_t>(pages.size()));
    if (isNew) table_.pages.insert(table_.pages.end(), known->first.begin(), known->first.end());
    table_.pageOf.push_back(known->second);
  }
}

Letter ClassPartition::letterOf(char32_t c) const {
  return static_cast<Letter>(std::lower_bound(alphabet_.begin(), alphabet_.end(), c) -
                             alphabet_.begin() + 1);
}

ClassId ClassPartition::classOf(char32_t c) const {
  constexpr std::size_t pageSize = CharacterClassTable<Owned>::pageSize;
  return table_.pages[table_.pageOf[c / pageSize] * pageSize + c % pageSize];
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
  if (node.kind == Node::Kind::FoldedText)
    alphabet.insert(alphabet.end(), node.text.begin(), node.text.end());
  if (node.kind == Node::Kind::Set) {
    for (const char32_t c : fewCodePoints(sets[node.set])) {
      const std::u32string folded = fullFolding(c);
      alphabet.insert(alphabet.end(), folded.begin(), folded.end());
    }
  }
  for (const Node& child : node.children)
    collectAlphabet(child, sets, alphabet);
}

}  // namespace quillseal::screening
