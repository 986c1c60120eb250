#include "core/text/NormalForm.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include "core/text/IcuStatus.h"
#include "core/text/ScalarProperties.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using unicode::icuScalar;

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
  kept.fill(true);
  for (std::size_t space = 0x09; space <= 0x0D; ++space)
    kept[space] = false;
  kept[' '] = kept['<'] = kept['>'] = false;
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
    default:
      break;
  }
  if (!isLeftOut(scalar)) result += source;
}

}  // namespace

bool isLeftOut(char32_t scalar) noexcept {
  if (scalar < asciiKept.size()) return !asciiKept[scalar];
  const bool isInvisible = scalar == 0x00AD ||                        // soft hyphen
                           scalar == 0x034F ||                        // combining grapheme joiner
                           scalar == 0xFEFF ||                        // zero-width no-break space
                           (scalar >= 0x200B && scalar <= 0x200F) ||  // zero-width and marks
                           (scalar >= 0x202A && scalar <= 0x202E) ||  // bidirectional controls
                           (scalar >= 0x2060 && scalar <= 0x206F);    // joiners and format controls
  return isInvisible || unicode::isWhitespaceOrNewline(scalar);
}

std::string normalForm(std::string_view text) {
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

}  // namespace quillseal
