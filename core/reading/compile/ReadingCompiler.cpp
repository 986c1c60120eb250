#include "core/reading/compile/ReadingCompiler.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <stdexcept>
#include <tuple>
#include <utility>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>
#include <unicode/uspoof.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::reading {
namespace {

using Kind = Reading::Kind;

// ---- Code points

/// Letters that look alike in most fonts, but that Unicode's list of confusables lacks or
/// assigns to letters of phonetic alphabets.
constexpr std::pair<char32_t, char> furtherTwins[] = {
    {U'\u03B2', 'b'}, {U'\u03B5', 'e'}, {U'\u03BA', 'k'}, {U'\u03BC', 'u'}, {U'\u03C0', 'n'},
    {U'\u03C7', 'x'}, {U'\u03C9', 'w'}, {U'\u03A3', 'E'}, {U'\u0418', 'N'}, {U'\u0438', 'n'},
    {U'\u042F', 'R'}, {U'\u044F', 'r'}, {U'\u043A', 'k'}, {U'\u043C', 'm'}, {U'\u043F', 'n'},
    {U'\u044C', 'b'}, {U'\u0448', 'w'}, {U'\u0428', 'W'}, {U'\u0404', 'E'}, {U'\u0454', 'e'},
    {U'\u0437', 'e'}, {U'\u03BB', 'l'}, {U'\u03B4', 'd'}, {U'\u0434', 'd'}};

/// What a digit or a sign may stand for within a word, the likeliest first.
constexpr std::pair<char32_t, std::string_view> lettersOfSigns[] = {
    {U'0', "o"},      {U'1', "il"},     {U'2', "z"},      {U'3', "e"},      {U'4', "a"},
    {U'5', "s"},      {U'6', "gb"},     {U'7', "t"},      {U'8', "b"},      {U'9', "g"},
    {U'@', "a"},      {U'$', "s"},      {U'!', "il"},     {U'|', "li"},     {U'+', "t"},
    {U'\u00A1', "i"}, {U'\u00A2', "c"}, {U'\u00A3', "l"}, {U'\u00A5', "y"}, {U'\u00A7', "s"},
    {U'\u20AC', "e"}, {U'\u00D7', "x"}};

/// Read as a hyphen.
constexpr std::u32string_view hyphens = U"\u2010\u2011\u2012\u2043\u2212\uFE58\uFE63\uFF0D";

Reading reading(Kind kind, std::string_view text = {}) {
  Reading result{.kind = kind};
  if (text.size() > result.text.size()) throw std::logic_error("a reading is too long");
  std::copy(text.begin(), text.end(), result.text.begin());
  return result;
}

bool isAsciiLetter(char32_t scalar) {
  return (scalar >= U'a' && scalar <= U'z') || (scalar >= U'A' && scalar <= U'Z');
}

bool isAsciiDigit(char32_t scalar) {
  return scalar >= U'0' && scalar <= U'9';
}

/// Derives the readings of code points from ICU's data.
class CodePoints {
 public:
  CodePoints() {
    UErrorCode status = U_ZERO_ERROR;
    spoof_.reset(uspoof_open(&status));
    compatibility_ = icu::Normalizer2::getNFKCInstance(status);
    decomposition_ = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) throw std::runtime_error(std::string("ICU: ") + u_errorName(status));
  }

