#include "Quillseal/CryptoManager.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "Quillseal/CalendarDate.h"
#include "Quillseal/Digest.h"
#include "Quillseal/IcuStatus.h"
#include "Quillseal/UnicodeText.h"

namespace quillseal::CryptoManager {
namespace {

using unicode::CharacterCursor;

struct ScalarRange {
  char32_t low;
  char32_t high;
};

/// Scripts written without spaces between words: each of these characters is a word.
constexpr std::array<ScalarRange, 6> cjkRanges{{
    {0x3040, 0x30FF},    // Hiragana and Katakana
    {0x3400, 0x4DBF},    // CJK Unified Ideographs Extension A
    {0x4E00, 0x9FFF},    // CJK Unified Ideographs
    {0xF900, 0xFAFF},    // CJK Compatibility Ideographs
    {0xAC00, 0xD7AF},    // Hangul Syllables
    {0x20000, 0x2FA1F},  // Supplementary Ideographic Plane to CJK Compatibility Supplement
}};

struct ExpiryTier {
  std::int64_t belowWords;
  std::int64_t days;
};

constexpr std::array<ExpiryTier, 3> expiryTiers{{{50, 7}, {200, 30}, {1000, 90}}};
constexpr std::int64_t longestExpiryDays = 365;

constexpr std::string_view payloadTag = "quillseal/v3\n";
constexpr std::string_view manifestTag = "quillseal/images/v1\n";

// Character classes -----------------------------------------------------------------------------

enum class AsciiKind : std::uint8_t { other, space, letterOrNumber };

constexpr std::array<AsciiKind, 128> asciiKinds = [] {
  std::array<AsciiKind, 128> kinds{};
  for (std::size_t c = 0x09; c <= 0x0D; ++c)
    kinds[c] = AsciiKind::space;
  kinds[' '] = AsciiKind::space;
  for (std::size_t c = '0'; c <= '9'; ++c)
    kinds[c] = AsciiKind::letterOrNumber;
  for (std::size_t c = 'A'; c <= 'Z'; ++c)
    kinds[c] = kinds[c + 32] = AsciiKind::letterOrNumber;
  return kinds;
}();

UChar32 icuScalar(char32_t scalar) {
  return static_cast<UChar32>(scalar);
}

bool isWhitespace(char32_t scalar) {
  return u_isUWhiteSpace(icuScalar(scalar)) != 0;
}

bool isNumber(char32_t scalar) {
  return u_getIntPropertyValue(icuScalar(scalar), UCHAR_NUMERIC_TYPE) != U_NT_NONE;
}

bool isLetter(char32_t scalar) {
  return u_isUAlphabetic(icuScalar(scalar)) != 0;
}

bool isSingleScalar(std::string_view character) {
  std::size_t position = 0;
  static_cast<void>(unicode::nextScalar(character, position));
  return position == character.size();
}

bool isCjkWord(std::string_view character) {
  const char32_t scalar = unicode::firstScalar(character);
  const bool inRange = std::any_of(cjkRanges.begin(), cjkRanges.end(), [&](ScalarRange range) {
    return range.low <= scalar && scalar <= range.high;
  });
  return inRange && isSingleScalar(character);
}

bool isUppercase(std::string_view character) {
  if (isSingleScalar(character) && u_isUUppercase(icuScalar(unicode::firstScalar(character))) != 0)
    return true;
  return unicode::lowercased(character) != character && unicode::uppercased(character) == character;
}

// Normalisation ---------------------------------------------------------------------------------

/// Sorts long runs of combining marks into canonical order. ICU sorts them by insertion, which a
/// crafted text of a hundred thousand marks turns into seconds; the order is the same either way,
/// since canonical ordering is a stable sort by combining class (Unicode Standard, D109).
std::string withLongMarkRunsOrdered(std::string_view text) {
  constexpr std::size_t longRun = 64;
  UErrorCode status = U_ZERO_ERROR;
  const auto* nfd = icu::Normalizer2::getNFDInstance(status);
  requireSuccess(status);

  const auto isMark = [](char32_t scalar) {
    return scalar >= 0x300 &&
           u_getIntPropertyValue(icuScalar(scalar), UCHAR_LEAD_CANONICAL_COMBINING_CLASS) != 0;
  };
  std::string result;
  std::vector<std::pair<std::uint8_t, char32_t>> marks;
  const auto decompose = [&](char32_t scalar) {
    icu::UnicodeString parts;
    if (!nfd->getDecomposition(icuScalar(scalar), parts)) parts = icuScalar(scalar);
    for (std::int32_t i = 0; i < parts.length(); i = parts.moveIndex32(i, 1)) {
      const UChar32 part = parts.char32At(i);
      marks.emplace_back(nfd->getCombiningClass(part), static_cast<char32_t>(part));
    }
  };

  result.reserve(text.size());
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t runStart = position;
    std::size_t runEnd = position;
    std::size_t count = 0;
    while (position < text.size() && isMark(unicode::nextScalar(text, position))) {
      runEnd = position;
      ++count;
    }
    if (count < longRun) {
      result += text.substr(runStart, position - runStart);
      continue;
    }
    marks.clear();
    for (std::size_t at = runStart; at < runEnd;)
      decompose(unicode::nextScalar(text, at));
    std::stable_sort(marks.begin(), marks.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& mark : marks)
      unicode::append(result, mark.second);
    result += text.substr(runEnd, position - runEnd);
  }
  return result;
}

std::string composed(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const auto* nfc = icu::Normalizer2::getNFCInstance(status);
  requireSuccess(status);
  const std::string ordered = withLongMarkRunsOrdered(text);
  std::string result;
  icu::StringByteSink<std::string> sink(&result, icuLength(ordered.size()));
  nfc->normalizeUTF8(0, ordered, sink, nullptr, status);
  requireSuccess(status);
  return result;
}

constexpr std::array<bool, 128> asciiKept = [] {
  std::array<bool, 128> kept{};
  std::transform(asciiKinds.begin(), asciiKinds.end(), kept.begin(),
                 [](AsciiKind kind) { return kind != AsciiKind::space; });
  kept['<'] = kept['>'] = false;
  return kept;
}();

/// Appends the canonical form of one scalar outside ASCII, which `source` encodes.
void appendCanonical(std::string& result, char32_t scalar, std::string_view source) {
  switch (scalar) {
    case 0x2012:  // figure dash
    case 0x2013:  // en dash
    case 0x2014:  // em dash
    case 0x2015:  // horizontal bar
      result += '-';
      return;
    case 0x2018:  // single curly and low quotes
    case 0x2019:
    case 0x201A:
    case 0x201B:
    case 0x02BC:  // modifier letter apostrophe
      result += '\'';
      return;
    case 0x201C:  // double curly and low quotes
    case 0x201D:
    case 0x201E:
    case 0x201F:
      result += '"';
      return;
    case 0x2026:  // horizontal ellipsis
      result += "...";
      return;
    case 0x00AD:  // soft hyphen
    case 0x034F:  // combining grapheme joiner
    case 0xFEFF:  // zero-width no-break space
      return;
    default:
      break;
  }
  const bool invisible = (scalar >= 0x200B && scalar <= 0x200F) ||  // zero-width and marks
                         (scalar >= 0x202A && scalar <= 0x202E) ||  // bidirectional controls
                         (scalar >= 0x2060 && scalar <= 0x206F);    // joiners and format controls
  if (!invisible && !unicode::isWhitespaceOrNewline(scalar)) result += source;
}

// Images ----------------------------------------------------------------------------------------

/// Finds what the expression
///     <img\b[^>]*?\bsrc\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s>]+))
/// finds, without regard to case, with ICU's meaning of \b and \s. A backtracking engine takes
/// quadratic time on a run of unclosed tags. Here every question about the rest of the text ("where
/// is the next source attribute, the next closing bracket, the last quote") has an answer that only
/// moves forward with the tag, so each part of the text is read a bounded number of times.
class ImageTagScanner {
 public:
  explicit ImageTagScanner(std::string_view html)
      : html_(html), lastDouble_(html.rfind('"')), lastSingle_(html.rfind('\'')) {}

