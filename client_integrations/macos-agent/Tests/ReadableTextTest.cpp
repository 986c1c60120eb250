#include <array>
#include <chrono>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include "Cases.h"
#include "Disguises.h"
#include "Fuzzer.h"
#include "PatternText.h"
#include "Quillseal/ContentRisk.h"
#include "RandomText.h"
#include "RulePatterns.h"
#include "core/reading/ReadableText.h"
#include "core/reading/ReadingTables.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using ContentRisk::Screening;
using testing::divided;
using testing::escaped;

Screening asSigned(const std::string& text) {
  Screening screening = ContentRisk::screen(text);
  if (auto asRead = ContentRisk::screenAsRead(text, screening)) return *std::move(asRead);
  return screening;
}

/// Returns 2 for refused, 1 for warned about, 0 for signed.
int verdictOf(const Screening& screening) {
  return screening.assessment.isBlocked ? 2 : screening.assessment.shouldWarn ? 1 : 0;
}

TEST(ReadableText, ReadsWhatAPersonReads) {
  for (const auto& [written, expected] : testing::cases<std::string, std::string>()) {
    const ReadableText readable(written);
    EXPECT_EQ(readable.isAsWritten(), expected.empty()) << written;
    EXPECT_EQ(readable.text(), expected.empty() ? written : expected);
  }
}

TEST(ReadableText, HonestTextsStayHonest) {
  const std::vector<std::string> texts = testing::textCases();
  EXPECT_GE(texts.size(), 120U);
  for (const std::string& text : texts) {
    const Screening screening = asSigned(text);
    EXPECT_EQ(verdictOf(screening), 0) << text << "\nreads " << ReadableText(text).text();
  }
}

// Each sentence is caught without the points in its gap, so it must be caught with them.
TEST(ReadableText, GapsGoOnOverPointsThatEndNoSentence) {
  std::vector<std::string> sentences;
  std::vector<std::pair<std::string, std::string>> fillers;
  for (const std::string& line : testing::textCases()) {
    if (line.starts_with("S ")) sentences.push_back(line.substr(2));
    if (line.starts_with("F ")) fillers.push_back(divided(line.substr(2), " | "));
  }
  EXPECT_GE(sentences.size() * fillers.size(), 90U);
  for (const std::string& sentence : sentences) {
    for (const auto& [pointed, plain] : fillers) {
      const std::string with = unicode::replacingAll(sentence, "{}", pointed);
      const std::string without = unicode::replacingAll(sentence, "{}", plain);
      const int expected = verdictOf(ContentRisk::screen(without));
      EXPECT_GT(expected, 0) << without;
      EXPECT_LT(verdictOf(ContentRisk::screen(with)), expected) << with << " is no example";
      EXPECT_EQ(verdictOf(asSigned(with)), expected) << with;
    }
  }
}

/// The samples of the rules that are refused or warned about, as far as they are `wanted`.
std::vector<std::string> caughtSamples(bool (*wanted)(const std::string&)) {
  std::vector<std::string> caught;
  for (const std::string& line : testing::textCases("Samples of the rules"))
    if (line.starts_with("+ ") && wanted(line) &&
        verdictOf(ContentRisk::screen(line.substr(2))) > 0)
      caught.push_back(line.substr(2));
  EXPECT_GT(caught.size(), 100U);
  return caught;
}

/// Expects that a disguise leaves so many in a hundred of the samples caught.
template <typename Disguise>
void expectCaught(const std::vector<std::string>& samples, Disguise apply, std::string_view name,
                  int promised) {
  std::size_t still = 0;
  for (const std::string& text : samples)
    if (verdictOf(asSigned(apply(text))) > 0) ++still;
  EXPECT_GE(100 * still, samples.size() * static_cast<std::size_t>(promised))
      << name << ": " << still << " of " << samples.size();
}

TEST(ReadableText, DisguisedScamsAreCaught) {
  const auto caught = caughtSamples([](const std::string& line) { return unicode::isAscii(line); });
  for (const testing::Disguise& disguise : testing::disguises()) {
    std::mt19937 random(17);
    const auto apply = [&](const std::string& text) { return disguise.apply(text, random); };
    expectCaught(caught, apply, disguise.name, disguise.promised);
  }
}

/// Puts a sign between adjacent letters.
std::string apart(const std::string& text, std::string_view sign) {
  std::string result;
  bool isBehindLetter = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const bool isLetter = reading::isWideLetter(unicode::nextScalar(text, at));
    if (isLetter && isBehindLetter) result += sign;
    result += text.substr(start, at - start);
    isBehindLetter = isLetter;
  }
  return result;
}

std::string decomposed(const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  std::string result;
  icu::Normalizer2::getNFDInstance(status)
      ->normalize(icu::UnicodeString::fromUTF8(text), status)
      .toUTF8String(result);
  return result;
}

