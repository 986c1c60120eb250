#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/screening/match/CharacterClasses.h"

namespace quillseal::screening {

/// Code points as ascending, disjoint, non-adjacent inclusive ranges.
using CodePointRanges = std::vector<std::pair<char32_t, char32_t>>;

/// A pattern is malformed, or uses a construct that the engine does not offer.
class PatternError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The distinct sets of code points of many patterns; a set is named by its index.
class SetTable {
 public:
  std::size_t intern(CodePointRanges ranges);
  [[nodiscard]] const CodePointRanges& operator[](std::size_t index) const { return sets_[index]; }
  [[nodiscard]] std::size_t size() const { return sets_.size(); }

 private:
  std::vector<CodePointRanges> sets_;
};

/// A regular expression in ICU's syntax.
struct Pattern {
  std::string_view expression;
  bool caseInsensitive = false;  ///< as by UREGEX_CASE_INSENSITIVE
};

/// One node of a parsed pattern.
struct Node {
  enum class Kind : std::uint8_t {
    set,             ///< one code point of `set`
    foldedText,      ///< code points whose full case folding is `text`, ending with a code point
    sequence,        ///< `children` one after the other; none: the empty match
    alternatives,    ///< the first of `children` that leads to a match
    repetition,      ///< `children[0]`, `min` to `max` times, as often as possible unless `lazy`
    wordBoundary,    ///< \b, or \B when `negative`
    textStart,       ///< ^ and \A
    textEnd,         ///< $: at the end, or before a line terminator at the end
    absoluteEnd,     ///< \z
    lookAhead,       ///< `children[0]` matches from here, or does not when `negative`
    precedingInSet,  ///< the code point before is one of `set`, or there is none when `negative`
    precedingWord,   ///< `min` to `max` code points of `set` stand before, and \b before them
  };

  Kind kind = Kind::sequence;
  bool negative = false;
  bool lazy = false;
  std::size_t set = 0;
  std::uint32_t min = 0;
  std::uint32_t max = 0;
  std::u32string text{};
  std::vector<Node> children{};

  bool operator==(const Node&) const = default;
};

/// Parses `pattern` with the meaning that ICU gives it. Captures group only. Throws PatternError.
[[nodiscard]] Node parsePattern(const Pattern& pattern, SetTable& sets);

/// The code points of a set of ICU's own notation, such as `[\p{Nd}]`.
[[nodiscard]] CodePointRanges codePointsOf(std::string_view unicodeSet);

/// The code points of ICU's \w, \s and \d (uregex documentation, "Regular Expression
/// Metacharacters").
inline constexpr std::string_view wordSet = R"([\p{Alphabetic}\p{M}\p{Nd}\p{Pc}\u200c\u200d])";
inline constexpr std::string_view spaceSet = R"([\p{WhiteSpace}])";
inline constexpr std::string_view digitSet = R"([\p{Nd}])";

}  // namespace quillseal::screening
