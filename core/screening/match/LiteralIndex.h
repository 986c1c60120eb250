// Finds every occurrence of many literals in one pass (Aho and Corasick, "Efficient string
// matching", 1975). It is the engine's main prefilter.
//
// Algorithm: a deterministic automaton over symbols. States near the root are dense: a row has the
// successor for each common symbol. The others keep only the edges that differ from those of the
// dense state they fall back on, the one along the literal first. A code point that folds to
// several letters (ß, ﬁ) is a multi-symbol edge: the automaton takes as many transitions.
// Bound: one transition for each letter of the folded text, which is at most three for each code
// point.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (foldings, white space in literals),
// ScreeningEngine.AgreesWithIcuOnEveryRule.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/screening/match/CharacterClasses.h"
#include "core/screening/match/StoredTables.h"

namespace quillseal::screening {

/// An automaton over symbols: the letters of the literals, commonest first, behind 0 for any other
/// character.
template <template <typename> typename Array>
struct LiteralIndexTable {
  using State = std::uint16_t;
  using Symbol = std::uint16_t;

  /// Symbols below this have a column in the rows of dense states.
  static constexpr std::size_t columns = 64;
  /// In `symbols`: more than one, which `expansions` has.
  static constexpr Symbol multiSymbol = 0xFFFF;

  /// The symbols of a class that folds to several letters.
  struct Expansion {
    ClassId id;
    std::uint16_t first;  ///< in `letters`
    std::uint16_t count;
  };
  // Dense states come first, and match states stand together where the two kinds meet.
  struct Layout {
    State root = 0;
    State denseCount = 0;
    State firstMatch = 0;
    State matchCount = 0;
  };
  struct Edge {
    Symbol symbol;
    State target;
  };
  /// What a state knows by itself. A dense state has a row besides, so that its edges are those of
  /// symbols without a column.
  struct Edges {
    Edge onward;  ///< along a literal, so met most; its symbol is `multiSymbol` when there is none
    State fallback;  ///< the dense state whose row has the other symbols with a column
    std::uint16_t count;
    std::uint32_t first;  ///< of the other edges
  };

  Layout layout;
  Array<Symbol> symbols;        ///< by class
  Array<Expansion> expansions;  ///< by ascending class
  Array<Symbol> letters;
  Array<State> rows;     ///< the successors of each dense state
  Array<State> rootRow;  ///< those of the root, for every symbol
  Array<Edges> states;
  Array<Edge> edges;
  Array<std::uint32_t> valueStarts;  ///< by match, and the end
  Array<std::uint16_t> values;

  void transfer(auto& archive) {
    archive(layout, symbols, expansions, letters, rows, rootRow, states, edges, valueStarts,
            values);
  }
};

/// Finds all occurrences of many literals in one pass over a classified text (Aho and Corasick,
/// "Efficient string matching", 1975). Literals are over folded letters; a code point that folds to
/// several letters counts as all of them. The blank in a literal stands for any run of white space:
/// of such a run, only the first code point is to be passed to `advance`. States near the root have
/// a full row of successors; the many others have few that are not those of such a state, too.
class LiteralIndex {
 public:
  using Table = LiteralIndexTable<Stored>;
  using State = Table::State;

  explicit LiteralIndex(TableReader& tables) { table_.transfer(tables); }

  /// Where a pass begins.
  [[nodiscard]] State root() const { return table_.layout.root; }

  /// Whether a code point of class `id` is several symbols.
  [[nodiscard]] bool isMultiSymbol(ClassId id) const {
    return table_.symbols[id] == Table::multiSymbol;
  }

  /// The state after a code point of class `id`.
  [[nodiscard]] State advance(State state, ClassId id) const {
    const Table::Symbol symbol = table_.symbols[id];
    return symbol != Table::multiSymbol ? successor(state, symbol) : successorAlong(state, id);
  }

  /// Whether a literal ends in this state.
  [[nodiscard]] bool isMatch(State state) const {
    return static_cast<State>(state - table_.layout.firstMatch) < table_.layout.matchCount;
  }

  /// The values of the literals that end here. REQUIRES: isMatch(state).
  [[nodiscard]] std::span<const std::uint16_t> values(State state) const {
    const std::size_t match = state - table_.layout.firstMatch;
    const std::uint32_t start = table_.valueStarts[match];
    return table_.values.subspan(start, table_.valueStarts[match + 1] - start);
  }

 private:
  [[nodiscard]] State successor(State state, Table::Symbol symbol) const {
    if (state == table_.layout.root || symbol == 0) return table_.rootRow[symbol];
    const bool hasColumn = symbol < Table::columns;
    if (!hasColumn || state >= table_.layout.denseCount) {
      const Table::Edges& edges = table_.states[state];
      if (edges.onward.symbol == symbol) return edges.onward.target;
      const Table::Edge* edge = table_.edges.data() + edges.first;
      for (const Table::Edge* const end = edge + edges.count; edge != end; ++edge)
        if (edge->symbol == symbol) return edge->target;
      if (!hasColumn) return table_.rootRow[symbol];
      state = edges.fallback;
    }
    return table_.rows[state * Table::columns + symbol];
  }

  [[nodiscard]] State successorAlong(State state, ClassId id) const {
    const auto expansion =
        std::lower_bound(table_.expansions.begin(), table_.expansions.end(), id,
                         [](const Table::Expansion& one, ClassId other) { return one.id < other; });
    for (const Table::Symbol symbol : table_.letters.subspan(expansion->first, expansion->count))
      state = successor(state, symbol);
    return state;
  }

  Table table_;
};

}  // namespace quillseal::screening
