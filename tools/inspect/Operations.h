#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "Inspection.h"

namespace quillseal::inspect {

/// Returns the inspection as one JSON object.
[[nodiscard]] nlohmann::ordered_json toJson(const Inspection& inspection);

/// The same, with the key "as_read": the text as a person reads it and its assessment, or null
/// where it reads as written.
[[nodiscard]] nlohmann::ordered_json toJsonWithReading(const Inspection& inspection);

/// Returns the content of content_rules.json: the table of rules as an indented JSON array that
/// ends in a line feed.
[[nodiscard]] std::string rulesTable();

/// Answers one request, a line of JSON with the key "op", with one line of JSON (without a line
/// feed). A bad request gets {"error": "..."}, no exception. Ill-formed UTF-8 and unpaired
/// surrogates in escapes count as U+FFFD.
[[nodiscard]] std::string answer(std::string_view requestLine);

}  // namespace quillseal::inspect
