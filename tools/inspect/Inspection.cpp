#include "Inspection.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include <unicode/uchar.h>

#include "PatternTrial.h"
#include "Quillseal/ContentRules.h"
#include "Quillseal/CryptoManager.h"
#include "core/reading/ReadableText.h"
#include "core/signing/ConfirmationText.h"
#include "core/text/UnicodeText.h"

namespace quillseal::inspect {
namespace {

/// Returns `text` with visible marks for everything that could control a terminal or forge a line
/// of the report.
std::string printable(std::string_view text) {
  constexpr std::uint32_t unprintable = U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
  std::string result;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t scalar = unicode::nextScalar(text, position);
    if ((U_GET_GC_MASK(static_cast<UChar32>(scalar)) & unprintable) == 0) {
      unicode::append(result, scalar);
    } else {
      std::array<char, sizeof "\\u{10FFFF}"> code{};
      const int length =
          std::snprintf(code.data(), code.size(), "\\u{%X}", static_cast<unsigned>(scalar));
      result.append(code.data(), static_cast<std::size_t>(length));
    }
  }
  return result;
}

std::string line(std::string_view label, std::string_view value) {
  constexpr std::size_t valueColumn = 14;
  std::string text{label};
  text.resize(valueColumn, ' ');
  return text.append(value).append("\n");
}

/// Returns the width of `text` in a terminal, in columns.
std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  for (std::size_t position = 0; position < text.size();) {
    const auto scalar = static_cast<UChar32>(unicode::nextScalar(text, position));
    const auto width = u_getIntPropertyValue(scalar, UCHAR_EAST_ASIAN_WIDTH);
    if (u_hasBinaryProperty(scalar, UCHAR_GRAPHEME_EXTEND) == 0)
      columns += width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
  }
  return columns;
}

/// Returns the last `count` scalars of `text`, with a mark in front if there were more.
std::string tailOf(std::string_view text, std::size_t count) {
  std::size_t start = text.size();
  for (; count > 0 && start > 0; --count)
    static_cast<void>(unicode::previousScalar(text, start));
  return (start > 0 ? "…" : "") + printable(text.substr(start));
}

std::string headOf(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count)
    static_cast<void>(unicode::nextScalar(text, end));
  return printable(text.substr(0, end)) + (end < text.size() ? "…" : "");
}

/// Returns the text from `start` to `end` with its context, and a line that underlines it.
std::string underlined(std::string_view text, std::size_t start, std::size_t end) {
  if (start == end) return line("", "(by what stands anywhere in the text)");
  const std::string before = tailOf(text.substr(0, start), 24);
  const std::string matched = headOf(text.substr(start, end - start), 60);
  const std::string after = headOf(text.substr(end), 24);
  return line("", before + matched + after) +
         line("", std::string(columnsOf(before), ' ') + std::string(columnsOf(matched), '^'));
}

std::string findingsReport(std::string_view label, std::string_view text,
                           const ContentRisk::Screening& screening) {
  const auto& [findings, score, isBlocked, shouldWarn] = screening.assessment;
  const std::string_view verdict = isBlocked ? "refused" : shouldWarn ? "warned" : "passed";
  std::string report = line(label, std::string(verdict) + ", score " + std::to_string(score));
  for (std::size_t i = 0; i < findings.size(); ++i) {
    report += line("", findings[i].id + " (" + std::to_string(findings[i].points) +
                           (findings[i].isBlocking ? ", blocks): " : "): ") + findings[i].category);
    report += underlined(text, screening.hits[i].start, screening.hits[i].end);
  }
  return report;
}

std::string severityOf(const ContentRules::Rule& rule) {
  return std::to_string(rule.points) + (rule.severity == "block" ? ", blocks" : "");
}

std::string trialReport(std::string_view label, const PatternTrial& trial, std::string_view text) {
  constexpr std::size_t longest = 100;
  const auto nameOf = [&](const Approach& approach) {
    return "alternative " + std::to_string(approach.number) + " of " +
           std::to_string(trial.alternatives);
  };
  std::string report = line(label, trial.isMatch ? "matches" : "matches nowhere");
  for (const Approach& approach : trial.approaches) {
    if (trial.isMatch) {
      if (approach.number > 0) report += line("", nameOf(approach));
      return report + underlined(text, approach.start, approach.end);
    }
    const auto percent = static_cast<int>(100 * approach.share);
    report += line("Nearest", nameOf(approach) + ", " + std::to_string(percent) + " % of it");
    report += line("  satisfied", tailOf(approach.satisfied, longest));
    report += underlined(text, approach.start, approach.end);
    report += line("  missing", headOf(approach.missing, longest));
  }
  return report;
}

