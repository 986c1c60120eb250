#include "core/text/UnicodeText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include "core/text/IcuStatus.h"
#include "core/text/UniqueHandle.h"
#include "core/text/Utf8.h"

namespace quillseal::unicode {
namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t zeroWidthJoiner = 0x200D;
constexpr std::string_view replacementBytes = "\xEF\xBF\xBD";

const std::uint8_t* bytesOf(std::string_view text) {
  return reinterpret_cast<const std::uint8_t*>(text.data());
}

bool isAsciiAt(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]) < 0x80;
}

bool isLineBreakPairAt(std::string_view text, std::size_t index) {
  return text[index] == '\r' && index + 1 < text.size() && text[index + 1] == '\n';
}

bool isFlagLetter(char32_t scalar) {
  return scalar >= 0x1F1E6 && scalar <= 0x1F1FF;
}

/// Whether it is one of the pictures that most emoji are made of.
bool isCommonPicture(char32_t scalar) {
  return (scalar >= 0x1F300 && scalar <= 0x1F3FA) || (scalar >= 0x1F400 && scalar <= 0x1F53D) ||
         (scalar >= 0x1F546 && scalar <= 0x1F64F);
}

UGraphemeClusterBreak breakClass(char32_t scalar) {
  // The parts of emoji, without the look-up.
  constexpr char32_t emojiStyle = 0xFE0F;
  constexpr char32_t firstSkinTone = 0x1F3FB;
  constexpr char32_t lastSkinTone = 0x1F3FF;
  if (isCommonPicture(scalar)) return U_GCB_OTHER;
  if (scalar == zeroWidthJoiner) return U_GCB_ZWJ;
  if (isFlagLetter(scalar)) return U_GCB_REGIONAL_INDICATOR;
  if (scalar == emojiStyle || (scalar >= firstSkinTone && scalar <= lastSkinTone))
    return U_GCB_EXTEND;
  return static_cast<UGraphemeClusterBreak>(
      u_getIntPropertyValue(static_cast<UChar32>(scalar), UCHAR_GRAPHEME_CLUSTER_BREAK));
}

constexpr char32_t endOfBasicPlane = 0x10000;

/// Bits of the scalars below `endOfBasicPlane` that `isIndependent` names.
constexpr auto independentOfBasicPlane = [] {
  constexpr std::pair<char32_t, char32_t> ranges[] = {
      {0, '\r' - 1},    {'\r' + 1, 0x2FF}, {0x370, 0x482},   {0x48A, 0x52F},   {0x2010, 0x205F},
      {0x3000, 0x3029}, {0x3030, 0x3098},  {0x309B, 0x9FFF}, {0xAC00, 0xD7A3}, {0xFF01, 0xFF9D}};
  std::array<std::uint64_t, endOfBasicPlane / 64> bits{};
  for (const auto& [first, last] : ranges)
    for (char32_t scalar = first; scalar <= last; ++scalar)
      bits[scalar / 64] |= std::uint64_t{1} << scalar % 64;
  return bits;
}();

/// Whether two of these, side by side, always belong to two characters. Only large, stable blocks
/// count; they spare long texts the look-up. (Of break class
/// Other, Control, LF, LV or LVT; CR is left out for the sake of CR LF.)
inline bool isIndependent(std::uint32_t block, std::uint32_t offset) {
  return (independentOfBasicPlane[block] >> offset & 1) != 0;
}
inline bool isIndependent(char32_t scalar) {
  if (scalar < endOfBasicPlane) return isIndependent(scalar / 64, scalar % 64);
  constexpr char32_t lastBeforeSkinTones = 0x1F3FA;
  return (scalar >= 0x1F300 && scalar <= lastBeforeSkinTones) ||
         (scalar >= 0x1F400 && scalar <= 0x1F64F);
}

