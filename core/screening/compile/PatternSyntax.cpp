// Parses regular expressions in ICU's syntax, with ICU's meaning, into a tree.
//
// Algorithm: recursive descent. Adjacent literal characters are one string for full case folding,
// as in ICU; a single one is folded simply. Sets are ICU's own (`UnicodeSet`), closed over case
// first and negated then. Captures only group. What the engine does not offer (back references,
// possessive quantifiers, loops over an empty body) throws PatternError.
// Bound: linear in the pattern, except that nested quantifiers are copied by the program compiler.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct,
// ScreeningEngine.ReportsPatternsItCannotUseAndKeepsTheOthers.

#include "core/screening/compile/PatternSyntax.h"

#include <algorithm>
#include <optional>

#include <unicode/uchar.h>
#include <unicode/uniset.h>
#include <unicode/unistr.h>

namespace quillseal::screening {
namespace {

/// Iterations of a counted loop. Unless its body is a single set, it is compiled once for each
/// iteration.
constexpr std::uint32_t maxIterations = 5000;
// What compiles a pattern recurses into it.
constexpr int maxOpenGroups = 100;
constexpr int maxQuantifiers = 3;  ///< in a row

CodePointRanges rangesOf(const icu::UnicodeSet& set) {
  CodePointRanges ranges;
  for (std::int32_t i = 0; i < set.getRangeCount(); ++i)
    ranges.emplace_back(static_cast<char32_t>(set.getRangeStart(i)),
                        static_cast<char32_t>(set.getRangeEnd(i)));
  return ranges;
}

icu::UnicodeSet setFrom(std::string_view notation, std::uint32_t options = 0) {
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeSet set(
      icu::UnicodeString::fromUTF8({notation.data(), static_cast<std::int32_t>(notation.size())}),
      options, nullptr, status);
  if (U_FAILURE(status)) throw PatternError("unknown set " + std::string(notation));
  return set;
}

/// \w, \s or \d, and its complement: made once. All are closed over case.
class PropertySet {
 public:
  explicit PropertySet(std::string_view notation) : members_(setFrom(notation)) {
    others_.addAll(members_).complement();
  }

  [[nodiscard]] const icu::UnicodeSet& get(bool complement) const {
    return complement ? others_ : members_;
  }

 private:
  icu::UnicodeSet members_;
  icu::UnicodeSet others_;
};

/// The set that the letter of an escape stands for; null for any other letter.
const PropertySet* propertySet(char32_t letter) {
  static const PropertySet words(wordSet);
  static const PropertySet spaces(spaceSet);
  static const PropertySet digits(digitSet);
  switch (letter) {
    case U'w':
    case U'W':
      return &words;
    case U's':
    case U'S':
      return &spaces;
    case U'd':
    case U'D':
      return &digits;
    default:
      return nullptr;
  }
}

/// Everything that folds to `folded` by itself: what ICU compares one literal character with.
icu::UnicodeSet simpleFoldings(UChar32 folded) {
  icu::UnicodeSet candidates(folded, folded);
  candidates.closeOver(USET_CASE_INSENSITIVE);
  icu::UnicodeSet same;
  for (std::int32_t r = 0; r < candidates.getRangeCount(); ++r)
    for (UChar32 c = candidates.getRangeStart(r); c <= candidates.getRangeEnd(r); ++c)
      if (u_foldCase(c, U_FOLD_CASE_DEFAULT) == folded) same.add(c);
  return same;
}

/// A sequence of one is what it consists of.
Node withoutSequence(Node node) {
  if (node.kind != Node::Kind::sequence || node.children.size() != 1) return node;
  return std::move(node.children.front());
}

class Parser {
 public:
  Parser(const Pattern& pattern, SetTable& sets)
      : caseInsensitive_(pattern.caseInsensitive), sets_(sets) {
    const std::string_view expression = pattern.expression;
    const auto units = icu::UnicodeString::fromUTF8(
        {expression.data(), static_cast<std::int32_t>(expression.size())});
    for (std::int32_t i = 0; i < units.length(); i = units.moveIndex32(i, 1))
      pattern_.push_back(static_cast<char32_t>(units.char32At(i)));
  }

