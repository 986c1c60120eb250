#include <algorithm>
#include <new>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FailingAllocation.h"
#include "Quillseal/ContentRisk.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using ContentRisk::Assessment;
using ContentRisk::Finding;
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
  struct Case {
    std::string_view text;
    std::string_view id;
    bool hit;
  };
  const Case cases[] = {
      {"Approved. Thanks, regards", "univ-generic-approval", true},
      {"Approved. Invoice 4471 for $300 is fine", "univ-generic-approval", false},
      {"SEVEN WORDS IN CAPITALS ARE SHOUTING AT YOU", "spam-all-caps", true},
      {"seven words in capitals are shouting at you", "spam-all-caps", false},
      {"a\u200B\u200B\u200B\u200B\u200B\u200Bb", "obf-zero-width", true},
      {"a\u200B\u200B\u200B\u200B\u200Bb", "obf-zero-width", false},
      {"total \u202E001", "obf-rtl-override", true},
      {"tag \U000E0001", "obf-tag-chars", true},
      // The look-ahead rules: all parts, in any order, on any lines
      {"Call +1 (800) 555-0199\nto cancel\r\nyour Norton plan", "toad-callback", true},
      {"Call +1 (800) 555-0199\nabout\r\nyour Norton plan", "toad-callback", false},
      {"asap please, my new account\nfor payroll", "payroll-divert", true},
      {"asap please, my new desk\nfor payroll", "payroll-divert", false},
      // A warning word anywhere exempts the whole text
      {"Move your money to the safe account, transfer now", "univ-safe-account", true},
      {"Transfer to a safe account? This is a scam", "univ-safe-account", false},
      // Folding and boundaries are ICU's
      {"I AUTHORI\u017FE the payment", "pay-authorise-noun", true},
      {"i approve the pa\u0301yment", "pay-authorise-noun", false},
      {"i\u0301 approve the payment", "pay-authorise-noun", false},
      {"-----BEGIN OPEN\u017F\u017FH PRIVATE \u212AEY", "pii-private-key-block", true},
  };
  for (const Case& test : cases) {
    const std::vector<std::string> ids = idsIn(ContentRisk::evaluate(test.text));
    EXPECT_EQ(std::count(ids.begin(), ids.end(), test.id), test.hit ? 1 : 0)
        << test.id << " on " << test.text;
  }
}

TEST(ContentRisk, MatchesThatSplitACharacterAreSkipped) {
  const std::string wire = "Wire the money to the new account";
  EXPECT_THAT(idsIn(ContentRisk::evaluate("Hello\n" + wire)),
              ::testing::Contains("pay-imperative-transfer"));
  EXPECT_THAT(idsIn(ContentRisk::evaluate("Hello\r\n" + wire)),
              ::testing::Not(::testing::Contains("pay-imperative-transfer")));
  // The mark combines with the last letter, so the match would end inside a character.
  EXPECT_THAT(idsIn(ContentRisk::evaluate("javascript:")), ElementsAre("url-javascript"));
  EXPECT_THAT(idsIn(ContentRisk::evaluate("javascript:\u0301")), IsEmpty());
}

TEST(ContentRisk, QuotationsInReportsCountLess) {
  const std::string passage = "I approve the payment of the March invoice";
  const std::string lesson = "From our awareness training: ";
  struct Case {
    std::string text;
    std::vector<std::int64_t> points;
    bool blocked;
    bool warned;
  };
  const Case cases[] = {
      {lesson + '"' + passage + "\".", {55}, false, true},
      {lesson + "“" + passage + "”", {55}, false, true},
      {lesson + "‘" + passage + "’", {55}, false, true},
      {lesson + '\'' + passage + '\'', {55}, false, true},
      {lesson + '(' + '"' + passage + "\")", {55}, false, true},
      {lesson + "[\"" + passage + "\"]", {55}, false, true},
      // A match outside the quotation marks is the writer's own
      {lesson + "\"As agreed with all of you: I approve\" the payment", {100}, true, false},
      {lesson + "I approve \"the payment of the March invoice\".", {100}, true, false},
      {"From the board: \"" + passage + "\".", {100}, true, false},
      {lesson + passage, {100}, true, false},
      {lesson + "\"I approve payment\".", {100}, true, false},
      // A mark directly after a word opens nothing, and no later pair is considered
      {lesson + "x\"" + passage + "\".", {100}, true, false},
      {lesson + "5\" and “" + passage + "”", {100}, true, false},
      // Warnings inside vanish
      {lesson + "\"It says: content verified by Quillseal, of course\".", {}, false, false},
  };
  for (const Case& test : cases) {
    const Assessment assessment = ContentRisk::evaluate(test.text);
    std::vector<std::int64_t> points;
    for (const Finding& finding : assessment.findings) {
      points.push_back(finding.points);
      EXPECT_EQ(finding.isBlocking, finding.points == 100);
    }
    EXPECT_EQ(points, test.points) << test.text;
    EXPECT_EQ(assessment.isBlocked, test.blocked) << test.text;
    EXPECT_EQ(assessment.shouldWarn, test.warned) << test.text;
  }
}

