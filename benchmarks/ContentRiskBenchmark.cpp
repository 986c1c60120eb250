#include <algorithm>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "IcuReference.h"
#include "PatternText.h"
#include "Quillseal/CompiledRules.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/ContentRules.h"
#include "RandomText.h"
#include "RulePatterns.h"
#include "core/reading/ReadableText.h"
#include "core/screening/match/ScreeningEngine.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

constexpr std::string_view mail =
    "Dear Ms Whitcombe, thank you for the visit on Tuesday. We agreed that the second draft of the "
    "lease goes to your office by 14 March, that the deposit stays as it was, and that the garden "
    "is shared with the neighbours. If anything in this is not as you remember it, please write to "
    "me before the end of the week so that I can correct it. ";

constexpr std::string_view ordinaryWords =
    "the of and to in a is that it was for on are with as they at be this from have or by one had "
    "not but what all were when we there can an your which their said if do will each about how up "
    "out them then she many some so these would other into has more her two like him see time "
    "could "
    "no make than first been its who now people my made over did down only way find use may water "
    "long little very after words called just where most know morning garden letter window winter "
    "river meeting report teacher village summer question answer number evening music history";

constexpr std::string_view triggerWords =
    "account payment invoice transfer please verify confirm your bank details urgent wire funds "
    "send money click here password security update immediately refund gift card approve "
    "authorise release balance amount due today customer service support call number subscription "
    "renewal delivery parcel customs fee investment guaranteed profit wallet bitcoin address login "
    "suspended limited access expires within hours attached document signature contract offer free "
    "prize winner claim tax office police officer lawyer beneficiary transaction confidential "
    "deposit loan interest approved regards thanks director payroll salary change account number";

// clang-format off
constexpr std::string_view cjkAndEmoji =
    "会議は火曜日に延期されました。来週の予定を確認してください😀👍🏽。"
    "我们明天上午在图书馆见面，请带上第三章的草稿👩🏽‍💻🇯🇵！"
    "다음 주 화요일에 도서관에서 만나요 🎉 그때 다시 이야기합시다. ";
// clang-format on

std::vector<std::string_view> split(std::string_view words) {
  std::vector<std::string_view> list;
  for (std::size_t start = 0; start < words.size();) {
    const std::size_t end = std::min(words.find(' ', start), words.size());
    list.push_back(words.substr(start, end - start));
    start = end + 1;
  }
  return list;
}

/// Returns sentences of random words from `words`, at least `characters` ASCII characters long.
std::string sentences(std::string_view words, std::size_t characters) {
  const auto list = split(words);
  std::mt19937 random(7);
  std::string text;
  while (text.size() < characters) {
    const std::size_t length = 6 + random() % 14;
    for (std::size_t i = 0; i < length; ++i) {
      std::string word(list[random() % list.size()]);
      if (i == 0) word[0] = static_cast<char>(word[0] - 'a' + 'A');
      text += (i == 0 ? "" : " ") + word;
    }
    text += random() % 6 == 0 ? ".\n\n" : ". ";
  }
  return text.substr(0, characters);
}

std::string repeated(std::string_view unit, std::size_t size) {
  std::string text;
  while (text.size() < size)
    text += unit;
  return text;
}

std::string charactersOf(std::string_view seed, std::size_t characters) {
  return std::string(unicode::firstCharacters(repeated(seed, characters * 4), characters));
}

void screen(benchmark::State& state, const std::string& text) {
  for (auto _ : state)
    benchmark::DoNotOptimize(ContentRisk::evaluate(text));
}

/// Measures the reading without the screening.
void read(benchmark::State& state, const std::string& text) {
  for (auto _ : state)
    benchmark::DoNotOptimize(ReadableText(text));
  state.SetLabel(ReadableText(text).isAsWritten() ? "as written" : "read otherwise");
}

/// As for a signature: the text as written, and as read.
void screenTwice(benchmark::State& state, const std::string& text) {
  for (auto _ : state) {
    const ContentRisk::Screening asWritten = ContentRisk::screen(text);
    benchmark::DoNotOptimize(ContentRisk::screenAsRead(text, asWritten));
  }
}

/// One ICU search for each rule, except those that look ahead over the whole text, with which the
/// loop does not end on the longer texts.
void plainLoop(benchmark::State& state, const std::string& text) {
  std::vector<screening::Pattern> patterns = screening::rulePatterns();
  for (std::size_t i = ContentRules::all.size(); i-- > 0;)
    if (patterns[i].expression.find("[\\s\\S]*") != std::string_view::npos)
      patterns.erase(patterns.begin() + static_cast<std::ptrdiff_t>(i));
  const testing::IcuReference loop(patterns, testing::IcuReference::noTimeLimit);
  for (auto _ : state)
    benchmark::DoNotOptimize(loop.firstMatches(text));
}

void open(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(screening::ScreeningEngine(screening::compiledRules()));
  state.counters["table_bytes"] = static_cast<double>(screening::compiledRules().size());
}

void compile(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(screening::compilePatterns(screening::rulePatterns()));
}

/// The text whose repetition takes a screening the most steps.
struct Worst {
  std::string unit;
  std::uint64_t steps = 0;
};

