#include "Quillseal/RequiredLiterals.h"

#include <algorithm>
#include <optional>
#include <span>

namespace quillseal::screening {
namespace {

using Literal = std::vector<Letter>;
using Literals = std::vector<Literal>;
/// One way through a pattern: nodes that follow one another.
using Way = std::vector<const Node*>;

constexpr std::size_t mostLiterals = 128;
/// Neighbouring texts are joined to longer literals while these are at most so many.
constexpr std::size_t mostJoined = 16;
/// Ways that are told apart within one alternative of a pattern.
constexpr std::size_t mostWays = 2;
constexpr std::size_t mostLinks = 4;
/// Letters of a literal that is worth looking for; those beyond ASCII count double.
constexpr std::size_t leastStrength = 3;

std::uint32_t plus(std::uint32_t a, std::uint32_t b) {
  return a > unbounded - b ? unbounded : a + b;
}

std::uint32_t times(std::uint32_t a, std::uint32_t b) {
  if (a == 0 || b == 0) return 0;
  return a > unbounded / b ? unbounded : a * b;
}

std::uint32_t longest(const Literals& literals) {
  std::size_t length = 0;
  for (const Literal& literal : literals)
    length = std::max(length, literal.size());
  return static_cast<std::uint32_t>(length);
}

std::size_t shortest(const Literals& literals) {
  std::size_t length = literals.front().size();
  for (const Literal& literal : literals)
    length = std::min(length, literal.size());
  return length;
}

/// A link within a node, and how far it lies from the node's ends.
struct InnerLink {
  LiteralLink link;
  std::uint32_t before = 0;  ///< steps to the start of the literal
  std::uint32_t after = 0;
};

class Analysis {
 public:
  Analysis(const SetTable& sets, const CharacterClasses& classes)
      : sets_(sets), classes_(classes) {}

  RequiredLiterals of(const Node& pattern) {
    RequiredLiterals required;
    const bool isChoice = pattern.kind == Node::Kind::Alternatives;
    const auto alternatives = isChoice ? std::span(pattern.children) : std::span(&pattern, 1);
    for (std::size_t i = 0; i < alternatives.size(); ++i) {
      std::vector<LiteralChain> chains;
      bool suffice = true;
      for (const Way& way : waysThrough(alternatives[i], mostWays)) {
        if (!way.empty() && way.front()->kind == Node::Kind::TextStart) {
          required.atTextStart = true;
          continue;
        }
        chains.push_back(chainOf(way, Weak::Skipped));
        if (chains.back().links.empty()) chains.back() = chainOf(way, Weak::Used);
        chains.back().alternative = i;
        suffice = suffice && !chains.back().links.empty();
      }
      if (suffice) {
        required.chains.insert(required.chains.end(), chains.begin(), chains.end());
      } else {
        required.withoutLiterals.push_back(i);
      }
    }
    return required;
  }

 private:
  /// What becomes of links that are common in any text.
  enum class Weak : std::uint8_t { Skipped, Used };

  /// The ways through `node`; all of its alternatives where that makes at most `most`.
  std::vector<Way> waysThrough(const Node& node, std::size_t most) {
    if (node.kind == Node::Kind::Alternatives && !literalsOf(node)) {
      std::vector<Way> ways;
      for (const Node& child : node.children) {
        std::vector<Way> more = waysThrough(child, most);
        ways.insert(ways.end(), more.begin(), more.end());
      }
      if (ways.size() <= most) return ways;
    } else if (node.kind == Node::Kind::Sequence) {
      std::vector<Way> ways{{}};
      for (const Node& child : node.children) {
        std::vector<Way> tails = waysThrough(child, most);
        if (ways.size() * tails.size() > most) tails = {{&child}};
        std::vector<Way> longer;
        for (const Way& way : ways) {
          for (const Way& tail : tails) {
            longer.push_back(way);
            longer.back().insert(longer.back().end(), tail.begin(), tail.end());
          }
        }
        ways = std::move(longer);
      }
      return ways;
    }
    return {{&node}};
  }

