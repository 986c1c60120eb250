// Derives required-literal sequences: literals that every match contains, in order, with the
// greatest distance between neighbours (compare the Prefilter class of RE2).
//
// Algorithm: for each path through a pattern, nodes that match only a few strings are multiplied
// out and joined to literals; other nodes add to the distance. Several limits of frequency are
// tried, and the sequence with the lowest expected cost is kept. Leaving out a requirement lets
// more candidates through and never loses a match.
// Bound: at most two paths for each alternative, four elements for each sequence, 128 literals for
// each element; results are cached by node.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct, ScreeningEngine.AgreesWithIcuOnEveryRule.

#include "core/screening/compile/RequiredLiterals.h"

#include <algorithm>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>

#include "core/screening/compile/LiteralAlphabet.h"

namespace quillseal::screening {
namespace {

/// One way through a pattern: nodes that follow one another.
using Way = std::vector<const Node*>;

constexpr std::size_t mostLiterals = 128;
/// Neighbouring texts are joined to longer literals while these are at most so many.
constexpr std::size_t mostJoined = 64;
/// Ways that are told apart within one alternative of a pattern.
constexpr std::size_t mostWays = 2;
constexpr std::size_t mostLinks = 4;

/// Literals that occur more often than this, for each code point of a text, are passed over for
/// rarer ones further on. Which limit is best differs from pattern to pattern, so all are tried.
constexpr double frequencyLimits[] = {1, 0.01, 0.003, 0.001, 0.0003};

// What finding a match costs, in units of one literal met in the text.
constexpr double costOfFirstLink = 3;  ///< which has to be remembered
constexpr double costOfChain = 2;      ///< a chain that is complete
constexpr double costOfStart = 2;      ///< a place where a match might start
/// Code points that a lead without limit is expected to go back.
constexpr double longestWalk = 5000;

std::size_t shortest(const Literals& literals) {
  std::size_t length = literals.front().size();
  for (const Literal& literal : literals)
    length = std::min(length, literal.size());
  return length;
}

/// A link within a node, and how far it lies from the node's ends.
struct InnerLink {
  LiteralLink link;
  Distance before{};  ///< to the start of the literal
  Distance after{};
};

/// Puts a chain together from the parts of a way, in order. Literals side by side become one link;
/// those that are met more often than `frequencyLimit` are passed over.
class ChainBuilder {
 public:
  ChainBuilder(const LiteralAlphabet& alphabet, double frequencyLimit)
      : alphabet_(alphabet), frequencyLimit_(frequencyLimit) {}

  /// Whether no link is complete, so that what comes belongs to the lead.
  [[nodiscard]] bool isInLead() const { return links_.empty(); }
  /// Whether nothing that follows can be a link any more.
  [[nodiscard]] bool isDone() const { return isDone_; }

  void addBoundary() {
    if (isOpen()) {
      boundaryBefore_ = true;
    } else {
      boundaryAfter_ = shortest(current_) > 0 && !alphabet_.anyEndsInSpace(current_);
    }
  }

  void addLiterals(const Literals& literals) {
    if (!isOpen() && literals.size() * current_.size() > mostJoined) {
      endLink();
      current_ = literals;
    } else {
      if (alphabet_.longest(literals).steps > 0) boundaryAfter_ = false;
      current_ = alphabet_.product(current_, literals);
    }
  }

  /// Ends the link that literals side by side make up so far.
  void endLink() {
    if (!isOpen()) {
      LiteralLink link{.literals = current_,
                       .boundaryBefore = boundaryBefore_ && !alphabet_.anyStartsWithSpace(current_),
                       .boundaryAfter = boundaryAfter_};
      if (alphabet_.isTelling(current_) && isRareEnough(current_)) {
        append(std::move(link), {});
      } else {
        addGap(alphabet_.longest(current_));
      }
    }
    current_ = {{}};
    boundaryBefore_ = false;
    boundaryAfter_ = false;
  }

  /// Something that contains a link. REQUIRES: the link before is ended.
  void addInner(const InnerLink& inner) {
    append(inner.link, inner.before);
    addGap(inner.after);
  }

