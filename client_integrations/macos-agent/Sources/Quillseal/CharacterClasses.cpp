#include "Quillseal/CharacterClasses.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>

#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace quillseal::screening {
namespace {

constexpr char32_t behindLast = 0x110000;

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

}  // namespace

ClassSetId ClassSets::intern(const std::vector<std::uint64_t>& bits) {
  const std::size_t count = bits_.size() / words_;
  if (count == std::numeric_limits<ClassSetId>::max()) throw PatternError("too many sets");
  const auto [known, isNew] = indexes_.try_emplace(bits, static_cast<ClassSetId>(count));
  if (isNew) bits_.insert(bits_.end(), bits.begin(), bits.end());
  return known->second;
}

std::vector<std::uint64_t> ClassSets::bits(ClassSetId set) const {
  const auto first = bits_.begin() + static_cast<std::ptrdiff_t>(std::size_t{set} * words_);
  return {first, first + static_cast<std::ptrdiff_t>(words_)};
}

void ClassSets::finish() {
  indexes_.clear();
  bits_.shrink_to_fit();
}

std::size_t ClassSets::memoryUse() const {
  return sizeof(*this) + bits_.capacity() * sizeof(std::uint64_t);
}

CharacterClasses::CharacterClasses(const SetTable& sets, std::vector<char32_t> alphabet)
    : alphabet_(std::move(alphabet)) {
  alphabet_.push_back(U' ');
  std::sort(alphabet_.begin(), alphabet_.end());
  alphabet_.erase(std::unique(alphabet_.begin(), alphabet_.end()), alphabet_.end());
  alphabet_.shrink_to_fit();

  const std::vector<std::pair<Trait, CodePointRanges>> traits{
      {word, codePointsOf(wordSet)},
      // ICU's \b looks through these (RegexMatcher::isWordBoundary).
      {unnoticed, codePointsOf(R"([\p{Grapheme_Extend}\p{Cf}])")},
      {space, codePointsOf(spaceSet)},
      {terminator, {{0x0A, 0x0D}, {0x85, 0x85}, {0x2028, 0x2029}}},
      {lineFeed, {{'\n', '\n'}}},
      {carriageReturn, {{'\r', '\r'}}}};

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

  const std::size_t setCount = sets.size();
  Stretches stretches;
  for (std::size_t set = 0; set < setCount; ++set)
    stretches.cutAt(sets[set]);
  for (const auto& trait : traits)
    stretches.cutAt(trait.second);
  for (const auto& folding : foldings)
    stretches.cutAt({{folding.first, folding.first}});
  stretches.finish(setCount + 1);
  for (std::size_t set = 0; set < setCount; ++set)
    stretches.label(sets[set], set);
  for (const auto& [trait, ranges] : traits)
    stretches.label(ranges, setCount, trait);
  for (const auto& [c, letters] : foldings) {
    std::string text;
    for (const Letter letter : letters) {
      text.push_back(static_cast<char>(letter & 0xFF));
      text.push_back(static_cast<char>(letter >> 8));
    }
    stretches.append(c, text);
  }

  const std::vector<Letter> foldsToOther{otherLetter};
  std::map<std::string, ClassId> classes;
  foldings_.push_back(foldsToOther);  // the end
  traits_.push_back(0);
  std::vector<ClassId> classOfStretch(stretches.count());
  std::vector<const std::string*> labelsOfClass{nullptr};
  for (std::size_t i = 0; i < stretches.count(); ++i) {
    const std::string& labels = stretches.labels(i);
    const auto [known, isNew] = classes.try_emplace(labels, static_cast<ClassId>(foldings_.size()));
    classOfStretch[i] = known->second;
    if (!isNew) continue;
    if (foldings_.size() >= ClassifiedText::classMask) throw PatternError("too many classes");
    const auto folding = foldings.find(stretches.start(i));
    foldings_.push_back(folding == foldings.end() ? foldsToOther : folding->second);
    traits_.push_back(static_cast<std::uint8_t>(labels[setCount]));
    labelsOfClass.push_back(&known->first);
  }
  classesWith_.resize(letterCount());
  for (std::size_t id = 1; id < count(); ++id)
    for (const Letter letter : foldings_[id])
      if (letter != otherLetter) classesWith_[letter].push_back(static_cast<ClassId>(id));
  members_.assign(setCount, std::vector<std::uint64_t>(count() / 64 + 1));
  for (std::size_t id = 1; id < labelsOfClass.size(); ++id)
    for (std::size_t set = 0; set < setCount; ++set)
      if ((*labelsOfClass[id])[set] != 0) members_[set][id / 64] |= std::uint64_t{1} << (id % 64);

  std::map<std::vector<ClassId>, std::uint16_t> pages;
  std::size_t stretch = 0;
  for (std::size_t page = 0; page < pageOf_.size(); ++page) {
    std::vector<ClassId> content(pageSize);
    for (std::size_t i = 0; i < pageSize; ++i) {
      if (stretch + 1 < stretches.count() && stretches.start(stretch + 1) == page * pageSize + i)
        ++stretch;
      content[i] = classOfStretch[stretch];
    }
    const auto [known, isNew] =
        pages.try_emplace(std::move(content), static_cast<std::uint16_t>(pages.size()));
    if (isNew) pages_.insert(pages_.end(), known->first.begin(), known->first.end());
    pageOf_[page] = known->second;
  }
  pages_.shrink_to_fit();
}

Letter CharacterClasses::letterOf(char32_t c) const {
  return static_cast<Letter>(std::lower_bound(alphabet_.begin(), alphabet_.end(), c) -
                             alphabet_.begin() + 1);
}

ClassifiedText CharacterClasses::classify(std::string_view text) const {
  std::vector<ClassId> elements;
  elements.reserve(text.size() + 1);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  bool afterWord = false;
  for (std::size_t i = 0; i < text.size();) {
    UChar32 c = bytes[i];
    if (c < 0x80) {
      ++i;
    } else {
      U8_NEXT_OR_FFFD(bytes, i, text.size(), c);
    }
    ClassId id = classOf(static_cast<char32_t>(c));
    if (const std::uint8_t traits = traits_[id]; (traits & unnoticed) == 0) {
      const bool isWord = (traits & word) != 0;
      if (isWord != afterWord) id |= ClassifiedText::boundaryFlag;
      afterWord = isWord;
    }
    elements.push_back(id);
  }
  elements.push_back(afterWord ? ClassifiedText::boundaryFlag : ClassifiedText::endClass);
  return ClassifiedText(std::move(elements));
}

std::size_t CharacterClasses::memoryUse() const {
  std::size_t bytes = sizeof(*this) + alphabet_.capacity() * sizeof(char32_t) +
                      pages_.capacity() * sizeof(ClassId) + traits_.capacity();
  for (const auto& folding : foldings_)
    bytes += sizeof(std::vector<Letter>) + folding.capacity() * sizeof(Letter);
  for (const auto& with : classesWith_)
    bytes += sizeof(std::vector<ClassId>) + with.capacity() * sizeof(ClassId);
  for (const auto& member : members_)
    bytes += sizeof(std::vector<std::uint64_t>) + member.capacity() * sizeof(std::uint64_t);
  return bytes;
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