/// Returns the worst text found among parts of a rule's pattern and texts that follow it.
Worst worstOf(std::size_t rule) {
  static const screening::ScreeningEngine engine(screening::compiledRules());
  static const testing::PatternText source(screening::rulePatterns());
  std::vector<std::string> units = source.parts(rule);
  std::mt19937 random(static_cast<unsigned>(rule));
  for (int along = 0; along < 10; ++along)
    units.push_back(source.along(rule, random).substr(0, 400));
  Worst worst;
  for (const std::string& unit : units) {
    if (unit.empty()) continue;
    for (const char* separator : {"", " ", "\n", "a"}) {
      std::uint64_t steps = 0;
      static_cast<void>(engine.firstMatches(repeated(unit + separator, 3000), &steps));
      if (steps > worst.steps) worst = {.unit = unit + separator, .steps = steps};
    }
  }
  return worst;
}

Worst worstOfAll() {
  Worst worst;
  for (std::size_t rule = 0; rule < ContentRules::all.size(); ++rule)
    if (Worst one = worstOf(rule); one.steps > worst.steps) worst = std::move(one);
  return worst;
}

/// Screens 200,000 bytes of repetitions.
void screenWorst(benchmark::State& state, const Worst& worst) {
  state.SetLabel(testing::escaped(worst.unit.substr(0, 60)));
  screen(state, repeated(worst.unit, 200'000).substr(0, 200'000));
}

[[maybe_unused]] const bool registered = [] {
  const std::pair<std::string, std::string> besideTheLoop[] = {
      {"mail_60_words", std::string(mail)},
      {"english_1000_words", sentences(ordinaryWords, 5500)},
      {"english_200k_characters", sentences(ordinaryWords, 200'000)},
      {"business_200k_characters", sentences(triggerWords, 200'000)},
      {"cjk_emoji_200k_characters", charactersOf(cjkAndEmoji, 200'000)},
  };
  for (const auto& [name, text] : besideTheLoop) {
    benchmark::RegisterBenchmark(("screen/" + name).c_str(), screen, text);
    benchmark::RegisterBenchmark(("plain_icu_loop/" + name).c_str(), plainLoop, text);
    benchmark::RegisterBenchmark(("read/" + name).c_str(), read, text);
    benchmark::RegisterBenchmark(("screen_twice/" + name).c_str(), screenTwice, text);
  }
  // On these texts the plain loop takes minutes or does not end.
  std::string joined = "a";
  for (int i = 0; i < 2'000'000; ++i)
    joined += "\u200D";
  const std::pair<std::string, std::string> alone[] = {
      {"english_20k_characters", sentences(ordinaryWords, 20'000)},
      {"blanks_200k", std::string(199'999, ' ') + '#'},
      {"line_breaks_200k", std::string(199'999, '\n') + '#'},
      {"generic_approval_200k", repeated("i am it's ab ", 199'990) + '#'},
      {"word_characters_200k", std::string(200'000, 'a')},
      {"digits_200k", std::string(200'000, '4')},
      {"one_cluster_2M_units", joined},
  };
  for (const auto& [name, text] : alone)
    benchmark::RegisterBenchmark(("screen/" + name).c_str(), screen, text);
  // The texts with the most work for each step of the reading.
  const std::pair<std::string, std::string> inDisguise[] = {
      {"unknown_letters", repeated("accountx", 200'000)},
      {"unknown_words", repeated("xyzzy plugh ", 200'000)},
      {"moved_blanks", repeated("plea sesend thegift cards ", 200'000)},
      {"apart", repeated("v e r i f y  ", 200'000)},
      {"apart_unknown", repeated("q x ", 200'000)},
      {"between_points", repeated("a.", 200'000)},
      {"hyphens", repeated("a-", 200'000)},
      {"broken_lines", repeated("acc-\nount ", 200'000)},
      {"digits_for_letters", repeated("1111111111111a ", 200'000)},
      {"spelt_with_digits", repeated("v3r1fy y0ur 4cc0un7 ", 200'000)},
      {"points", repeated("No. 7 of Mr. Webb for $12,499.00 ", 200'000)},
      {"addresses", repeated("a.b.com ", 200'000)},
      {"one_address", repeated("a.b@c.d?e", 200'000)},
      {"look_alikes", repeated("vеrіfу уоur ассоunt ", 200'000)},
      {"twins_of_two_letters", repeated("ӏӏӏӏӏӏӏӏa ", 200'000)},
      {"marks", repeated("a\u0301\u0302", 200'000)},
      {"full_width", repeated("ｖｅｒｉｆｙ　", 200'000)},
      {"invisible", repeated("\u200B", 200'000) + 'a'},
      {"angle_brackets", repeated("<", 200'000) + 'a'},
      {"numbers", repeated("1.", 200'000)},
      {"ellipses", repeated("a... ", 200'000)},
  };
  for (const auto& [name, text] : inDisguise) {
    benchmark::RegisterBenchmark(("read/" + name).c_str(), read, text);
    benchmark::RegisterBenchmark(("screen_twice/" + name).c_str(), screenTwice, text);
  }
  benchmark::RegisterBenchmark("screen/worst_found_200k", [](benchmark::State& state) {
    static const Worst worst = worstOfAll();
    screenWorst(state, worst);
  });
  benchmark::RegisterBenchmark("screen_twice/worst_found_200k", [](benchmark::State& state) {
    static const Worst worst = worstOfAll();
    screenTwice(state, "p@ypal " + repeated(worst.unit, 200'000).substr(0, 199'990));
  });
  for (std::size_t rule = 0; rule < ContentRules::all.size(); ++rule)
    benchmark::RegisterBenchmark(
        ("worst_of_rule/" + std::string(ContentRules::all[rule].id)).c_str(),
        [rule](benchmark::State& state) { screenWorst(state, worstOf(rule)); });
  benchmark::RegisterBenchmark("open_tables", open);
  benchmark::RegisterBenchmark("compile_tables", compile);
  return true;
}();

}  // namespace
}  // namespace quillseal
