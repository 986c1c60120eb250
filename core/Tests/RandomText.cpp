#include "RandomText.h"

#include <nlohmann/json.hpp>

#include "core/text/UnicodeText.h"

namespace quillseal::testing {
namespace {

constexpr std::u32string_view awkward =
    U"\r\n\t  <>\"'-.,!?aAzZ09\u0085\u00A0\u00AD\u00B2\u00DF\u00E9\u0130\u0131\u017F\u0300\u0301"
    U"\u0308\u0315\u0316\u0344\u034F\u02BC\u03A3\u03C2\u0410\u0430\u0600\u0635\u0660\u0903\u0915"
    U"\u094D\u0939\u0F71\u0F73\u1100\u1161\u11A8\u200B\u200C\u200D\u200E\u2010\u2013\u2014\u2018"
    U"\u2019\u201C\u201D\u2024\u2026\u2028\u202E\u2060\u206F\u212A\u24D0\u3000\u3042\u4E00\u65E5"
    U"\uAC00\uD7A3\uF900\uFB01\uFE0F\uFEFF\uFFFD\U0001D165\U0001F1E9\U0001F1EA\U0001F3FD"
    U"\U0001F468\U0001F6E1\U00020000\U0002FA1E\U000E0041";

}  // namespace

std::string randomText(std::mt19937& random, int maximumScalars) {
  const auto below = [&](std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
  };
  std::string text;
  for (int left = static_cast<int>(below(static_cast<std::size_t>(maximumScalars) + 1)); left > 0;
       --left) {
    switch (below(8)) {
      case 0:
      case 1:
      case 2:
        unicode::append(text, static_cast<char32_t>(0x20 + below(0x5F)));
        break;
      case 3: {
        char32_t scalar = 0;
        do
          scalar = static_cast<char32_t>(below(0x30000));
        while (scalar >= 0xD800 && scalar <= 0xDFFF);
        unicode::append(text, scalar);
        break;
      }
      default:
        unicode::append(text, awkward[below(awkward.size())]);
    }
  }
  return text;
}

std::string escaped(const std::string& text) {
  return nlohmann::json(text).dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
}

}  // namespace quillseal::testing
