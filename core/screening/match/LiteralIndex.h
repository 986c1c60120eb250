// Finds every occurrence of many literals in one pass (Aho and Corasick, "Efficient string
// matching", 1975). It is the engine's main prefilter.
//
// Algorithm: a deterministic automaton over symbols. States near the root are dense: a row has the
// successor for each common symbol. The others keep only the edges that differ from those of the
// dense state they fall back on, the one along the literal first. Where no literal goes on, a state
// is a leaf: it has no edges and says which other state the pass goes on in. A code point that
// folds to several letters (ß, ﬁ) is a multi-symbol edge: the automaton takes as many transitions.
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
  using State = std::uint32_t;
  using NearState = std::uint16_t;  ///< a state to which a row leads
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
  // Near states come first, the others behind them. Match states stand together where the two
  // kinds meet, and leaves, which are match states, do so among these.
  struct Layout {
    State root = 0;
    State firstDense = 0;
    State denseCount = 0;
    State firstMatch = 0;
    State matchCount = 0;
    State firstLeaf = 0;
    State leafCount = 0;
  };
  /// A symbol and a state in one word. There are fewer symbols than classes.
  class Edge {
   public:
    Edge(Symbol symbol, State target) : bits_(State{symbol} << stateBits | target) {}

    [[nodiscard]] bool isFor(Symbol symbol) const { return bits_ >> stateBits == symbol; }
    [[nodiscard]] State target() const { return bits_ & (maxStates - 1); }

    static constexpr unsigned stateBits = 19;
    static_assert(ClassifiedText::classMask < State{1} << (32 - stateBits));

   private:
    std::uint32_t bits_;
  };
  static constexpr State maxStates = State{1} << Edge::stateBits;
  /// That of an edge that no symbol takes.
  static constexpr Symbol noSymbol = ClassifiedText::classMask;

  /// What a state knows by itself. A dense state has a row besides, so that its edges are those of
  /// symbols without a column.
  struct Edges {
    Edge onward;        ///< along a literal, so met most; for `noSymbol` when there is none
    std::uint16_t row;  ///< of the dense state it falls back on, for other symbols with a column
    std::uint16_t count;
    std::uint32_t first;  ///< of the other edges
  };
  /// The place of a list in `values`, and its length, in one word.
  class ValueList {
   public:
    ValueList(std::uint32_t first, std::uint32_t count) : bits_(first << countBits | count) {}

    [[nodiscard]] std::uint32_t first() const { return bits_ >> countBits; }
    [[nodiscard]] std::uint32_t count() const { return bits_ & maxCount; }

    static constexpr unsigned countBits = 10;
    static constexpr std::uint32_t maxCount = (1U << countBits) - 1;
    static constexpr std::uint32_t maxFirst = (1U << (32 - countBits)) - 1;

   private:
    std::uint32_t bits_;
  };

  Layout layout;
  Array<Symbol> symbols;        ///< by class
  Array<Expansion> expansions;  ///< by ascending class
  Array<Symbol> letters;
  Array<NearState> rows;     ///< the successors of each dense state
  Array<NearState> rootRow;  ///< those of the root, for every symbol
  Array<Edges> states;       ///< without the leaves
  Array<Edge> edges;
  Array<State> leaves;          ///< by leaf: the state that it goes on as
  Array<ValueList> valueLists;  ///< by match
  Array<std::uint16_t> values;

  void transfer(auto& archive) {
    archive(layout, symbols, expansions, letters, rows, rootRow, states, edges, leaves, valueLists,
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

  /// The state after a code point of class `id`. REQUIRES: `state` is the root, or `behindMatch` of
  /// the latest state where that is a match.
  [[nodiscard]] State advance(State state, ClassId id) const {
    const Table::Symbol symbol = table_.symbols[id];
    return symbol != Table::multiSymbol ? successor(state, symbol) : successorAlong(state, id);
  }

  /// Whether a literal ends in this state.
  [[nodiscard]] bool isMatch(State state) const {
    return state - table_.layout.firstMatch < table_.layout.matchCount;
  }

  /// The values of the literals that end here. REQUIRES: isMatch(state).
  [[nodiscard]] std::span<const std::uint16_t> values(State state) const {
    const Table::ValueList& list = table_.valueLists[state - table_.layout.firstMatch];
    return table_.values.subspan(list.first(), list.count());
  }

  /// The state from which to advance behind a match; any other one as it is.
  [[nodiscard]] State behindMatch(State state) const {
    return isLeaf(state) ? table_.leaves[state - table_.layout.firstLeaf] : state;
  }

 private:
  [[nodiscard]] bool isLeaf(State state) const {
    return state - table_.layout.firstLeaf < table_.layout.leafCount;
  }

  [[nodiscard]] State successor(State state, Table::Symbol symbol) const {
    if (state == table_.layout.root || symbol == 0) return table_.rootRow[symbol];
    const bool hasColumn = symbol < Table::columns;
    State row = state - table_.layout.firstDense;
    if (!hasColumn || row >= table_.layout.denseCount) {
      const State leavesBefore = state < table_.layout.firstLeaf ? 0 : table_.layout.leafCount;
      const Table::Edges& edges = table_.states[state - leavesBefore];
      if (edges.onward.isFor(symbol)) return edges.onward.target();
      const Table::Edge* edge = table_.edges.data() + edges.first;
      for (const Table::Edge* const end = edge + edges.count; edge != end; ++edge)
        if (edge->isFor(symbol)) return edge->target();
      if (!hasColumn) return table_.rootRow[symbol];
      row = edges.row;
    }
    return table_.rows[row * Table::columns + symbol];
  }

  [[nodiscard]] State successorAlong(State state, ClassId id) const {
    const auto expansion =
        std::lower_bound(table_.expansions.begin(), table_.expansions.end(), id,
                         [](const Table::Expansion& one, ClassId other) { return one.id < other; });
    for (const Table::Symbol symbol : table_.letters.subspan(expansion->first, expansion->count))
      state = successor(behindMatch(state), symbol);
    return state;
  }

  Table table_;
};

}  // namespace quillseal::screening
