#include <algorithm>
#include <map>
#include <new>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "FailingAllocation.h"
#include "Quillseal/ContentRisk.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using ContentRisk::Assessment;
using ContentRisk::Finding;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> idsIn(const Assessment& assessment) {
  std::vector<std::string> ids;
  for (const Finding& finding : assessment.findings)
    ids.push_back(finding.id);
  return ids;
}

TEST(ContentRisk, EveryRuleCompiles) {
  EXPECT_THAT(ContentRisk::disabledRules(), IsEmpty());
}

TEST(ContentRisk, FindsWhatTheRulesDescribe) {
  for (const auto& [text, id, isHit] : testing::cases<std::string, std::string, bool>())
    EXPECT_THAT(idsIn(ContentRisk::evaluate(text)), Contains(id).Times(isHit ? 1 : 0)) << text;
}

TEST(ContentRisk, ReadsPastIllFormedBytes) {
  EXPECT_THAT(idsIn(ContentRisk::evaluate("\xFF\xC0javascript:\xE2\x82")),
              ElementsAre("url-javascript"));
}

TEST(ContentRisk, WeighsWhatItFinds) {
  using Points = std::vector<std::int64_t>;
  for (const auto& [text, expected, isBlocked, isWarned] :
       testing::cases<std::string, Points, bool, bool>()) {
    const Assessment assessment = ContentRisk::evaluate(text);
    Points points;
    for (const Finding& finding : assessment.findings) {
      points.push_back(finding.points);
      EXPECT_EQ(finding.isBlocking, finding.points == 100);
    }
    EXPECT_EQ(points, expected) << text;
    EXPECT_EQ(assessment.score, std::accumulate(points.begin(), points.end(), std::int64_t{0}));
    EXPECT_EQ(assessment.isBlocked, isBlocked) << text;
    EXPECT_EQ(assessment.shouldWarn, isWarned) << text;
  }
}

// Each allocation fails once. An unfinished search counts as a match, so the result becomes
// stricter; without the reporting cue the text does not count as a report.
TEST(ContentRisk, RunningOutOfMemorySoftensNothing) {
  const std::string text =
      "An example of a phishing mail: \"I approve the payment of the March invoice\".";
  ASSERT_EQ(ContentRisk::evaluate(text).score, 55);
  bool isCueLost = false;
  bool happened = true;
  for (std::size_t succeeding = 0; happened; ++succeeding) {
    ContentRisk::Screening screening;
    try {
      const testing::FailingAllocation failing(succeeding);
      screening = ContentRisk::screen(text);
      happened = failing.happened();
    } catch (const std::bad_alloc&) {
      continue;
    }
    EXPECT_GE(screening.assessment.score, 55) << succeeding;
    if (std::ranges::none_of(screening.hits, &ContentRisk::Hit::isEngineFailure))
      isCueLost = isCueLost || screening.assessment.score == 100;
  }
  EXPECT_TRUE(isCueLost);
}

TEST(ContentRisk, QuotedSpansFollowThePairsInOrder) {
  using Spans = std::vector<std::pair<std::size_t, std::size_t>>;
  for (const auto& [text, expected] : testing::cases<std::string, Spans>()) {
    Spans spans;
    for (const auto& span : ContentRisk::quotedSpans(text)) {
      spans.emplace_back(span.firstCharacter, span.endCharacter);
      EXPECT_EQ(unicode::characterCount(text.substr(0, span.startByte)), span.firstCharacter);
      EXPECT_EQ(unicode::characterCount(text.substr(0, span.endByte)), span.endCharacter);
    }
    EXPECT_EQ(spans, expected) << text;
  }
}

TEST(ContentRisk, TitlesAndTextsFollowTheCategories) {
  const std::map<char, Finding> findings{
      {'p',
       {"a", "Credential phishing",
        "asks the reader to verify an account, the most common phishing opener", 35, false}},
      {'m', {"b", "Payment instruction", "authorises — so to speak, a payment", 100, true}},
      {'a', {"c", "Generic approval", "consists of approvals — nothing else", 100, true}},
      {'h', {"d", "Hate speech", "one", 100, true}},
      {'t', {"e", "Terrorism", "two -- three", 100, true}},
      {'x', {"f", "Misuse", "two -- three", 10, false}}};
  const auto made = [&](const std::string& letters) {
    Assessment assessment{.findings = {}, .score = 100, .isBlocked = true, .shouldWarn = false};
    for (const char letter : letters)
      assessment.findings.push_back(findings.at(letter));
    return assessment;
  };
  for (const auto& [letters, title, explanation] :
       testing::cases<std::string, std::string, std::string>()) {
    EXPECT_EQ(ContentRisk::refusalTitle(made(letters)), title);
    EXPECT_EQ(ContentRisk::explanation(made(letters)), explanation);
  }
  EXPECT_EQ(ContentRisk::warning(made("p")),
            "•  Credential phishing — asks the reader to verify an account\n\n"
            "Signing says YOU wrote this.");
  EXPECT_THAT(ContentRisk::reasons(made("pmapx"), 3),
              ElementsAre("•  Credential phishing — asks the reader to verify an account",
                          "•  Payment instruction — authorises — so to speak",
                          "•  Generic approval — consists of approvals", "•  and 1 more"));
}

}  // namespace
}  // namespace quillseal
