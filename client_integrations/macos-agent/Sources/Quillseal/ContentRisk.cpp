#include "Quillseal/ContentRisk.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "Quillseal/CompiledRules.h"
#include "Quillseal/ContentRules.h"
#include "core/reading/ReadableText.h"
#include "core/screening/match/ScreeningEngine.h"
#include "core/text/NormalForm.h"
#include "core/text/UnicodeText.h"

namespace quillseal::ContentRisk {
namespace {

/// A quotation is at least this long, from the opening mark to the closing one.
constexpr std::size_t shortestQuotation = 25;

/// The points of a blocking hit within a quotation of a report: a text with nothing else is signed
/// after a warning.
constexpr std::int64_t softenedPoints = warningScore;

/// Bullet lines of a refusal or a warning.
constexpr std::size_t reasonLimit = 3;

/// The categories that are illegal in most countries; they choose the words of a refusal.
constexpr auto illegalCategories = std::to_array<std::string_view>(
    {"Child sexual abuse", "Terrorism", "Hate speech", "Human trafficking", "Illegal goods",
     "Illegal services", "Sexual abuse", "Self-harm"});

/// Searches for the rules in table order, and for the reporting cue as the last pattern.
const screening::ScreeningEngine& engine() {
  static const screening::ScreeningEngine instance(screening::compiledRules());
  return instance;
}

std::string_view screenedPart(std::string_view text) {
  // No character is shorter than a byte.
  if (text.size() <= maximumScreenedCharacters) return text;
  return unicode::firstCharacters(text, maximumScreenedCharacters);
}

/// As much of the text as is screened, not counting what its digest does not contain.
std::string_view partToRead(std::string_view text, std::size_t screenedBytes) {
  if (screenedBytes == text.size()) return text;
  std::size_t position = 0;
  for (std::size_t counted = 0; position < text.size() && counted < maximumScreenedCharacters;)
    if (!isLeftOut(unicode::nextScalar(text, position))) ++counted;
  return text.substr(0, std::max(position, screenedBytes));
}

/// Removes the matches that start or end inside a character.
void keepWholeCharacters(std::string_view text, std::vector<screening::PatternMatch>& matches) {
  std::set<std::size_t> undecided;
  for (const screening::PatternMatch& match : matches)
    for (const std::size_t position : {match.start, match.end})
      if (!unicode::isCertainBoundary(text, position)) undecided.insert(position);
  if (undecided.empty()) return;

  std::set<std::size_t> inside = undecided;
  for (unicode::CharacterCursor cursor(text);
       !cursor.atEnd() && cursor.position() <= *undecided.rbegin();
       static_cast<void>(cursor.next()))
    inside.erase(cursor.position());
  std::erase_if(matches, [&](const screening::PatternMatch& match) {
    return inside.contains(match.start) || inside.contains(match.end);
  });
}

/// Takes the match of the reporting cue out of the others, and says whether the text is a report.
bool takeReportingCue(std::vector<screening::PatternMatch>& matches) {
  if (matches.empty() || matches.back().pattern != ContentRules::all.size()) return false;
  // A failed search proves nothing, so it softens nothing.
  const bool isReport = !matches.back().failed;
  matches.pop_back();
  return isReport;
}

struct Found {
  Finding finding;
  Hit hit;
};

Screening assess(std::vector<Found> found, std::uint64_t steps) {
  std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
    return a.finding.points > b.finding.points;
  });
  Screening result;
  result.steps = steps;
  Assessment& assessment = result.assessment;
  for (Found& one : found) {
    assessment.score += one.finding.points;
    assessment.isBlocked = assessment.isBlocked || one.finding.isBlocking;
    assessment.findings.push_back(std::move(one.finding));
    result.hits.push_back(one.hit);
  }
  assessment.isBlocked = assessment.isBlocked || assessment.score >= refusalScore;
  assessment.shouldWarn = !assessment.isBlocked && assessment.score >= warningScore;
  return result;
}

/// What a match counts for, given the quotations of a report: nothing when it only warns of what is
/// quoted.
std::optional<Found> weigh(const screening::PatternMatch& match,
                           const std::vector<QuotedSpan>& quotations) {
  const ContentRules::Rule& rule = ContentRules::all[match.pattern];
  const bool isBlock = rule.severity == "block";
  const bool isQuoted =
      std::any_of(quotations.begin(), quotations.end(), [&](const QuotedSpan& span) {
        return span.startByte <= match.start && match.end <= span.endByte;
      });
  if (isQuoted && !isBlock) return std::nullopt;
  return Found{
      .finding = {.id = std::string(rule.id),
                  .category = std::string(rule.category),
                  .why = std::string(rule.why),
                  .points = isQuoted ? softenedPoints : rule.points,
                  .isBlocking = isBlock && !isQuoted},
      .hit = {
          .id = rule.id, .start = match.start, .end = match.end, .isEngineFailure = match.failed}};
}

// ---- Quotations

