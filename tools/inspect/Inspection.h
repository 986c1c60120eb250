#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Quillseal/ContentRisk.h"

namespace quillseal::inspect {

/// A captured text, its scope and its date.
struct Capture {
  std::string_view text;
  std::optional<std::string_view> html;
  std::string_view issued;  ///< "yyyy-MM-dd"
};

/// Everything that signing a capture would bind or depend on.
struct Inspection {
  std::string text;  ///< as screened and digested: without white space at its ends
  std::int64_t words = 0;
  std::string normalized;
  std::size_t normalizedCharacters = 0;
  std::string textDigest;
  bool distinctive = false;
  std::string signingRefusal;  ///< empty when length and content allow signing
  std::vector<std::string> imageURLs;
  std::string imageDigest;
  std::string expires;  ///< empty when the issue date is not a date
  std::string promptSubject;
  ContentRisk::Screening screening;
};

/// Computes what would be signed. `capture` must be well-formed UTF-8.
[[nodiscard]] Inspection inspect(const Capture& capture);

/// Returns the inspection as readable text that ends in a line feed.
[[nodiscard]] std::string readableReport(const Inspection& inspection);

/// The question why a rule does or does not match a text.
struct RuleQuestion {
  std::optional<std::string_view> rule{};     ///< its id
  std::optional<std::string_view> pattern{};  ///< tried in place of the rule's own
  std::string_view text;                      ///< well-formed UTF-8
};

/// Reports where the pattern matches, or how far the nearest alternatives came, in the text as
/// written and, where that differs, as read. Throws PatternTrialError, also for an unknown rule.
[[nodiscard]] std::string ruleReport(const RuleQuestion& question);

}  // namespace quillseal::inspect
