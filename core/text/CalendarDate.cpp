#include "core/text/CalendarDate.h"

#include <cstddef>

namespace quillseal {

std::optional<std::chrono::year_month_day> parsedDate(std::string_view text) {
  constexpr std::string_view shape = "dddd-dd-dd";
  if (text.size() != shape.size()) return std::nullopt;
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const bool fits = shape[i] == 'd' ? text[i] >= '0' && text[i] <= '9' : text[i] == '-';
    if (!fits) return std::nullopt;
  }
  const auto number = [&](std::size_t start, std::size_t length) {
    int value = 0;
    for (const char digit : text.substr(start, length))
      value = value * 10 + (digit - '0');
    return value;
  };
  const std::chrono::year_month_day date{std::chrono::year{number(0, 4)},
                                         std::chrono::month{static_cast<unsigned>(number(5, 2))},
                                         std::chrono::day{static_cast<unsigned>(number(8, 2))}};
  // The calendar has no year 0; the library's proleptic one does.
  if (!date.ok() || date.year() == std::chrono::year{0}) return std::nullopt;
  return date;
}

}  // namespace quillseal
