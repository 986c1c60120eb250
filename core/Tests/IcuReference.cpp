#include "IcuReference.h"

#include <stdexcept>
#include <string>

#include <unicode/unistr.h>
#include <unicode/utext.h>

namespace quillseal::testing {

IcuReference::IcuReference(std::span<const screening::Pattern> patterns, std::int32_t timeLimit) {
  for (const screening::Pattern& pattern : patterns) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string expression(pattern.expression);
    matchers_.push_back(std::make_unique<icu::RegexMatcher>(
        icu::UnicodeString::fromUTF8(expression),
        pattern.caseInsensitive ? std::uint32_t{UREGEX_CASE_INSENSITIVE} : 0, status));
    if (U_FAILURE(status)) throw std::runtime_error("ICU does not accept " + expression);
    matchers_.back()->setTimeLimit(timeLimit, status);
  }
}

std::vector<IcuReference::Answer> IcuReference::firstMatches(std::string_view text) const {
  UErrorCode opening = U_ZERO_ERROR;
  UText bytes = UTEXT_INITIALIZER;
  utext_openUTF8(&bytes, text.data(), static_cast<std::int64_t>(text.size()), &opening);
  std::vector<Answer> answers;
  for (const auto& matcher : matchers_) {
    UErrorCode status = U_ZERO_ERROR;
    Answer& answer = answers.emplace_back();
    answer.matched = matcher->reset(&bytes).find(status);
    answer.gaveUp = U_FAILURE(status);
    if (!answer.matched || answer.gaveUp) continue;
    answer.start = static_cast<std::size_t>(matcher->start64(status));
    answer.end = static_cast<std::size_t>(matcher->end64(status));
  }
  utext_close(&bytes);
  return answers;
}

std::vector<IcuReference::Answer> answersOf(const screening::ScreeningEngine& engine,
                                            std::size_t patterns, std::string_view text) {
  std::vector<IcuReference::Answer> answers(patterns);
  for (const screening::PatternMatch& match : engine.firstMatches(text))
    answers[match.pattern] = {.matched = true, .start = match.start, .end = match.end};
  return answers;
}

}  // namespace quillseal::testing