  [[nodiscard]] Reading readingOf(char32_t scalar) const {
    if (scalar < 0x80) return ofAscii(scalar);
    const auto point = static_cast<UChar32>(scalar);
    if (u_hasBinaryProperty(point, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0 ||
        (point >= 0xFFF9 && point <= 0xFFFB))
      return reading(Kind::invisible);
    if (scalar == U'\u0085' || scalar == U'\u2028' || scalar == U'\u2029')
      return reading(Kind::lineBreak);
    // The blank Braille cell has no dots.
    if (u_isUWhiteSpace(point) != 0 || scalar == U'\u2800') return reading(Kind::same, " ");
    if (u_charType(point) == U_CONTROL_CHAR) return reading(Kind::invisible);
    if (hyphens.find(scalar) != std::u32string_view::npos) return reading(Kind::same, "-");
    if (scalar == U'\u30FB') return reading(Kind::separator);
    if (const auto sign = letterOfSign(scalar)) return reading(Kind::sign, *sign);
    if (auto form = compatibilityForm(scalar)) return *form;
    return ofLetter(scalar);
  }

 private:
  static std::optional<std::string_view> letterOfSign(char32_t scalar) {
    for (const auto& [sign, letters] : lettersOfSigns)
      if (sign == scalar) return letters;
    return std::nullopt;
  }

  static Reading ofAscii(char32_t scalar) {
    if (isAsciiLetter(scalar)) return reading(Kind::letter);
    if (isAsciiDigit(scalar)) return reading(Kind::digit, letterOfSign(scalar).value());
    if (scalar == U' ' || scalar == U'\t') return reading(Kind::blank);
    if (scalar >= U'\n' && scalar <= U'\r') return reading(Kind::lineBreak);
    if (scalar < U' ' || scalar == 0x7F) return reading(Kind::invisible);
    if (scalar == U'.') return reading(Kind::stop);
    return reading(Kind::sign, letterOfSign(scalar).value_or(""));
  }

  static std::string nameOf(char32_t scalar) {
    std::array<char, 128> name{};
    UErrorCode status = U_ZERO_ERROR;
    u_charName(static_cast<UChar32>(scalar), U_UNICODE_CHAR_NAME, name.data(), name.size(),
               &status);
    return U_FAILURE(status) ? std::string() : std::string(name.data());
  }

  [[nodiscard]] std::optional<Reading> compatibilityForm(char32_t scalar) const {
    const auto point = static_cast<UChar32>(scalar);
    const std::string name = nameOf(scalar);
    constexpr std::string_view flagLetter = "REGIONAL INDICATOR SYMBOL LETTER ";
    if (name.starts_with(flagLetter))
      return reading(Kind::pictograph, name.substr(flagLetter.size()));
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString form = compatibility_->normalize(icu::UnicodeString(point), status);
    std::string text;
    form.toUTF8String(text);
    // Radicals, circled letters, and letters of half the width or of old character sets.
    const UChar32 one = form.countChar32() == 1 ? form.char32At(0) : point;
    if (one != point && isWideLetter(static_cast<char32_t>(one))) return reading(Kind::same, text);
    const auto type = u_charType(point);
    if (type == U_OTHER_SYMBOL) {
      // Circled and squared letters, also the negative ones that have no decomposition.
      for (const std::string_view before : {"LATIN CAPITAL LETTER ", "LATIN SMALL LETTER "}) {
        const std::size_t at = name.find(before);
        if (at != std::string::npos && name.size() == at + before.size() + 1)
          return reading(Kind::same, name.substr(at + before.size()));
      }
      const auto kind = u_getIntPropertyValue(point, UCHAR_DECOMPOSITION_TYPE);
      if (kind != U_DT_SQUARE && kind != U_DT_FONT) return std::nullopt;
    }
    icu::UnicodeString raw;
    if (compatibility_->getRawDecomposition(point, raw) == 0) return std::nullopt;
    const auto kind = u_getIntPropertyValue(point, UCHAR_DECOMPOSITION_TYPE);
    if ((kind == U_DT_SUPER || kind == U_DT_SUB) && u_isalpha(point) == 0) return std::nullopt;
    if (scalar >= U'\uFF01' && scalar <= U'\uFF5E' && u_isalnum(point) == 0)
      return text.size() == 1 ? std::optional(reading(Kind::wideSign, text)) : std::nullopt;
    if (kind == U_DT_COMPAT) std::erase_if(text, [](char c) { return c == '(' || c == ')'; });
    const bool isAlphanumeric = !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
      return isAsciiLetter(static_cast<unsigned char>(c)) ||
             isAsciiDigit(static_cast<unsigned char>(c));
    });
    if (!isAlphanumeric || text.size() > sizeof(Reading::text)) return std::nullopt;
    return reading(Kind::same, text);
  }

  /// The letter that a Latin letter of this name is a form of.
  static std::optional<char> baseFromName(const std::string& name) {
    constexpr std::string_view modifiers[] = {"SMALL ",  "CAPITAL ",  "LETTER ",  "LATIN ",
                                              "SCRIPT ", "OPEN ",     "DOTLESS ", "LONG ",
                                              "TURNED ", "REVERSED ", "BARRED "};
    if (!name.starts_with("LATIN ")) return std::nullopt;
    const bool isCapital = name.starts_with("LATIN CAPITAL");
    std::string_view rest = name;
    for (bool again = true; again;) {
      again = false;
      for (const std::string_view modifier : modifiers) {
        if (!rest.starts_with(modifier)) continue;
        rest.remove_prefix(modifier.size());
        again = true;
      }
    }
    if (rest.empty() || !isAsciiLetter(static_cast<unsigned char>(rest[0]))) return std::nullopt;
    if (rest.size() > 1 && rest[1] != ' ') return std::nullopt;
    return static_cast<char>(isCapital ? rest[0] : rest[0] | 0x20);
  }

  /// The ASCII letter that Unicode's confusables (UTS #39) lead to, without marks.
  [[nodiscard]] std::optional<std::string> confusable(char32_t scalar) const {
    const auto point = static_cast<UChar32>(scalar);
    icu::UnicodeString skeleton;
    UErrorCode status = U_ZERO_ERROR;
    uspoof_getSkeletonUnicodeString(spoof_.get(), 0, icu::UnicodeString(point), skeleton, &status);
    const icu::UnicodeString parts = decomposition_->normalize(skeleton, status);
    if (U_FAILURE(status)) return std::nullopt;
    // The skeletons of m and w are two letters or one; "l" is that of I and 1, too.
    std::u32string bases;
    for (std::int32_t i = 0; i < parts.length(); i = parts.moveIndex32(i, 1))
      if (const UChar32 part = parts.char32At(i);
          (U_GET_GC_MASK(part) & (U_GC_MN_MASK | U_GC_ME_MASK)) == 0)
        bases += static_cast<char32_t>(part);
    if (bases == U"rn") return "m";
    if (bases.size() != 1) return std::nullopt;
    if (bases[0] == U'l') {
      const UChar32 small = u_tolower(point);
      const auto ofSmall = small != point ? confusable(static_cast<char32_t>(small)) : std::nullopt;
      return ofSmall == "i" || ofSmall == "il" ? "Il" : "li";
    }
    // PALOCHKA: a stroke that many fonts draw as a small l.
    if (scalar == U'\u04CF') return "li";
    if (isAsciiLetter(bases[0])) return std::string(1, static_cast<char>(bases[0]));
    if (const auto base = baseFromName(nameOf(bases[0]))) return std::string(1, *base);
    return std::nullopt;
  }

  [[nodiscard]] Reading ofLetter(char32_t scalar) const {
    const auto point = static_cast<UChar32>(scalar);
    if ((U_GET_GC_MASK(point) & (U_GC_MN_MASK | U_GC_ME_MASK)) != 0) return reading(Kind::mark);
    if (u_isalpha(point) == 0) {
      if ((U_GET_GC_MASK(point) & U_GC_S_MASK) == 0) return reading(Kind::other);
      const auto letter = confusable(scalar);
      return letter ? reading(Kind::sign, *letter) : reading(Kind::other);
    }
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(point, &status)) {
      case USCRIPT_HAN:
      case USCRIPT_HIRAGANA:
      case USCRIPT_KATAKANA:
      case USCRIPT_HANGUL:
      case USCRIPT_BOPOMOFO:
      case USCRIPT_YI:
        return reading(Kind::other);
      case USCRIPT_LATIN:
        if (const auto base = latinBase(scalar))
          return reading(Kind::accented, std::string_view(&*base, 1));
        return reading(Kind::foreign);
      default:
        break;
    }
    for (const auto& [further, letter] : furtherTwins)
      if (further == scalar) return reading(Kind::twin, std::string_view(&letter, 1));
    if (const auto letters = confusable(scalar)) return reading(Kind::twin, *letters);
    return reading(Kind::foreign);
  }

  [[nodiscard]] std::optional<char> latinBase(char32_t scalar) const {
    if (const auto base = baseFromName(nameOf(scalar))) return base;
    const auto letters = confusable(scalar);
    return letters ? std::optional((*letters)[0]) : std::nullopt;
  }

  UniqueHandle<USpoofChecker, uspoof_close> spoof_;
  const icu::Normalizer2* compatibility_ = nullptr;
  const icu::Normalizer2* decomposition_ = nullptr;
};