/// Whether `after` can stand in one character with `before`, where `before` is that character's
/// first scalar. REQUIRES: not CR before LF.
bool mayJoin(char32_t before, char32_t after) {
  if (isIndependent(before) && isIndependent(after)) return false;
  switch (breakClass(after)) {
    case U_GCB_OTHER:
    case U_GCB_CONTROL:
    case U_GCB_CR:
    case U_GCB_LF:
      return breakClass(before) == U_GCB_PREPEND;
    case U_GCB_L:
    case U_GCB_LV:
    case U_GCB_LVT:
      return breakClass(before) == U_GCB_PREPEND || breakClass(before) == U_GCB_L;
    case U_GCB_REGIONAL_INDICATOR:
      return breakClass(before) == U_GCB_PREPEND || breakClass(before) == U_GCB_REGIONAL_INDICATOR;
    default:
      return true;
  }
}

/// Whether there is a boundary between the two, whatever stands before them.
bool areAlwaysApart(char32_t before, char32_t after) {
  if (before == '\r' && after == '\n') return false;
  // A joiner or a mark may carry on what began before it.
  const auto beginsItsCharacter = [](UGraphemeClusterBreak kind) {
    return kind == U_GCB_OTHER || kind == U_GCB_LV || kind == U_GCB_LVT;
  };
  return (isIndependent(before) || before < 0x80 || beginsItsCharacter(breakClass(before))) &&
         !mayJoin(before, after);
}

bool isPictographic(char32_t scalar) {
  return isCommonPicture(scalar) ||
         u_hasBinaryProperty(static_cast<UChar32>(scalar), UCHAR_EXTENDED_PICTOGRAPHIC) != 0;
}

/// The end of the emoji or flag that begins with `first`, which ends at `end`. The rules are GB9,
/// GB9a and GB11 to GB13 of Unicode Standard Annex 29.
std::size_t endOfEmoji(std::string_view text, char32_t first, std::size_t end) {
  bool takesPartner = isFlagLetter(first);  // the second half of the flag
  bool takesJoiner = !takesPartner;         // nothing but Extend since the last picture
  bool takesPicture = false;                // and a joiner behind it
  for (std::size_t behind = end; behind < text.size(); end = behind) {
    const char32_t scalar = decodeNext(text, behind);
    if (isIndependent(scalar) && !takesPicture) break;
    const UGraphemeClusterBreak kind = breakClass(scalar);
    const bool isPartner = takesPartner && kind == U_GCB_REGIONAL_INDICATOR;
    const bool isPicture = takesPicture && kind == U_GCB_OTHER && isPictographic(scalar);
    const bool isMark = kind == U_GCB_EXTEND || kind == U_GCB_ZWJ || kind == U_GCB_SPACING_MARK;
    if (!isPartner && !isPicture && !isMark) break;
    takesPartner = false;
    takesPicture = takesJoiner && kind == U_GCB_ZWJ;
    takesJoiner = isPicture || (takesJoiner && kind == U_GCB_EXTEND);
  }
  return end;
}

/// The end of the character that starts at `start` when that takes no tables, else `start`.
std::size_t plainEnd(std::string_view text, std::size_t start) {
  if (isLineBreakPairAt(text, start)) return start + 2;
  std::size_t end = start;
  const char32_t scalar = decodeNext(text, end);
  std::size_t behind = end;
  if (end == text.size() || !mayJoin(scalar, decodeNext(text, behind))) return end;
  return isFlagLetter(scalar) || isPictographic(scalar) ? endOfEmoji(text, scalar, end) : start;
}

/// Goes on from `start` while independent scalars of three bytes follow, `most` of them at most.
std::size_t endOfIndependentThreeBytes(std::string_view text, std::size_t start, std::size_t most) {
  const std::size_t limit =
      start + std::min(most, (text.size() - start) / ThreeBytes::size) * ThreeBytes::size;
  std::size_t end = start;
  for (; end != limit; end += ThreeBytes::size) {
    const ThreeBytes three(text.data() + end);
    if (!three.isSequence() || !isIndependent(three.block(), three.offset())) break;
  }
  return end;
}