  Node parse() {
    Node node = alternatives();
    if (at_ != pattern_.size()) fail("unbalanced )");
    return node;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw PatternError(what + " at character " + std::to_string(at_));
  }

  [[nodiscard]] bool ended() const { return at_ == pattern_.size(); }
  [[nodiscard]] bool next(std::u32string_view expected) {
    if (std::u32string_view(pattern_).substr(at_, expected.size()) != expected) return false;
    at_ += expected.size();
    return true;
  }
  char32_t take() {
    if (ended()) fail("unfinished");
    return pattern_[at_++];
  }

  Node alternatives() {
    Node node{.kind = Node::Kind::alternatives};
    do {
      node.children.push_back(sequence());
    } while (next(U"|"));
    if (node.children.size() == 1) return std::move(node.children.front());
    return node;
  }

  // Adjacent literal characters are one string for case folding: ß matches "ss" but not two
  // separate s. A quantifier takes the last character out of the string, as ICU does.
  Node sequence() {
    Node node{.kind = Node::Kind::sequence};
    std::u32string literal;
    while (!ended() && pattern_[at_] != U'|' && pattern_[at_] != U')') {
      if (pattern_[at_] == U'[') flush(literal, node);
      if (const auto character = literalCharacter()) {
        if (atQuantifier()) {
          flush(literal, node);
          literal.push_back(*character);
          Node single{.kind = Node::Kind::sequence};
          flush(literal, single);
          node.children.push_back(quantified(std::move(single)));
        } else {
          literal.push_back(*character);
        }
        continue;
      }
      flush(literal, node);
      node.children.push_back(quantified(atom()));
    }
    flush(literal, node);
    return node;
  }

  void flush(std::u32string& literal, Node& into) {
    icu::UnicodeString text;
    for (const char32_t c : literal)
      text.append(static_cast<UChar32>(c));
    literal.clear();
    if (caseInsensitive_) text.foldCase(U_FOLD_CASE_DEFAULT);
    if (caseInsensitive_ && text.countChar32() > 1) {
      Node node{.kind = Node::Kind::foldedText};
      for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
        node.text.push_back(static_cast<char32_t>(text.char32At(i)));
      into.children.push_back(std::move(node));
      return;
    }
    for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
      const UChar32 c = text.char32At(i);
      const bool folds = caseInsensitive_ && u_hasBinaryProperty(c, UCHAR_CASE_SENSITIVE);
      into.children.push_back(setNode(folds ? simpleFoldings(c) : icu::UnicodeSet(c, c)));
    }
  }

  Node setNode(const icu::UnicodeSet& set) {
    return {.kind = Node::Kind::set, .set = sets_.intern(rangesOf(set))};
  }

  [[nodiscard]] bool atQuantifier() const {
    return !ended() &&
           std::u32string_view(U"*+?{").find(pattern_[at_]) != std::u32string_view::npos;
  }

  Node quantified(Node node) {
    node = withoutSequence(std::move(node));
    for (int count = 1; atQuantifier(); ++count) {
      if (count > maxQuantifiers) fail("too many quantifiers in a row");
      Node repetition{.kind = Node::Kind::repetition, .min = 0, .max = unbounded};
      switch (take()) {
        case U'+':
          repetition.min = 1;
          break;
        case U'?':
          repetition.max = 1;
          break;
        case U'{':
          interval(repetition);
          break;
        default:
          break;
      }
      repetition.lazy = next(U"?");
      if (next(U"+")) fail("possessive quantifiers are not offered");
      if (matchesNothing(node) && repetition.max > 1) fail("repetition of what may be empty");
      repetition.children.push_back(std::move(node));
      node = std::move(repetition);
    }
    return node;
  }

  void interval(Node& repetition) {
    const auto number = [&] {
      std::uint32_t value = 0;
      bool any = false;
      while (!ended() && pattern_[at_] >= U'0' && pattern_[at_] <= U'9') {
        value = value * 10 + (take() - U'0');
        any = true;
        if (value > maxIterations) fail("repetition too long");
      }
      if (!any) fail("number expected");
      return value;
    };
    repetition.min = repetition.max = number();
    if (next(U",")) repetition.max = pattern_[at_] == U'}' ? unbounded : number();
    if (!next(U"}") || repetition.max < repetition.min) fail("malformed interval");
  }

