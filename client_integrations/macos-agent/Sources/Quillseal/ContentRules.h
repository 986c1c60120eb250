#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// The fixed table that a text is screened against before it is signed. It is compiled in: nothing
/// is read at run time, and the same table is published as content_rules.json.
namespace quillseal::ContentRules {

/// One shape of scam, illegal content, exposed secret, hidden text or empty approval.
struct Rule {
  std::string_view id;        ///< unique; lower-case words joined by hyphens
  std::string_view category;  ///< shown to the user
  std::string_view severity;  ///< "block" refuses on its own; anything else adds its points
  std::int64_t points;
  std::string_view why;      ///< completes a sentence about the text; shown to the user
  std::string_view pattern;  ///< ICU syntax, UTF-8; `^` and `$` are the ends of the whole text
  bool caseInsensitive;
};

/// Every rule in the order in which findings of equal points are reported.
extern const std::span<const Rule> all;

/// `written` with what its shorthands stand for, such as `<40>`, a gap that stays within a
/// sentence.
[[nodiscard]] std::string expanded(std::string_view written);

/// `pattern` as its author wrote it, with the shorthands: what `expanded` turns into `pattern`.
[[nodiscard]] std::string abbreviated(std::string_view pattern);

}  // namespace quillseal::ContentRules
