#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "Inspection.h"
#include "PatternTrial.h"
#include "Quillseal/ContentRules.h"

namespace quillseal::inspect {
namespace {

using ::testing::HasSubstr;

// A pattern, a text, and of each approach: number, satisfied part, text there, missing part.
TEST(PatternTrial, FindsTheLongestBeginningThatOccurs) {
  for (const auto& each : quillseal::testing::cases()) {
    const std::string pattern = each[0];
    const std::string text = each[1];
    std::vector<std::string> approaches;
    for (const Approach& one : tryPattern({.written = pattern}, text).approaches)
      approaches.push_back(std::to_string(one.number) + ' ' + one.satisfied + " [" +
                           text.substr(one.start, one.end - one.start) + "] " + one.missing);
    EXPECT_EQ(approaches, each[2].get<std::vector<std::string>>()) << each;
  }
  EXPECT_TRUE(tryPattern({.written = "A", .caseInsensitive = false}, "a").approaches.empty());
  for (const char* broken : {"(", "(?:a", "[a", "a{2", "a**", "\\", "<40>)", "(a)\\1"})
    EXPECT_THROW((void)tryPattern({.written = broken}, "a"), PatternTrialError) << broken;
}

TEST(PatternTrial, RulesAreShownAsTheyAreWritten) {
  bool hasGap = false;
  for (const ContentRules::Rule& rule : ContentRules::all) {
    const std::string written = ContentRules::abbreviated(rule.pattern);
    EXPECT_EQ(ContentRules::expanded(written), rule.pattern) << rule.id;
    hasGap = hasGap || written.find("<40>") != std::string::npos;
  }
  EXPECT_TRUE(hasGap);
}

TEST(RuleReport, ExplainsARule) {
  for (const auto& each : quillseal::testing::cases()) {
    const auto part = [&](const char* key) {
      return each.contains(key) ? std::optional(each[key].get<std::string_view>()) : std::nullopt;
    };
    const std::string report =
        ruleReport({.rule = part("rule"), .pattern = part("pattern"), .text = *part("text")});
    for (const std::string expected : each["parts"])
      EXPECT_THAT(report, HasSubstr(expected));
  }
  EXPECT_THROW((void)ruleReport({.rule = "no-such-rule", .text = ""}), PatternTrialError);
}

}  // namespace
}  // namespace quillseal::inspect
