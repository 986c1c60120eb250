// Estimates how often a literal occurs in an ordinary text, for the cost model of the prefilters.
//
// Algorithm: the product of the frequencies of its letters, or the sum over the common words that
// contain it, whichever is more.
// Only the speed of a search depends on these estimates, never its result.
// Bound: letters of the literal * common words.
// Tests: none for the figures; the benchmarks `screen/…` show their effect.

#include "core/screening/compile/TextFrequency.h"

#include <algorithm>

#include "core/screening/compile/CommonWords.h"

namespace quillseal::screening {
namespace {

constexpr double blankFrequency = .170;
/// A literal of a rule is never rarer than this, whatever its letters suggest.
constexpr double rarest = 1e-6;

double frequencyOfLetters(std::u32string_view letters) {
  double product = 1;
  for (const char32_t c : letters)
    product *= expectedFrequency(c);
  return product;
}

/// A part of a literal without blanks.
struct Piece {
  std::u32string_view letters;
  bool startsWord = false;
  bool endsWord = false;

  [[nodiscard]] bool isIn(std::u32string_view word) const {
    if (startsWord && endsWord) return word == letters;
    if (startsWord) return word.starts_with(letters);
    if (endsWord) return word.ends_with(letters);
    return word.find(letters) != std::u32string_view::npos;
  }
};

double frequencyInWords(const Piece& piece) {
  double sum = 0;
  for (const CommonWord& word : commonWords())
    if (piece.isIn(word.word)) sum += word.frequency;
  return sum;
}

}  // namespace

double expectedFrequency(char32_t c) {
  // Four fifths of the relative frequencies of English letters (R. E. Lewand, Cryptological
  // Mathematics, 2000); the rest of a text is no letters.
  constexpr double letters[] = {.065, .012, .022, .032, .100, .018, .016, .049, .056,
                                .001, .006, .033, .020, .057, .060, .015, .001, .050,
                                .051, .073, .023, .008, .019, .001, .016, .001};
  if (c >= 'a' && c <= 'z') return letters[c - 'a'];
  if (c >= '0' && c <= '9') return .004;
  switch (c) {
    case ' ':
      return blankFrequency;
    case '\n':
      return .020;
    case '.':
    case ',':
      return .010;
    case '-':
    case '\'':
      return .004;
    default:
      return c < 0x80 ? .001 : .002;
  }
}

double expectedFrequency(std::u32string_view literal) {
  double product = 1;
  for (std::size_t start = 0; start < literal.size();) {
    const std::size_t blank = std::min(literal.find(U' ', start), literal.size());
    const Piece piece{.letters = literal.substr(start, blank - start),
                      .startsWord = start > 0,
                      .endsWord = blank < literal.size()};
    if (piece.letters.empty()) {
      product *= blankFrequency;
    } else {
      // The blank before a word has been counted.
      const double inWords = frequencyInWords(piece) / (piece.startsWord ? blankFrequency : 1);
      const double ofLetters =
          frequencyOfLetters(piece.letters) * (piece.endsWord ? blankFrequency : 1);
      product *= std::max(std::min(inWords, 1.0), ofLetters);
    }
    start = blank + 1;
  }
  return std::max(product, rarest);
}

}  // namespace quillseal::screening
