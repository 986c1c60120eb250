// Builds the Aho-Corasick automaton of `LiteralIndex`.
//
// Algorithm: a trie of the literals; failure links in breadth-first order; then the layout. States
// of depth two or less whose letters are common are dense. Each other state stores the edges that
// differ from those of its nearest dense ancestor along the failure links. A leaf has no edges: it
// stores the first state along the failure links that is not a leaf. States are numbered so that
// those a row leads to come first, so that dense states, match states and leaves are adjacent, and
// so that the states of one literal lie side by side. The values of a state end with those of its
// failure, so most lists are the end of another one and are stored with it.
// Bound: time O(letters of all literals * symbols); at most 524,288 states, 65,535 of them near the
// root, more throws PatternError.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct, ScreeningEngine.AgreesWithIcuOnEveryRule,
// ScreeningEngine.LimitsTheStatesOfTheLiteralIndex.

#include "core/screening/compile/LiteralIndexBuilder.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <utility>

namespace quillseal::screening {
namespace {

using Table = LiteralIndexTable<Owned>;
using State = Table::State;
using Symbol = Table::Symbol;

/// Most of a text leads to states no deeper than this.
constexpr std::uint32_t denseDepth = 2;

/// The symbols of the letters, by descending frequency in the literals.
class SymbolCode {
 public:
  explicit SymbolCode(const std::map<Letter, std::size_t>& frequencies) {
    std::vector<std::pair<std::size_t, Letter>> byFrequency;
    byFrequency.reserve(frequencies.size());
    for (const auto& [letter, frequency] : frequencies)
      byFrequency.emplace_back(frequency, letter);
    std::sort(byFrequency.rbegin(), byFrequency.rend());
    for (const auto& [frequency, letter] : byFrequency)
      symbols_.emplace(letter, static_cast<Symbol>(symbols_.size() + 1));
  }

  [[nodiscard]] Symbol symbolOf(Letter letter) const {
    const auto symbol = symbols_.find(letter);
    return symbol == symbols_.end() ? Symbol{0} : symbol->second;
  }
  /// With that of every other character.
  [[nodiscard]] std::size_t count() const { return symbols_.size() + 1; }

 private:
  std::map<Letter, Symbol> symbols_;
};

/// The trie of the literals, with the links by which a failed search goes on.
class Trie {
 public:
  struct Node {
    std::vector<std::pair<Symbol, std::uint32_t>> children;
    std::vector<std::uint16_t> values;
    std::uint32_t failure = 0;
    std::uint32_t depth = 0;
    bool isDense = true;
    bool isNear = true;  ///< whether a row leads to it

    [[nodiscard]] std::uint32_t child(Symbol symbol) const {
      for (const auto& [own, node] : children)
        if (own == symbol) return node;
      return 0;
    }
    [[nodiscard]] bool isMatch() const { return !values.empty(); }
    [[nodiscard]] bool isLeaf() const { return depth > 0 && children.empty(); }
  };

  void add(std::span<const Symbol> symbols, std::uint16_t value) {
    std::uint32_t at = 0;
    for (const Symbol symbol : symbols) {
      std::uint32_t next = nodes_[at].child(symbol);
      if (next == 0) {
        next = static_cast<std::uint32_t>(nodes_.size());
        if (next == Table::maxStates)
          throw PatternError("the literals of all patterns need more than " +
                             std::to_string(Table::maxStates) +
                             " states; shorten or merge some patterns");
        nodes_[at].children.emplace_back(symbol, next);
        nodes_.emplace_back();
        nodes_[next].depth = nodes_[at].depth + 1;
        nodes_[next].isDense =
            nodes_[at].isDense && symbol < Table::columns && nodes_[next].depth <= denseDepth;
        nodes_[next].isNear = nodes_[at].isDense;
      }
      at = next;
    }
    auto& values = nodes_[at].values;
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
  }

  /// Links the nodes; all of them, in the order in which the states are to be numbered.
  std::vector<std::uint32_t> finish() {
    for (Node& node : nodes_)
      node.isDense = node.isDense && !node.isLeaf();
    link();
    // Depth first, so that the states along a literal lie side by side.
    std::vector<std::uint32_t> order;
    std::vector<std::uint32_t> open{0};
    while (!open.empty()) {
      order.push_back(open.back());
      open.pop_back();
      for (const auto& [symbol, child] : nodes_[order.back()].children)
        open.push_back(child);
    }
    std::stable_sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
      return rank(nodes_[a]) < rank(nodes_[b]);
    });
    const auto isFar = [this](std::uint32_t number) { return !nodes_[number].isNear; };
    if (std::ranges::find_if(order, isFar) - order.begin() >
        std::numeric_limits<Table::NearState>::max())
      throw PatternError("the literals of all patterns begin in too many ways");
    return order;
  }