/// Says why a match of the rule in `text` does not count, or not in full; nothing when it does.
std::string reservation(const ContentRules::Rule& rule, std::string_view text) {
  const ContentRisk::Screening screening = ContentRisk::screen(text);
  for (const ContentRisk::Finding& finding : screening.assessment.findings) {
    if (finding.id != rule.id) continue;
    if (finding.isBlocking || rule.severity != "block") return {};
    return line("", "but does not block: it is quoted in a report, and counts " +
                        std::to_string(finding.points));
  }
  return line("",
              "but does not count: it is quoted in a report, begins or ends within a character, or "
              "stands behind what is screened");
}

}  // namespace

Inspection inspect(const Capture& capture) {
  Inspection result;
  result.text = unicode::trimmed(capture.text);
  result.words = CryptoManager::countWords(result.text);
  result.normalized = CryptoManager::normalizeText(result.text);
  result.normalizedCharacters = unicode::characterCount(result.normalized);
  result.textDigest = CryptoManager::sha256Hex(result.normalized);
  result.distinctive = CryptoManager::isDistinctive(result.text);
  result.signingRefusal = CryptoManager::signingRefusal(result.text);
  result.imageURLs = CryptoManager::imageURLs(capture.html);
  result.imageDigest = CryptoManager::imageManifestDigest(result.imageURLs);
  result.expires =
      CryptoManager::expiryDateFor({.issued = capture.issued, .wordCount = result.words});
  result.promptSubject = promptSubject(result.text);
  result.screening = ContentRisk::screen(result.text);
  return result;
}

std::string readableReport(const Inspection& inspection) {
  std::string report;
  report += line("Words", std::to_string(inspection.words));
  report += line("Characters", std::to_string(inspection.normalizedCharacters) + " normalised");
  report += line("Text digest", inspection.textDigest);
  report += line("Length", inspection.signingRefusal.empty() ? "long and specific enough"
                                                             : inspection.signingRefusal);
  report += line("Images", std::to_string(inspection.imageURLs.size()));
  for (const std::string& url : inspection.imageURLs)
    report += line("", printable(url));
  report += line("Image digest", inspection.imageDigest);
  report += line("Expires", inspection.expires.empty() ? "never valid: the issue date is no date"
                                                       : inspection.expires);
  report += line("Prompt", printable(inspection.promptSubject));
  report += findingsReport("Screening", inspection.text, inspection.screening);
  if (const auto asRead = ContentRisk::screenAsRead(inspection.text, inspection.screening))
    report += findingsReport("As read", inspection.text, *asRead);
  return report;
}

std::string ruleReport(const RuleQuestion& question) {
  TriedPattern tried{.written = question.pattern.value_or("")};
  std::string report;
  std::string ofRule;
  const ContentRules::Rule* screened = nullptr;  // the rule whose own pattern is tried
  if (question.rule) {
    const auto rule = std::ranges::find(ContentRules::all, *question.rule, &ContentRules::Rule::id);
    if (rule == ContentRules::all.end())
      throw PatternTrialError("there is no rule \"" + std::string(*question.rule) + '"');
    report += line("Rule", std::string(rule->id) + " (" + severityOf(*rule) +
                               "): " + std::string(rule->category));
    ofRule = ContentRules::abbreviated(rule->pattern);
    tried.caseInsensitive = rule->caseInsensitive;
    if (!question.pattern) {
      tried.written = ofRule;
      screened = &*rule;
    }
  }
  const auto reportTrial = [&](std::string_view label, std::string_view text) {
    const PatternTrial trial = tryPattern(tried, text);
    report += trialReport(label, trial, text);
    if (trial.isMatch && screened != nullptr) report += reservation(*screened, text);
  };
  const std::string text(unicode::trimmed(question.text));
  reportTrial("As written", text);
  const ReadableText reading(text);
  if (!reading.isAsWritten()) reportTrial("As read", reading.text());
  return report;
}

}  // namespace quillseal::inspect
