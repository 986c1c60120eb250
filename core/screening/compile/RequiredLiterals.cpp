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

/// One path through a pattern: nodes that follow one another.
using Path = std::vector<const Node*>;

constexpr std::size_t maxLiterals = 128;
/// Neighbouring texts are joined to longer literals while these are at most so many.
constexpr std::size_t maxJoined = 64;
/// Paths that are kept apart within one alternative.
constexpr std::size_t maxPaths = 2;
constexpr std::size_t maxElements = 4;

/// Literals that occur more often than this, for each code point of a text, are passed over for
/// rarer ones further on. Which limit is best differs from pattern to pattern, so all are tried.
constexpr double frequencyLimits[] = {1, 0.01, 0.003, 0.001, 0.0003};

// What finding a match costs, in units of one literal met in the text.
constexpr double costOfFirstElement = 3;  ///< which becomes a candidate
constexpr double costOfSequence = 2;      ///< a sequence that is complete
constexpr double leastCostOfMatch = 20;   ///< a run of the matcher
/// What each code point that it may look at adds, up to `longestReach` of them.
constexpr double costOfReach = 0.5;
constexpr double longestReach = 500;
constexpr double costOfStart = 2;  ///< a place where a match might start
/// Code points that a lead without limit is expected to go back.
constexpr double longestWalk = 5000;

/// An element within a node, and how far it lies from the node's ends.
struct InnerElement {
  RequiredElement element;
  Distance before{};  ///< to the start of the literal
  Distance after{};
};

/// Builds a sequence from the parts of a path, in order. Adjacent literals become one
/// element; those that are met more often than `frequencyLimit` are passed over.
class SequenceBuilder {
 public:
  SequenceBuilder(const LiteralAlphabet& alphabet, double frequencyLimit)
      : alphabet_(alphabet), frequencyLimit_(frequencyLimit) {}

  /// Whether no element is complete, so that what comes belongs to the lead.
  [[nodiscard]] bool isInLead() const { return elements_.empty(); }
  /// Whether nothing that follows can still be an element.
  [[nodiscard]] bool isDone() const { return isDone_; }

  void addBoundary() {
    if (isOpen()) {
      boundaryBefore_ = true;
    } else {
      boundaryAfter_ = !alphabet_.anyEndsInSpace(current_);
    }
  }

  void addLiterals(const Literals& literals) {
    if (!isOpen() && literals.size() * current_.size() > maxJoined) {
      endElement();
      current_ = literals;
    } else {
      if (alphabet_.longest(literals).steps > 0) boundaryAfter_ = false;
      current_ = alphabet_.product(current_, literals);
    }
  }

  /// Ends the element that literals side by side make up so far.
  void endElement() {
    if (!isOpen()) {
      RequiredElement element{
          .literals = current_,
          .boundaryBefore = boundaryBefore_ && !alphabet_.anyStartsWithSpace(current_),
          .boundaryAfter = boundaryAfter_};
      if (alphabet_.isSelective(current_) && isRareEnough(current_)) {
        append(std::move(element), {});
      } else {
        addGap(alphabet_.longest(current_));
      }
    }
    current_ = {{}};
    boundaryBefore_ = false;
    boundaryAfter_ = false;
  }

  /// Something that contains an element. REQUIRES: the element before is ended.
  void addInner(const InnerElement& inner) {
    append(inner.element, inner.before);
    addGap(inner.after);
  }

  /// Something without an element. REQUIRES: the element before is ended.
  void addGap(const Distance& width) {
    gap_ = plus(gap_, width);
    // Behind a gap without limit nothing is known to be near.
    if (gap_.isUnbounded() && !elements_.empty()) isDone_ = true;
  }

  [[nodiscard]] bool isRareEnough(const Literals& literals) const {
    return alphabet_.frequencyOf(literals) <= frequencyLimit_;
  }

  [[nodiscard]] RequiredSequence finish(std::vector<std::uint64_t> leadClasses) {
    if (!isDone_) endElement();
    return {.lead = lead_, .leadClasses = std::move(leadClasses), .elements = std::move(elements_)};
  }

 private:
  [[nodiscard]] bool isOpen() const { return current_.size() == 1 && current_.front().empty(); }