  std::vector<std::string> sources() {
    std::vector<std::string> found;
    std::size_t bracket = 0;
    Attribute attribute;
    std::size_t from = 0;
    while (const auto tag = nextTag(from)) {
      from = *tag + tagOpening.size();
      if (bracket < from) bracket = html_.find('>', from);
      if (attribute.start < from) attribute = nextAttribute(from);
      if (attribute.start == npos) break;
      if (bracket < attribute.start) continue;
      const Value value = valueAt(attribute.valueStart);
      from = value.matchEnd;
      const std::string_view source = unicode::trimmed(value.text);
      if (!source.empty()) found.emplace_back(source);
    }
    return found;
  }

 private:
  static constexpr std::size_t npos = std::string_view::npos;
  static constexpr std::string_view tagOpening = "<img";

  struct Attribute {
    std::size_t start = 0;
    std::size_t valueStart = 0;
  };

  struct Value {
    std::string_view text;
    std::size_t matchEnd;
  };

  static bool equalsAsciiLetter(char byte, char lower) {
    return byte == lower || byte == static_cast<char>(lower - 'a' + 'A');
  }

  /// ICU's \w.
  static bool isWord(char32_t scalar) {
    constexpr std::uint32_t categories = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK;
    return isLetter(scalar) || (U_GET_GC_MASK(icuScalar(scalar)) & categories) != 0 ||
           scalar == 0x200C || scalar == 0x200D;
  }