// ---- Words

/// A place where a pattern allows any letter. What contains it is not a word.
constexpr char anyLetter = '\x01';

/// The letters with which texts that match a part of a pattern begin and end.
struct Fragment {
  std::string start;
  std::string end;  ///< equal to `start` when there is no border within
  bool hasBorder = false;

  bool operator<(const Fragment& other) const {
    return std::tie(start, end, hasBorder) < std::tie(other.start, other.end, other.hasBorder);
  }
};

using Fragments = std::set<Fragment>;

/// More variants than an ordinary word has. A larger set is not one of words.
constexpr std::size_t mostFragments = 4000;

class WordCollector {
 public:
  explicit WordCollector(std::set<std::string>& words) : words_(words) {}

  void collect(const screening::Pattern& pattern) {
    sets_ = {};
    const screening::Node root = screening::parsePattern(pattern, sets_);
    for (const Fragment& fragment : fragmentsOf(root)) {
      add(fragment.start);
      if (fragment.hasBorder) add(fragment.end);
    }
  }

 private:
  using Node = screening::Node;

  void add(const std::string& word) {
    const bool isOneLetter = word.size() == 1 && word != "a" && word != "i";
    if (word.empty() || word.size() > longestWord || isOneLetter) return;
    const auto isRunOfThree = [&](std::size_t i) {
      return word[i] == word[i + 1] && word[i] == word[i + 2];
    };
    for (std::size_t i = 0; i + 2 < word.size(); ++i)
      if (isRunOfThree(i)) return;
    if (word.find(anyLetter) == std::string::npos) words_.insert(word);
  }

