#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "core/screening/compile/ClassPartition.h"
#include "core/screening/match/LiteralIndex.h"

namespace quillseal::screening {

/// Builds the automaton of a `LiteralIndex`.
class LiteralIndexBuilder {
 public:
  /// `value` is reported where `literal` (not empty, without `otherLetter`) ends.
  void add(std::span<const Letter> literal, std::uint16_t value);

  /// The automaton over what was added. Throws PatternError when it is too large.
  [[nodiscard]] LiteralIndexTable<Owned> build(const ClassPartition& classes) const;

 private:
  struct Literal {
    std::vector<Letter> letters;
    std::uint16_t value;
  };

  std::vector<Literal> literals_;
};

}  // namespace quillseal::screening