  /// Something without a link. REQUIRES: the link before is ended.
  void addGap(const Distance& width) {
    gap_ = plus(gap_, width);
    // Behind a gap without limit nothing is known to be near.
    if (gap_.isUnbounded() && !links_.empty()) isDone_ = true;
  }

  [[nodiscard]] bool isRareEnough(const Literals& literals) const {
    return alphabet_.frequencyOf(literals) <= frequencyLimit_;
  }

  [[nodiscard]] LiteralChain finish(std::vector<std::uint64_t> leadClasses) {
    if (!isDone_) endLink();
    return {.lead = lead_, .leadClasses = std::move(leadClasses), .links = std::move(links_)};
  }

 private:
  [[nodiscard]] bool isOpen() const { return current_.size() == 1 && current_.front().empty(); }

  /// Goes on with the gap of what is cut off.
  void append(LiteralLink link, const Distance& before) {
    if (isDone_) return;
    if (links_.empty()) {
      lead_ = plus(gap_, before);
      if (alphabet_.dropLeadingSpace(link.literals)) lead_ = plus(lead_, {.steps = 1, .runs = 1});
    }
    const Distance cut = alphabet_.shorten(link.literals);
    if (cut.steps > 0) link.boundaryAfter = false;
    if (!links_.empty()) {
      link.distance = plus(plus(gap_, before), alphabet_.longest(link.literals));
      isDone_ = link.distance.isUnbounded() || links_.size() == mostLinks;
      if (isDone_) return;
    }
    links_.push_back(std::move(link));
    gap_ = cut;
  }

  const LiteralAlphabet& alphabet_;
  double frequencyLimit_;
  std::vector<LiteralLink> links_;
  Distance lead_;
  Distance gap_;  ///< since the last link
  Literals current_{{}};
  bool boundaryBefore_ = false;
  bool boundaryAfter_ = false;
  bool isDone_ = false;
};

class Analysis {
 public:
  Analysis(const SetTable& sets, const ClassPartition& classes) : sets_(sets), classes_(classes) {}

