// Turns a UTF-8 text into an array of character classes, one element for each code point.
//
// Algorithm: a table with two levels (pages of 64 code points) gives the class and three flags of a
// code point. The flags of a code point and of the one before give, without a branch, whether \b
// holds between them and whether a run of word characters or of white space goes on. Sequences of
// three bytes follow each other in Chinese, Japanese and Korean and are decoded in a loop of their
// own.
// Bound: one look-up and a few bit operations for each code point; two bytes of memory for each.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (word boundaries, case folding),
// ScreeningEngine.IllFormedBytesCountAsReplacementCharacters.

#include "core/screening/match/CharacterClasses.h"

#include "core/text/Utf8.h"

namespace quillseal::screening {

ClassifiedText CharacterClasses::classify(std::string_view text) const {
  using unicode::ThreeBytes;
  using Table = CharacterClassTable<Stored>;
  constexpr unsigned runFlags = Table::wordFlag | Table::spaceFlag;
  constexpr unsigned boundaryShift = 2;
  static_assert(Table::wordFlag << boundaryShift == ClassifiedText::boundaryFlag &&
                Table::opaqueFlag == ClassifiedText::boundaryFlag);
  // No code point is shorter than a byte.
  auto elements = std::make_unique_for_overwrite<ClassId[]>(text.size() + 1);
  std::size_t count = 0;
  unsigned before = 0;     // the run flags of the code point before
  unsigned afterWord = 0;  // where a boundary is flagged: whether the last opaque one was a word's
  // Without branches, for which a text would give no pattern.
  const auto append = [&](unsigned entry) {
    const unsigned boundary = (entry << boundaryShift ^ afterWord) & entry & Table::opaqueFlag;
    elements[count++] =
        static_cast<ClassId>((entry & (ClassifiedText::classMask | before)) | boundary);
    before = entry & runFlags;
    afterWord ^= boundary;
  };
  for (std::size_t i = 0; i < text.size();) {
    const char32_t scalar = unicode::decodeNext(text, i);
    append(entryOf(scalar / Table::pageSize, scalar % Table::pageSize));
    if (scalar < ThreeBytes::first) continue;
    for (; i + ThreeBytes::size <= text.size(); i += ThreeBytes::size) {
      const ThreeBytes three(text.data() + i);
      if (!three.isScalar()) break;
      append(entryOf(three.block(), three.offset()));
    }
  }
  elements[count] = static_cast<ClassId>(ClassifiedText::endClass | afterWord);
  return {std::move(elements), count};
}

}  // namespace quillseal::screening