TEST(ReadableText, DisguisedScamsInOtherScriptsAreCaught) {
  const auto caught =
      caughtSamples([](const std::string& line) { return decomposed(apart(line, "|")) != line; });
  for (const char* sign : {"\u200B", ".", " "})
    expectCaught(
        caught, [&](const std::string& text) { return apart(text, sign); }, escaped(sign), 95);
  expectCaught(caught, decomposed, "decomposed", 95);
}

// Each what stands before the words that are found, these, and what stands behind.
TEST(ReadableText, FindingsStandWhereTheyWereWritten) {
  for (const auto& [before, words, after] :
       testing::cases<std::string, std::string, std::string>()) {
    const std::string text = before + words + after;
    const Screening screening = asSigned(text);
    ASSERT_FALSE(screening.hits.empty()) << text;
    const auto [id, start, end, failed] = screening.hits.front();
    EXPECT_EQ(id, "pay-authorise-noun");
    EXPECT_EQ(unicode::replacingAll(text.substr(start, end - start), "\u200B", ""),
              unicode::replacingAll(words, "\u200B", ""));
  }
}

/// Wide letters and the signs that may separate them.
std::string wideText(std::mt19937& random) {
  constexpr std::u32string_view pieces =
      U"\uAC00\uB098\uB2E4\uACC4\uC88C\u8D26\u6237\u304B\u3099\u1100\u1161\u11A8\u2F00\uFF76\uFF9E"
      U"\u30FB\u00B7\u200B\uFE0F\u200D\U0001F469\u0438\u0306     .-\n\uFF01a\u30001";
  std::string text;
  for (std::size_t size = 3 + random() % 30; size > 0; --size)
    unicode::append(text, pieces[random() % pieces.size()]);
  return text;
}

TEST(ReadableText, ReadingIsSoundWhateverTheText) {
  const std::vector<screening::Pattern> patterns = screening::rulePatterns();
  const testing::PatternText source(patterns);
  constexpr std::array separators{" ", ".",  "-",  "-\n", "\n",    "\u200B",
                                  "<", "  ", ". ", "0",   "\u0301"};
  std::mt19937 random(11);
  const auto some = [&] { return std::string(separators[random() % separators.size()]); };
  for (int round = 0; round < 8000; ++round) {
    std::string text = round % 2 == 0   ? wideText(random)
                       : round % 3 == 0 ? testing::randomText(random, 80)
                                        : source.mixture(random).substr(0, 300);
    text = unicode::wellFormed(text);
    for (int times = 0; times < 2; ++times) {
      const auto& disguise = testing::disguises()[random() % testing::disguises().size()];
      if (random() % 3 != 0) text = disguise.apply(text, random);
      const std::size_t at = random() % (text.size() + 1);
      if (at == text.size() || (text[at] & 0xC0) != 0x80) text.insert(at, some() + "a" + some());
    }
    ASSERT_NO_THROW(fuzz::check(text)) << escaped(text);
  }
}

// Work that grows with the square of the length would take hours. Nor must the search for a sign
// that was left out get longer the more often that happened.
TEST(ReadableText, LongTextsTakeNoLongTime) {
  for (const std::string& unit : testing::textCases()) {
    std::string text;
    while (text.size() < 400'000)
      text += unit;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(ReadableText("x\u200B " + text + "y0ur 4444").isAsWritten());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << unit;
  }
}

TEST(ReadableText, BothScreeningsCount) {
  // The address is found only as written, the wording only as read.
  const std::string text =
      "Open http://192.168.4.7/pay to v\u200Berify your acc\u200Bount with us before 3 May.";
  const Screening asWritten = ContentRisk::screen(text);
  EXPECT_EQ(asWritten.assessment.score, 45);
  const auto asRead = ContentRisk::screenAsRead(text, asWritten);
  ASSERT_TRUE(asRead);
  EXPECT_GE(asRead->assessment.score, 100);
  EXPECT_TRUE(asRead->assessment.isBlocked);

  const std::string plain = "The choir meets on Tuesday at ten, bring the scores.";
  EXPECT_FALSE(ContentRisk::screenAsRead(plain, ContentRisk::screen(plain)));
  EXPECT_TRUE(ReadableText("").isAsWritten());
  EXPECT_EQ(ReadableText("\u200B\u200B").text(), "");
}

// Characters that are not in the digest do not count towards the screened ones.
TEST(ReadableText, NothingUnsignedPushesAScamOutOfSight) {
  for (const char* unit : {" ", "\n", " \u2064", "\u00A0\u200B", "<"}) {
    std::string text = "Dear Ada, ";
    for (std::size_t i = 0; i <= ContentRisk::maximumScreenedCharacters; ++i)
      text += unit;
    text += "please wire $12,499 to the following account today, it is for the invoice.";
    EXPECT_EQ(verdictOf(asSigned(text)), 2) << escaped(unit);
  }
  const std::string prose(ContentRisk::maximumScreenedCharacters, 'x');
  EXPECT_EQ(verdictOf(asSigned(prose + " I approve the payment.")), 0);
}

}  // namespace
}  // namespace quillseal
