#include "Quillseal/LiteralIndex.h"

#include <algorithm>
#include <limits>

namespace quillseal::screening {
namespace {

// The commonest letters have a symbol each; any other is a pair of symbols, so that a row of the
// automaton stays short however many scripts the literals use. Symbol 0 is every other character.
constexpr std::size_t directLetters = 40;
constexpr std::size_t pairBase = 36;
constexpr std::size_t symbolTotal = 1 + directLetters + 2 * pairBase;

/// Most of a text leads to states no deeper than this.
constexpr std::uint32_t fullDepth = 2;

}  // namespace

void LiteralIndex::add(std::span<const Letter> literal, std::uint32_t value) {
  for (const Letter letter : literal)
    ++ranks_[letter];
  literals_.push_back({.letters = {literal.begin(), literal.end()}, .value = value});
}

std::vector<std::uint8_t> LiteralIndex::symbolsOf(Letter letter) const {
  const auto rank = ranks_.find(letter);
  if (rank == ranks_.end()) return {0};
  if (rank->second < directLetters) return {static_cast<std::uint8_t>(1 + rank->second)};
  const std::size_t pair = rank->second - directLetters;
  return {static_cast<std::uint8_t>(1 + directLetters + pair / pairBase),
          static_cast<std::uint8_t>(1 + directLetters + pairBase + pair % pairBase)};
}

void LiteralIndex::assignSymbols(const CharacterClasses& classes) {
  std::vector<std::pair<std::size_t, Letter>> byFrequency;
  for (const auto& [letter, frequency] : ranks_)
    byFrequency.emplace_back(frequency, letter);
  std::sort(byFrequency.rbegin(), byFrequency.rend());
  if (byFrequency.size() > directLetters + pairBase * pairBase)
    throw PatternError("too many different letters");
  for (std::size_t rank = 0; rank < byFrequency.size(); ++rank)
    ranks_[byFrequency[rank].second] = rank;

  symbolCount_ = symbolTotal;
  for (std::size_t id = 0; id < classes.count(); ++id) {
    std::vector<std::uint8_t> sequence;
    const Letter space[] = {classes.spaceLetter()};
    const auto letters = classes.isSpace(static_cast<ClassId>(id))
                             ? std::span<const Letter>(space)
                             : classes.folding(static_cast<ClassId>(id));
    for (const Letter letter : letters) {
      const auto symbols = symbolsOf(letter);
      sequence.insert(sequence.end(), symbols.begin(), symbols.end());
    }
    const bool isSingle = sequence.size() == 1;
    symbols_.push_back({.single = isSingle ? sequence.front() : several,
                        .length = static_cast<std::uint8_t>(sequence.size()),
                        .first = static_cast<std::uint16_t>(sequences_.size())});
    if (!isSingle) sequences_.insert(sequences_.end(), sequence.begin(), sequence.end());
  }
}

void LiteralIndex::finish(const CharacterClasses& classes) {
  assignSymbols(classes);

  // The trie over symbols.
  struct SymbolNode {
    std::vector<std::pair<std::uint8_t, std::uint32_t>> children;
    std::vector<std::uint32_t> values;
    std::uint32_t failure = 0;
    std::uint32_t depth = 0;

    [[nodiscard]] std::uint32_t child(std::uint8_t symbol) const {
      for (const auto& [own, node] : children)
        if (own == symbol) return node;
      return 0;
    }
  };
  std::vector<SymbolNode> nodes(1);
  for (const auto& [letters, value] : literals_) {
    std::uint32_t at = 0;
    for (const Letter letter : letters) {
      for (const std::uint8_t symbol : symbolsOf(letter)) {
        std::uint32_t next = nodes[at].child(symbol);
        if (next == 0) {
          next = static_cast<std::uint32_t>(nodes.size());
          nodes[at].children.emplace_back(symbol, next);
          nodes.emplace_back();
          nodes[next].depth = nodes[at].depth + 1;
        }
        at = next;
      }
    }
    auto& values = nodes[at].values;
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
  }
  literals_ = std::vector<Literal>();
  if (nodes.size() > std::numeric_limits<State>::max()) throw PatternError("too many literals");

  const auto after = [&](std::uint32_t node, std::uint8_t symbol) {
    for (;; node = nodes[node].failure) {
      const std::uint32_t child = nodes[node].child(symbol);
      if (child != 0 || node == 0) return child;
    }
  };
  // Breadth first, so that the failure of a node is complete before the node.
  std::vector<std::uint32_t> order{0};
  for (std::size_t i = 0; i < order.size(); ++i) {
    const std::uint32_t node = order[i];
    for (const auto& [symbol, child] : nodes[node].children) {
      if (node != 0) nodes[child].failure = after(nodes[node].failure, symbol);
      const auto& inherited = nodes[nodes[child].failure].values;
      nodes[child].values.insert(nodes[child].values.end(), inherited.begin(), inherited.end());
      order.push_back(child);
    }
  }

  const auto isFull = [&](std::uint32_t node) { return nodes[node].depth <= fullDepth; };
  const auto rank = [&](std::uint32_t node) {
    const bool isHit = !nodes[node].values.empty();
    return isFull(node) ? (isHit ? 1 : 0) : (isHit ? 2 : 3);
  };
  std::stable_sort(order.begin(), order.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return rank(a) < rank(b); });
  std::vector<State> numbers(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    numbers[order[i]] = static_cast<State>(i);
  root_ = numbers[0];
  for (const std::uint32_t node : order) {
    const SymbolNode& source = nodes[node];
    if (isFull(node)) {
      for (std::size_t symbol = 0; symbol < symbolCount_; ++symbol)
        full_.push_back(numbers[after(node, static_cast<std::uint8_t>(symbol))]);
    } else {
      sparse_.push_back({.firstEdge = static_cast<std::uint16_t>(edges_.size()),
                         .failure = numbers[source.failure]});
      for (const auto& [symbol, child] : source.children)
        edges_.push_back({.symbol = symbol, .target = numbers[child]});
    }
    if (source.values.empty()) continue;
    if (hitCount_++ == 0) firstHit_ = numbers[node];
    valueStarts_.push_back(static_cast<std::uint32_t>(values_.size()));
    values_.insert(values_.end(), source.values.begin(), source.values.end());
  }
  fullCount_ = static_cast<State>(full_.size() / symbolCount_);
  sparse_.push_back({.firstEdge = static_cast<std::uint16_t>(edges_.size()), .failure = root_});
  valueStarts_.push_back(static_cast<std::uint32_t>(values_.size()));
  full_.shrink_to_fit();
  valueStarts_.shrink_to_fit();
  values_.shrink_to_fit();
  sparse_.shrink_to_fit();
  edges_.shrink_to_fit();
}

std::size_t LiteralIndex::memoryUse() const {
  return sizeof(*this) + sparse_.capacity() * sizeof(SparseState) +
         edges_.capacity() * sizeof(Edge) + symbols_.capacity() * sizeof(Symbols) +
         sequences_.capacity() + full_.capacity() * sizeof(State) +
         (valueStarts_.capacity() + values_.capacity()) * sizeof(std::uint32_t);
}

}  // namespace quillseal::screening
