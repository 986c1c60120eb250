// The memo table of the backtracker: how each (row, position) pair ended that was explored.
//
// Algorithm: two bits for each pair, in pages of one row and 4,096 positions that are allocated
// when they are first written, since a text may lead few instructions far ahead. Pages well before
// the current start are freed; a pair that is lost with them is explored once more.
// Bound: constant time for each access; a quarter of a byte for each pair in a page.
// Tests: ScreeningEngine.WorkGrowsLinearlyWithWhateverIsRepeated,
// ScreeningEngine.AgreesWithIcuOnEveryConstruct (texts of more than one page).

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/screening/match/WordBits.h"

namespace quillseal::screening {

/// How pairs of a row (an instruction, or what follows a loop) and a position ended.
class Memo {
 public:
  enum class Outcome : std::uint8_t { unknown, fails, succeeds };

  /// `rows`: of the program. REQUIRES: rows below it in all calls.
  explicit Memo(std::size_t rows) : rows_(rows) {}

  [[nodiscard]] Outcome outcome(std::uint32_t row, std::size_t position) const {
    const std::size_t page = pageOf(row, position);
    if (page >= pages_.size() || !pages_[page]) return Outcome::unknown;
    const std::size_t bit = position % pagePositions;
    if (hasBit(pages_[page], bit)) return Outcome::fails;
    return hasBit(pages_[page], bit + pagePositions) ? Outcome::succeeds : Outcome::unknown;
  }
  [[nodiscard]] bool hasFailed(std::uint32_t row, std::size_t position) const {
    return outcome(row, position) == Outcome::fails;
  }

  void storeFailure(std::uint32_t row, std::size_t position) {
    setBit(pageFor(row, position), position % pagePositions);
  }
  void storeSuccess(std::uint32_t row, std::size_t position) {
    setBit(pageFor(row, position), position % pagePositions + pagePositions);
  }

  /// Frees what is well before `position`: starts go back by a few sentences at most.
  void freeBefore(std::size_t position) {
    const std::size_t before = std::max(position, pagePositions) - pagePositions;
    const std::size_t end = std::min(pageOf(0, before), pages_.size());
    for (; firstPage_ < end; ++firstPage_)
      pages_[firstPage_].reset();
  }

 private:
  /// Of one row: a bit for each position that fails, then one for each that succeeds.
  using Page = std::unique_ptr<std::uint64_t[]>;
  static constexpr std::size_t pagePositions = 4096;

  [[nodiscard]] std::size_t pageOf(std::uint32_t row, std::size_t position) const {
    return position / pagePositions * rows_ + row;
  }
  Page& pageFor(std::uint32_t row, std::size_t position) {
    const std::size_t page = pageOf(row, position);
    if (page >= pages_.size()) pages_.resize(page + 1);
    if (!pages_[page]) pages_[page] = std::make_unique<std::uint64_t[]>(2 * pagePositions / 64);
    return pages_[page];
  }

  std::size_t rows_;
  std::size_t firstPage_ = 0;  ///< those before are freed
  std::vector<Page> pages_;    ///< by positions, then by row
};

}  // namespace quillseal::screening