  [[nodiscard]] std::uint32_t successor(std::uint32_t node, Symbol symbol) const {
    for (;; node = nodes_[node].failure) {
      const std::uint32_t child = nodes_[node].child(symbol);
      if (child != 0 || node == 0) return child;
    }
  }

  /// The node as which a search goes on behind a leaf.
  [[nodiscard]] std::uint32_t goingOn(std::uint32_t leaf) const {
    while (nodes_[leaf].isLeaf())
      leaf = nodes_[leaf].failure;
    return leaf;
  }

  [[nodiscard]] const Node& node(std::uint32_t number) const { return nodes_[number]; }
  [[nodiscard]] std::size_t size() const { return nodes_.size(); }

 private:
  /// The kinds of states by the order of their numbers.
  static int rank(const Node& node) {
    enum { other, dense, denseMatch, match, nearLeaf, farLeaf, farMatch, farOther };
    if (node.isDense) return node.isMatch() ? denseMatch : dense;
    if (node.isLeaf()) return node.isNear ? nearLeaf : farLeaf;
    if (node.isMatch()) return node.isNear ? match : farMatch;
    return node.isNear ? other : farOther;
  }

  void link() {
    // Breadth first, so that the failure of a node is complete before the node.
    std::vector<std::uint32_t> order{0};
    for (std::size_t i = 0; i < order.size(); ++i) {
      const std::uint32_t node = order[i];
      for (const auto& [symbol, child] : nodes_[node].children) {
        if (node != 0) nodes_[child].failure = successor(nodes_[node].failure, symbol);
        const auto& inherited = nodes_[nodes_[child].failure].values;
        auto& values = nodes_[child].values;
        values.insert(values.end(), inherited.begin(), inherited.end());
        order.push_back(child);
      }
    }
  }

  std::vector<Node> nodes_ = std::vector<Node>(1);
};

void fillSymbols(Table& table, const SymbolCode& code, const ClassPartition& classes) {
  for (std::size_t i = 0; i < classes.count(); ++i) {
    const auto id = static_cast<ClassId>(i);
    const Letter space[] = {classes.spaceLetter()};
    const auto letters = classes.isSpace(id) ? std::span<const Letter>(space) : classes.folding(id);
    table.symbols.push_back(letters.size() == 1 ? code.symbolOf(letters.front())
                                                : Table::multiSymbol);
    if (letters.size() == 1) continue;
    table.expansions.push_back({.id = id,
                                .first = static_cast<std::uint16_t>(table.letters.size()),
                                .count = static_cast<std::uint16_t>(letters.size())});
    for (const Letter letter : letters)
      table.letters.push_back(code.symbolOf(letter));
  }
}

/// Where lists of edges begin in the table.
using EdgeLists = std::map<std::vector<std::pair<Symbol, State>>, std::uint32_t>;

/// The edges of the node and of all it falls back on, down to one with a row that has the rest.
/// Those of the root for symbols without a column are in a row of their own. States that fall back
/// on the same one mostly share a list.
void addEdges(Table& table, EdgeLists& lists, const Trie& trie, std::uint32_t number,
              const std::vector<State>& numbers) {
  std::map<Symbol, State> edges;
  std::uint32_t fallback = 0;
  for (std::uint32_t at = number; at != 0; at = trie.node(at).failure) {
    if (fallback == 0 && trie.node(at).isDense) fallback = at;
    for (const auto& [symbol, child] : trie.node(at).children)
      if (fallback == 0 || symbol >= Table::columns) edges.emplace(symbol, numbers[child]);
  }
  const auto& children = trie.node(number).children;
  auto onward = children.empty() ? edges.begin() : edges.find(children.front().first);
  if (onward == edges.end()) onward = edges.begin();
  Table::Edges state{.onward = {Table::noSymbol, 0},
                     .row = static_cast<std::uint16_t>(numbers[fallback] - table.layout.firstDense),
                     .count = 0,
                     .first = 0};
  if (onward != edges.end()) {
    state.onward = {onward->first, onward->second};
    edges.erase(onward);
  }
  state.count = static_cast<std::uint16_t>(edges.size());
  const auto [list, isNew] = lists.try_emplace({edges.begin(), edges.end()},
                                               static_cast<std::uint32_t>(table.edges.size()));
  state.first = list->second;
  if (isNew)
    for (const auto& [symbol, target] : edges)
      table.edges.emplace_back(symbol, target);
  table.states.push_back(state);
}

