#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Cases.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/ContentRules.h"
#include "core/screening/compile/TableCompiler.h"
#include "core/screening/match/ScreeningEngine.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

using ContentRules::Rule;

struct Samples {
  std::vector<std::string> hits;
  std::vector<std::string> nearMisses;
  /// The largest allowed gap between two words of a match, in characters.
  std::optional<std::size_t> reach = 60;
};

/// The samples of each rule. rule-samples.txt describes its format.
std::vector<Samples> ruleSamples() {
  std::vector<Samples> samples;
  for (const std::string& line : testing::textCases("Samples of the rules")) {
    const std::size_t rules = samples.size();
    if (rules < ContentRules::all.size() && line == ContentRules::all[rules].id)
      samples.emplace_back();
    else if (rules > 0 && line.starts_with("+ "))
      samples.back().hits.push_back(line.substr(2));
    else if (rules > 0 && line.starts_with("- "))
      samples.back().nearMisses.push_back(line.substr(2));
    else if (rules > 0 && line == "~ unlimited")
      samples.back().reach.reset();
    else if (rules > 0 && line.starts_with("~ "))
      samples.back().reach = std::stoul(line.substr(2));
    else
      throw std::runtime_error("neither a sample nor the next rule: " + line);
  }
  return samples;
}

/// Searches texts for some patterns at once.
class Search {
 public:
  Search(std::span<const std::string> expressions, bool caseInsensitive) {
    std::vector<screening::Pattern> patterns;
    for (const std::string& expression : expressions)
      patterns.push_back({.expression = expression, .caseInsensitive = caseInsensitive});
    compiled_ = screening::compilePatterns(patterns);
    engine_.emplace(compiled_.tables);
  }
  [[nodiscard]] const auto& problems() const { return compiled_.problems; }
  [[nodiscard]] auto matches(std::string_view text) const { return engine_->firstMatches(text); }

 private:
  screening::CompiledPatterns compiled_;
  std::optional<screening::ScreeningEngine> engine_;
};

// A gap that is too wide joins words of honest sentences. So no sample may still match when its
// words are moved apart at any place, unless the rule's reach is unlimited.
TEST(ContentRules, EveryRuleHitsWhatItIsMeantForAndSparesTheRest) {
  const std::vector<Samples> allSamples = ruleSamples();
  ASSERT_EQ(allSamples.size(), ContentRules::all.size());
  std::set<std::string_view> ids;
  for (std::size_t i = 0; i < ContentRules::all.size(); ++i) {
    const Rule& rule = ContentRules::all[i];
    const Samples& samples = allSamples[i];
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
    EXPECT_TRUE(rule.severity == "block"
                    ? rule.points == 100
                    : rule.severity == "warn" && rule.points >= 10 && rule.points <= 90)
        << rule.id;
    // Shown after a dash and cut at its first comma, so it must be a clause, not a sentence.
    EXPECT_FALSE(rule.why.empty() || rule.why.ends_with('.')) << rule.id;
    EXPECT_GE(samples.hits.size(), 2U) << rule.id;
    EXPECT_GE(samples.nearMisses.size(), 1U) << rule.id;
    std::string filler;
    while (filler.size() <= samples.reach.value_or(0))
      filler += " zz";
    const std::string pattern(rule.pattern);
    const Search search(std::span(&pattern, 1), rule.caseInsensitive);
    const auto isJoinedAt = [&](const std::string& text, std::size_t position) {
      // Places between words; in Chinese, Japanese and Korean also between letters.
      const auto byte = static_cast<unsigned char>(text[position]);
      if (byte != ' ' && (byte < 0xE3 || byte >= 0xF0)) return false;
      const auto found = search.matches(std::string(text).insert(position, filler));
      return !found.empty() && found.front().start < position &&
             found.front().end > position + filler.size();
    };
    for (const std::string& text : samples.nearMisses)
      EXPECT_TRUE(search.matches(text).empty()) << rule.id << " hits \"" << text << '"';
    for (const std::string& text : samples.hits) {
      const auto matches = search.matches(text);
      EXPECT_FALSE(matches.empty()) << rule.id << " misses \"" << text << '"';
      if (!samples.reach) continue;
      for (const auto& match : matches)
        for (std::size_t position = match.start + 1; position < match.end; ++position)
          EXPECT_FALSE(isJoinedAt(text, position))
              << rule.id << " joins what is far apart in \"" << text.substr(0, position) << " … "
              << text.substr(position) << '"';
    }
  }
}

/// A line of a pattern in the source text of the table.
struct PatternLine {
  std::size_t number = 0;  ///< in ContentRules.cpp
  std::string written;     ///< with shorthands
  std::string text;        ///< with the shorthands replaced
};

std::optional<std::string> rawString(std::string_view line) {
  const std::size_t prefix = line.find("R\"");
  if (prefix == std::string_view::npos) return std::nullopt;
  const std::size_t start = line.find('(', prefix);
  const std::string end = ")" + std::string(line.substr(prefix + 2, start - prefix - 2)) + "\"";
  return std::string(line.substr(start + 1, line.find(end, start) - start - 1));
}

using Shapes = std::map<std::string, std::vector<PatternLine>, std::less<>>;

/// Adds a line of a rule; for shapes that stand alone between bars, their lines.
void addLine(std::size_t number, std::string_view written, const Shapes& shapes,
             std::vector<PatternLine>& lines) {
  const std::size_t end = std::min(written.find('>'), written.size() - 1) + 1;
  const auto shape = shapes.find(written.substr(0, end));
  const std::string_view rest = written.substr(end);
  if (shape == shapes.end() || !(rest.empty() || rest.front() == '|')) {
    lines.push_back({number, std::string(written), ContentRules::expanded(written)});
    return;
  }
  lines.insert(lines.end(), shape->second.begin(), shape->second.end());
  if (rest.empty()) return;
  lines.back().text += '|';
  if (rest.size() > 1) addLine(number, rest.substr(1), shapes, lines);
}

