#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "Inspection.h"
#include "Operations.h"
#include "PatternTrial.h"
#include "Quillseal/ContentRules.h"
#include "Quillseal/CryptoManager.h"

namespace quillseal::inspect {
namespace {

using Json = nlohmann::ordered_json;
using ::testing::HasSubstr;

// The cases of operation-cases.jsonl, each a request and its answer.
TEST(Operations, AnswerEachRequest) {
  for (const Json& each : quillseal::testing::cases()) {
    const std::string request = each[0].is_string() ? each[0].get<std::string>() : each[0].dump();
    const Json actual = Json::parse(answer(request));
    Json expected = each[1].size() == actual.size() ? each[1] : actual;
    expected.update(each[1]);
    for (const auto& [key, value] : each[1].items()) {
      if (!value.is_array() || !actual.contains(key) || !actual[key].is_string()) continue;
      for (const std::string part : value)
        EXPECT_THAT(actual[key].get<std::string>(), HasSubstr(part)) << request.substr(0, 200);
      expected[key] = actual[key];
    }
    EXPECT_EQ(actual, expected) << request.substr(0, 200);
  }
}

TEST(Operations, ReadARequestOfManyKeysInReasonableTime) {
  std::string line = "{";
  for (int i = 0; i < 100000; ++i)
    line += "\"k" + std::to_string(i) + "\":1,";
  EXPECT_THAT(answer(line + "\"op\":\"dance\"}"), HasSubstr("unknown operation"));
}

TEST(Operations, ReplaceIllFormedBytesOnce) {
  EXPECT_THAT(answer("{\"op\":\"inspect\",\"issued\":\"\",\"text\":\"a\xFF\xE2\x82z\"}"),
              HasSubstr("\"normalized\":\"a\uFFFD\uFFFDz\""));
}

TEST(Report, UnderlinesWhatMatched) {
  const std::string report = readableReport(
      inspect({.text = "会議e\u0301: see javascript:x now", .html = {}, .issued = "2025-01-30"}));
  EXPECT_THAT(report, HasSubstr("Image digest  " + CryptoManager::imageManifestDigest({}) + '\n'));
  EXPECT_THAT(report, HasSubstr("Screening     refused, score 100\n"
                                "              url-javascript (100, blocks): Deceptive links\n"
                                "              会議e\u0301: see javascript:x now\n"
                                "                         ^^^^^^^^^^^\n"));
}

// A pattern, a text, and of each approach: number, satisfied part, text there, missing part.
TEST(PatternTrial, FindsTheLongestBeginningThatOccurs) {
  for (const auto& each : quillseal::testing::cases()) {
    const std::string pattern = each[0], text = each[1];
    std::vector<std::string> approaches;
    for (const Approach& one : tryPattern({.written = pattern}, text).approaches)
      approaches.push_back(std::to_string(one.number) + ' ' + one.satisfied + " [" +
                           text.substr(one.start, one.end - one.start) + "] " + one.missing);
    EXPECT_EQ(approaches, each[2].get<std::vector<std::string>>()) << each;
  }
  EXPECT_TRUE(tryPattern({.written = "A", .caseInsensitive = false}, "a").approaches.empty());
  for (const char* broken : {"(", "(?:a", "[a", "[--a]", "a{2", "a**", "\\", "<40>)", "(a)\\1"})
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