  /// Whether `node` can match without taking a character. ICU leaves a loop in that case, in a way
  /// that no rule should depend on.
  static bool matchesNothing(const Node& node) {
    const auto empty = [](const Node& child) { return matchesNothing(child); };
    switch (node.kind) {
      case Node::Kind::set:
      case Node::Kind::foldedText:
        return false;
      case Node::Kind::lookAhead:
        return true;
      case Node::Kind::alternatives:
        return std::any_of(node.children.begin(), node.children.end(), empty);
      case Node::Kind::repetition:
        return node.min == 0 || matchesNothing(node.children.front());
      default:
        return std::all_of(node.children.begin(), node.children.end(), empty);
    }
  }

  /// The character that stands here for itself, taken; nothing when something else stands here.
  std::optional<char32_t> literalCharacter() {
    const char32_t c = pattern_[at_];
    if (c == U'[') {
      const std::size_t before = at_;
      ++at_;
      const icu::UnicodeSet set = setExpression();
      if (set.size() == 1) return static_cast<char32_t>(set.charAt(0));
      at_ = before;
      return std::nullopt;
    }
    if (c == U'\\') {
      const std::size_t before = at_;
      ++at_;
      const auto escaped = escapedCharacter();
      if (!escaped) at_ = before;
      return escaped;
    }
    if (std::u32string_view(U"()^$.*+?{").find(c) != std::u32string_view::npos) return std::nullopt;
    ++at_;
    return c;
  }

  Node atom() {
    switch (take()) {
      case U'(':
        return group();
      case U'[':
        return setNode(setExpression());
      case U'^':
        return {.kind = Node::Kind::textStart};
      case U'$':
        return {.kind = Node::Kind::textEnd};
      case U'.':
        return setNode(setFrom(R"([^\n\u000b\f\r\u0085\u2028\u2029])"));
      case U'\\':
        return escapedAtom();
      default:
        fail("quantifier without a subject");
    }
  }

  Node group() {
    if (++openGroups_ > maxOpenGroups) fail("groups nested too deeply");
    Node node;
    if (next(U"?:") || ended() || pattern_[at_] != U'?') {
      node = alternatives();
    } else if (next(U"?=") || next(U"?!")) {
      node.kind = Node::Kind::lookAhead;
      node.negative = pattern_[at_ - 1] == U'!';
      node.children.push_back(alternatives());
    } else if (next(U"?<=") || next(U"?<!")) {
      const bool negative = pattern_[at_ - 1] == U'!';
      node = preceding(withoutSequence(alternatives()), negative);
    } else {
      fail("this group is not offered");
    }
    if (!next(U")")) fail("missing )");
    --openGroups_;
    return node;
  }

  /// What is looked back at: one character, or a word of one set such as `\b[a-z]{1,3}`.
  [[nodiscard]] Node preceding(const Node& node, bool negative) const {
    if (node.kind == Node::Kind::set)
      return {.kind = Node::Kind::precedingInSet, .negative = negative, .set = node.set};
    const auto& parts = node.children;
    if (!negative && node.kind == Node::Kind::sequence && parts.size() == 2 &&
        parts[0].kind == Node::Kind::wordBoundary && !parts[0].negative) {
      const Node& letters = parts[1];
      if (letters.kind == Node::Kind::set)
        return {.kind = Node::Kind::precedingWord, .set = letters.set, .min = 1, .max = 1};
      if (letters.kind == Node::Kind::repetition && letters.max != unbounded && letters.min > 0 &&
          letters.children.front().kind == Node::Kind::set)
        return {.kind = Node::Kind::precedingWord,
                .set = letters.children.front().set,
                .min = letters.min,
                .max = letters.max};
    }
    fail("only one character or a word of one set can be looked back at");
  }

