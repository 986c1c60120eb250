#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "Inspection.h"

namespace quillseal::inspect {

/// The inspection as one JSON object.
[[nodiscard]] nlohmann::ordered_json toJson(const Inspection& inspection);

/// The same, with the key "as_read": how the text reads to a person and what the rules say of that,
/// or null where it reads as it is written.
[[nodiscard]] nlohmann::ordered_json toJsonWithReading(const Inspection& inspection);

/// The table of content rules as a JSON array, indented, with a line feed at its end: what
/// content_rules.json holds.
[[nodiscard]] std::string rulesTable();

/// Answers one request, a line of JSON with the key "op", with one line of JSON (without a line
/// feed). A request that cannot be answered gets {"error": "..."}; nothing is thrown for it. Bytes
/// that are no UTF-8 and lone surrogates in escapes count as U+FFFD.
[[nodiscard]] std::string answer(std::string_view requestLine);

}  // namespace quillseal::inspect