/// Opening an iterator reads ICU's data; cloning this one does not.
const icu::BreakIterator& characterIteratorPrototype() {
  static const std::unique_ptr<icu::BreakIterator> prototype = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    requireSuccess(status);
    return iterator;
  }();
  return *prototype;
}

}  // namespace

bool isAscii(std::string_view text) noexcept {
  unsigned char all = 0;
  for (const char byte : text)
    all = static_cast<unsigned char>(all | static_cast<unsigned char>(byte));
  return all < 0x80;
}

char32_t nextScalar(std::string_view text, std::size_t& position) noexcept {
  return decodeNext(text, position);
}

char32_t previousScalar(std::string_view text, std::size_t& position) noexcept {
  // The macro counts in 32 bits, and no scalar is longer than four bytes.
  const std::size_t windowStart = position - std::min<std::size_t>(position, U8_MAX_LENGTH);
  auto index = static_cast<std::int32_t>(position - windowStart);
  UChar32 scalar = 0;
  U8_PREV_OR_FFFD(bytesOf(text) + windowStart, 0, index, scalar);
  position = windowStart + static_cast<std::size_t>(index);
  return static_cast<char32_t>(scalar);
}

char32_t firstScalar(std::string_view text) noexcept {
  std::size_t position = 0;
  return nextScalar(text, position);
}

void append(std::string& text, char32_t scalar) {
  if (scalar < 0x80) {
    text.push_back(static_cast<char>(scalar));
  } else if (U_IS_UNICODE_CHAR(scalar) || U_IS_UNICODE_NONCHAR(scalar)) {
    std::array<std::uint8_t, U8_MAX_LENGTH> bytes{};
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, scalar);
    text.append(reinterpret_cast<const char*>(bytes.data()), length);
  } else {
    text += replacementBytes;
  }
}

std::string wellFormed(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  std::size_t copied = 0;
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t start = position;
    // A genuine U+FFFD is replaced by itself.
    if (nextScalar(text, position) != replacementCharacter) continue;
    result += text.substr(copied, start - copied);
    result += replacementBytes;
    copied = position;
  }
  result += text.substr(copied);
  return result;
}

bool isWhitespaceOrNewline(char32_t scalar) noexcept {
  if (scalar < 0x80) return scalar == ' ' || (scalar >= 0x09 && scalar <= 0x0D);
  if (scalar == 0x85) return true;
  constexpr std::uint32_t separators = U_GC_ZS_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
  return (U_GET_GC_MASK(static_cast<UChar32>(scalar)) & separators) != 0;
}

std::string_view trimmed(std::string_view text) noexcept {
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t behind = start;
    if (!isWhitespaceOrNewline(nextScalar(text, behind))) break;
    start = behind;
  }
  std::size_t end = text.size();
  while (end > start) {
    std::size_t before = end;
    if (!isWhitespaceOrNewline(previousScalar(text, before))) break;
    end = before;
  }
  return text.substr(start, end - start);
}

std::string lowercased(std::string_view text) {
  std::string result;
  icu::StringByteSink<std::string> sink(&result, icuLength(text.size()));
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8ToLower("", 0, {text.data(), icuLength(text.size())}, sink, nullptr, status);
  requireSuccess(status);
  return result;
}

std::string uppercased(std::string_view text) {
  std::string result;
  icu::StringByteSink<std::string> sink(&result, icuLength(text.size()));
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8ToUpper("", 0, {text.data(), icuLength(text.size())}, sink, nullptr, status);
  requireSuccess(status);
  return result;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    count += cursor.skipPlainCharacters(text.size());
    if (cursor.atEnd()) break;
    static_cast<void>(cursor.next());
    ++count;
  }
  return count;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  CharacterCursor cursor(text);
  while (count > 0 && !cursor.atEnd()) {
    count -= cursor.skipPlainCharacters(count);
    if (count == 0 || cursor.atEnd()) break;
    static_cast<void>(cursor.next());
    --count;
  }
  return text.substr(0, cursor.position());
}

