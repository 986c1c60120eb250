#include "applications/WindowDocument.h"

#include <array>

#include "core/text/UnicodeText.h"

namespace quillseal::linux {
namespace {

constexpr char separator = ' ';
// Marks of a changed document, removed together with the blanks beside them.
constexpr auto marks = std::to_array<std::string_view>({" ", "*", "●", "•", "○", "◦", "⏺"});

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Removes a number in brackets at the beginning, "(3)" or "[12+]".
std::string_view withoutCounter(std::string_view title) {
  if (title.empty() || (title.front() != '(' && title.front() != '[')) return title;
  const char closing = title.front() == '(' ? ')' : ']';
  std::size_t end = 1;
  while (end < title.size() && isDigit(title[end]))
    ++end;
  if (end == 1) return title;
  if (end < title.size() && title[end] == '+') ++end;
  if (end == title.size() || title[end] != closing) return title;
  return title.substr(end + 1);
}

std::string stableTitle(std::string_view title) {
  std::string text = unicode::wellFormed(title);
  for (const std::string_view mark : marks)
    text = unicode::replacingAll(text, mark, "");
  return std::string(withoutCounter(text));
}

struct Parts {
  std::string_view focus;
  std::string_view title;
};

Parts partsOf(std::string_view name) {
  const std::size_t end = name.find(separator);
  if (end == std::string_view::npos) return {};
  return {.focus = name.substr(0, end), .title = name.substr(end + 1)};
}

}  // namespace

std::string documentName(const WindowView& view) {
  std::string name = view.focus == 0 ? std::string() : std::to_string(view.focus);
  return name.append(1, separator).append(stableTitle(view.title));
}

bool isSameDocument(std::string_view before, std::string_view now) {
  const Parts then = partsOf(before);
  const Parts current = partsOf(now);
  return (then.focus.empty() || then.focus == current.focus) &&
         (then.title.empty() || then.title == current.title);
}

}  // namespace quillseal::linux