  /// Goes on with the gap of what is cut off.
  void append(RequiredElement element, const Distance& before) {
    if (isDone_) return;
    if (elements_.empty()) {
      lead_ = plus(gap_, before);
      if (alphabet_.dropLeadingSpace(element.literals))
        lead_ = plus(lead_, {.steps = 1, .runs = 1});
    }
    const Distance cut = alphabet_.shorten(element.literals);
    if (cut.steps > 0) element.boundaryAfter = false;
    if (!elements_.empty()) {
      element.distance = plus(plus(gap_, before), alphabet_.longest(element.literals));
      isDone_ = element.distance.isUnbounded() || elements_.size() == maxElements;
      if (isDone_) return;
    }
    elements_.push_back(std::move(element));
    gap_ = cut;
  }

  const LiteralAlphabet& alphabet_;
  double frequencyLimit_;
  std::vector<RequiredElement> elements_;
  Distance lead_;
  Distance gap_;  ///< since the last element
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
      std::vector<RequiredSequence> sequences;
      bool suffice = true;
      for (const Path& path : pathsThrough(alternatives[i], maxPaths)) {
        if (!path.empty() && path.front()->kind == Node::Kind::textStart) {
          required.atTextStart = true;
          continue;
        }
        sequences.push_back(cheapestSequence(path));
        sequences.back().alternative = i;
        suffice = suffice && !sequences.back().elements.empty();
      }
      if (suffice) {
        required.sequences.insert(required.sequences.end(), sequences.begin(), sequences.end());
      } else {
        required.withoutLiterals.push_back(i);
      }
    }
    return required;
  }

 private:
  /// The paths through `node`; all of its alternatives where that makes at most `most`.
  std::vector<Path> pathsThrough(const Node& node, std::size_t most) {
    if (node.kind == Node::Kind::alternatives && !literalsOf(node)) {
      std::vector<Path> paths;
      for (const Node& child : node.children) {
        std::vector<Path> more = pathsThrough(child, most);
        paths.insert(paths.end(), more.begin(), more.end());
      }
      if (paths.size() <= most) return paths;
    } else if (node.kind == Node::Kind::sequence) {
      std::vector<Path> paths{{}};
      for (const Node& child : node.children) {
        std::vector<Path> tails = pathsThrough(child, most);
        if (paths.size() * tails.size() > most) tails = {{&child}};
        std::vector<Path> longer;
        for (const Path& path : paths) {
          for (const Path& tail : tails) {
            longer.push_back(path);
            longer.back().insert(longer.back().end(), tail.begin(), tail.end());
          }
        }
        paths = std::move(longer);
      }
      return paths;
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
          if (!more || more->size() * literals.size() > maxJoined) return std::nullopt;
          literals = alphabet_.product(literals, *more);
        }
        return literals;
      case Node::Kind::alternatives:
        for (const Node& child : node.children) {
          const auto& more = literalsOf(child);
          if (!more || more->size() + literals.size() > maxLiterals) return std::nullopt;
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
          if (power.size() * once->size() > maxLiterals) return std::nullopt;
          power = alphabet_.product(power, *once);
        }
        if (literals.size() > maxLiterals) return std::nullopt;
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

  RequiredSequence cheapestSequence(const Path& path) {
    RequiredSequence cheapest;
    double reach = 0;
    for (const Node* node : path)
      reach += reachOf(*node);
    const double costOfMatch = leastCostOfMatch + costOfReach * std::min(reach, longestReach);
    const auto compare = [&](const Path& required) {
      for (const double limit : frequencyLimits) {
        RequiredSequence sequence = sequenceOf(required, limit);
        if (sequence.elements.empty()) break;
        sequence.costOfMatch = costOfMatch;
        sequence.cost = costOf(sequence);
        if (cheapest.elements.empty() || sequence.cost < cheapest.cost)
          cheapest = std::move(sequence);
      }
    };
    compare(path);
    for (auto node = path.begin(); node != path.end(); ++node)
      if ((*node)->kind == Node::Kind::lookAhead && !(*node)->negative)
        compare(into(Path(path.begin(), node), (*node)->children.front()));
    return cheapest;
  }

  /// The path that goes on with what a look-ahead asks for, not with what follows it.
  static Path into(Path path, const Node& ahead) {
    if (ahead.kind != Node::Kind::sequence) {
      path.push_back(&ahead);
    } else {
      for (const Node& child : ahead.children)
        path.push_back(&child);
    }
    return path;
  }

  /// About how many code points that is.
  static double charactersOf(const Distance& distance) {
    constexpr double charactersOfRun = 3;
    return std::min<double>(distance.steps, charactersOfRun * distance.runs);
  }

  /// How many code points the matcher may look at.
  double reachOf(const Node& node) {
    const bool isAhead = node.kind == Node::Kind::lookAhead;
    return charactersOf(width(isAhead ? node.children.front() : node));
  }

  [[nodiscard]] double costOf(const RequiredSequence& sequence) const {
    double cost = 0;
    double complete = 1;
    for (const RequiredElement& element : sequence.elements) {
      const double frequency = alphabet_.frequencyOf(element.literals);
      const bool isFirst = &element == &sequence.elements.front();
      cost += isFirst ? costOfFirstElement * frequency : frequency;
      complete *= isFirst ? frequency : std::min(1.0, frequency * charactersOf(element.distance));
    }
    return cost + complete * (costOfSequence + sequence.costOfMatch +
                              costOfStart * std::min(charactersOf(sequence.lead), longestWalk));
  }

  RequiredSequence sequenceOf(const Path& path, double frequencyLimit) {
    SequenceBuilder sequence(alphabet_, frequencyLimit);
    std::vector<std::uint64_t> leadClasses(ClassSets::wordsFor(classes_.count()));
    for (const Node* node : path) {
      if (sequence.isDone()) break;
      if (node->kind == Node::Kind::wordBoundary && !node->negative) {
        sequence.addBoundary();
        continue;
      }
      const auto& literals = literalsOf(*node);
      if (literals) {
        sequence.addLiterals(*literals);
      } else {
        sequence.endElement();
      }
      if (sequence.isInLead()) addClasses(*node, leadClasses);
      if (literals) continue;
      const auto& inner = innerElement(*node);
      if (inner && sequence.isRareEnough(inner->element.literals)) {
        sequence.addInner(*inner);
      } else {
        sequence.addGap(width(*node));
      }
    }
    return sequence.finish(std::move(leadClasses));
  }

  /// An element that every match of `node` contains somewhere.
  const std::optional<InnerElement>& innerElement(const Node& node) {
    if (const auto known = innerElements_.find(&node); known != innerElements_.end())
      return known->second;
    return innerElements_.emplace(&node, findInnerElement(node)).first->second;
  }

  std::optional<InnerElement> findInnerElement(const Node& node) {
    if (const auto& literals = literalsOf(node)) {
      if (literals->empty() || !alphabet_.isSelective(*literals)) return std::nullopt;
      return InnerElement{.element = {.literals = *literals}};
    }
    switch (node.kind) {
      case Node::Kind::sequence: {
        Path path;
        for (const Node& child : node.children)
          path.push_back(&child);
        const RequiredSequence sequence = sequenceOf(path, 1);
        if (sequence.elements.empty()) return std::nullopt;
        std::size_t best = 0;
        for (std::size_t i = 1; i < sequence.elements.size(); ++i)
          if (alphabet_.frequencyOf(sequence.elements[i].literals) <
              alphabet_.frequencyOf(sequence.elements[best].literals))
            best = i;
        InnerElement inner{
            .element = sequence.elements[best], .before = sequence.lead, .after = width(node)};
        for (std::size_t i = 0; i < best; ++i)
          inner.before = plus(plus(inner.before, alphabet_.longest(sequence.elements[i].literals)),
                              sequence.elements[i + 1].distance);
        return inner;
      }
      case Node::Kind::alternatives: {
        InnerElement all{.element = {.boundaryBefore = true, .boundaryAfter = true}};
        for (const Node& child : node.children) {
          const auto& inner = innerElement(child);
          if (!inner) return std::nullopt;
          all.element.boundaryBefore = all.element.boundaryBefore && inner->element.boundaryBefore;
          all.element.boundaryAfter = all.element.boundaryAfter && inner->element.boundaryAfter;
          all.element.literals.insert(all.element.literals.end(), inner->element.literals.begin(),
                                      inner->element.literals.end());
          all.before = larger(all.before, inner->before);
          all.after = larger(all.after, inner->after);
        }
        if (all.element.literals.size() > maxLiterals) return std::nullopt;
        return all;
      }
      case Node::Kind::repetition: {
        if (node.min == 0) return std::nullopt;
        auto inner = innerElement(node.children.front());
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
  // Cached, since every limit that is tried asks for the same nodes.
  std::unordered_map<const Node*, std::optional<Literals>> literalsOfNode_;
  std::unordered_map<const Node*, std::optional<InnerElement>> innerElements_;
  std::unordered_map<const Node*, Distance> widths_;
};

}  // namespace

RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                  const ClassPartition& classes) {
  return Analysis(sets, classes).of(pattern);
}

}  // namespace quillseal::screening
