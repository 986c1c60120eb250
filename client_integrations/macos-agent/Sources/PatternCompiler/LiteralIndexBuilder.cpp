#include "PatternCompiler/LiteralIndexBuilder.h"

#include <algorithm>
#include <limits>

namespace quillseal::screening {
namespace {

using Table = LiteralIndexTable<Owned>;
using State = Table::State;
using Symbol = std::uint8_t;

// The commonest letters have a symbol each; any other is a pair of symbols, so that a row of the
// automaton stays short however many scripts the literals use. Symbol 0 is every other character.
constexpr std::size_t directLetters = 40;
constexpr std::size_t pairBase = 36;
constexpr std::size_t symbolTotal = 1 + directLetters + 2 * pairBase;

/// Most of a text leads to states no deeper than this.
constexpr std::uint32_t fullDepth = 2;

/// The symbols of letters, chosen by how often the letters occur.
class SymbolCode {
 public:
  explicit SymbolCode(const std::map<Letter, std::size_t>& frequencies) {
    std::vector<std::pair<std::size_t, Letter>> byFrequency;
    byFrequency.reserve(frequencies.size());
    for (const auto& [letter, frequency] : frequencies)
      byFrequency.emplace_back(frequency, letter);
    std::sort(byFrequency.rbegin(), byFrequency.rend());
    if (byFrequency.size() > directLetters + pairBase * pairBase)
      throw PatternError("too many different letters");
    for (std::size_t rank = 0; rank < byFrequency.size(); ++rank)
      ranks_[byFrequency[rank].second] = rank;
  }

  [[nodiscard]] std::vector<Symbol> symbolsOf(Letter letter) const {
    const auto rank = ranks_.find(letter);
    if (rank == ranks_.end()) return {0};
    if (rank->second < directLetters) return {static_cast<Symbol>(1 + rank->second)};
    const std::size_t pair = rank->second - directLetters;
    return {static_cast<Symbol>(1 + directLetters + pair / pairBase),
            static_cast<Symbol>(1 + directLetters + pairBase + pair % pairBase)};
  }

 private:
  std::map<Letter, std::size_t> ranks_;
};

/// The trie of the literals, with the links by which a failed search goes on.
class Trie {
 public:
  struct Node {
    std::vector<std::pair<Symbol, std::uint32_t>> children;
    std::vector<std::uint32_t> values;
    std::uint32_t failure = 0;
    std::uint32_t depth = 0;

    [[nodiscard]] std::uint32_t child(Symbol symbol) const {
      for (const auto& [own, node] : children)
        if (own == symbol) return node;
      return 0;
    }
    [[nodiscard]] bool isFull() const { return depth <= fullDepth; }
    [[nodiscard]] bool isHit() const { return !values.empty(); }
  };

  void add(std::span<const Symbol> symbols, std::uint32_t value) {
    std::uint32_t at = 0;
    for (const Symbol symbol : symbols) {
      std::uint32_t next = nodes_[at].child(symbol);
      if (next == 0) {
        next = static_cast<std::uint32_t>(nodes_.size());
        if (next >= std::numeric_limits<State>::max()) throw PatternError("too many literals");
        nodes_[at].children.emplace_back(symbol, next);
        nodes_.emplace_back();
        nodes_[next].depth = nodes_[at].depth + 1;
      }
      at = next;
    }
    auto& values = nodes_[at].values;
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
  }

  /// Links the nodes; all of them, in the order in which the states are to be numbered.
  std::vector<std::uint32_t> finish() {
    // Breadth first, so that the failure of a node is complete before the node.
    std::vector<std::uint32_t> order{0};
    for (std::size_t i = 0; i < order.size(); ++i) {
      const std::uint32_t node = order[i];
      for (const auto& [symbol, child] : nodes_[node].children) {
        if (node != 0) nodes_[child].failure = after(nodes_[node].failure, symbol);
        const auto& inherited = nodes_[nodes_[child].failure].values;
        auto& values = nodes_[child].values;
        values.insert(values.end(), inherited.begin(), inherited.end());
        order.push_back(child);
      }
    }
    const auto rank = [this](std::uint32_t node) {
      const bool isHit = nodes_[node].isHit();
      return nodes_[node].isFull() ? (isHit ? 1 : 0) : (isHit ? 2 : 3);
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return rank(a) < rank(b); });
    return order;
  }

  [[nodiscard]] std::uint32_t after(std::uint32_t node, Symbol symbol) const {
    for (;; node = nodes_[node].failure) {
      const std::uint32_t child = nodes_[node].child(symbol);
      if (child != 0 || node == 0) return child;
    }
  }

  [[nodiscard]] const Node& node(std::uint32_t number) const { return nodes_[number]; }
  [[nodiscard]] std::size_t size() const { return nodes_.size(); }

 private:
  std::vector<Node> nodes_ = std::vector<Node>(1);
};

void fillSymbols(Table& table, const SymbolCode& code, const ClassPartition& classes) {
  for (std::size_t id = 0; id < classes.count(); ++id) {
    std::vector<Symbol> sequence;
    const Letter space[] = {classes.spaceLetter()};
    const auto letters = classes.isSpace(static_cast<ClassId>(id))
                             ? std::span<const Letter>(space)
                             : classes.folding(static_cast<ClassId>(id));
    for (const Letter letter : letters) {
      const auto symbols = code.symbolsOf(letter);
      sequence.insert(sequence.end(), symbols.begin(), symbols.end());
    }
    const bool isSingle = sequence.size() == 1;
    table.symbols.push_back({.single = isSingle ? sequence.front() : Table::several,
                             .length = static_cast<std::uint8_t>(sequence.size()),
                             .first = static_cast<std::uint16_t>(table.sequences.size())});
    if (!isSingle) table.sequences.insert(table.sequences.end(), sequence.begin(), sequence.end());
  }
}

void fillStates(Table& table, Trie& trie) {
  const std::vector<std::uint32_t> order = trie.finish();
  std::vector<State> numbers(trie.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    numbers[order[i]] = static_cast<State>(i);
  auto& layout = table.layout;
  layout.symbolCount = symbolTotal;
  layout.root = numbers[0];
  for (const std::uint32_t number : order) {
    const Trie::Node& node = trie.node(number);
    if (node.isFull()) {
      ++layout.fullCount;
      for (std::size_t symbol = 0; symbol < symbolTotal; ++symbol)
        table.full.push_back(numbers[trie.after(number, static_cast<Symbol>(symbol))]);
    } else {
      table.sparse.push_back({.firstEdge = static_cast<std::uint16_t>(table.edges.size()),
                              .failure = numbers[node.failure]});
      for (const auto& [symbol, child] : node.children)
        table.edges.push_back({.symbol = symbol, .target = numbers[child]});
    }
    if (!node.isHit()) continue;
    if (layout.hitCount++ == 0) layout.firstHit = numbers[number];
    table.valueStarts.push_back(static_cast<std::uint32_t>(table.values.size()));
    table.values.insert(table.values.end(), node.values.begin(), node.values.end());
  }
  table.sparse.push_back(
      {.firstEdge = static_cast<std::uint16_t>(table.edges.size()), .failure = layout.root});
  table.valueStarts.push_back(static_cast<std::uint32_t>(table.values.size()));
}

}  // namespace

void LiteralIndexBuilder::add(std::span<const Letter> literal, std::uint32_t value) {
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
    for (const Letter letter : letters) {
      const auto more = code.symbolsOf(letter);
      symbols.insert(symbols.end(), more.begin(), more.end());
    }
    trie.add(symbols, value);
  }
  fillStates(table, trie);
  return table;
}

}  // namespace quillseal::screening