/// Stores the values of match states. A list that is the end of another one shares its place.
void fillValues(Table& table, const Trie& trie, std::span<const std::uint32_t> matches) {
  using Values = std::span<const std::uint16_t>;
  std::vector<Values> longestFirst;
  for (const std::uint32_t number : matches)
    longestFirst.emplace_back(trie.node(number).values);
  const auto isLonger = [](Values a, Values b) { return a.size() > b.size(); };
  std::ranges::stable_sort(longestFirst, isLonger);
  const auto isLess = [](Values a, Values b) { return std::ranges::lexicographical_compare(a, b); };
  std::map<Values, std::size_t, decltype(isLess)> places;
  for (const Values list : longestFirst) {
    if (places.contains(list)) continue;
    for (std::size_t i = 0; i < list.size(); ++i)
      places.try_emplace(list.subspan(i), table.values.size() + i);
    table.values.insert(table.values.end(), list.begin(), list.end());
  }
  for (const std::uint32_t number : matches) {
    const Values list = trie.node(number).values;
    const std::size_t place = places.at(list);
    if (list.size() > Table::ValueList::maxCount || place > Table::ValueList::maxFirst)
      throw PatternError("too many patterns have the same literals");
    table.valueLists.emplace_back(static_cast<std::uint32_t>(place),
                                  static_cast<std::uint32_t>(list.size()));
  }
}

void fillStates(Table& table, Trie& trie, std::size_t symbolCount) {
  const std::vector<std::uint32_t> order = trie.finish();
  std::vector<State> numbers(trie.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    numbers[order[i]] = static_cast<State>(i);
  auto& layout = table.layout;
  const auto place = [&](State& first, State& count, auto predicate) {
    const auto is = [&](std::uint32_t number) { return std::invoke(predicate, trie.node(number)); };
    first = static_cast<State>(std::ranges::find_if(order, is) - order.begin());
    count = static_cast<State>(std::ranges::count_if(order, is));
  };
  layout.root = numbers[0];
  place(layout.firstDense, layout.denseCount, [](const Trie::Node& node) { return node.isDense; });
  place(layout.firstMatch, layout.matchCount, &Trie::Node::isMatch);
  place(layout.firstLeaf, layout.leafCount, &Trie::Node::isLeaf);
  EdgeLists lists;
  const auto successorOf = [&](std::uint32_t node, std::size_t symbol) {
    return static_cast<Table::NearState>(
        numbers[trie.successor(node, static_cast<Symbol>(symbol))]);
  };
  for (std::size_t symbol = 0; symbol < symbolCount; ++symbol)
    table.rootRow.push_back(successorOf(0, symbol));
  for (const std::uint32_t number : order) {
    const Trie::Node& node = trie.node(number);
    if (node.isDense)
      for (std::size_t symbol = 0; symbol < Table::columns; ++symbol)
        table.rows.push_back(successorOf(number, symbol));
    if (node.isLeaf()) {
      table.leaves.push_back(numbers[trie.goingOn(number)]);
    } else {
      addEdges(table, lists, trie, number, numbers);
    }
  }
  fillValues(table, trie, std::span(order).subspan(layout.firstMatch, layout.matchCount));
}

}  // namespace

void LiteralIndexBuilder::add(std::span<const Letter> literal, std::uint16_t value) {
  literals_.push_back({.letters = {literal.begin(), literal.end()}, .value = value});
}

LiteralIndexTable<Owned> LiteralIndexBuilder::build(const ClassPartition& classes) const {
  std::map<Letter, std::size_t> frequencies;
  for (const Literal& literal : literals_)
    for (const Letter letter : literal.letters)
      ++frequencies[letter];
  const SymbolCode code(frequencies);
  Table table;
  fillSymbols(table, code, classes);
  Trie trie;
  for (const auto& [letters, value] : literals_) {
    std::vector<Symbol> symbols;
    symbols.reserve(letters.size());
    for (const Letter letter : letters)
      symbols.push_back(code.symbolOf(letter));
    trie.add(symbols, value);
  }
  fillStates(table, trie, code.count());
  return table;
}

}  // namespace quillseal::screening
