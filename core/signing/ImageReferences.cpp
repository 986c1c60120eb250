#include "core/signing/ImageReferences.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/text/ScalarProperties.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using unicode::icuScalar;
using unicode::isLetter;
using unicode::isWhitespace;

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

  /// Where the value of `src` starts, given that "rc" is expected at `at`; npos if it is not there.
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

}  // namespace

std::vector<std::string> imageReferences(std::string_view html) {
  return ImageTagScanner(html).sources();
}

}  // namespace quillseal
