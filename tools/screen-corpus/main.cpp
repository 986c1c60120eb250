#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "Disguises.h"
#include "Quillseal/ContentRisk.h"
#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

namespace {

namespace ContentRisk = quillseal::ContentRisk;
namespace CryptoManager = quillseal::CryptoManager;
namespace unicode = quillseal::unicode;
using quillseal::testing::Disguise;

constexpr int cannotRead = 1;
constexpr int wrongUsage = 2;
constexpr std::size_t rulesShown = 25;

constexpr const char* description =
    R"(Screens messages, as they are written and as they are read, and counts what would be refused,
warned about and signed, for each source and label, to judge the content rules on real mail.
Texts that are too short or too generic to be signed at all are left out of the rates.)";

constexpr const char* footer =
    R"(A FILE holds one JSON object a line, "lang" only for --by language:
  {"id": "...", "source": "...", "label": "ham", "lang": "en", "text": "..."}
"-" is standard input: zcat mail.jsonl.gz | screen-corpus -
Exit status: 0, or 1 when a file cannot be read, or 2 for a wrong use.)";

enum class Verdict : std::uint8_t { refused, warned, clean };

std::string_view nameOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::refused:
      return "refused";
    case Verdict::warned:
      return "warned";
    case Verdict::clean:
      break;
  }
  return "clean";
}

Verdict verdictOf(const ContentRisk::Assessment& assessment) {
  if (assessment.isBlocked) return Verdict::refused;
  return assessment.shouldWarn ? Verdict::warned : Verdict::clean;
}

/// Returns the verdict without one of the findings.
Verdict verdictWithout(const ContentRisk::Assessment& assessment,
                       const ContentRisk::Finding& left) {
  const std::int64_t score = assessment.score - left.points;
  const bool blocked = std::ranges::any_of(assessment.findings, [&](const auto& finding) {
    return finding.isBlocking && finding.id != left.id;
  });
  if (blocked || score >= ContentRisk::refusalScore) return Verdict::refused;
  return score >= ContentRisk::warningScore ? Verdict::warned : Verdict::clean;
}

struct Count {
  std::int64_t refused = 0;
  std::int64_t warned = 0;
  std::int64_t clean = 0;
  std::int64_t unsignable = 0;

  [[nodiscard]] std::int64_t screened() const { return refused + warned + clean; }
};

struct RuleCount {
  std::int64_t hits = 0;
  std::int64_t alone = 0;  ///< messages that only this rule stops or warns about
};

struct Message {
  std::string id;
  std::string group;  ///< the group that it is counted in: source or language
  std::string label;
  std::string text;
};

struct Options {
  std::string listed;  ///< "LABEL:VERDICT", or empty
  bool isAsWritten = false;
  const Disguise* disguise = nullptr;
  bool isByLanguage = false;
};

class Corpus {
 public:
  explicit Corpus(Options options) : options_(std::move(options)) {}

  void read(std::istream& lines, const std::string& name) {
    std::string line;
    for (std::size_t number = 1; std::getline(lines, line); ++number) {
      if (line.empty()) continue;
      try {
        const auto object = nlohmann::json::parse(line);
        screen({.id = object.value("id", std::string()),
                .group = object.value(options_.isByLanguage ? "lang" : "source", std::string()),
                .label = object.at("label").get<std::string>(),
                .text = object.at("text").get<std::string>()});
      } catch (const nlohmann::json::exception& error) {
        throw std::runtime_error(name + ", line " + std::to_string(number) + ": " + error.what());
      }
    }
    if (lines.bad()) throw std::runtime_error(name + ": cannot be read");
  }

  void print() const {
    if (!options_.listed.empty()) return;
    std::cout << std::fixed << std::setprecision(2);
    std::cout << std::left << std::setw(8) << "label" << std::setw(24)
              << (options_.isByLanguage ? "language" : "source") << std::right << std::setw(9)
              << "messages" << std::setw(18) << "refused" << std::setw(18) << "warned"
              << std::setw(9) << "clean" << std::setw(10) << "left out" << '\n';
    for (const auto& [key, count] : counts_)
      printRow(key, count);
    for (const auto& [label, rules] : rules_)
      printRules(label, rules);
  }

 private:
  using Key =
      std::pair<std::string, std::string>;  ///< label and group; "all" is the sum of a label

  void screen(const Message& message) {
    std::string text(unicode::trimmed(unicode::wellFormed(message.text)));
    if (options_.disguise != nullptr) text = options_.disguise->apply(text, random_);
    Count& ofGroup = counts_[{message.label, message.group}];
    Count& ofLabel = counts_[{message.label, "all"}];
    if (!CryptoManager::signingRefusal(text).empty()) {
      ++ofGroup.unsignable;
      ++ofLabel.unsignable;
      return;
    }
    const ContentRisk::Assessment assessment = assess(text);
    const Verdict verdict = verdictOf(assessment);
    for (Count* count : {&ofGroup, &ofLabel}) {
      switch (verdict) {
        case Verdict::refused:
          ++count->refused;
          break;
        case Verdict::warned:
          ++count->warned;
          break;
        case Verdict::clean:
          ++count->clean;
          break;
      }
    }
    auto& rules = rules_[message.label];
    for (const auto& finding : assessment.findings) {
      RuleCount& count = rules[finding.id];
      ++count.hits;
      if (verdict != Verdict::clean && verdictWithout(assessment, finding) == Verdict::clean)
        ++count.alone;
    }
    if (options_.listed == message.label + ':' + std::string(nameOf(verdict)))
      list(message, assessment);
  }

