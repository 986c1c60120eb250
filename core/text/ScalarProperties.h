#pragma once

#include <unicode/uchar.h>

/// Properties of single scalars, from ICU's tables.
namespace quillseal::unicode {

[[nodiscard]] inline UChar32 icuScalar(char32_t scalar) {
  return static_cast<UChar32>(scalar);
}

/// Unicode's White_Space.
[[nodiscard]] inline bool isWhitespace(char32_t scalar) {
  return u_isUWhiteSpace(icuScalar(scalar)) != 0;
}

/// A digit, fraction or other numeral (Numeric_Type is not None).
[[nodiscard]] inline bool isNumber(char32_t scalar) {
  return u_getIntPropertyValue(icuScalar(scalar), UCHAR_NUMERIC_TYPE) != U_NT_NONE;
}

/// Unicode's Alphabetic.
[[nodiscard]] inline bool isLetter(char32_t scalar) {
  return u_isUAlphabetic(icuScalar(scalar)) != 0;
}

}  // namespace quillseal::unicode
