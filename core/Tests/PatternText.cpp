#include "PatternText.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "RandomText.h"
#include "core/text/UnicodeText.h"

namespace quillseal::testing {
namespace {

using screening::Node;

std::size_t below(std::mt19937& random, std::size_t bound) {
  return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
}

bool chance(std::mt19937& random, std::size_t oneIn) {
  return below(random, oneIn) == 0;
}

/// A member of a set: mostly one that a person would type, where there is one.
char32_t memberOf(const screening::CodePointRanges& ranges, std::mt19937& random) {
  constexpr std::u32string_view ordinary = U"a e t o n i s r kS5 70,\n";
  if (!chance(random, 4)) {
    const char32_t c = ordinary[below(random, ordinary.size())];
    const auto holds = [&](const auto& range) { return range.first <= c && c <= range.second; };
    if (std::any_of(ranges.begin(), ranges.end(), holds)) return c;
  }
  if (ranges.empty()) return U'?';
  const auto& [first, last] = ranges[below(random, std::min<std::size_t>(ranges.size(), 40))];
  const auto c =
      static_cast<char32_t>(first + below(random, std::min<std::size_t>(last - first + 1, 400)));
  return c >= 0xD800 && c <= 0xDFFF ? U'?' : c;
}

void appendWay(const Node& node, const screening::SetTable& sets, std::mt19937& random,
               std::string& text) {
  switch (node.kind) {
    case Node::Kind::set:
      unicode::append(text, memberOf(sets[node.set], random));
      break;
    case Node::Kind::foldedText:
      for (const char32_t c : node.text)
        unicode::append(text, c);
      break;
    case Node::Kind::alternatives:
      appendWay(node.children[below(random, node.children.size())], sets, random, text);
      break;
    case Node::Kind::repetition: {
      const std::size_t most =
          std::min<std::size_t>(node.max - node.min, chance(random, 12) ? 150 : 3);
      for (std::size_t i = node.min + below(random, most + 1); i > 0; --i)
        appendWay(node.children.front(), sets, random, text);
      break;
    }
    case Node::Kind::lookAhead:
      if (node.negative && !chance(random, 3)) break;
      [[fallthrough]];
    default:
      for (const Node& child : node.children)
        appendWay(child, sets, random, text);
      break;
  }
}

/// Other spellings that fold to the same letters, and what stands invisibly between letters.
std::string disguised(const std::string& text, std::mt19937& random) {
  struct Spelling {
    std::string_view plain;
    std::string_view other;
  };
  static constexpr std::array spellings{
      Spelling{"s", "\u017F"},   Spelling{"k", "\u212A"},  Spelling{"ss", "\u00DF"},
      Spelling{"ss", "\u1E9E"},  Spelling{"fi", "\uFB01"}, Spelling{"ff", "\uFB00"},
      Spelling{"st", "\uFB06"},  Spelling{"fl", "\uFB02"}, Spelling{"i", "\u0130"},
      Spelling{"i", "\u0131"},   Spelling{" ", "\u00A0"},  Spelling{" ", "\r\n"},
      Spelling{" ", " \u200D"},  Spelling{" ", "  \n\n "}, Spelling{"e", "e\u0301"},
      Spelling{"e", "\u00E9"},   Spelling{"o", "\u200Do"}, Spelling{"a", "\u0430"},
      Spelling{".", ". \u0301"}, Spelling{"n", "\u0149"},  Spelling{" ", "\u2028"},
      Spelling{"1", "\u0661"},   Spelling{"2", "\u00B2"},  Spelling{"u", "\u24E4"},
      Spelling{"'", "\u2019"},   Spelling{"t", "T"},       Spelling{"e", "E"},
  };
  std::string result = text;
  for (std::size_t i = 1 + below(random, 3); i > 0; --i) {
    const Spelling& spelling = spellings[below(random, spellings.size())];
    const std::size_t at = result.find(spelling.plain, below(random, result.size() + 1));
    if (at != std::string::npos) result.replace(at, spelling.plain.size(), spelling.other);
  }
  return unicode::wellFormed(result);
}

std::string mutated(std::string text, std::mt19937& random) {
  if (text.empty()) return text;
  const std::size_t at = below(random, text.size());
  switch (below(random, 4)) {
    case 0:
      text.erase(at, 1 + below(random, 3));
      break;
    case 1:
      text.insert(at, randomText(random, 3));
      break;
    case 2:
      text = text.substr(0, at);
      break;
    default:
      text = text.substr(at);
      break;
  }
  return unicode::wellFormed(text);
}

void collectParts(const Node& node, const screening::SetTable& sets,
                  std::vector<std::string>& parts) {
  std::string part;
  for (const char32_t c : node.text)
    unicode::append(part, c);
  if (node.kind == Node::Kind::set && !sets[node.set].empty()) {
    const auto& ranges = sets[node.set];
    unicode::append(part, ranges[ranges.size() / 2].first);
  }
  if (!part.empty() && std::find(parts.begin(), parts.end(), part) == parts.end())
    parts.push_back(part);
  for (const Node& child : node.children)
    collectParts(child, sets, parts);
}

}  // namespace

PatternText::PatternText(std::span<const screening::Pattern> patterns) {
  for (const screening::Pattern& pattern : patterns)
    nodes_.push_back(screening::parsePattern(pattern, sets_));
}

std::string PatternText::along(std::size_t pattern, std::mt19937& random) const {
  std::string text;
  appendWay(nodes_[pattern], sets_, random, text);
  return text;
}

std::string PatternText::mixture(std::mt19937& random) const {
  static constexpr auto joints = std::to_array<std::string_view>(
      {" ", ". ", "\n", "", "\r\n", " and ", "\u200D", "\u0301", "! ", "  \n\n  "});
  std::string text;
  for (std::size_t i = 1 + below(random, 4); i > 0; --i) {
    std::string piece =
        chance(random, 6) ? randomText(random, 30) : along(below(random, nodes_.size()), random);
    if (chance(random, 2)) piece = disguised(piece, random);
    if (chance(random, 3)) piece = mutated(std::move(piece), random);
    text += piece;
    text += joints[below(random, joints.size())];
  }
  return text;
}

std::vector<std::string> PatternText::parts(std::size_t pattern) const {
  std::vector<std::string> parts;
  collectParts(nodes_[pattern], sets_, parts);
  return parts;
}

}  // namespace quillseal::testing