std::vector<std::vector<PatternLine>> patternLines() {
  std::ifstream file(QUILLSEAL_RULE_TABLE);
  std::vector<std::vector<PatternLine>> rules;
  Shapes shapes;
  std::string shape;
  std::size_t number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    const std::size_t next = rules.size();
    const auto written = rawString(line);
    if (next < ContentRules::all.size() &&
        line.starts_with("    {\"" + std::string(ContentRules::all[next].id) + "\",")) {
      rules.emplace_back();
    } else if (next > 0 && written) {
      addLine(number, *written, shapes, rules.back());
    } else if (line.starts_with("    {\"<")) {
      shape = line.substr(6, line.find('>') - 5);
    } else if (written) {
      shapes[shape].push_back({number, *written, ContentRules::expanded(*written)});
    }
  }
  return rules;
}

/// Returns the pattern without the line, and without a bar that would leave an empty alternative.
std::string joinedWithout(const PatternLine* omitted, std::span<const PatternLine> lines) {
  std::string joined;
  std::size_t seam = std::string::npos;
  for (const PatternLine& line : lines) {
    if (&line == omitted)
      seam = joined.size();
    else
      joined += line.text;
  }
  if (seam == std::string::npos) return joined;
  const std::string_view before = std::string_view(joined).substr(0, seam);
  const std::string_view after = std::string_view(joined).substr(seam);
  if (before.ends_with('|') && (after.empty() || after.starts_with(')')))
    joined.erase(seam - 1, 1);
  else if (after.starts_with('|') && (before.empty() || before.ends_with("(?:")))
    joined.erase(seam, 1);
  return joined;
}

/// Returns for each line whether without it a sample's result changes or the pattern does not
/// compile.
std::vector<bool> noticedLines(const Rule& rule, std::span<const PatternLine> lines,
                               const Samples& samples) {
  std::vector<bool> noticed(lines.size());

  // If each line is an alternative, a text needs a line if no other line matches it.
  std::vector<std::string> alternatives;
  for (const PatternLine& line : lines)
    alternatives.push_back(line.text.substr(0, line.text.size() - line.text.ends_with('|')));
  const bool allButLastEndInBars = std::ranges::all_of(
      lines.first(lines.size() - 1), [](const auto& line) { return line.text.ends_with('|'); });
  const Search single(alternatives, rule.caseInsensitive);
  if (allButLastEndInBars && single.problems().empty()) {
    for (const std::string& text : samples.hits)
      if (const auto found = single.matches(text); found.size() == 1)
        noticed[found.front().pattern] = true;
    return noticed;
  }

  std::vector<std::string> shortened;
  for (const PatternLine& line : lines)
    shortened.push_back(joinedWithout(&line, lines));
  const Search search(shortened, rule.caseInsensitive);
  for (const auto& problem : search.problems())
    noticed[problem.pattern] = true;
  for (const std::string& text : samples.hits) {
    std::vector<bool> missed(lines.size(), true);
    for (const auto& match : search.matches(text))
      missed[match.pattern] = false;
    for (std::size_t i = 0; i < lines.size(); ++i)
      if (missed[i]) noticed[i] = true;
  }
  for (const std::string& text : samples.nearMisses)
    for (const auto& match : search.matches(text))
      noticed[match.pattern] = true;
  return noticed;
}

// Every line of a pattern has a sample whose result changes without it.
TEST(ContentRules, SamplesNoticeMissingLines) {
  const std::vector<Samples> samples = ruleSamples();
  const std::vector<std::vector<PatternLine>> table = patternLines();
  ASSERT_EQ(samples.size(), ContentRules::all.size());
  ASSERT_EQ(table.size(), ContentRules::all.size());
  // A line of a shape belongs to several rules, and one that notices is enough.
  std::map<std::size_t, std::pair<bool, std::string>> noticed;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const Rule& rule = ContentRules::all[i];
    ASSERT_EQ(joinedWithout(nullptr, table[i]), rule.pattern) << rule.id;
    const std::vector<bool> found = noticedLines(rule, table[i], samples[i]);
    for (std::size_t k = 0; k < found.size(); ++k) {
      auto& [isNoticed, about] = noticed[table[i][k].number];
      isNoticed = isNoticed || found[k];
      about = std::string(rule.id) + ":\n" + table[i][k].written.substr(0, 100);
    }
  }
  for (const auto& [line, result] : noticed)
    EXPECT_TRUE(result.first) << "no sample notices that line " << line << " is missing in "
                              << unicode::wellFormed(result.second);
}

TEST(ContentRules, FindAsMuchAcrossPointsThatEndNoSentence) {
  for (const auto& [plain, pointed] : testing::cases<std::string, std::string>()) {
    const auto found = ContentRisk::evaluate(pointed).findings;
    bool any = false;
    for (const auto& finding : ContentRisk::evaluate(plain).findings) {
      // Patterns that other programs also have stop at every point.
      const auto rule = std::ranges::find(ContentRules::all, finding.id, &Rule::id);
      if (rule->severity == "block") continue;
      any = true;
      EXPECT_NE(std::ranges::find(found, finding.id, &ContentRisk::Finding::id), found.end())
          << finding.id << " misses \"" << pointed << '"';
    }
    EXPECT_TRUE(any) << "nothing is found in \"" << plain << '"';
  }
}

}  // namespace
}  // namespace quillseal