bool isCertainBoundary(std::string_view text, std::size_t position) noexcept {
  if (position == 0 || position == text.size()) return true;
  std::size_t before = position;
  const char32_t last = previousScalar(text, before);
  return areAlwaysApart(last, firstScalar(text.substr(position)));
}

std::string replacingAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  result.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t found = text.find(from); found != std::string_view::npos;
       found = text.find(from, start)) {
    result += text.substr(start, found - start);
    result += to;
    start = found + from.size();
  }
  result += text.substr(start);
  return result;
}

struct CharacterCursor::Tables {
  UniqueHandle<UText, utext_close> text;
  std::unique_ptr<icu::BreakIterator> iterator{characterIteratorPrototype().clone()};
};

CharacterCursor::CharacterCursor(std::string_view text) : text_(text) {}

CharacterCursor::~CharacterCursor() = default;

std::string_view CharacterCursor::next() {
  const std::size_t start = position_;
  if (start >= stretchEnd_) position_ = plainEnd(text_, start);
  if (position_ == start) position_ = nextTableBoundary();
  return text_.substr(start, position_ - start);
}

std::string_view CharacterCursor::nextAsciiCharacters() {
  if (position_ < stretchEnd_) return {};
  const std::size_t start = position_;
  std::size_t end = start;
  while (end < text_.size() && isAsciiAt(text_, end) && text_[end] != '\r')
    ++end;
  // What follows may extend the last one.
  if (end > start && end < text_.size() && !isAsciiAt(text_, end)) --end;
  position_ = end;
  return text_.substr(start, end - start);
}

std::size_t CharacterCursor::skipPlainCharacters(std::size_t most) {
  if (position_ < stretchEnd_) return 0;
  std::size_t skipped = 0;
  while (skipped < most && !atEnd()) {
    skipped += skipIndependentScalars(most - skipped);
    const std::size_t end = plainEnd(text_, position_);
    if (end == position_) break;
    position_ = end;
    ++skipped;
  }
  return skipped;
}

std::size_t CharacterCursor::skipIndependentScalars(std::size_t most) {
  const std::string_view text = text_;
  std::size_t count = 0;
  std::size_t last = position_;
  for (std::size_t end = last; count < most && end < text.size(); ++count) {
    const std::size_t start = end;
    const char32_t scalar = decodeNext(text, end);
    if (!isIndependent(scalar)) break;
    last = start;
    if (scalar < ThreeBytes::first) continue;
    const std::size_t behind = end;
    end = endOfIndependentThreeBytes(text, end, most - count - 1);
    if (end == behind) continue;
    last = end - ThreeBytes::size;
    count += (end - behind) / ThreeBytes::size;
  }
  position_ = last;
  // Whether the last one is a character by itself depends on what follows.
  return count > 0 ? count - 1 : 0;
}

std::size_t CharacterCursor::nextTableBoundary() {
  if (position_ >= stretchEnd_) {
    // The tables need not see beyond a boundary that two scalars alone decide.
    std::size_t end = position_;
    char32_t before = nextScalar(text_, end);
    while (end < text_.size()) {
      std::size_t behind = end;
      const char32_t after = nextScalar(text_, behind);
      if (areAlwaysApart(before, after)) break;
      before = after;
      end = behind;
    }
    if (!tables_) tables_ = std::make_unique<Tables>();
    UErrorCode status = U_ZERO_ERROR;
    tables_->text.reset(utext_openUTF8(tables_->text.release(), text_.data() + position_,
                                       icuLength(end - position_), &status));
    tables_->iterator->setText(tables_->text.get(), status);
    requireSuccess(status);
    stretchStart_ = position_;
    stretchEnd_ = end;
  }
  const std::int32_t boundary = tables_->iterator->next();
  return boundary == icu::BreakIterator::DONE ? stretchEnd_
                                              : stretchStart_ + static_cast<std::size_t>(boundary);
}

}  // namespace quillseal::unicode