  /// What ICU's \b looks past.
  static bool isIgnoredByBoundary(char32_t scalar) {
    return u_hasBinaryProperty(icuScalar(scalar), UCHAR_GRAPHEME_EXTEND) != 0 ||
           u_charType(icuScalar(scalar)) == U_FORMAT_CHAR;
  }

  std::optional<std::size_t> nextTag(std::size_t from) const {
    for (std::size_t at = html_.find('<', from); at != npos; at = html_.find('<', at + 1)) {
      const std::size_t behind = at + tagOpening.size();
      if (behind > html_.size()) break;
      if (!equalsAsciiLetter(html_[at + 1], 'i') || !equalsAsciiLetter(html_[at + 2], 'm') ||
          !equalsAsciiLetter(html_[at + 3], 'g'))
        continue;
      if (behind == html_.size()) return at;
      const char32_t following = unicode::firstScalar(html_.substr(behind));
      if (!isIgnoredByBoundary(following) && !isWord(following)) return at;
    }
    return std::nullopt;
  }

  Attribute nextAttribute(std::size_t from) const {
    for (std::size_t at = from; at < html_.size(); ++at) {
      const std::size_t letter = lengthOfS(at);
      if (letter == 0) continue;
      const std::size_t value = valueBehind(at + letter);
      if (value != npos && isBoundaryBeforeWord(at)) return {at, value};
    }
    return {npos, npos};
  }

  /// U+017F LATIN SMALL LETTER LONG S folds to "s".
  std::size_t lengthOfS(std::size_t at) const {
    if (equalsAsciiLetter(html_[at], 's')) return 1;
    return html_.substr(at, 2) == "\xC5\xBF" ? 2 : 0;
  }

  /// Where the value of an attribute starts whose name goes on with "rc" at `at`, or npos.
  std::size_t valueBehind(std::size_t at) const {
    if (at + 2 > html_.size() || !equalsAsciiLetter(html_[at], 'r') ||
        !equalsAsciiLetter(html_[at + 1], 'c'))
      return npos;
    const std::size_t equals = skipWhitespace(at + 2);
    if (equals == html_.size() || html_[equals] != '=') return npos;
    const std::size_t value = skipWhitespace(equals + 1);
    return value == html_.size() || html_[value] == '>' ? npos : value;
  }

  std::size_t skipWhitespace(std::size_t at) const {
    while (at < html_.size()) {
      std::size_t behind = at;
      if (!isWhitespace(unicode::nextScalar(html_, behind))) break;
      at = behind;
    }
    return at;
  }

