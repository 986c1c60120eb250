#include <vector>

#include "Fuzzer.h"
#include "IcuReference.h"
#include "Quillseal/CompiledRules.h"
#include "Quillseal/ContentRisk.h"
#include "RulePatterns.h"
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
  const auto actual = testing::answersOf(engine, patterns.size(), text);
  const auto expected = reference.firstMatches(text);
  for (std::size_t i = 0; i < patterns.size(); ++i)
    require(expected[i].gaveUp || actual[i] == expected[i]);

  const ContentRisk::Assessment assessment = ContentRisk::evaluate(bytes);
  require(!assessment.isBlocked || !assessment.shouldWarn);
}
