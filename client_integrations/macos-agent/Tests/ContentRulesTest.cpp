#include <algorithm>
#include <array>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "IcuReference.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/ContentRules.h"
#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using ContentRules::Rule;
using testing::IcuReference;

struct Samples {
  std::vector<std::string> hits;
  std::vector<std::string> nearMisses;
};

std::string unescaped(std::string text) {
  for (std::size_t at = 0; (at = text.find("\\u{", at)) != std::string::npos; ++at) {
    const std::size_t end = text.find('}', at);
    if (end == std::string::npos) throw std::runtime_error("no end of \\u{ in " + text);
    std::string scalar;
    unicode::append(scalar, static_cast<char32_t>(std::stoul(text.substr(at + 3), nullptr, 16)));
    text.replace(at, end + 1 - at, scalar);
  }
  return text;
}

/// What rule-samples.txt, which tells its form, holds for each rule.
std::vector<Samples> ruleSamples() {
  std::ifstream file(QUILLSEAL_RULE_SAMPLES);
  std::vector<Samples> samples;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t rules = samples.size();
    if (rules < ContentRules::all.size() && line == ContentRules::all[rules].id)
      samples.emplace_back();
    else if (rules > 0 && line.starts_with("+ "))
      samples.back().hits.push_back(unescaped(line.substr(2)));
    else if (rules > 0 && line.starts_with("- "))
      samples.back().nearMisses.push_back(unescaped(line.substr(2)));
    else
      throw std::runtime_error("neither a sample nor the next rule: " + line);
  }
  return samples;
}

// Number, order, ids, categories, severities and points are shared with everyone who reads the
// published table: a change of them is a decision, not an edit.
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
  const std::vector<Samples> allSamples = ruleSamples();
  ASSERT_EQ(allSamples.size(), ContentRules::all.size());
  for (std::size_t i = 0; i < ContentRules::all.size(); ++i) {
    const Rule& rule = ContentRules::all[i];
    const Samples& samples = allSamples[i];
    EXPECT_GE(samples.hits.size(), 2U) << rule.id;
    EXPECT_GE(samples.nearMisses.size(), 1U) << rule.id;

    const std::array<screening::Pattern, 1> pattern{
        {{.expression = rule.pattern, .caseInsensitive = rule.caseInsensitive}}};
    const IcuReference reference(pattern);
    const auto matches = [&](std::string_view text) {
      return reference.firstMatches(text).front().matched;
    };
    for (const std::string& text : samples.hits)
      EXPECT_TRUE(matches(text)) << rule.id << " misses \"" << text << "\"\n" << rule.pattern;
    for (const std::string& text : samples.nearMisses)
      EXPECT_FALSE(matches(text)) << rule.id << " hits \"" << text << "\"\n" << rule.pattern;
  }
}

/// The two texts that a line of rule-gaps.txt, which tells its form, stands for.
std::pair<std::string, std::string> textsOf(std::string_view line) {
  std::pair<std::string, std::string> texts;
  while (!line.empty()) {
    const std::string_view same = line.substr(0, line.find('{'));
    line.remove_prefix(same.size());
    const std::size_t bar = std::min(line.find('|'), line.size());
    const std::size_t end = std::min(line.find('}'), line.size());
    texts.first.append(same).append(line.substr(0, bar).substr(line.empty() ? 0 : 1));
    texts.second.append(same);
    if (line.empty()) break;
    texts.second.append(line.substr(bar + 1, end - bar - 1));
    line.remove_prefix(end + 1);
  }
  return texts;
}

TEST(ContentRules, FindAsMuchAcrossPointsThatEndNoSentence) {
  std::ifstream file(QUILLSEAL_RULE_GAPS);
  std::size_t lines = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    ++lines;
    const auto [plain, pointed] = textsOf(line);
    const auto found = ContentRisk::evaluate(pointed).findings;
    bool any = false;
    for (const auto& finding : ContentRisk::evaluate(plain).findings) {
      // Patterns that other programs hold, too, stop at every point.
      const auto rule = std::ranges::find(ContentRules::all, finding.id, &Rule::id);
      if (rule->severity == "block") continue;
      any = true;
      EXPECT_NE(std::ranges::find(found, finding.id, &ContentRisk::Finding::id), found.end())
          << finding.id << " misses \"" << pointed << '"';
    }
    EXPECT_TRUE(any) << "nothing is found in \"" << plain << '"';
  }
  EXPECT_GE(lines, 70U);
}

}  // namespace
}  // namespace quillseal