struct QuotePair {
  char32_t opening;
  char32_t closing;

  [[nodiscard]] constexpr bool isSymmetric() const { return opening == closing; }
};

constexpr auto quotePairs = std::to_array<QuotePair>(
    {{U'"', U'"'}, {U'\u201C', U'\u201D'}, {U'\u2018', U'\u2019'}, {U'\'', U'\''}});

/// A quotation mark that is a character by itself.
struct QuoteMark {
  char32_t scalar;
  std::size_t character;
  std::size_t startByte;
  std::size_t endByte;
  bool mayOpen;   ///< of a symmetric pair
  bool mayClose;  ///< likewise
};

bool isQuote(char32_t scalar) {
  return std::any_of(quotePairs.begin(), quotePairs.end(), [&](const QuotePair& pair) {
    return scalar == pair.opening || scalar == pair.closing;
  });
}

bool opensAfter(char32_t scalar) {
  return unicode::isWhitespaceOrNewline(scalar) || scalar == U'(' || scalar == U'[';
}

bool closesBefore(char32_t scalar) {
  return unicode::isWhitespaceOrNewline(scalar) ||
         std::u32string_view(U".,;:!?)]").find(scalar) != std::u32string_view::npos;
}

std::vector<QuoteMark> quoteMarksOf(std::string_view text) {
  std::vector<QuoteMark> marks;
  std::size_t index = 0;
  bool opens = true;
  for (unicode::CharacterCursor cursor(text); !cursor.atEnd(); ++index) {
    const std::size_t start = cursor.position();
    const std::string_view character = cursor.next();
    std::size_t length = 0;
    const char32_t scalar = unicode::nextScalar(character, length);
    if (length == character.size() && isQuote(scalar)) {
      const std::size_t end = cursor.position();
      const bool closes = cursor.atEnd() || closesBefore(unicode::firstScalar(text.substr(end)));
      marks.push_back({.scalar = scalar,
                       .character = index,
                       .startByte = start,
                       .endByte = end,
                       .mayOpen = opens,
                       .mayClose = closes});
    }
    opens = opensAfter(scalar);
  }
  return marks;
}

/// Whether there is such a mark, even one that neither opens nor closes.
bool occurs(char32_t scalar, std::vector<QuoteMark>::const_iterator from,
            std::vector<QuoteMark>::const_iterator to) {
  return std::any_of(from, to, [&](const QuoteMark& mark) { return mark.scalar == scalar; });
}

// ---- Screening

Screening screenAll(std::string_view text) {
  Screening result;
  if (text.empty()) return result;
  std::vector<screening::PatternMatch> matches = engine().firstMatches(text, &result.steps);

  std::vector<QuotedSpan> quotations;
  if (takeReportingCue(matches) && !matches.empty()) quotations = quotedSpans(text);
  keepWholeCharacters(text, matches);

  std::vector<Found> found;
  for (const screening::PatternMatch& match : matches)
    if (std::optional<Found> weighed = weigh(match, quotations))
      found.push_back(*std::move(weighed));
  return assess(std::move(found), result.steps);
}

// ---- Texts

std::string_view shortWhy(std::string_view why) {
  for (const std::string_view separator : {", ", " — ", " -- "})
    if (const std::size_t at = why.find(separator); at != std::string_view::npos)
      return why.substr(0, at);
  return why;
}

bool isIllegal(const Finding& finding) {
  return std::find(illegalCategories.begin(), illegalCategories.end(), finding.category) !=
         illegalCategories.end();
}

bool hasCategory(const Assessment& assessment, std::string_view category) {
  return std::any_of(assessment.findings.begin(), assessment.findings.end(),
                     [&](const Finding& finding) { return finding.category == category; });
}

std::vector<std::string_view> distinctCategories(const std::vector<Finding>& findings) {
  std::vector<std::string_view> categories;
  for (const Finding& finding : findings)
    if (std::find(categories.begin(), categories.end(), finding.category) == categories.end())
      categories.emplace_back(finding.category);
  return categories;
}

/// The reasons, an empty line, and what to do.
std::string reasonsThen(const Assessment& assessment, std::string_view advice) {
  std::string text;
  for (const std::string& line : reasons(assessment, reasonLimit))
    text += line + '\n';
  return (text += '\n') += advice;
}

}  // namespace

Assessment evaluate(std::string_view text) {
  return screen(text).assessment;
}

Screening screen(std::string_view text) {
  const std::string_view part = screenedPart(text);
  Screening screening = screenAll(part);
  screening.screenedBytes = part.size();
  return screening;
}

