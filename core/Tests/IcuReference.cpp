#include "IcuReference.h"

#include <stdexcept>
#include <string>

#include <unicode/unistr.h>
#include <unicode/uregex.h>

namespace quillseal::testing {
namespace {

icu::UnicodeString utf16(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

}  // namespace

void IcuReference::Close::operator()(URegularExpression* expression) const {
  uregex_close(expression);
}

IcuReference::IcuReference(std::span<const screening::Pattern> patterns, std::int32_t timeLimit) {
  for (const screening::Pattern& pattern : patterns) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString expression = utf16(pattern.expression);
    const std::uint32_t flags =
        pattern.caseInsensitive ? std::uint32_t{UREGEX_CASE_INSENSITIVE} : 0;
    expressions_.emplace_back(
        uregex_open(expression.getBuffer(), expression.length(), flags, nullptr, &status));
    if (U_FAILURE(status))
      throw std::runtime_error("ICU does not accept " + std::string(pattern.expression));
    uregex_setTimeLimit(expressions_.back().get(), timeLimit, &status);
  }
}

std::vector<IcuReference::Answer> IcuReference::firstMatches(std::string_view text) const {
  const icu::UnicodeString units = utf16(text);
  std::vector<std::size_t> bytes(static_cast<std::size_t>(units.length()) + 1);
  std::size_t byte = 0;
  for (std::int32_t i = 0; i < units.length();) {
    const std::int32_t next = units.moveIndex32(i, 1);
    const UChar32 c = units.char32At(i);
    byte += c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    for (; i < next; ++i)
      bytes[static_cast<std::size_t>(i) + 1] = byte;
  }
  std::vector<Answer> answers;
  for (const auto& expression : expressions_) {
    UErrorCode status = U_ZERO_ERROR;
    Answer answer;
    uregex_setText(expression.get(), units.getBuffer(), units.length(), &status);
    answer.matched = uregex_find(expression.get(), 0, &status) != 0;
    answer.gaveUp = U_FAILURE(status);
    if (answer.matched && !answer.gaveUp) {
      answer.start = bytes[static_cast<std::size_t>(uregex_start(expression.get(), 0, &status))];
      answer.end = bytes[static_cast<std::size_t>(uregex_end(expression.get(), 0, &status))];
    }
    answers.push_back(answer);
  }
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