  static Fragments border() { return {{.start = "", .end = "", .hasBorder = true}}; }

  static std::optional<char> letterOf(char32_t scalar) {
    const auto small = static_cast<char32_t>(u_tolower(static_cast<UChar32>(scalar)));
    if (small < 0x100 && u_isalpha(static_cast<UChar32>(small)) != 0)
      return static_cast<char>(small);
    return std::nullopt;
  }

  void addScalar(char32_t scalar, Fragments& fragments) const {
    const auto letter = letterOf(scalar);
    if (!letter) {
      fragments.merge(border());
      return;
    }
    fragments.insert({.start = std::string(1, *letter), .end = std::string(1, *letter)});
  }

  Fragments ofSet(const screening::CodePointRanges& ranges) const {
    std::size_t size = 0;
    bool hasLetters = false;
    for (const auto& [first, last] : ranges) {
      size += last - first + 1;
      hasLetters = hasLetters || (first <= U'e' && U'e' <= last);
    }
    Fragments fragments;
    constexpr std::size_t mostMembers = 12;
    if (size > mostMembers) {
      // A set that excludes little, such as the rest of a sentence, holds no words.
      constexpr std::size_t mostOfOneKind = 0x100000;
      if (!hasLetters || size > mostOfOneKind) return border();
      return {{.start = {anyLetter}, .end = {anyLetter}}};
    }
    for (const auto& [first, last] : ranges)
      for (char32_t scalar = first; scalar <= last; ++scalar)
        if (scalar < 0x100 || !letterOf(scalar)) addScalar(scalar, fragments);
    return fragments;
  }

  Fragments joined(const Fragments& first, const Fragments& second) {
    Fragments result;
    for (const Fragment& a : first) {
      for (const Fragment& b : second) {
        const std::string middle = a.end + b.start;
        if (a.hasBorder && b.hasBorder) add(middle);
        result.insert({.start = a.hasBorder ? a.start : middle,
                       .end = b.hasBorder ? b.end : middle,
                       .hasBorder = a.hasBorder || b.hasBorder});
      }
    }
    return result.size() > mostFragments ? cut(result) : result;
  }

  Fragments cut(const Fragments& fragments) {
    for (const Fragment& fragment : fragments) {
      add(fragment.start);
      if (fragment.hasBorder) add(fragment.end);
    }
    return border();
  }

  Fragments ofRepetition(const Node& node) {
    const Fragments once = fragmentsOf(node.children[0]);
    Fragments result = once;
    // Words that may repeat are not written as one.
    if (node.max > 1)
      for (const Fragment& fragment : once)
        result.insert({.start = fragment.start, .end = fragment.end, .hasBorder = true});
    if (node.min == 0) result.insert(Fragment{});
    return result;
  }

