#include "Quillseal/LiteralIndex.h"

#include <algorithm>
#include <limits>

namespace quillseal::screening {
namespace {

// The commonest letters have a symbol each; any other is a pair of symbols, so that a row of the
// automaton stays short however many scripts the literals use. Symbol 0 is every other character.
constexpr std::size_t directLetters = 56;
constexpr std::size_t pairBase = 24;
constexpr std::size_t symbolTotal = 1 + directLetters + 2 * pairBase;

}  // namespace

void LiteralIndex::add(std::span<const Letter> literal, std::uint32_t value) {
  std::uint32_t node = 0;
  for (const Letter letter : literal) {
    ++ranks_[letter];
    const auto [child, isNew] =
        trie_[node].children.try_emplace(letter, static_cast<std::uint32_t>(trie_.size()));
    node = child->second;
    if (isNew) trie_.emplace_back();
  }
  auto& values = trie_[node].values;
  if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
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
  for (ClassId id = 0; id < classes.count(); ++id) {
    std::vector<std::uint8_t> sequence;
    for (const Letter letter : classes.folding(id)) {
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

  // The trie over symbols, in breadth-first order with its failure links.
  struct SymbolNode {
    std::vector<std::uint32_t> next = std::vector<std::uint32_t>(symbolTotal);
    std::vector<std::uint32_t> values;
    std::uint32_t failure = 0;
  };
  std::vector<SymbolNode> nodes(1);
  const auto insert = [&](const auto& self, std::uint32_t from, std::uint32_t to) -> void {
    nodes[to].values = trie_[from].values;
    for (const auto& [letter, child] : trie_[from].children) {
      std::uint32_t at = to;
      for (const std::uint8_t symbol : symbolsOf(letter)) {
        if (nodes[at].next[symbol] == 0) {
          nodes[at].next[symbol] = static_cast<std::uint32_t>(nodes.size());
          nodes.emplace_back();
        }
        at = nodes[at].next[symbol];
      }
      self(self, child, at);
    }
  };
  insert(insert, 0, 0);
  trie_.clear();
  if (nodes.size() > std::numeric_limits<std::uint16_t>::max())
    throw PatternError("too many literals");

  std::vector<std::uint32_t> order;
  for (const std::uint32_t child : nodes[0].next)
    if (child != 0) order.push_back(child);
  for (std::size_t i = 0; i < order.size(); ++i) {
    const std::uint32_t node = order[i];
    const SymbolNode& failure = nodes[nodes[node].failure];
    nodes[node].values.insert(nodes[node].values.end(), failure.values.begin(),
                              failure.values.end());
    for (std::size_t symbol = 0; symbol < symbolTotal; ++symbol) {
      const std::uint32_t child = nodes[node].next[symbol];
      const std::uint32_t fallback = failure.next[symbol];
      if (child == 0) {
        nodes[node].next[symbol] = fallback;
      } else {
        nodes[child].failure = fallback;
        order.push_back(child);
      }
    }
  }
  order.insert(order.begin(), 0);

  // States with hits come last, so that one comparison finds them.
  std::stable_partition(order.begin(), order.end(),
                        [&](std::uint32_t node) { return nodes[node].values.empty(); });
  std::vector<std::uint16_t> numbers(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    numbers[order[i]] = static_cast<std::uint16_t>(i);
  firstHit_ = static_cast<State>(order.size());
  next_.reserve(order.size() * symbolTotal);
  for (std::size_t i = 0; i < order.size(); ++i) {
    const SymbolNode& node = nodes[order[i]];
    for (const std::uint32_t target : node.next)
      next_.push_back(numbers[target]);
    if (node.values.empty()) continue;
    firstHit_ = std::min(firstHit_, static_cast<State>(i));
    valueStarts_.push_back(static_cast<std::uint32_t>(values_.size()));
    values_.insert(values_.end(), node.values.begin(), node.values.end());
  }
  valueStarts_.push_back(static_cast<std::uint32_t>(values_.size()));
}

std::size_t LiteralIndex::memoryUse() const {
  return sizeof(*this) + next_.capacity() * sizeof(std::uint16_t) +
         symbols_.capacity() * sizeof(Symbols) + sequences_.capacity() +
         (valueStarts_.capacity() + values_.capacity()) * sizeof(std::uint32_t);
}

}  // namespace quillseal::screening
