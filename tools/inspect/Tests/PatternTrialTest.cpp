#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Inspection.h"
#include "PatternTrial.h"
#include "Quillseal/ContentRules.h"

namespace quillseal::inspect {
namespace {

using ::testing::HasSubstr;

TEST(PatternTrial, FindsTheLongestBeginningThatOccurs) {
  const struct {
    const char* pattern;
    const char* text;
    std::vector<const char*> approaches;  ///< number, satisfied part, text there, missing part
  } cases[] = {
      {R"(buy|\bsend\b<40>\bgift\s+cards?)",
       "so send her two gifts",
       {R"(2 \bsend\b<40>\bgift [send her two gift] \s+)"}},
      {R"(\b(?:pay|send (?:one|two cars)) now)",
       "send two cards",
       {R"(1 \b(?:send (?:two car [send two car] s)"}},
      // At most three, the nearest first. Alternatives of which nothing was found are left out.
      {"abcd|axyz|zzzz|abxy|abc0", "abc", {"1 abc [abc] d", "5 abc [abc] 0", "4 ab [ab] x"}},
      // An optional or forbidden element is never reported as missing.
      {R"(ab(?:cd)?(?:ef){0,2}(?!gh)ij)", "abgi abi", {R"(1 ab(?:cd)?(?:ef){0,2}(?!gh)i [abi] j)"}},
      {R"(a(?=bc)b)", "abd ac", {R"(1 a(?=b [a] c)"}},
      {R"([a\]b]{2,3}?\x{e9}\u00e9\p{L}\|(x)y)",
       "b]éék|z",
       {R"(1 [a\]b]{2,3}?\x{e9}\u00e9\p{L}\| [b]éék|] (x))"}},
      {R"((?<=\d)€<amount>)", "5€ 6", {R"(1 (?<=\d)€ [€] <amount>)"}},
      {"<5>.<5>x<", "ab", {"1 <5>.<5> [ab] x"}},
      {"éß", "E É", {"1 é [É] ß"}},
      {"abc", "", {}},
      // A match.
      {"x|abc?|ab", "zab", {"2 abc? [ab] "}},
      {R"(x|(?=[\s\S]*b)(?=[\s\S]*a))", "ab", {"2 (?=[\\s\\S]*b)(?=[\\s\\S]*a) [] "}},
  };
  for (const auto& each : cases) {
    const std::string text = each.text;
    std::vector<std::string> approaches;
    for (const Approach& one : tryPattern({.written = each.pattern}, text).approaches)
      approaches.push_back(std::to_string(one.number) + ' ' + one.satisfied + " [" +
                           text.substr(one.start, one.end - one.start) + "] " + one.missing);
    EXPECT_THAT(approaches, ::testing::ElementsAreArray(each.approaches)) << each.pattern;
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
  const std::string quotation =
      "The lure said “It matches nowhere. Verify your account before noon” and nobody replied.";
  const struct {
    RuleQuestion question;
    std::vector<const char*> parts;
  } cases[] = {
      {{.rule = "pay-imperative-transfer", .text = " Now wire the money soon "},
       {"Rule          pay-imperative-transfer (100, blocks): ",
        "\nAs written    matches nowhere\n", "\nNearest       alternative 1 of 1, ",
        "% of it\n  satisfied   …",
        "\n              Now wire the money soon\n              ^^^^^^^^^^^^^^^^^^^^^^^\n",
        "\n  missing     (?:to|into)\n"}},
      {{.rule = "cred-verify-account", .text = quotation},
       {"\nAs written    matches\n", "^^^\n              but does not count"}},
      {{.rule = "pay-imperative-transfer", .pattern = "verify", .text = quotation},
       {"\nAs written    matches\n              alternative 1 of 1\n"}},
      {{.pattern = "SEND", .text = "s.e.n.d"},
       {"As written    matches nowhere\n", "\nAs read       matches\n",
        "\n              send\n              ^^^^\n"}},
  };
  for (const auto& each : cases) {
    const std::string report = ruleReport(each.question);
    for (const char* part : each.parts)
      EXPECT_THAT(report, HasSubstr(part));
  }
  EXPECT_THROW((void)ruleReport({.rule = "no-such-rule", .text = ""}), PatternTrialError);
}

}  // namespace
}  // namespace quillseal::inspect