std::optional<Screening> screenAsRead(std::string_view text, const Screening& asWritten) {
  const std::string_view part = partToRead(text, asWritten.screenedBytes);
  const ReadableText readable(part);
  if (readable.isAsWritten() && part.size() == asWritten.screenedBytes) return std::nullopt;
  const Screening asRead = screenAll(readable.text());
  std::map<std::string_view, Found> byRule;
  const auto add = [&](const Screening& screening, std::size_t i, Hit hit) {
    Found found{.finding = screening.assessment.findings[i], .hit = hit};
    const auto [other, isNew] = byRule.try_emplace(hit.id, found);
    if (!isNew && other->second.finding.points < found.finding.points)
      other->second = std::move(found);
  };
  for (std::size_t i = 0; i < asWritten.hits.size(); ++i)
    add(asWritten, i, asWritten.hits[i]);
  for (std::size_t i = 0; i < asRead.hits.size(); ++i) {
    Hit hit = asRead.hits[i];
    const auto [start, end] = readable.written({.start = hit.start, .end = hit.end});
    hit.start = start;
    hit.end = end;
    add(asRead, i, hit);
  }
  std::vector<Found> found;
  for (const ContentRules::Rule& rule : ContentRules::all)
    if (const auto one = byRule.find(rule.id); one != byRule.end())
      found.push_back(std::move(one->second));
  return assess(std::move(found), asRead.steps);
}

std::vector<std::string_view> disabledRules() {
  std::vector<std::string_view> ids;
  for (const std::uint16_t pattern :
       screening::ScreeningEngine::unusablePatterns(screening::compiledRules()))
    if (pattern < ContentRules::all.size()) ids.push_back(ContentRules::all[pattern].id);
  return ids;
}

std::vector<QuotedSpan> quotedSpans(std::string_view text) {
  const std::vector<QuoteMark> marks = quoteMarksOf(text);
  std::vector<QuotedSpan> spans;
  for (const QuotePair& pair : quotePairs) {
    const auto opens = [&](const QuoteMark& mark) {
      return mark.scalar == pair.opening && (!pair.isSymmetric() || mark.mayOpen);
    };
    const auto closes = [&](const QuoteMark& mark) {
      return mark.scalar == pair.closing && (!pair.isSymmetric() || mark.mayClose);
    };
    for (auto from = marks.begin();;) {
      const auto opening = std::find_if(from, marks.end(), opens);
      if (opening == marks.end()) {
        if (occurs(pair.opening, from, marks.end())) return spans;
        break;
      }
      const auto closing = std::find_if(opening + 1, marks.end(), closes);
      if (closing == marks.end()) {
        if (occurs(pair.closing, opening + 1, marks.end())) return spans;
        break;
      }
      if (closing->character - opening->character >= shortestQuotation)
        spans.push_back({.firstCharacter = opening->character,
                         .endCharacter = closing->character + 1,
                         .startByte = opening->startByte,
                         .endByte = closing->endByte});
      from = closing + 1;
    }
  }
  return spans;
}

std::vector<std::string> reasons(const Assessment& assessment, std::size_t limit) {
  std::vector<std::string> lines;
  std::set<std::string_view> shown;
  for (const Finding& finding : assessment.findings) {
    if (lines.size() == limit) break;
    if (!shown.insert(finding.category).second) continue;
    lines.push_back("•  " + finding.category + " — " + std::string(shortWhy(finding.why)));
  }
  const std::size_t categories = distinctCategories(assessment.findings).size();
  if (categories > lines.size())
    lines.push_back("•  and " + std::to_string(categories - lines.size()) + " more");
  return lines;
}

std::string refusalTitle(const Assessment& assessment) {
  const auto& findings = assessment.findings;
  if (std::any_of(findings.begin(), findings.end(), isIllegal)) return "Not signed";
  if (hasCategory(assessment, "Generic approval"))
    return "Not signed — generic approvals cannot be signed";
  if (hasCategory(assessment, "Payment instruction"))
    return "Not signed — payment instructions cannot be signed";
  return "Not signed — this looks like a scam";
}

std::string explanation(const Assessment& assessment) {
  std::vector<Finding> illegal;
  std::copy_if(assessment.findings.begin(), assessment.findings.end(), std::back_inserter(illegal),
               isIllegal);
  if (!illegal.empty()) {
    std::string list;
    for (const std::string_view category : distinctCategories(illegal))
      list += (list.empty() ? "" : ", ") + unicode::lowercased(category);
    return "Quillseal will not sign this.\n\nIt matches content that is illegal in most countries "
           "(" +
           list +
           ").\n\nIf you believe this is wrong, the rules are open — see content_rules.json.";
  }
  if (hasCategory(assessment, "Payment instruction"))
    return reasonsThen(assessment,
                       "A signature would make a forged copy far more convincing. Confirm payments "
                       "in your finance system, not by signed message.");
  if (hasCategory(assessment, "Generic approval"))
    return reasonsThen(assessment,
                       "Add specific details (e.g. document title, invoice number, or amount) to "
                       "provide context before signing.");
  return reasonsThen(assessment, "Reword these parts, or don’t sign it.");
}

std::string warning(const Assessment& assessment) {
  return reasonsThen(assessment, "Signing says YOU wrote this.");
}

}  // namespace quillseal::ContentRisk
