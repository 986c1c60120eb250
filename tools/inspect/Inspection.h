#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Quillseal/ContentRisk.h"

namespace quillseal::inspect {

/// What the agent would capture and when.
struct Capture {
  std::string_view text;
  std::optional<std::string_view> html;
  std::string_view issued;  ///< "yyyy-MM-dd"
};

/// Everything that a signature of a capture would bind or be decided by.
struct Inspection {
  std::string text;  ///< as the agent screens and digests it: without white space at its ends
  std::int64_t words = 0;
  std::string normalized;
  std::size_t normalizedCharacters = 0;
  std::string textDigest;
  bool distinctive = false;
  std::string signingRefusal;  ///< empty when length and content allow signing
  std::vector<std::string> imageURLs;
  std::string imageDigest;
  std::string expires;  ///< empty when the issue date is no date
  std::string promptSubject;
  ContentRisk::Screening screening;
};

/// Computes what would be signed. `capture` must be well-formed UTF-8.
[[nodiscard]] Inspection inspect(const Capture& capture);

/// The inspection as text for a person to read, with a line feed at its end.
[[nodiscard]] std::string readableReport(const Inspection& inspection);

/// Why a rule does or does not find a text.
struct RuleQuestion {
  std::optional<std::string_view> rule{};     ///< its id
  std::optional<std::string_view> pattern{};  ///< to be tried in the place of the rule's own
  std::string_view text;                      ///< well-formed UTF-8
};

/// Where the pattern matches, or how far the nearest alternatives came, in the text as it is
/// written and, where that differs, as it is read. Throws PatternTrialError, also for an unknown
/// rule.
[[nodiscard]] std::string ruleReport(const RuleQuestion& question);

}  // namespace quillseal::inspect