  Fragments fragmentsOf(const Node& node) {
    switch (node.kind) {
      case Node::Kind::set:
        return ofSet(sets_[node.set]);
      case Node::Kind::foldedText: {
        Fragments fragments{Fragment{}};
        for (const char32_t scalar : node.text) {
          Fragments one;
          addScalar(scalar, one);
          fragments = joined(fragments, one);
        }
        return fragments;
      }
      case Node::Kind::sequence: {
        Fragments fragments{Fragment{}};
        for (const Node& child : node.children)
          fragments = joined(fragments, fragmentsOf(child));
        return fragments;
      }
      case Node::Kind::alternatives: {
        Fragments fragments;
        for (const Node& child : node.children)
          fragments.merge(fragmentsOf(child));
        return fragments.size() > mostFragments ? cut(fragments) : fragments;
      }
      case Node::Kind::repetition:
        return ofRepetition(node);
      case Node::Kind::lookAhead:
        for (const Fragment& fragment : fragmentsOf(node.children[0])) {
          add(fragment.start);
          if (fragment.hasBorder) add(fragment.end);
        }
        return border();
      default:
        return border();
    }
  }

  std::set<std::string>& words_;
  screening::SetTable sets_;
};

void addCommonWords(std::string_view list, std::set<std::string>& words) {
  while (!list.empty()) {
    const std::size_t end = std::min(list.find('\n'), list.size());
    std::string_view line = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    while (!line.empty() && line[0] != '#') {
      const std::size_t length = std::min(line.find(' '), line.size());
      if (length > 0) words.emplace(line.substr(0, length));
      line.remove_prefix(std::min(length + 1, line.size()));
    }
  }
}

std::vector<std::uint32_t> hashTableOf(const std::set<std::string>& words,
                                       const std::set<std::string>& common) {
  std::size_t size = 1;
  while (size < 3 * words.size())
    size *= 2;
  std::vector<std::uint32_t> table(size);
  for (const std::string& word : words) {
    const std::uint64_t hash = hashOfWord(bytesOfWord(word));
    std::size_t slot = hash & (size - 1);
    while (table[slot] != 0)
      slot = (slot + 1) & (size - 1);
    table[slot] = fingerprintOf(hash) | wordBit | (common.contains(word) ? commonWordBit : 0);
  }
  return table;
}

}  // namespace

std::set<std::string> wordsOf(std::span<const screening::Pattern> patterns) {
  std::set<std::string> words;
  WordCollector collector(words);
  for (const screening::Pattern& pattern : patterns) {
    try {
      collector.collect(pattern);
    } catch (const screening::PatternError&) {
      // Reported by the compiler of the patterns.
      continue;
    }
  }
  return words;
}

CompiledTables compileReadings(std::span<const screening::Pattern> patterns,
                               std::string_view commonWords) {
  CompiledTables tables;
  tables.distinctReadings.emplace_back();
  std::map<std::pair<Kind, std::string>, std::uint16_t> readingIndex{{{Kind::other, ""}, 0}};
  std::map<std::vector<std::uint16_t>, std::uint16_t> blockIndex;
  const CodePoints codePoints;
  for (char32_t first = 0; first < 0x110000; first += blockSize) {
    std::vector<std::uint16_t> block;
    for (char32_t scalar = first; scalar < first + blockSize; ++scalar) {
      const Reading one = codePoints.readingOf(scalar);
      const auto [found, isNew] =
          readingIndex.try_emplace({one.kind, std::string(one.view())},
                                   static_cast<std::uint16_t>(tables.distinctReadings.size()));
      if (isNew) tables.distinctReadings.push_back(one);
      block.push_back(found->second);
    }
    const auto [found, isNew] =
        blockIndex.try_emplace(block, static_cast<std::uint16_t>(blockIndex.size()));
    if (isNew) tables.readings.insert(tables.readings.end(), block.begin(), block.end());
    tables.blocks.push_back(found->second);
  }
  std::set<std::string> common;
  addCommonWords(commonWords, common);
  std::set<std::string> words = wordsOf(patterns);
  words.insert(common.begin(), common.end());
  tables.words = hashTableOf(words, common);
  tables.longest.resize(beginnings);
  for (const std::string& word : words) {
    const bool isAscii =
        std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    if (!isAscii || word.size() < 3) continue;
    std::uint8_t& longest = tables.longest[beginningOf(word.data())];
    longest = std::max(longest, static_cast<std::uint8_t>(word.size()));
  }
  return tables;
}

}  // namespace quillseal::reading