  /// The character an escape stands for; nothing when it stands for a set or a position.
  std::optional<char32_t> escapedCharacter() {
    const char32_t c = take();
    switch (c) {
      case U'n':
        return U'\n';
      case U'r':
        return U'\r';
      case U't':
        return U'\t';
      case U'f':
        return U'\f';
      case U'u':
        return hexadecimal(4);
      case U'U':
        return hexadecimal(8);
      case U'x': {
        if (!next(U"{")) return hexadecimal(2);
        const std::size_t end = pattern_.find(U'}', at_);
        if (end == std::u32string::npos) fail("missing }");
        const char32_t value = hexadecimal(end - at_);
        ++at_;
        return value;
      }
      default:
        if ((c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || (c >= U'0' && c <= U'9')) {
          return std::nullopt;
        }
        return c;
    }
  }

  char32_t hexadecimal(std::size_t digits) {
    char32_t value = 0;
    for (std::size_t i = 0; i < digits; ++i) {
      const char32_t c = take();
      const auto digit = c < 0x80 ? u_digit(static_cast<UChar32>(c), 16) : -1;
      if (digit < 0 || digits > 8) fail("hexadecimal digits expected");
      value = value * 16 + static_cast<char32_t>(digit);
    }
    if (value > 0x10FFFF) fail("no such code point");
    return value;
  }

  Node escapedAtom() {
    switch (pattern_[at_]) {
      case U'b':
      case U'B':
        return {.kind = Node::Kind::wordBoundary, .negative = take() == U'B'};
      case U'A':
        ++at_;
        return {.kind = Node::Kind::textStart};
      case U'z':
        ++at_;
        return {.kind = Node::Kind::absoluteEnd};
      default:
        return setNode(escapedSet());
    }
  }

  /// \w, \s, \d, \p and their complements.
  icu::UnicodeSet escapedSet() {
    const char32_t c = take();
    if (const PropertySet* const set = propertySet(c)) return set->get(c < U'a');
    if (c != U'p' && c != U'P') fail("this escape is not offered");
    const std::size_t end = pattern_.find(U'}', at_);
    if (end == std::u32string::npos) fail("missing }");
    std::string notation = c == U'p' ? "[\\p" : "[\\P";
    for (; at_ <= end; ++at_)
      notation.push_back(static_cast<char>(pattern_[at_]));
    const std::uint32_t options = caseInsensitive_ ? std::uint32_t{USET_CASE_INSENSITIVE} : 0;
    return setFrom(notation + "]", options);
  }

  /// What follows "[", up to and including "]".
  icu::UnicodeSet setExpression() {
    icu::UnicodeSet set;
    icu::UnicodeSet properties;
    const bool negative = next(U"^");
    bool first = true;
    while (first || ended() || pattern_[at_] != U']') {
      first = false;
      const std::u32string_view rest = std::u32string_view(pattern_).substr(at_);
      if (rest.substr(0, 1) == U"[" || rest.substr(0, 2) == U"&&" || rest.substr(0, 2) == U"--")
        fail("nested sets and set operators are not offered");
      const auto low = setCharacter();
      if (!low) {
        properties.addAll(escapedSet());
        continue;
      }
      if (pattern_.size() > at_ + 1 && pattern_[at_] == U'-' && pattern_[at_ + 1] != U']') {
        ++at_;
        const auto high = setCharacter();
        if (!high || *high < *low) fail("malformed range");
        set.add(static_cast<UChar32>(*low), static_cast<UChar32>(*high));
      } else {
        set.add(static_cast<UChar32>(*low));
      }
    }
    ++at_;
    if (caseInsensitive_) set.closeOver(USET_CASE_INSENSITIVE);
    set.addAll(properties);
    if (negative) set.complement();
    set.removeAllStrings();
    return set;
  }

  std::optional<char32_t> setCharacter() {
    const char32_t c = take();
    if (c != U'\\') return c;
    const std::size_t before = at_;
    const auto escaped = escapedCharacter();
    if (!escaped) at_ = before;
    return escaped;
  }

  std::u32string pattern_;
  std::size_t at_ = 0;
  int openGroups_ = 0;
  bool caseInsensitive_;
  SetTable& sets_;
};

}  // namespace

std::size_t SetTable::intern(CodePointRanges ranges) {
  const auto found = std::find(sets_.begin(), sets_.end(), ranges);
  if (found != sets_.end()) return static_cast<std::size_t>(found - sets_.begin());
  sets_.push_back(std::move(ranges));
  return sets_.size() - 1;
}

Node parsePattern(const Pattern& pattern, SetTable& sets) {
  return Parser(pattern, sets).parse();
}

CodePointRanges codePointsOf(std::string_view unicodeSet) {
  return rangesOf(setFrom(unicodeSet));
}

}  // namespace quillseal::screening