// Each allocation fails once. An unfinished search counts as a match, so the result becomes
// stricter; without the reporting cue the text does not count as a report.
TEST(ContentRisk, RunningOutOfMemorySoftensNothing) {
  const std::string text =
      "From our awareness training: \"I approve the payment of the March invoice\".";
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

TEST(ContentRisk, TheSumOfPointsDecides) {
  const std::string verify = "Verify your e-mail address before noon. ";
  const struct {
    std::string text;
    std::int64_t score;
    bool blocked;
    bool warned;
  } cases[] = {
      {"Read the one-time passcode to the agent on the line.", 50, false, false},
      {verify + "To reset your password, follow the link below.", 55, false, true},
      {verify + "Peel the strip, then take a picture.", 95, false, true},
      {verify + "The crypto that you send us will be doubled.", 100, true, false},
  };
  for (const auto& test : cases) {
    const Assessment assessment = ContentRisk::evaluate(test.text);
    EXPECT_EQ(assessment.score, test.score) << test.text;
    EXPECT_EQ(assessment.isBlocked, test.blocked) << test.text;
    EXPECT_EQ(assessment.shouldWarn, test.warned) << test.text;
  }
}

TEST(ContentRisk, QuotedSpansFollowThePairsInOrder) {
  const std::string long24 = "twenty-four characters..";
  const auto spansOf = [](const std::string& text) {
    std::vector<std::pair<std::size_t, std::size_t>> spans;
    for (const auto& span : ContentRisk::quotedSpans(text)) {
      spans.emplace_back(span.firstCharacter, span.endCharacter);
      EXPECT_EQ(unicode::characterCount(text.substr(0, span.startByte)), span.firstCharacter);
      EXPECT_EQ(unicode::characterCount(text.substr(0, span.endByte)), span.endCharacter);
    }
    return spans;
  };
  using Spans = std::vector<std::pair<std::size_t, std::size_t>>;
  const struct {
    std::string text;
    Spans spans;
  } cases[] = {
      {'"' + long24 + '"', {{0, 26}}},
      {'"' + long24.substr(1) + '"', {}},
      {"“" + long24 + "” \"" + long24 + '"', {{27, 53}, {0, 26}}},
      // A closing mark must precede white space or punctuation
      {'"' + long24 + "\"x\" y", {{0, 28}}},
      {'"' + long24 + "\"x “" + long24 + "”", {}},
      // If there is no further opening mark, only this pair ends; a rejected one ends the scan
      {"“" + long24 + "”", {{0, 26}}},
      {"a\" “" + long24 + "”", {}},
      {"it's “" + long24 + "”", {{5, 31}}},
      {"it's ‘" + long24 + "’", {{5, 31}}},
      // A quotation mark with a combining mark is another character
      {"\"\u0301 “" + long24 + "”", {{2, 28}}},
      {"\r\n\"" + long24 + "\"\r\n", {{1, 27}}},
      {"x \u0301\"" + long24 + "\"", {{2, 28}}},
  };
  for (const auto& test : cases)
    EXPECT_EQ(spansOf(test.text), test.spans) << test.text;
}

TEST(ContentRisk, OnlyTheFirst200000CharactersAreScreened) {
  const std::string filler(ContentRisk::maximumScreenedCharacters - 11, ' ');
  EXPECT_THAT(idsIn(ContentRisk::evaluate(filler + "javascript:")), ElementsAre("url-javascript"));
  EXPECT_THAT(idsIn(ContentRisk::evaluate(filler + " javascript:")), IsEmpty());
}

TEST(ContentRisk, AwkwardTextsHaveADefinedResult) {
  EXPECT_EQ(ContentRisk::evaluate(""), Assessment{});
  std::string joined = "I approve the payment ";
  for (int i = 0; i < 700'000; ++i)
    joined += "\u200D";
  EXPECT_THAT(idsIn(ContentRisk::evaluate(joined)), ::testing::Contains("obf-zero-width").Times(0));
  EXPECT_THAT(idsIn(ContentRisk::evaluate(std::string(1000, '\0'))), IsEmpty());
  EXPECT_THAT(idsIn(ContentRisk::evaluate(std::string(10'000'000, 'x'))), IsEmpty());
  std::string marks;
  for (int i = 0; i < 100'000; ++i)
    marks += "\u0301";
  EXPECT_THAT(idsIn(ContentRisk::evaluate(marks)), IsEmpty());
  EXPECT_THAT(idsIn(ContentRisk::evaluate("\xFF\xC0javascript:\xE2\x82")),
              ElementsAre("url-javascript"));
}

Assessment assessmentOf(std::vector<Finding> findings) {
  return {.findings = std::move(findings), .score = 100, .isBlocked = true, .shouldWarn = false};
}

TEST(ContentRisk, TitlesAndTextsFollowTheCategories) {
  const Finding phishing{"a", "Credential phishing",
                         "asks the reader to verify an account, the most common phishing opener",
                         35, false};
  const Finding payment{"b", "Payment instruction", "authorises — so to speak, a payment", 100,
                        true};
  const Finding approval{"c", "Generic approval", "consists of approvals — nothing else", 100,
                         true};
  const Finding hate{"d", "Hate speech", "one", 100, true};
  const Finding terror{"e", "Terrorism", "two -- three", 100, true};
  const Finding misuse{"f", "Misuse", "two -- three", 10, false};
  const std::string forged =
      "A signature would make a forged copy far more convincing. Confirm payments in your finance "
      "system, not by signed message.";
  const struct {
    Assessment assessment;
    std::string title;
    std::string explanation;
  } cases[] = {
      {assessmentOf({}), "Not signed — this looks like a scam",
       "\nReword these parts, or don’t sign it."},
      {assessmentOf({phishing, misuse}), "Not signed — this looks like a scam",
       "•  Credential phishing — asks the reader to verify an account\n•  Misuse — two\n\n"
       "Reword these parts, or don’t sign it."},
      {assessmentOf({approval, payment}), "Not signed — generic approvals cannot be signed",
       "•  Generic approval — consists of approvals\n"
       "•  Payment instruction — authorises — so to speak\n\n" +
           forged},
      {assessmentOf({payment, payment}), "Not signed — payment instructions cannot be signed",
       "•  Payment instruction — authorises — so to speak\n\n" + forged},
      {assessmentOf({approval}), "Not signed — generic approvals cannot be signed",
       "•  Generic approval — consists of approvals\n\nAdd specific details (e.g. document title, "
       "invoice number, or amount) to provide context before signing."},
      {assessmentOf({payment, terror, hate, terror}), "Not signed",
       "Quillseal will not sign this.\n\nIt matches content that is illegal in most countries "
       "(terrorism, hate speech).\n\nIf you believe this is wrong, the rules are open — see "
       "content_rules.json."},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(ContentRisk::refusalTitle(test.assessment), test.title);
    EXPECT_EQ(ContentRisk::explanation(test.assessment), test.explanation);
  }
  EXPECT_EQ(ContentRisk::warning(assessmentOf({phishing})),
            "•  Credential phishing — asks the reader to verify an account\n\n"
            "Signing says YOU wrote this.");
  EXPECT_THAT(
      ContentRisk::reasons(assessmentOf({phishing, payment, approval, phishing, misuse}), 3),
      ElementsAre("•  Credential phishing — asks the reader to verify an account",
                  "•  Payment instruction — authorises — so to speak",
                  "•  Generic approval — consists of approvals", "•  and 1 more"));
}

}  // namespace
}  // namespace quillseal