  /// All texts that `node` matches, if they are few. Whether it needs a word boundary or looks
  /// ahead besides makes them no less necessary.
  std::optional<Literals> literalsOf(const Node& node) {
    Literals literals;
    switch (node.kind) {
      case Node::Kind::Set: {
        for (const char32_t c : fewCodePoints(sets_[node.set])) {
          const auto folding = classes_.folding(classes_.classOf(c));
          literals.emplace_back(folding.begin(), folding.end());
        }
        std::sort(literals.begin(), literals.end());
        literals.erase(std::unique(literals.begin(), literals.end()), literals.end());
        if (literals.empty() || literals.size() > 8) return std::nullopt;
        return literals;
      }
      case Node::Kind::FoldedText: {
        Literal literal;
        for (const char32_t c : node.text)
          literal.push_back(classes_.letterOf(c));
        return Literals{std::move(literal)};
      }
      case Node::Kind::Sequence:
        literals.emplace_back();
        for (const Node& child : node.children) {
          const auto more = literalsOf(child);
          if (!more || more->size() * literals.size() > mostJoined) return std::nullopt;
          literals = product(literals, *more);
        }
        return literals;
      case Node::Kind::Alternatives:
        for (const Node& child : node.children) {
          const auto more = literalsOf(child);
          if (!more || more->size() + literals.size() > mostLiterals) return std::nullopt;
          literals.insert(literals.end(), more->begin(), more->end());
        }
        return literals;
      case Node::Kind::Repetition: {
        if (node.max > 3) return std::nullopt;
        const auto once = literalsOf(node.children.front());
        if (!once) return std::nullopt;
        Literals power{{}};
        for (std::uint32_t count = 0; count <= node.max; ++count) {
          if (count >= node.min) literals.insert(literals.end(), power.begin(), power.end());
          if (power.size() * once->size() > mostLiterals) return std::nullopt;
          power = product(power, *once);
        }
        if (literals.size() > mostLiterals) return std::nullopt;
        return literals;
      }
      default:
        return Literals{{}};
    }
  }

  static Literals product(const Literals& heads, const Literals& tails) {
    Literals all;
    for (const Literal& head : heads) {
      for (const Literal& tail : tails) {
        all.push_back(head);
        all.back().insert(all.back().end(), tail.begin(), tail.end());
      }
    }
    return all;
  }

  [[nodiscard]] bool isSpaceSet(const Node& node) const {
    if (node.kind != Node::Kind::Set) return false;
    const auto& ranges = sets_[node.set];
    return std::all_of(ranges.begin(), ranges.end(), [&](const auto& range) {
      for (char32_t c = range.first; c <= range.second; ++c)
        if (!classes_.isSpace(classes_.classOf(c))) return false;
      return true;
    });
  }

  std::uint32_t width(const Node& node) {
    switch (node.kind) {
      case Node::Kind::Set:
        return 1;
      case Node::Kind::FoldedText:
        return static_cast<std::uint32_t>(node.text.size());
      case Node::Kind::Sequence: {
        std::uint32_t sum = 0;
        for (const Node& child : node.children)
          sum = plus(sum, width(child));
        return sum;
      }
      case Node::Kind::Alternatives: {
        std::uint32_t most = 0;
        for (const Node& child : node.children)
          most = std::max(most, width(child));
        return most;
      }
      case Node::Kind::Repetition:
        if (isSpaceSet(node.children.front())) return 1;
        return times(node.max, width(node.children.front()));
      default:
        return 0;
    }
  }

  /// Adds the classes of everything that `node` may match.
  void addClasses(const Node& node, std::vector<std::uint64_t>& bits) {
    if (node.kind == Node::Kind::LookAhead) return;
    if (node.kind == Node::Kind::Set) {
      const auto members = classes_.classesOf(node.set);
      for (std::size_t i = 0; i < bits.size(); ++i)
        bits[i] |= members[i];
    }
    for (const char32_t c : node.text)
      for (const ClassId id : classes_.classesWith(classes_.letterOf(c)))
        bits[id / 64] |= std::uint64_t{1} << (id % 64);
    for (const Node& child : node.children)
      addClasses(child, bits);
  }

  /// Whether a literal says anything: not when it is empty or white space alone.
  [[nodiscard]] bool isTelling(const Literals& literals) const {
    return std::all_of(literals.begin(), literals.end(), [&](const Literal& literal) {
      return std::any_of(literal.begin(), literal.end(),
                         [&](Letter letter) { return !isSpaceLetter(letter); });
    });
  }

  [[nodiscard]] bool isSpaceLetter(Letter letter) const {
    return classes_.isSpace(classes_.classOf(classes_.codePointOf(letter)));
  }

  [[nodiscard]] bool isWeak(const Literals& literals) const {
    return std::any_of(literals.begin(), literals.end(), [&](const Literal& literal) {
      std::size_t strength = 0;
      for (const Letter letter : literal)
        if (!isSpaceLetter(letter)) strength += classes_.codePointOf(letter) < 0x80 ? 1 : 2;
      return strength < leastStrength;
    });
  }