  bool isBoundaryBeforeWord(std::size_t at) const {
    while (at > 0) {
      const char32_t before = unicode::previousScalar(html_, at);
      if (!isIgnoredByBoundary(before)) return !isWord(before);
    }
    return true;
  }

  Value valueAt(std::size_t start) const {
    const char quote = html_[start];
    const std::size_t last = quote == '"' ? lastDouble_ : quote == '\'' ? lastSingle_ : npos;
    if (last != npos && last > start) {
      const std::size_t closing = html_.find(quote, start + 1);
      return {html_.substr(start + 1, closing - start - 1), closing + 1};
    }
    std::size_t end = start;
    while (end < html_.size()) {
      std::size_t behind = end;
      const char32_t scalar = unicode::nextScalar(html_, behind);
      if (scalar == '>' || isWhitespace(scalar)) break;
      end = behind;
    }
    return {html_.substr(start, end - start), end};
  }

  std::string_view html_;
  std::size_t lastDouble_;
  std::size_t lastSingle_;
};

// Words -----------------------------------------------------------------------------------------

constexpr std::u32string_view punctuation = U"‘’“”\"'()[]{}.,;:!?-";

bool isPunctuation(char32_t scalar) {
  return punctuation.find(scalar) != std::u32string_view::npos;
}

std::string_view withoutPunctuationAtEnds(std::string_view word) {
  std::size_t start = 0;
  while (start < word.size()) {
    std::size_t behind = start;
    if (!isPunctuation(unicode::nextScalar(word, behind))) break;
    start = behind;
  }
  std::size_t end = word.size();
  while (end > start) {
    std::size_t before = end;
    if (!isPunctuation(unicode::previousScalar(word, before))) break;
    end = before;
  }
  return word.substr(start, end - start);
}

/// Capitalised but not in capitals throughout, as names are.
bool looksLikeName(std::string_view word) {
  CharacterCursor cursor(word);
  if (cursor.atEnd()) return false;
  const std::string_view initial = cursor.next();
  return !cursor.atEnd() && isUppercase(initial) && unicode::uppercased(word) != word;
}

bool holdsNumber(std::string_view text) {
  for (CharacterCursor cursor(text); !cursor.atEnd();)
    if (isNumber(unicode::firstScalar(cursor.next()))) return true;
  return false;
}

bool holdsNameAfterFirstWord(std::string_view text) {
  bool first = true;
  std::size_t wordStart = 0;
  const auto endsWithName = [&](std::size_t wordEnd) {
    if (wordEnd == wordStart || std::exchange(first, false)) return false;
    return looksLikeName(withoutPunctuationAtEnds(text.substr(wordStart, wordEnd - wordStart)));
  };
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    const std::size_t start = cursor.position();
    if (!isWhitespace(unicode::firstScalar(cursor.next()))) continue;
    if (endsWithName(start)) return true;
    wordStart = cursor.position();
  }
  return endsWithName(text.size());
}

// Dates and digests -----------------------------------------------------------------------------

std::string formattedDate(std::chrono::sys_days days) {
  const std::chrono::year_month_day date{days};
  std::array<char, 32> buffer{};
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                    static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return {buffer.data(), static_cast<std::size_t>(length)};
}

template <typename Bytes>
std::string hex(const Bytes& bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  text.reserve(2 * std::size(bytes));
  for (const std::uint8_t byte : bytes) {
    text += digits[byte >> 4U];
    text += digits[byte & 0x0FU];
  }
  return text;
}

}  // namespace

std::string normalizeText(std::string_view text) {
  std::string nfc;
  std::string_view source = text;
  if (!unicode::isAscii(text)) source = nfc = composed(text);

  std::string result;
  result.reserve(source.size());
  std::size_t position = 0;
  while (position < source.size()) {
    const auto byte = static_cast<unsigned char>(source[position]);
    if (byte < 0x80) {
      if (asciiKept[byte]) result += source[position];
      ++position;
    } else {
      const std::size_t start = position;
      const char32_t scalar = unicode::nextScalar(source, position);
      appendCanonical(result, scalar, source.substr(start, position - start));
    }
  }
  return result;
}

