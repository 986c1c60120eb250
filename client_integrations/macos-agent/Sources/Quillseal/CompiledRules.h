#pragma once

#include <cstddef>
#include <span>

namespace quillseal::screening {

/// The tables of all rules, in table order, and of the reporting cue behind them, for a
/// `ScreeningEngine`. Written when the program is built.
[[nodiscard]] std::span<const std::byte> compiledRules();

}  // namespace quillseal::screening
