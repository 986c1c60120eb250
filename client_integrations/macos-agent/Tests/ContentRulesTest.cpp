#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "IcuReference.h"
#include "Quillseal/ContentRules.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/UnicodeText.h"
#include "RuleSamples.h"

namespace quillseal {
namespace {

using ContentRules::Rule;
using testing::IcuReference;
using testing::RuleSamples;
using testing::ruleSamples;

struct CategoryCount {
  std::string_view category;
  int rules;
  int blocking;
};

constexpr auto categories = std::to_array<CategoryCount>({
    {"Credential phishing", 13, 0},
    {"Child sexual abuse", 3, 3},
    {"Terrorism", 10, 10},
    {"Hate speech", 4, 4},
    {"Illegal goods", 4, 4},
    {"Illegal services", 1, 1},
    {"Human trafficking", 1, 1},
    {"Sexual abuse", 2, 2},
    {"Self-harm", 1, 1},
    {"Payment instruction", 5, 5},
    {"Payment redirection", 12, 0},
    {"Gift card fraud", 4, 1},
    {"Crypto fraud", 12, 2},
    {"Advance fee", 8, 0},
    {"Impersonation", 12, 2},
    {"Pressure", 9, 0},
    {"Extortion", 6, 0},
    {"Threats", 5, 0},
    {"Exposed secrets", 8, 4},
    {"Hidden content", 5, 3},
    {"Deceptive links", 10, 1},
    {"Malware lure", 6, 0},
    {"Job & goods fraud", 6, 0},
    {"Romance fraud", 4, 0},
    {"Bulk mail", 51, 0},
    {"Abuse", 5, 0},
    {"Misuse", 5, 0},
    {"Callback phishing", 1, 0},
    {"Generic approval", 1, 1},
    {"Adult spam", 3, 0},
});

TEST(ContentRules, TheTableHoldsItsRulesAndCategories) {
  ASSERT_EQ(ContentRules::all.size(), 217U);
  EXPECT_EQ(ContentRules::all.front().id, "cred-verify-account");
  EXPECT_EQ(ContentRules::all.back().id, "sa-live-porn");

  std::map<std::string_view, CategoryCount> counted;
  for (const Rule& rule : ContentRules::all) {
    CategoryCount& count = counted[rule.category];
    ++count.rules;
    count.blocking += rule.severity == "block" ? 1 : 0;
  }
  EXPECT_EQ(counted.size(), categories.size());
  for (const CategoryCount& expected : categories) {
    EXPECT_EQ(counted[expected.category].rules, expected.rules) << expected.category;
    EXPECT_EQ(counted[expected.category].blocking, expected.blocking) << expected.category;
  }
}

// Order, ids, categories, severities and points are shared with everyone who reads the published
// table: a change of them is a decision, not an edit.
TEST(ContentRules, TheRowsAreThoseThatWereAgreed) {
  std::string rows;
  for (const Rule& rule : ContentRules::all) {
    for (const std::string_view field : {rule.id, rule.category, rule.severity})
      rows += std::string(field) + '|';
    rows += std::to_string(rule.points) + '\n';
  }
  EXPECT_EQ(CryptoManager::sha256Hex(rows),
            "b08d140c771cdcf2b5c07ab4a6f9906e8897cf1574dfe0daf5bf15f9775db895");
}

TEST(ContentRules, EveryRuleIsWellMade) {
  std::set<std::string_view> ids;
  for (const Rule& rule : ContentRules::all) {
    SCOPED_TRACE(rule.id);
    EXPECT_TRUE(ids.insert(rule.id).second);
    if (rule.severity == "block") {
      EXPECT_EQ(rule.points, 100);
    } else {
      EXPECT_EQ(rule.severity, "warn");
      EXPECT_GE(rule.points, 10);
      EXPECT_LE(rule.points, 90);
    }
    EXPECT_EQ(rule.caseInsensitive, rule.id != "spam-all-caps");
    // Shown behind a dash, and cut at its first comma: a clause, not a sentence.
    EXPECT_FALSE(rule.why.empty());
    EXPECT_FALSE(rule.why.ends_with('.'));
    EXPECT_EQ(unicode::wellFormed(rule.why), rule.why);
    EXPECT_EQ(unicode::wellFormed(rule.pattern), rule.pattern);
  }
}

TEST(ContentRules, EveryRuleHitsWhatItIsMeantForAndSparesTheRest) {
  ASSERT_EQ(ruleSamples().size(), ContentRules::all.size());
  for (std::size_t i = 0; i < ContentRules::all.size(); ++i) {
    const Rule& rule = ContentRules::all[i];
    const RuleSamples& samples = ruleSamples()[i];
    ASSERT_EQ(samples.id, rule.id);
    EXPECT_GE(samples.hits.size(), 2U) << rule.id;
    EXPECT_GE(samples.nearMisses.size(), 1U) << rule.id;

    const std::array<screening::Pattern, 1> pattern{
        {{.expression = rule.pattern, .caseInsensitive = rule.caseInsensitive}}};
    const IcuReference reference(pattern);
    const auto matches = [&](std::string_view text) {
      return reference.firstMatches(text).front().matched;
    };
    for (const std::string_view text : samples.hits)
      EXPECT_TRUE(matches(text)) << rule.id << " misses \"" << text << "\"\n" << rule.pattern;
    for (const std::string_view text : samples.nearMisses)
      EXPECT_FALSE(matches(text)) << rule.id << " hits \"" << text << "\"\n" << rule.pattern;
  }
}

}  // namespace
}  // namespace quillseal
