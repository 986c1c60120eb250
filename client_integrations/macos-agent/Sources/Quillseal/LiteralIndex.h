#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "Quillseal/CharacterClasses.h"
#include "Quillseal/StoredTables.h"

namespace quillseal::screening {

/// An automaton over symbols, of which every class of code points is one, none or several.
template <template <typename> typename Array>
struct LiteralIndexTable {
  using State = std::uint16_t;

  /// The symbols of a class: one, or `length` of `sequences`.
  struct Symbols {
    std::uint8_t single;  ///< or `several`
    std::uint8_t length;
    std::uint16_t first;
  };
  static constexpr std::uint8_t several = 0xFF;

  // Full states come first, and states with hits stand together where the two kinds meet.
  struct Layout {
    State symbolCount = 1;
    State root = 0;
    State fullCount = 0;
    State firstHit = 0;
    State hitCount = 0;
  };
  struct SparseState {
    std::uint16_t firstEdge;
    State failure;
  };
  struct Edge {
    std::uint16_t symbol;
    State target;
  };

  Layout layout;
  Array<Symbols> symbols;
  Array<std::uint8_t> sequences;
  Array<State> full;          ///< the successors of each full state
  Array<SparseState> sparse;  ///< and one more for the end of the last one's edges
  Array<Edge> edges;
  Array<std::uint32_t> valueStarts;  ///< by hit, and the end
  Array<std::uint32_t> values;

  void transfer(auto& archive) {
    archive(layout, symbols, sequences, full, sparse, edges, valueStarts, values);
  }
};

/// Finds all occurrences of many literals in one pass over a classified text (Aho and Corasick,
/// "Efficient string matching", 1975). Literals are over folded letters; a code point that folds to
/// several letters counts as all of them. The blank in a literal stands for any run of white space:
/// of such a run, only the first code point is to be passed to `advance`. States near the root have
/// a full row of successors, the many others only their own and a link to the state that goes on
/// for them.
class LiteralIndex {
 public:
  using Table = LiteralIndexTable<Stored>;
  using State = Table::State;

  explicit LiteralIndex(TableReader& tables) { table_.transfer(tables); }

  /// Where a pass begins.
  [[nodiscard]] State root() const { return table_.layout.root; }

  /// The state after a code point of class `id`.
  [[nodiscard]] State advance(State state, ClassId id) const {
    const Table::Symbols symbols = table_.symbols[id];
    if (symbols.single != Table::several) return after(state, symbols.single);
    for (std::uint32_t i = 0; i < symbols.length; ++i)
      state = after(state, table_.sequences[symbols.first + i]);
    return state;
  }

  /// Whether a literal ends in this state.
  [[nodiscard]] bool isHit(State state) const {
    return static_cast<State>(state - table_.layout.firstHit) < table_.layout.hitCount;
  }

  /// The values of the literals that end here. REQUIRES: isHit(state).
  [[nodiscard]] std::span<const std::uint32_t> values(State state) const {
    const std::size_t hit = state - table_.layout.firstHit;
    const std::uint32_t start = table_.valueStarts[hit];
    return table_.values.subspan(start, table_.valueStarts[hit + 1] - start);
  }

 private:
  [[nodiscard]] State after(State state, std::uint8_t symbol) const {
    while (state >= table_.layout.fullCount) {
      const Table::SparseState& sparse = table_.sparse[state - table_.layout.fullCount];
      const std::uint32_t end = (&sparse)[1].firstEdge;
      for (std::uint32_t edge = sparse.firstEdge; edge < end; ++edge)
        if (table_.edges[edge].symbol == symbol) return table_.edges[edge].target;
      state = sparse.failure;
    }
    return table_.full[std::size_t{state} * table_.layout.symbolCount + symbol];
  }

  Table table_;
};

}  // namespace quillseal::screening
