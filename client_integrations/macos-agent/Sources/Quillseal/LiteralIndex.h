#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "Quillseal/CharacterClasses.h"

namespace quillseal::screening {

/// Finds all occurrences of many literals in one pass over a classified text (Aho and Corasick,
/// "Efficient string matching", 1975). Literals are over folded letters; a code point that folds to
/// several letters counts as all of them. The blank in a literal stands for any run of white space:
/// of such a run, only the first code point is to be passed to `advance`. States near the root have
/// a full row of successors, the many others only their own and a link to the state that goes on
/// for them.
class LiteralIndex {
 public:
  using State = std::uint16_t;

  /// `value` is reported where `literal` (not empty, without `otherLetter`) ends.
  void add(std::span<const Letter> literal, std::uint32_t value);

  /// To be called once, after the last `add` and before the first `advance`.
  void finish(const CharacterClasses& classes);

  /// Where a pass begins.
  [[nodiscard]] State root() const { return root_; }

  /// The state after a code point of class `id`.
  [[nodiscard]] State advance(State state, ClassId id) const {
    const Symbols symbols = symbols_[id];
    if (symbols.single != several) return after(state, symbols.single);
    for (std::uint32_t i = 0; i < symbols.length; ++i)
      state = after(state, sequences_[symbols.first + i]);
    return state;
  }

  /// Whether a literal ends in this state.
  [[nodiscard]] bool isHit(State state) const {
    return static_cast<State>(state - firstHit_) < hitCount_;
  }

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
  struct Literal {
    std::vector<Letter> letters;
    std::uint32_t value;
  };
  static constexpr std::uint8_t several = 0xFF;

  struct SparseState {
    std::uint16_t firstEdge;
    State failure;
  };
  struct Edge {
    std::uint16_t symbol;
    State target;
  };

  [[nodiscard]] State after(State state, std::uint8_t symbol) const {
    while (state >= fullCount_) {
      const SparseState& sparse = sparse_[state - fullCount_];
      const std::uint32_t end = (&sparse)[1].firstEdge;
      for (std::uint32_t edge = sparse.firstEdge; edge < end; ++edge)
        if (edges_[edge].symbol == symbol) return edges_[edge].target;
      state = sparse.failure;
    }
    return full_[std::size_t{state} * symbolCount_ + symbol];
  }
  [[nodiscard]] std::vector<std::uint8_t> symbolsOf(Letter letter) const;
  void assignSymbols(const CharacterClasses& classes);

  std::vector<Literal> literals_;        ///< until `finish`
  std::map<Letter, std::size_t> ranks_;  ///< by descending frequency
  std::size_t symbolCount_ = 1;
  std::vector<Symbols> symbols_;
  std::vector<std::uint8_t> sequences_;
  // Full states come first, and states with hits stand together where the two kinds meet.
  State root_ = 0;
  State fullCount_ = 0;
  State firstHit_ = 0;
  State hitCount_ = 0;
  std::vector<State> full_;
  std::vector<SparseState> sparse_;  ///< and one more for the end of the last one's edges
  std::vector<Edge> edges_;
  std::vector<std::uint32_t> valueStarts_;
  std::vector<std::uint32_t> values_;
};

}  // namespace quillseal::screening
