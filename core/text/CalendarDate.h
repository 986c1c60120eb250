#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace quillseal {

/// The day that `text` names as "yyyy-MM-dd": four, two and two ASCII digits of an existing
/// Gregorian day and nothing else.
[[nodiscard]] std::optional<std::chrono::year_month_day> parsedDate(std::string_view text);

}  // namespace quillseal
