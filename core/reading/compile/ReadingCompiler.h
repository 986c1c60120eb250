#pragma once

#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/reading/ReadingTables.h"
#include "core/screening/compile/PatternSyntax.h"

/// Makes the tables by which text in disguise is read.
namespace quillseal::reading {

/// The tables, as `Tables` refers to them.
struct CompiledTables {
  std::vector<std::uint16_t> blocks;
  std::vector<std::uint16_t> readings;
  std::vector<Reading> distinctReadings;
  std::vector<std::uint32_t> words;
  std::vector<std::uint8_t> longest;
};

/// The words that matches of `patterns` may hold, in small letters of Latin-1, one byte each.
[[nodiscard]] std::set<std::string> wordsOf(std::span<const screening::Pattern> patterns);

/// What ICU's data say of every code point, and the words of the patterns and of `commonWords`
/// (separated by white space; a line that begins with "#" is a comment).
[[nodiscard]] CompiledTables compileReadings(std::span<const screening::Pattern> patterns,
                                             std::string_view commonWords);

}  // namespace quillseal::reading
