#include <cstdint>
#include <cstdlib>
#include <vector>

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
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillseal;
  if (size > 2000) return 0;
  const auto& [patterns, engine, reference] = compared;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string text = unicode::wellFormed(bytes);
  std::vector<testing::IcuReference::Answer> actual(patterns.size());
  for (const screening::PatternMatch& match : engine.firstMatches(text))
    actual[match.pattern] = {.matched = true, .start = match.start, .end = match.end};
  const auto expected = reference.firstMatches(text);
  for (std::size_t i = 0; i < patterns.size(); ++i)
    if (!expected[i].gaveUp && actual[i] != expected[i]) std::abort();

  const ContentRisk::Assessment assessment = ContentRisk::evaluate(bytes);
  if (assessment.isBlocked && assessment.shouldWarn) std::abort();
  return 0;
}
