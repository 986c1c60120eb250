#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Decides whether a text may be signed: runs every rule of `ContentRules` over it, adds up the
/// points and words the refusal or the warning. Pure functions over fixed tables, callable from any
/// thread; texts are UTF-8, and bytes that do not form UTF-8 count as U+FFFD.
namespace quillseal::ContentRisk {

/// Of a longer text, only this many characters are screened.
inline constexpr std::size_t maximumScreenedCharacters = 200'000;
/// A score from which signing is refused, and one from which the user is warned first.
inline constexpr std::int64_t refusalScore = 100;
inline constexpr std::int64_t warningScore = 55;

/// One rule that matched.
struct Finding {
  std::string id;
  std::string category;
  std::string why;
  std::int64_t points = 0;
  bool isBlocking = false;

  bool operator==(const Finding&) const = default;
};

struct Assessment {
  std::vector<Finding> findings;  ///< most points first; equal points in table order
  std::int64_t score = 0;
  bool isBlocked = false;   ///< signing is refused
  bool shouldWarn = false;  ///< signed only if the user insists; never together with `isBlocked`

  bool operator==(const Assessment&) const = default;
};

[[nodiscard]] Assessment evaluate(std::string_view text);

/// Where a finding's rule matched.
struct Hit {
  std::string_view id;
  std::size_t start = 0;  ///< bytes of the text
  std::size_t end = 0;
  /// The search could not be finished, so the rule counts as a hit; to be logged.
  bool isEngineFailure = false;
};

/// An assessment with what lies behind it.
struct Screening {
  Assessment assessment;
  std::vector<Hit> hits;    ///< one for each finding, in the order of the findings
  std::uint64_t steps = 0;  ///< work done, a measure that no clock disturbs
  /// The bytes of the text that were screened: all but those behind the last character that counts.
  std::size_t screenedBytes = 0;
};

[[nodiscard]] Screening screen(std::string_view text);

/// What the rules say of the text as a person reads it (`ReadableText`), given what they say of it
/// as it is written (`screen(text)`): a rule that hits in either counts, once and with the points
/// that are more. Hits are bytes of `text`. Nothing when the text reads as it is written.
[[nodiscard]] std::optional<Screening> screenAsRead(std::string_view text,
                                                    const Screening& asWritten);

/// The ids of the rules whose pattern did not compile and which are left out. The program logs each
/// at its start: "[risk] rule ID failed to compile and is disabled".
[[nodiscard]] std::vector<std::string_view> disabledRules();

/// A quotation of 25 or more characters, with its marks.
struct QuotedSpan {
  std::size_t firstCharacter = 0;
  std::size_t endCharacter = 0;  ///< behind the last
  std::size_t startByte = 0;
  std::size_t endByte = 0;
};

/// The long quotations of a text in the order found: straight double quotes, curly double, curly
/// single, apostrophes. A straight quote opens only behind white space or "(" "[", and closes only
/// before white space or punctuation; a stray one that never does ends the whole scan.
[[nodiscard]] std::vector<QuotedSpan> quotedSpans(std::string_view text);

/// A text that matches this (regardless of case) is a report or a lesson: what it quotes counts
/// less.
inline constexpr std::string_view reportingCue =
    R"re(\b(?:simulated phish\w*|phishing simulation|awareness training|attackers? (?:are|is) (?:currently )?sending|scammers? (?:are|say|write)|the lure|report it|do not reply|verbatim|court transcript|for the investigation|our paper|these messages read|example of a|red flags?|do not fall for|never ask you)\b)re";

/// Up to `limit` bullet lines, one for each category, and one that counts the rest.
[[nodiscard]] std::vector<std::string> reasons(const Assessment& assessment, std::size_t limit);

/// The title and the body of a refusal, and the body of a warning.
[[nodiscard]] std::string refusalTitle(const Assessment& assessment);
[[nodiscard]] std::string explanation(const Assessment& assessment);
[[nodiscard]] std::string warning(const Assessment& assessment);

}  // namespace quillseal::ContentRisk
