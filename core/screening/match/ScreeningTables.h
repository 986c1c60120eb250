// The tables that join the prefilters and the matcher: required-literal sequences, prefix classes,
// and how the matches of a pattern follow from its searches.
//
// Layout: an element of a sequence has 16 bytes and lies in one cache line, since a text full of
// literals reads elements in no order. Lengths beyond 16 bits are stored as unbounded, which lets
// more candidates through and changes no result.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryRule.

#pragma once

#include <cstdint>
#include <limits>

#include "core/screening/match/CharacterClasses.h"
#include "core/screening/match/LiteralIndex.h"
#include "core/screening/match/PatternProgram.h"
#include "core/screening/match/StoredTables.h"

namespace quillseal::screening {

/// No number or position.
inline constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

/// How much text there is at most between two places, in two measures; either may be `unbounded`.
/// With the first `\s+` is a short gap like any other, with the second `\w+` is, too.
struct Distance {
  std::uint32_t steps = 0;  ///< code points, where a run of white space counts as one
  std::uint32_t runs = 0;   ///< likewise, and a run of word characters counts as one

  [[nodiscard]] bool isUnbounded() const { return steps == unbounded && runs == unbounded; }
};

/// A distance in half the space: what is too long for it is unbounded.
class ShortDistance {
 public:
  ShortDistance() = default;
  explicit ShortDistance(const Distance& distance)
      : steps_(shortened(distance.steps)), runs_(shortened(distance.runs)) {}

  [[nodiscard]] std::uint32_t steps() const { return restored(steps_); }
  [[nodiscard]] std::uint32_t runs() const { return restored(runs_); }

 private:
  static constexpr std::uint16_t endless = 0xFFFF;
  static std::uint16_t shortened(std::uint32_t length) {
    return length < endless ? static_cast<std::uint16_t>(length) : endless;
  }
  static std::uint32_t restored(std::uint16_t length) {
    return length == endless ? unbounded : length;
  }

  std::uint16_t steps_ = 0;
  std::uint16_t runs_ = 0;
};

/// An element of a required-literal sequence, for those of its literals that have one length. The
/// literal index reports its number. A text dense in literals reads them in no order, so that each
/// should lie in one line of the cache.
struct alignas(16) ElementVariant {
  ShortDistance distance{};  ///< from the end of the element before, or from the start of the match
  std::uint16_t sequence = 0;
  std::uint16_t search = 0;
  std::uint16_t element = 0;      ///< among those of all sequences
  std::uint16_t nextVariant = 0;  ///< the first variant of the next element
  std::uint16_t nextCount = 0;    ///< how many there are: none for the last element
  std::uint8_t length = 0;        ///< letters of the literal
  std::uint8_t properties = 0;

  /// Bits of `properties`.
  static constexpr std::uint8_t first = 1;
  static constexpr std::uint8_t boundaryBefore = 2;
  static constexpr std::uint8_t boundaryAfter = 4;

  [[nodiscard]] bool has(std::uint8_t property) const { return (properties & property) != 0; }
};
static_assert(sizeof(ElementVariant) == 16);

/// A required-literal sequence: every match of an alternative contains one literal of each element,
/// in order.
struct LiteralSequence {
  std::uint32_t search = 0;
  Distance lead{};  ///< from the start of a match to the first element
  Distance span{};  ///< from the end of the first element to that of the last
  std::uint16_t alternative = 0;
  ClassSetId leadClasses = 0;  ///< all that may stand in the lead
};

/// Where the prefix classes of an alternative have all been met.
struct PrefixEnd {
  std::uint32_t search = 0;
  std::uint32_t alternative = 0;
  std::uint32_t length = 0;
};

/// How a search is made, besides its program.
struct SearchTraits {
  std::uint16_t firstUser = 0;    ///< in `users`
  std::uint16_t users = 0;        ///< of a search for alternatives that several patterns share
  std::uint16_t firstShared = 0;  ///< in `sharedSearches`
  std::uint16_t shared = 0;       ///< searches that this one is a user of
  bool atTextStart = false;       ///< a match may start at 0 without any literal
  bool anyMatch = false;          ///< whether there is a match is all that matters
};

/// A search that takes over the matches of a shared one.
struct SearchUser {
  std::uint16_t search = 0;
  std::uint16_t firstAlternative = 0;  ///< there, of the first one that is shared
};

/// How the matches of a pattern follow from its searches.
struct Form {
  // In `formSearches`: first those that must all have a match, then those that must have none.
  std::uint16_t firstSearch = 0;
  std::uint16_t required = 0;
  std::uint16_t forbidden = 0;
  std::uint16_t main = noMain;  ///< the search whose first match is the pattern's
  bool fromTextStart = false;   ///< the match starts at 0 wherever the main one starts
  bool isUsable = true;

  static constexpr std::uint16_t noMain = 0xFFFF;
};

/// All that a screening reads.
template <template <typename> typename Array>
struct ScreeningTable {
  Array<ElementVariant> variants;      ///< the values of the literal index
  Array<std::uint64_t> firstVariants;  ///< a bit for each variant: whether it is of a first element
  Array<LiteralSequence> sequences;
  std::uint64_t elementCount = 0;
  Array<SearchTraits> searches;
  Array<SearchUser> users;
  Array<std::uint16_t> sharedSearches;
  Array<Form> forms;  ///< by pattern
  Array<std::uint16_t> formSearches;

  // Searches without a required literal: a bit for each of their prefix classes, all advanced at
  // once by a shift (Baeza-Yates and Gonnet, "A new approach to text searching", 1992).
  Array<std::uint64_t> prefixInitial;  ///< an even number of words
  Array<std::uint64_t> prefixMasks;    ///< by pair of words, two for each class
  Array<std::uint64_t> prefixFinal;
  Array<PrefixEnd> prefixEnds;  ///< by bit
  Array<PrefixEnd> maybeEmpty;  ///< those that may match without a code point

  void transfer(auto& archive) {
    archive(variants, firstVariants, sequences, elementCount, searches, users, sharedSearches);
    archive(forms, formSearches);
    archive(prefixInitial, prefixMasks, prefixFinal, prefixEnds, maybeEmpty);
  }
};

}  // namespace quillseal::screening
