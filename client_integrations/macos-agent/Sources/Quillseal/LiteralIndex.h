#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "Quillseal/CharacterClasses.h"

namespace quillseal::screening {

/// Finds all occurrences of many literals in one pass over a classified text (Aho and Corasick,
/// "Efficient string matching", 1975, as a complete automaton). Literals are over folded letters; a
/// code point that folds to several letters counts as all of them.
class LiteralIndex {
 public:
  using State = std::uint32_t;
  static constexpr State root = 0;

  /// `value` is reported where `literal` (not empty, without `otherLetter`) ends.
  void add(std::span<const Letter> literal, std::uint32_t value);

  /// To be called once, after the last `add` and before the first `advance`.
  void finish(const CharacterClasses& classes);

  /// The state after a code point of class `id`.
  [[nodiscard]] State advance(State state, ClassId id) const {
    const Symbols symbols = symbols_[id];
    if (symbols.single != several) return next_[state * symbolCount_ + symbols.single];
    for (std::uint32_t i = 0; i < symbols.length; ++i)
      state = next_[state * symbolCount_ + sequences_[symbols.first + i]];
    return state;
  }

  /// Whether a literal ends in this state.
  [[nodiscard]] bool isHit(State state) const { return state >= firstHit_; }

  /// The values of the literals that end here. REQUIRES: isHit(state).
  [[nodiscard]] std::span<const std::uint32_t> values(State state) const {
    const std::size_t hit = state - firstHit_;
    return std::span(values_).subspan(valueStarts_[hit], valueStarts_[hit + 1] - valueStarts_[hit]);
  }

  [[nodiscard]] std::size_t memoryUse() const;

 private:
  /// The symbols of a class: one, or `length` of `sequences_`.
  struct Symbols {
    std::uint8_t single;
    std::uint8_t length;
    std::uint16_t first;
  };
  struct TrieNode {
    std::map<Letter, std::uint32_t> children;
    std::vector<std::uint32_t> values;
  };
  static constexpr std::uint8_t several = 0xFF;

  [[nodiscard]] std::vector<std::uint8_t> symbolsOf(Letter letter) const;
  void assignSymbols(const CharacterClasses& classes);

  std::vector<TrieNode> trie_{1};
  std::map<Letter, std::size_t> ranks_;  ///< by descending frequency
  std::size_t symbolCount_ = 1;
  std::vector<Symbols> symbols_;
  std::vector<std::uint8_t> sequences_;
  std::vector<std::uint16_t> next_;
  State firstHit_ = 0;
  std::vector<std::uint32_t> valueStarts_;
  std::vector<std::uint32_t> values_;
};

}  // namespace quillseal::screening
