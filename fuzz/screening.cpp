#include <vector>

#include "Fuzzer.h"
#include "IcuReference.h"
#include "Quillseal/CompiledRules.h"
#include "Quillseal/ContentRisk.h"
#include "RulePatterns.h"
#include "core/screening/match/ScreeningEngine.h"
#include "core/text/UnicodeText.h"

namespace {

/// Built before the first input, which would exceed the time limit otherwise.
struct Compared {
  std::vector<quillseal::screening::Pattern> patterns = quillseal::screening::rulePatterns();
  quillseal::screening::ScreeningEngine engine{quillseal::screening::compiledRules()};
  quillseal::testing::IcuReference reference{patterns};
};

const Compared compared;

}  // namespace

/// On any bytes, the engine finds the same matches as ICU, and quotation and assessment return.
void quillseal::fuzz::check(std::string_view bytes) {
  if (bytes.size() > 2000) return;
  const auto& [patterns, engine, reference] = compared;
  const std::string text = unicode::wellFormed(bytes);
  std::vector<testing::IcuReference::Answer> actual(patterns.size());
  for (const screening::PatternMatch& match : engine.firstMatches(text))
    actual[match.pattern] = {.matched = true, .start = match.start, .end = match.end};
  const auto expected = reference.firstMatches(text);
  for (std::size_t i = 0; i < patterns.size(); ++i)
    require(expected[i].gaveUp || actual[i] == expected[i]);

  const ContentRisk::Assessment assessment = ContentRisk::evaluate(bytes);
  require(!assessment.isBlocked || !assessment.shouldWarn);
}
