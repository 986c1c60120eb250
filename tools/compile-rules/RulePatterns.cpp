#include "RulePatterns.h"

#include "Quillseal/ContentRisk.h"
#include "Quillseal/ContentRules.h"

namespace quillseal::screening {

std::vector<Pattern> rulePatterns() {
  std::vector<Pattern> patterns;
  for (const ContentRules::Rule& rule : ContentRules::all)
    patterns.push_back({.expression = rule.pattern, .caseInsensitive = rule.caseInsensitive});
  patterns.push_back({.expression = ContentRisk::reportingCue, .caseInsensitive = true});
  return patterns;
}

}  // namespace quillseal::screening
