// Operations on literals: joining, cutting, measuring, estimating how common they are.
//
// Algorithm: a literal is a string of folded letters in which a blank stands for any run of white
// space. A literal is cut after nine letters, or after seven when these are rare already, but never
// within what one code point may fold to (between the two s of ß): a literal that ended there would
// be missed.
// Bound: linear in the letters; a product has as many literals as its factors multiplied.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (white space in literals, long literals, ß).

#include "core/screening/compile/LiteralAlphabet.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/screening/compile/TextFrequency.h"

namespace quillseal::screening {
namespace {

/// Letters of a literal; of longer ones only the beginning is asked for.
constexpr std::size_t maxLiteralLength = 9;
/// Letters that may be enough: one more would cost a state of the index and find little less.
constexpr std::size_t rareLiteralLength = 7;
constexpr double rareFrequency = 1e-6;  ///< at most

std::uint32_t sum(std::uint32_t a, std::uint32_t b) {
  return a > unbounded - b ? unbounded : a + b;
}

std::uint32_t product(std::uint32_t a, std::uint32_t b) {
  if (a == 0 || b == 0) return 0;
  return a > unbounded / b ? unbounded : a * b;
}

}  // namespace

Distance plus(const Distance& a, const Distance& b) {
  return {.steps = sum(a.steps, b.steps), .runs = sum(a.runs, b.runs)};
}

Distance times(std::uint32_t count, const Distance& distance) {
  return {.steps = product(count, distance.steps), .runs = product(count, distance.runs)};
}

Distance larger(const Distance& a, const Distance& b) {
  return {.steps = std::max(a.steps, b.steps), .runs = std::max(a.runs, b.runs)};
}

void LiteralAlphabet::append(Literal& literal, Letter letter) const {
  if (!isSpaceLetter(letter)) {
    literal.push_back(letter);
  } else if (literal.empty() || literal.back() != space_) {
    literal.push_back(space_);
  }
}

Literals LiteralAlphabet::product(const Literals& heads, const Literals& tails) const {
  Literals all;
  for (const Literal& head : heads) {
    for (const Literal& tail : tails) {
      all.push_back(head);
      for (const Letter letter : tail)
        append(all.back(), letter);
    }
  }
  return all;
}

Distance LiteralAlphabet::longest(const Literals& literals) const {
  Distance length;
  for (const Literal& literal : literals) {
    std::uint32_t runs = 0;
    bool afterWord = false;
    for (const Letter letter : literal) {
      const bool isWord = isWordLetter(letter);
      runs += isWord && afterWord ? 0U : 1U;
      afterWord = isWord;
    }
    length = larger(length, {.steps = static_cast<std::uint32_t>(literal.size()), .runs = runs});
  }
  return length;
}

bool LiteralAlphabet::isSelective(const Literals& literals) const {
  return std::all_of(literals.begin(), literals.end(), [this](const Literal& literal) {
    return std::any_of(literal.begin(), literal.end(),
                       [this](Letter letter) { return !isSpaceLetter(letter); });
  });
}

double LiteralAlphabet::frequencyOf(const Literals& literals) const {
  double sum = 0;
  for (const Literal& literal : literals) {
    std::u32string text;
    for (const Letter letter : literal)
      text.push_back(classes_.codePointOf(letter));
    sum += expectedFrequency(text);
  }
  return std::min(sum, 1.0);
}

bool LiteralAlphabet::anyStartsWithSpace(const Literals& literals) const {
  return std::any_of(literals.begin(), literals.end(),
                     [this](const Literal& literal) { return startsWithSpace(literal); });
}

bool LiteralAlphabet::anyEndsInSpace(const Literals& literals) const {
  return std::any_of(literals.begin(), literals.end(), [this](const Literal& literal) {
    return !literal.empty() && literal.back() == space_;
  });
}

bool LiteralAlphabet::dropLeadingSpace(Literals& literals) const {
  bool any = false;
  for (Literal& literal : literals) {
    if (!startsWithSpace(literal)) continue;
    literal.erase(literal.begin());
    any = true;
  }
  return any;
}

Distance LiteralAlphabet::shorten(Literals& literals) const {
  Distance cut;
  for (Literal& literal : literals) {
    const std::size_t length = keptLength(literal);
    if (length == literal.size()) continue;
    const auto end = literal.begin() + static_cast<std::ptrdiff_t>(length);
    cut = larger(cut, longest({Literal(end, literal.end())}));
    literal.erase(end, literal.end());
  }
  std::sort(literals.begin(), literals.end());
  literals.erase(std::unique(literals.begin(), literals.end()), literals.end());
  return cut;
}

/// How many letters of the literal are asked for.
std::size_t LiteralAlphabet::keptLength(const Literal& literal) const {
  std::size_t length = 0;  // the latest at which it can be cut
  std::u32string text;
  for (std::size_t i = 0; i < literal.size(); ++i) {
    if (i == maxLiteralLength) return length > 0 ? length : literal.size();
    text.push_back(classes_.codePointOf(literal[i]));
    if (i + 1 < literal.size() && isWithinExpansion(literal[i], literal[i + 1])) continue;
    length = i + 1;
    if (length >= rareLiteralLength && expectedFrequency(text) <= rareFrequency) return length;
  }
  return literal.size();
}

bool LiteralAlphabet::isSpaceLetter(Letter letter) const {
  return letter != otherLetter && classes_.isSpace(classes_.classOf(classes_.codePointOf(letter)));
}

/// Whether everything that folds to it is a word character.
bool LiteralAlphabet::isWordLetter(Letter letter) const {
  const auto ids = classes_.classesWith(letter);
  return !ids.empty() &&
         std::all_of(ids.begin(), ids.end(), [this](ClassId id) { return classes_.isWord(id); });
}

/// Whether one code point may fold to both letters, as ß does to two s. A literal that ended
/// between them would end within a code point, where the index is in no match state.
bool LiteralAlphabet::isWithinExpansion(Letter letter, Letter next) const {
  const Letter both[] = {letter, next};
  return std::ranges::any_of(classes_.classesWith(letter), [&](ClassId id) {
    const auto folding = classes_.folding(id);
    return std::search(folding.begin(), folding.end(), std::begin(both), std::end(both)) !=
           folding.end();
  });
}

}  // namespace quillseal::screening