  RequiredLiterals of(const Node& pattern) {
    RequiredLiterals required;
    const bool isChoice = pattern.kind == Node::Kind::alternatives;
    const auto alternatives = isChoice ? std::span(pattern.children) : std::span(&pattern, 1);
    for (std::size_t i = 0; i < alternatives.size(); ++i) {
      std::vector<LiteralChain> chains;
      bool suffice = true;
      for (const Way& way : waysThrough(alternatives[i], mostWays)) {
        if (!way.empty() && way.front()->kind == Node::Kind::textStart) {
          required.atTextStart = true;
          continue;
        }
        chains.push_back(cheapestChain(way));
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
  /// The ways through `node`; all of its alternatives where that makes at most `most`.
  std::vector<Way> waysThrough(const Node& node, std::size_t most) {
    if (node.kind == Node::Kind::alternatives && !literalsOf(node)) {
      std::vector<Way> ways;
      for (const Node& child : node.children) {
        std::vector<Way> more = waysThrough(child, most);
        ways.insert(ways.end(), more.begin(), more.end());
      }
      if (ways.size() <= most) return ways;
    } else if (node.kind == Node::Kind::sequence) {
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
  const std::optional<Literals>& literalsOf(const Node& node) {
    if (const auto known = literalsOfNode_.find(&node); known != literalsOfNode_.end())
      return known->second;
    return literalsOfNode_.emplace(&node, findLiterals(node)).first->second;
  }

  std::optional<Literals> findLiterals(const Node& node) {
    Literals literals;
    switch (node.kind) {
      case Node::Kind::set: {
        if (isSpaceSet(node)) return Literals{{alphabet_.space()}};
        for (const char32_t c : fewCodePoints(sets_[node.set])) {
          literals.emplace_back();
          for (const Letter letter : classes_.folding(classes_.classOf(c)))
            alphabet_.append(literals.back(), letter);
        }
        std::sort(literals.begin(), literals.end());
        literals.erase(std::unique(literals.begin(), literals.end()), literals.end());
        if (literals.empty() || literals.size() > 8) return std::nullopt;
        return literals;
      }
      case Node::Kind::foldedText: {
        Literal literal;
        for (const char32_t c : node.text)
          alphabet_.append(literal, classes_.letterOf(c));
        return Literals{std::move(literal)};
      }
      case Node::Kind::sequence:
        literals.emplace_back();
        for (const Node& child : node.children) {
          const auto& more = literalsOf(child);
          if (!more || more->size() * literals.size() > mostJoined) return std::nullopt;
          literals = alphabet_.product(literals, *more);
        }
        return literals;
      case Node::Kind::alternatives:
        for (const Node& child : node.children) {
          const auto& more = literalsOf(child);
          if (!more || more->size() + literals.size() > mostLiterals) return std::nullopt;
          literals.insert(literals.end(), more->begin(), more->end());
        }
        return literals;
      case Node::Kind::repetition: {
        if (isSpaceSet(node.children.front())) {
          if (node.min == 0) literals.emplace_back();
          literals.push_back({alphabet_.space()});
          return literals;
        }
        if (node.max > 3) return std::nullopt;
        const auto& once = literalsOf(node.children.front());
        if (!once) return std::nullopt;
        Literals power{{}};
        for (std::uint32_t count = 0; count <= node.max; ++count) {
          if (count >= node.min) literals.insert(literals.end(), power.begin(), power.end());
          if (power.size() * once->size() > mostLiterals) return std::nullopt;
          power = alphabet_.product(power, *once);
        }
        if (literals.size() > mostLiterals) return std::nullopt;
        return literals;
      }
      default:
        return Literals{{}};
    }
  }

  template <typename Predicate>
  [[nodiscard]] bool isSetOf(const Node& node, Predicate predicate) const {
    if (node.kind != Node::Kind::set) return false;
    const auto members = classes_.classesOf(node.set);
    for (std::size_t id = 0; id < classes_.count(); ++id)
      if ((members[id / 64] >> (id % 64) & 1) != 0 && !predicate(static_cast<ClassId>(id)))
        return false;
    return true;
  }

  [[nodiscard]] bool isSpaceSet(const Node& node) const {
    return isSetOf(node, [this](ClassId id) { return classes_.isSpace(id); });
  }

  [[nodiscard]] bool isWordSet(const Node& node) const {
    return isSetOf(node, [this](ClassId id) { return classes_.isWord(id); });
  }

  Distance width(const Node& node) {
    if (const auto known = widths_.find(&node); known != widths_.end()) return known->second;
    return widths_.emplace(&node, findWidth(node)).first->second;
  }

  Distance findWidth(const Node& node) {
    switch (node.kind) {
      case Node::Kind::set:
        return {.steps = 1, .runs = 1};
      case Node::Kind::foldedText:
        return alphabet_.longest(*literalsOf(node));
      case Node::Kind::sequence: {
        Distance sum;
        for (const Node& child : node.children)
          sum = plus(sum, width(child));
        return sum;
      }
      case Node::Kind::alternatives: {
        Distance most;
        for (const Node& child : node.children)
          most = larger(most, width(child));
        return most;
      }
      case Node::Kind::repetition: {
        const Node& body = node.children.front();
        if (isSpaceSet(body)) return {.steps = 1, .runs = 1};
        Distance all = times(node.max, width(body));
        if (isWordSet(body)) all.runs = 1;
        return all;
      }
      default:
        return {};
    }
  }

  /// Adds the classes of everything that `node` may match.
  void addClasses(const Node& node, std::vector<std::uint64_t>& bits) {
    if (node.kind == Node::Kind::lookAhead) return;
    if (node.kind == Node::Kind::set) {
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

  LiteralChain cheapestChain(const Way& way) {
    LiteralChain cheapest;
    for (const double limit : frequencyLimits) {
      LiteralChain chain = chainOf(way, limit);
      if (chain.links.empty()) break;
      chain.cost = costOf(chain);
      if (cheapest.links.empty() || chain.cost < cheapest.cost) cheapest = std::move(chain);
    }
    return cheapest;
  }

  /// About how many code points that is.
  static double charactersOf(const Distance& distance) {
    constexpr double charactersOfRun = 3;
    return std::min<double>(distance.steps, charactersOfRun * distance.runs);
  }

  [[nodiscard]] double costOf(const LiteralChain& chain) const {
    double cost = 0;
    double complete = 1;
    for (const LiteralLink& link : chain.links) {
      const double frequency = alphabet_.frequencyOf(link.literals);
      const bool isFirst = &link == &chain.links.front();
      cost += isFirst ? costOfFirstLink * frequency : frequency;
      complete *= isFirst ? frequency : std::min(1.0, frequency * charactersOf(link.distance));
    }
    return cost + complete * (costOfChain + costOfMatch +
                              costOfStart * std::min<double>(chain.lead.steps, longestWalk));
  }

  LiteralChain chainOf(const Way& way, double frequencyLimit) {
    ChainBuilder chain(alphabet_, frequencyLimit);
    std::vector<std::uint64_t> leadClasses(ClassSets::wordsFor(classes_.count()));
    for (const Node* node : way) {
      if (chain.isDone()) break;
      if (node->kind == Node::Kind::wordBoundary && !node->negative) {
        chain.addBoundary();
        continue;
      }
      const auto& literals = literalsOf(*node);
      if (literals) {
        chain.addLiterals(*literals);
      } else {
        chain.endLink();
      }
      if (chain.isInLead()) addClasses(*node, leadClasses);
      if (literals) continue;
      const auto& inner = innerLink(*node);
      if (inner && chain.isRareEnough(inner->link.literals)) {
        chain.addInner(*inner);
      } else {
        chain.addGap(width(*node));
      }
    }
    return chain.finish(std::move(leadClasses));
  }

  /// A link that every match of `node` contains somewhere.
  const std::optional<InnerLink>& innerLink(const Node& node) {
    if (const auto known = innerLinks_.find(&node); known != innerLinks_.end())
      return known->second;
    return innerLinks_.emplace(&node, findInnerLink(node)).first->second;
  }

  std::optional<InnerLink> findInnerLink(const Node& node) {
    if (const auto& literals = literalsOf(node)) {
      if (literals->empty() || !alphabet_.isTelling(*literals)) return std::nullopt;
      return InnerLink{.link = {.literals = *literals}};
    }
    switch (node.kind) {
      case Node::Kind::sequence: {
        Way way;
        for (const Node& child : node.children)
          way.push_back(&child);
        const LiteralChain chain = chainOf(way, 1);
        if (chain.links.empty()) return std::nullopt;
        std::size_t best = 0;
        for (std::size_t i = 1; i < chain.links.size(); ++i)
          if (alphabet_.frequencyOf(chain.links[i].literals) <
              alphabet_.frequencyOf(chain.links[best].literals))
            best = i;
        InnerLink inner{.link = chain.links[best], .before = chain.lead, .after = width(node)};
        for (std::size_t i = 0; i < best; ++i)
          inner.before = plus(plus(inner.before, alphabet_.longest(chain.links[i].literals)),
                              chain.links[i + 1].distance);
        return inner;
      }
      case Node::Kind::alternatives: {
        InnerLink all{.link = {.boundaryBefore = true, .boundaryAfter = true}};
        for (const Node& child : node.children) {
          const auto& inner = innerLink(child);
          if (!inner) return std::nullopt;
          all.link.boundaryBefore = all.link.boundaryBefore && inner->link.boundaryBefore;
          all.link.boundaryAfter = all.link.boundaryAfter && inner->link.boundaryAfter;
          all.link.literals.insert(all.link.literals.end(), inner->link.literals.begin(),
                                   inner->link.literals.end());
          all.before = larger(all.before, inner->before);
          all.after = larger(all.after, inner->after);
        }
        if (all.link.literals.size() > mostLiterals) return std::nullopt;
        return all;
      }
      case Node::Kind::repetition: {
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
  const ClassPartition& classes_;
  const LiteralAlphabet alphabet_{classes_};
  // What has been asked for once is asked for again, by every limit that is tried.
  std::unordered_map<const Node*, std::optional<Literals>> literalsOfNode_;
  std::unordered_map<const Node*, std::optional<InnerLink>> innerLinks_;
  std::unordered_map<const Node*, Distance> widths_;
};

}  // namespace

RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                  const ClassPartition& classes) {
  return Analysis(sets, classes).of(pattern);
}

}  // namespace quillseal::screening