std::int64_t countWords(std::string_view text) {
  std::int64_t words = 0;
  bool pendingHoldsWord = false;
  const auto flush = [&] {
    if (std::exchange(pendingHoldsWord, false)) ++words;
  };
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    for (const char byte : cursor.nextAsciiCharacters()) {
      switch (asciiKinds[static_cast<unsigned char>(byte)]) {
        case AsciiKind::letterOrNumber:
          pendingHoldsWord = true;
          break;
        case AsciiKind::space:
          flush();
          break;
        case AsciiKind::other:
          break;
      }
    }
    if (cursor.atEnd()) break;
    const std::string_view character = cursor.next();
    const char32_t scalar = unicode::firstScalar(character);
    if (isCjkWord(character)) {
      flush();
      ++words;
    } else if (isWhitespace(scalar)) {
      flush();
    } else if (isLetter(scalar) || isNumber(scalar)) {
      pendingHoldsWord = true;
    }
  }
  flush();
  return words;
}

bool isDistinctive(std::string_view text) {
  return holdsNumber(text) || holdsNameAfterFirstWord(text);
}

std::string signingRefusal(std::string_view text) {
  const std::int64_t words = countWords(text);
  if (words >= alwaysDistinctWords) return {};
  if (words < minimumWords)
    return "Only " + std::to_string(words) + " words. Write at least " +
           std::to_string(minimumWords) + ".";
  if (isDistinctive(text)) return {};
  return std::to_string(words) +
         " words, but nothing specific in it. Add an amount, a date or a name — or write " +
         std::to_string(alwaysDistinctWords) + "+ words.";
}

std::string sha256Hex(std::string_view text) {
  return hex(digest::sha256(text));
}

std::string canonicalV3(const CanonicalFields& fields) {
  const auto folded = [](std::string_view field) {
    return unicode::lowercased(unicode::trimmed(field));
  };
  std::string commitment = folded(fields.commitment);
  if (std::find(commitmentTypes.begin(), commitmentTypes.end(), commitment) ==
      commitmentTypes.end())
    commitment = commitmentTypes.front();

  std::string payload{payloadTag};
  payload += fields.textDigest;
  payload += sha256Hex(unicode::trimmed(fields.issued));
  payload += sha256Hex(folded(fields.scope));
  payload += fields.snapshotDigest.empty() ? sha256Hex("") : std::string{fields.snapshotDigest};
  payload += sha256Hex(folded(fields.identity));
  payload += sha256Hex(folded(fields.signerKey));
  payload += sha256Hex(unicode::trimmed(fields.expires));
  payload += sha256Hex(unicode::trimmed(fields.nonce));
  payload += sha256Hex(commitment);
  return sha256Hex(payload);
}

std::int64_t expiryDaysFor(std::int64_t wordCount) {
  for (const ExpiryTier& tier : expiryTiers)
    if (wordCount < tier.belowWords) return tier.days;
  return longestExpiryDays;
}

std::string expiryDateFor(const ExpiryRequest& request) {
  const auto issued = parsedDate(unicode::trimmed(request.issued));
  if (!issued) return {};
  return formattedDate(std::chrono::sys_days{*issued} +
                       std::chrono::days{expiryDaysFor(request.wordCount)});
}

std::string randomHex(std::int64_t byteCount) {
  if (byteCount < 0) {
    static_cast<void>(
        std::fputs("randomHex: a negative byte count is a fault of the caller\n", stderr));
    std::abort();
  }
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(byteCount));
  return digest::fillRandom(bytes) ? hex(bytes) : std::string{};
}

std::vector<std::string> imageURLs(std::optional<std::string_view> html) {
  if (!html || html->empty()) return {};
  return ImageTagScanner(*html).sources();
}

std::string imageManifestDigest(const std::vector<std::string>& urls) {
  std::string payload{manifestTag};
  bool first = true;
  for (const std::string& url : urls) {
    const std::string_view entry = unicode::trimmed(url);
    if (entry.empty()) continue;
    if (!std::exchange(first, false)) payload += '\n';
    payload += entry;
  }
  return sha256Hex(payload);
}

}  // namespace quillseal::CryptoManager