  LiteralChain chainOf(const Way& way, Weak weak) {
    LiteralChain chain;
    chain.leadClasses.assign(classes_.count() / 64 + 1, 0);
    std::uint32_t gap = 0;
    Literals current{{}};
    LiteralLink link;
    const auto isOpen = [&] { return current.size() == 1 && current.front().empty(); };
    const auto append = [&](LiteralLink added, std::uint32_t before) {
      if (chain.links.empty()) {
        chain.lead = plus(gap, before);
      } else {
        added.distance = plus(plus(gap, before), longest(added.literals));
        // Behind a gap without limit nothing is known to be near.
        if (added.distance == unbounded || chain.links.size() == mostLinks) return false;
      }
      chain.links.push_back(std::move(added));
      return true;
    };
    const auto flush = [&] {
      bool goesOn = true;
      if (!isOpen()) {
        if (isTelling(current) && (weak == Weak::Used || !isWeak(current))) {
          link.literals = current;
          goesOn = append(std::move(link), 0);
          gap = 0;
        } else {
          gap = plus(gap, longest(current));
        }
      }
      current = {{}};
      link = {};
      return goesOn;
    };

    for (const Node* node : way) {
      if (node->kind == Node::Kind::WordBoundary && !node->negative) {
        if (isOpen()) {
          link.boundaryBefore = true;
        } else {
          link.boundaryAfter = shortest(current) > 0;
        }
        continue;
      }
      if (const auto literals = literalsOf(*node)) {
        if (!isOpen() && literals->size() * current.size() > mostJoined) {
          if (!flush()) return chain;
          current = *literals;
        } else {
          if (longest(*literals) > 0) link.boundaryAfter = false;
          current = product(current, *literals);
        }
        if (chain.links.empty()) addClasses(*node, chain.leadClasses);
        continue;
      }
      if (!flush()) return chain;
      auto inner = innerLink(*node);
      if (inner && weak == Weak::Skipped && isWeak(inner->link.literals)) inner.reset();
      if (chain.links.empty()) addClasses(*node, chain.leadClasses);
      if (inner) {
        if (!append(inner->link, inner->before)) return chain;
        gap = inner->after;
      } else {
        gap = plus(gap, width(*node));
      }
      if (gap == unbounded && !chain.links.empty()) return chain;
    }
    static_cast<void>(flush());
    return chain;
  }

  /// A link that every match of `node` contains somewhere.
  std::optional<InnerLink> innerLink(const Node& node) {
    if (const auto literals = literalsOf(node)) {
      if (literals->empty() || !isTelling(*literals)) return std::nullopt;
      return InnerLink{.link = {.literals = *literals}};
    }
    switch (node.kind) {
      case Node::Kind::Sequence: {
        Way way;
        for (const Node& child : node.children)
          way.push_back(&child);
        const LiteralChain chain = chainOf(way, Weak::Used);
        if (chain.links.empty()) return std::nullopt;
        std::size_t best = 0;
        for (std::size_t i = 1; i < chain.links.size(); ++i)
          if (shortest(chain.links[i].literals) > shortest(chain.links[best].literals)) best = i;
        InnerLink inner{.link = chain.links[best], .before = chain.lead, .after = width(node)};
        for (std::size_t i = 0; i < best; ++i)
          inner.before = plus(plus(inner.before, longest(chain.links[i].literals)),
                              chain.links[i + 1].distance);
        return inner;
      }
      case Node::Kind::Alternatives: {
        InnerLink all{.link = {.boundaryBefore = true, .boundaryAfter = true}};
        for (const Node& child : node.children) {
          const auto inner = innerLink(child);
          if (!inner) return std::nullopt;
          all.link.boundaryBefore = all.link.boundaryBefore && inner->link.boundaryBefore;
          all.link.boundaryAfter = all.link.boundaryAfter && inner->link.boundaryAfter;
          all.link.literals.insert(all.link.literals.end(), inner->link.literals.begin(),
                                   inner->link.literals.end());
          all.before = std::max(all.before, inner->before);
          all.after = std::max(all.after, inner->after);
        }
        if (all.link.literals.size() > mostLiterals) return std::nullopt;
        return all;
      }
      case Node::Kind::Repetition: {
        if (node.min == 0) return std::nullopt;
        auto inner = innerLink(node.children.front());
        if (inner) inner->after = width(node);
        return inner;
      }
      default:
        return std::nullopt;
    }
  }

  const SetTable& sets_;
  const CharacterClasses& classes_;
};

}  // namespace

RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                  const CharacterClasses& classes) {
  return Analysis(sets, classes).of(pattern);
}

}  // namespace quillseal::screening
