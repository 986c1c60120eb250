#include "core/signing/IdentityName.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include <unicode/uchar.h>

#include "core/text/UnicodeText.h"

namespace quillseal::IdentityName {
namespace {

UChar32 icuScalar(char32_t scalar) {
  return static_cast<UChar32>(scalar);
}

bool isInvisible(char32_t scalar) {
  constexpr char32_t nonJoiner = 0x200C;
  constexpr char32_t joiner = 0x200D;
  if (scalar == nonJoiner || scalar == joiner ||
      u_hasBinaryProperty(icuScalar(scalar), UCHAR_VARIATION_SELECTOR) != 0)
    return false;
  const auto category = u_charType(icuScalar(scalar));
  if (category == U_CONTROL_CHAR || category == U_LINE_SEPARATOR ||
      category == U_PARAGRAPH_SEPARATOR ||
      u_hasBinaryProperty(icuScalar(scalar), UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0)
    return true;
  return category == U_FORMAT_CHAR &&
         u_hasBinaryProperty(icuScalar(scalar), UCHAR_PREPENDED_CONCATENATION_MARK) == 0;
}

bool isSign(char32_t scalar) {
  constexpr char32_t blankBraillePattern = 0x2800;
  return u_isgraph(icuScalar(scalar)) != 0 && scalar != blankBraillePattern &&
         u_hasBinaryProperty(icuScalar(scalar), UCHAR_DEFAULT_IGNORABLE_CODE_POINT) == 0;
}

bool isRightToLeft(char32_t scalar) {
  const UCharDirection direction = u_charDirection(icuScalar(scalar));
  return direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC;
}

struct Traits {
  bool hasSign = false;
  bool hasInvisible = false;
  bool hasRightToLeft = false;
};

Traits traitsOf(std::string_view name) {
  Traits traits;
  for (std::size_t position = 0; position < name.size();) {
    const char32_t scalar = unicode::nextScalar(name, position);
    traits.hasSign = traits.hasSign || isSign(scalar);
    traits.hasInvisible = traits.hasInvisible || isInvisible(scalar);
    traits.hasRightToLeft =
        traits.hasRightToLeft || (isRightToLeft(scalar) && !isInvisible(scalar));
  }
  return traits;
}

std::string spelledOut(char32_t scalar) {
  std::array<char, 9> digits{};
  const int length = std::snprintf(digits.data(), digits.size(), "%04X",
                                   static_cast<unsigned>(static_cast<std::uint32_t>(scalar)));
  return "‹U+" + std::string(digits.data(), static_cast<std::size_t>(length)) + "›";
}

}  // namespace

bool isPlain(std::string_view name) {
  const Traits traits = traitsOf(name);
  return traits.hasSign && !traits.hasInvisible;
}

std::string shown(std::string_view name) {
  constexpr char32_t isolate = 0x2068;
  constexpr char32_t endOfIsolate = 0x2069;
  const Traits traits = traitsOf(name);
  std::string result;
  if (traits.hasRightToLeft) unicode::append(result, isolate);
  for (std::size_t position = 0; position < name.size();) {
    const char32_t scalar = unicode::nextScalar(name, position);
    if (isInvisible(scalar) || !traits.hasSign)
      result += spelledOut(scalar);
    else
      unicode::append(result, scalar);
  }
  if (traits.hasRightToLeft) unicode::append(result, endOfIsolate);
  return result;
}

}  // namespace quillseal::IdentityName