  [[nodiscard]] ContentRisk::Assessment assess(const std::string& text) const {
    const ContentRisk::Screening asWritten = ContentRisk::screen(text);
    if (options_.isAsWritten || asWritten.assessment.isBlocked) return asWritten.assessment;
    const auto asRead = ContentRisk::screenAsRead(text, asWritten);
    return asRead ? asRead->assessment : asWritten.assessment;
  }

  static void list(const Message& message, const ContentRisk::Assessment& assessment) {
    std::cout << message.id << '\t' << assessment.score;
    for (const auto& finding : assessment.findings)
      std::cout << '\t' << finding.id << ' ' << finding.points;
    std::cout << '\n';
  }

  static void printRow(const Key& key, const Count& count) {
    const auto cell = [&](std::int64_t value) {
      const double all = static_cast<double>(std::max<std::int64_t>(count.screened(), 1));
      std::cout << std::setw(9) << value << std::setw(8) << 100.0 * static_cast<double>(value) / all
                << '%';
    };
    std::cout << std::left << std::setw(8) << key.first << std::setw(24) << key.second << std::right
              << std::setw(9) << count.screened();
    cell(count.refused);
    cell(count.warned);
    std::cout << std::setw(9) << count.clean << std::setw(10) << count.unsignable << '\n';
  }

  static void printRules(const std::string& label, const std::map<std::string, RuleCount>& rules) {
    std::vector<std::pair<std::string, RuleCount>> sorted(rules.begin(), rules.end());
    const auto shown = [&](const std::string& title, std::int64_t RuleCount::*member) {
      std::ranges::stable_sort(sorted, [&](const auto& left, const auto& right) {
        return left.second.*member > right.second.*member;
      });
      std::cout << "\n" << label << ": " << title << '\n';
      for (std::size_t i = 0; i < std::min(sorted.size(), rulesShown); ++i) {
        if (sorted[i].second.*member == 0) break;
        std::cout << std::setw(8) << sorted[i].second.*member << "  " << sorted[i].first << '\n';
      }
    };
    shown("rules that hit most", &RuleCount::hits);
    shown("rules without which the message would have passed", &RuleCount::alone);
  }

  Options options_;
  // Every run must give the same result.
  std::mt19937 random_{std::mt19937::default_seed};  // NOLINT(cert-msc32-c,cert-msc51-cpp)
  std::map<Key, Count> counts_;
  std::map<std::string, std::map<std::string, RuleCount>> rules_;
};

/// Returns what is wrong with a "LABEL:VERDICT"; empty when it is valid.
std::string listingFault(const std::string& listed) {
  const std::size_t colon = listed.rfind(':');
  for (const Verdict verdict : {Verdict::refused, Verdict::warned, Verdict::clean})
    if (colon != 0 && colon != std::string::npos && listed.substr(colon + 1) == nameOf(verdict))
      return "";
  return "must be a label, a colon, and refused, warned or clean";
}

/// Parses the options. Returns the exit status if the program should end.
std::optional<int> read(Options& options, std::vector<std::string>& paths, int argc, char** argv) {
  CLI::App app(description, "screen-corpus");
  app.footer(footer);
  std::map<std::string, const Disguise*> disguises;
  for (const Disguise& disguise : quillseal::testing::disguises())
    disguises.emplace(disguise.name, &disguise);
  std::string disguise;
  app.add_option("FILE", paths, "messages to screen")->type_name("")->required();
  app.add_option("--list", options.listed,
                 "print instead the messages of a label that are refused,\n"
                 "warned or clean, each with the rules that hit")
      ->type_name("LABEL:VERDICT")
      ->check(listingFault);
  app.add_option_function<std::string>(
         "--by", [&](const std::string&) { options.isByLanguage = true; },
         "count for each language instead of each source")
      ->type_name("language")
      ->check(CLI::IsMember({"language"}).description(""));
  app.add_flag("--as-written", options.isAsWritten, "screen the messages only as written");
  app.add_option("--disguise", disguise, "disguise each message first (an unknown NAME lists them)")
      ->type_name("NAME")
      ->check(CLI::IsMember(&disguises).description(""));
  app.set_help_flag("--help", "print this help");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_SUCCESS : wrongUsage;
  }
  if (!disguise.empty()) options.disguise = disguises.at(disguise);
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    std::vector<std::string> paths;
    if (const std::optional<int> status = read(options, paths, argc, argv)) return *status;
    Corpus corpus(options);
    for (const std::string& path : paths) {
      if (path == "-") {
        corpus.read(std::cin, "standard input");
        continue;
      }
      std::ifstream file(path);
      if (!file) throw std::runtime_error(path + ": cannot be opened");
      corpus.read(file, path);
    }
    corpus.print();
  } catch (const std::exception& error) {
    std::cerr << "screen-corpus: " << error.what() << '\n';
    return cannotRead;
  }
  return EXIT_SUCCESS;
}
