#include <array>
#include <new>
#include <numeric>
#include <random>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "FailingAllocation.h"
#include "IcuReference.h"
#include "PatternText.h"
#include "RandomText.h"
#include "RulePatterns.h"
#include "core/screening/compile/ClassPartition.h"
#include "core/screening/compile/LiteralIndexBuilder.h"
#include "core/screening/compile/PatternSyntax.h"
#include "core/screening/compile/TableCompiler.h"
#include "core/screening/match/ScreeningEngine.h"

namespace quillseal {
namespace {

using screening::Pattern;
using screening::PatternMatch;
using screening::ScreeningEngine;
using testing::answersOf;
using testing::IcuReference;
using testing::PatternText;

/// Compares all patterns on `texts` texts; one disagreement of each pattern is reported. Gives the
/// numbers of answers and of matches among them.
std::pair<std::size_t, std::size_t> compareWithIcu(std::span<const Pattern> patterns,
                                                   std::size_t texts, unsigned seed) {
  const auto compiled = screening::compilePatterns(patterns);
  const ScreeningEngine engine(compiled.tables);
  const IcuReference reference(patterns);
  const PatternText source(patterns);
  std::mt19937 random(seed);
  std::vector<bool> reported(patterns.size());
  std::size_t compared = 0, matched = 0;
  EXPECT_TRUE(compiled.problems.empty());
  for (std::size_t i = 0; i < texts; ++i) {
    std::string text = source.mixture(random);
    // Long texts are screened in stretches, and what is known of them is kept in pages.
    const std::size_t leastSize = i % 50 == 0 ? 5000 : 0;
    while (text.size() < leastSize)
      text += source.mixture(random);
    const auto expected = reference.firstMatches(text);
    const auto actual = answersOf(engine, patterns.size(), text);
    for (std::size_t p = 0; p < patterns.size(); ++p) {
      if (expected[p].gaveUp) continue;
      ++compared;
      matched += expected[p].matched ? 1 : 0;
      if (actual[p] == expected[p] || reported[p]) continue;
      reported[p] = true;
      ADD_FAILURE() << patterns[p].expression << "\n on " << testing::escaped(text) << "\n ICU "
                    << expected[p].matched << ' ' << expected[p].start << '-' << expected[p].end
                    << ", engine " << actual[p].matched << ' ' << actual[p].start << '-'
                    << actual[p].end;
    }
  }
  return {compared, matched};
}

TEST(ScreeningEngine, AgreesWithIcuOnEveryConstruct) {
  const auto groups = testing::cases();
  std::vector<Pattern> patterns;
  for (const auto& group : groups)
    for (const auto& expression : group["expressions"])
      for (const bool caseInsensitive : {true, false})
        patterns.push_back({.expression = expression.get_ref<const std::string&>(),
                            .caseInsensitive = caseInsensitive});
  const auto [compared, matched] = compareWithIcu(patterns, 3000, 17);
  EXPECT_GT(matched, compared / 20);
}

// What random texts rarely meet: orders of alternatives, elements and memo rows.
TEST(ScreeningEngine, AgreesWithIcuWhereItIsHard) {
  for (const auto& each : testing::cases()) {
    const std::string expression = each[0], text = each[1];
    for (const bool caseInsensitive : {true, false}) {
      const Pattern pattern{.expression = expression, .caseInsensitive = caseInsensitive};
      const auto compiled = screening::compilePatterns({&pattern, 1});
      const ScreeningEngine engine(compiled.tables);
      const IcuReference reference({&pattern, 1}, IcuReference::noTimeLimit);
      EXPECT_EQ(answersOf(engine, 1, text), reference.firstMatches(text)) << each;
    }
  }
}

TEST(ScreeningEngine, AgreesWithIcuOnEveryRule) {
  const auto [compared, matched] = compareWithIcu(screening::rulePatterns(), 600, 4711);
  EXPECT_GT(compared, 100'000U);
  EXPECT_GT(matched, compared / 1000);
}

screening::CompiledPatterns compiled(const std::vector<std::string>& expressions) {
  std::vector<Pattern> patterns;
  for (const std::string& expression : expressions)
    patterns.push_back({.expression = expression});
  return screening::compilePatterns(patterns);
}

TEST(ScreeningEngine, ReportsPatternsItCannotUseAndKeepsTheOthers) {
  std::vector<std::string> faulty = testing::textCases();
  // Deeper than any stack.
  faulty.push_back(std::string(1'000'000, '(') + 'a' + std::string(1'000'000, ')'));
  faulty.emplace_back("a");
  for (int i = 0; i < 1'000'000; ++i)
    faulty.back() += "{1}";
  // More kinds of repetition than an instruction can name.
  faulty.emplace_back();
  for (int i = 2; i < 259; ++i)
    faulty.back() += "a{" + std::to_string(i) + '}';
  faulty.emplace_back("plain");
  const auto tables = compiled(faulty);
  faulty.pop_back();
  const ScreeningEngine engine(tables.tables);
  EXPECT_EQ(tables.problems.size(), faulty.size());
  EXPECT_EQ(ScreeningEngine::unusablePatterns(tables.tables).size(), faulty.size());
  const auto matches = engine.firstMatches("a plain text");
  ASSERT_EQ(matches.size(), 1U);
  EXPECT_EQ(matches.front().pattern, faulty.size());
  EXPECT_EQ(matches.front().start, 2U);

  // More folded letters than an instruction can count.
  const std::string letters(256, 'z');
  const Pattern pattern{.expression = letters, .caseInsensitive = true};
  EXPECT_EQ(screening::compilePatterns({&pattern, 1}).problems.size(), 1U);
}

// These words need more states than a row of the index can name, and larger tables if rare literals
// were no shorter than others.
TEST(ScreeningEngine, AsksForTheBeginningOfRareLiteralsOnly) {
  std::mt19937 random(7);
  std::vector<std::string> words(20'000);
  for (std::string& word : words)
    while (word.size() < 12)
      word += static_cast<char>('a' + random() % 26);
  const auto tables = compiled(words);
  ASSERT_TRUE(tables.problems.empty());
  EXPECT_LT(tables.tables.size(), 7'800'000U);
  const ScreeningEngine engine(tables.tables);
  for (std::size_t i = 0; i < words.size(); i += 500) {
    const auto matches = engine.firstMatches("It says " + words[i] + " and " + words[i].substr(6));
    ASSERT_EQ(matches.size(), 1U) << words[i];
    EXPECT_EQ(matches.front().pattern, i);
    EXPECT_TRUE(engine.firstMatches(words[i].substr(0, 11) + '-').empty()) << words[i];
  }
}

// More states would be numbered wrongly, so the build of the agent ends with a message.
TEST(ScreeningEngine, LimitsTheStatesOfTheLiteralIndex) {
  const auto indexAll = [](char32_t letters) {
    std::vector<char32_t> alphabet(letters);
    std::iota(alphabet.begin(), alphabet.end(), U'一');
    const screening::SetTable sets;
    const screening::ClassPartition classes(sets, alphabet);
    screening::LiteralIndexBuilder builder;
    for (const char32_t first : alphabet)
      for (const char32_t second : alphabet)
        for (const char32_t third : alphabet)
          builder.add(std::array{classes.letterOf(first), classes.letterOf(second),
                                 classes.letterOf(third)},
                      0);
    return builder.build(classes);
  };
  const auto complains = [](const char* message) {
    return ::testing::ThrowsMessage<screening::PatternError>(::testing::HasSubstr(message));
  };
  EXPECT_NO_THROW((void)indexAll(39));
  EXPECT_THAT([&] { (void)indexAll(45); }, complains("begin in too many ways"));
  EXPECT_THAT([&] { (void)indexAll(85); }, complains("more than 524288 states"));
}

TEST(ScreeningEngine, IllFormedBytesCountAsReplacementCharacters) {
  const auto tables = compiled({"a\\uFFFD+b", "c$"});
  const auto matches = ScreeningEngine(tables.tables)
                           .firstMatches(
                               "xa\xFF\xE2\x82"
                               "bc");
  ASSERT_EQ(matches.size(), 2U);
  EXPECT_EQ(std::pair(matches[0].start, matches[0].end), std::pair(1UL, 6UL));
  EXPECT_EQ(matches[1].end, 7U);
}

// A search that fails counts as a match, but must not forbid one. Each allocation fails once.
TEST(ScreeningEngine, RunningOutOfMemoryHidesNoMatch) {
  const auto tables =
      compiled({"^(?![\\s\\S]*zebra\\w*!)[\\s\\S]*?quilts", "walrus|zebra\\w*", "zebra\\w*|lynx"});
  const ScreeningEngine engine(tables.tables);
  std::size_t failedSearches = 0;
  bool happened = true;
  for (std::size_t succeeding = 0; happened; ++succeeding) {
    std::vector<PatternMatch> matches;
    try {
      const testing::FailingAllocation failing(succeeding);
      matches = engine.firstMatches("zebras and quilts");
      happened = failing.happened();
    } catch (const std::bad_alloc&) {
      continue;
    }
    ASSERT_EQ(matches.size(), 3U) << succeeding;
    const auto hasFailed = [](const PatternMatch& match) { return match.failed; };
    EXPECT_EQ(std::ranges::any_of(matches, hasFailed), happened) << succeeding;
    EXPECT_EQ(matches[1].failed, matches[2].failed) << "what they share: " << succeeding;
    failedSearches += happened ? 1 : 0;
  }
  EXPECT_GT(failedSearches, 0U);
}

std::string repeated(std::string_view unit, std::size_t size) {
  std::string text;
  while (text.size() < size)
    text += unit;
  return text;
}

// Steps are counted, not time, so that the test means the same on every machine.
TEST(ScreeningEngine, WorkGrowsLinearlyWithWhateverIsRepeated) {
  const std::vector<Pattern> patterns = screening::rulePatterns();
  const PatternText source(patterns);
  constexpr auto separators = std::to_array<std::string_view>(
      {"", " ", "\n", "\r\n", ".", ",", "1", "a", "\u200D", "\u0301", "  \n", " a "});
  for (std::size_t p = 0; p < patterns.size(); ++p) {
    const auto compiled = screening::compilePatterns({&patterns[p], 1});
    const ScreeningEngine engine(compiled.tables);
    std::mt19937 random(static_cast<unsigned>(p));
    std::vector<std::string> units = source.parts(p);
    std::shuffle(units.begin(), units.end(), random);
    units.resize(std::min<std::size_t>(units.size(), 12));
    for (int i = 0; i < 6; ++i)
      units.push_back(source.along(p, random).substr(0, 400));
    units.emplace_back();
    for (std::size_t i = 0; i < units.size(); ++i) {
      const std::string& other = units[random() % units.size()];
      const std::string_view separator = separators[random() % separators.size()];
      for (const std::string& unit :
           {units[i] + std::string(separators[i % separators.size()]),
            units[i] + std::string(separator) + other + std::string(separator)}) {
        if (unit.empty()) continue;
        const std::string lead = unit.size() % 2 == 0 ? std::string() : source.along(p, random);
        const auto stepsOf = [&](std::size_t size) {
          std::uint64_t steps = 0;
          static_cast<void>(engine.firstMatches(lead + repeated(unit, size) + '#', &steps));
          return steps;
        };
        const std::uint64_t once = stepsOf(12'000);
        const std::uint64_t twice = stepsOf(24'000);
        // Where the work jumps once, at some length, it must not do so again.
        EXPECT_TRUE(twice < 3 * once || stepsOf(48'000) < 3 * twice)
            << patterns[p].expression << "\n repeating " << testing::escaped(unit) << " after "
            << testing::escaped(lead);
      }
    }
  }
}

std::uint64_t stepsOf(const std::vector<std::string>& expressions, const std::string& text) {
  std::uint64_t steps = 0;
  static_cast<void>(ScreeningEngine(compiled(expressions).tables).firstMatches(text, &steps));
  return steps;
}

// Of 4,096 candidates all but one stay near enough, so dropping the others has to become rarer.
TEST(ScreeningEngine, WorkGrowsLinearlyWithCandidatesThatStayNear) {
  const std::string expression = "zebra" + repeated("\\w{0,4094}", 50) + "\\s+quilts";
  EXPECT_LT(stepsOf({expression}, repeated("zebra", 40'000)),
            3 * stepsOf({expression}, repeated("zebra", 20'000)));
}

TEST(ScreeningEngine, ANumberOfAnyLengthIsOneRunBeforeALiteral) {
  const std::string text = repeated("12 ", 60'000) + "zebra";
  EXPECT_LT(stepsOf({"\\d{2,}\\s(?:zebra|quilts)!"}, text), text.size() + 20);
}

TEST(ScreeningEngine, WhatALookAheadAsksForIsALiteral) {
  const std::string text = repeated("zebra ", 60'000);
  EXPECT_LT(stepsOf({"zebra(?=[^!]{0,20}\\bquilts)[^!]{0,60}\\d"}, text), text.size() * 3 / 2);
}

TEST(ScreeningEngine, WhatPatternsShareIsSearchedForOnce) {
  const std::string shared = "zebra[^!]{0,200}quilts";
  const std::string text = repeated("zebra ", 20'000);
  EXPECT_EQ(stepsOf({"walrus|" + shared, shared + "|lynx"}, text),
            stepsOf({"walrus|" + shared, "lynx"}, text));
}

TEST(ScreeningEngine, WhatPatternsShareEndsWhenAllHaveAMatch) {
  const std::string shared = "zebra[^!]{0,200}quilts";
  const std::string text = "walrus lynx " + repeated("zebra! quilts ", 20'000);
  EXPECT_LT(stepsOf({"walrus|" + shared, shared + "|lynx"}, text), text.size() + 100);
}

// The stretches that the loop reaches overlap in all but three places.
TEST(ScreeningEngine, WhatALoopReachesIsPassedOnce) {
  EXPECT_LT(stepsOf({"\\bab\\s[\\s\\S]{0,400}\\b[a-z]\\d"}, repeated("ab ", 60'000)), 60'000U * 15);
}

// Each loop reaches 200 places, and what follows it takes 60 steps. So without memory each of its
// starts costs 12,000. A lazy loop without limit would take 10,000 steps from each.
TEST(ScreeningEngine, WhatFollowsALoopIsExploredOnceAtEachPlace) {
  for (const std::string& expression :
       {"\\w{0,200}" + repeated("\\w", 120) + "[^\\w\\s]", std::string("\\w*?[^\\w\\s]")})
    EXPECT_LT(stepsOf({expression}, repeated("a", 10'000)), 10'000U * 1'000);
}

}  // namespace
}  // namespace quillseal
