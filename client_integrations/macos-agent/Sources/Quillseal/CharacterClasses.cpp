#include "Quillseal/CharacterClasses.h"

#include <unicode/utf8.h>

namespace quillseal::screening {

ClassifiedText CharacterClasses::classify(std::string_view text) const {
  // No code point is shorter than a byte.
  auto elements = std::make_unique_for_overwrite<ClassId[]>(text.size() + 1);
  std::size_t count = 0;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  bool afterWord = false;
  for (std::size_t i = 0; i < text.size();) {
    UChar32 c = bytes[i];
    if (c < 0x80) {
      ++i;
    } else {
      U8_NEXT_OR_FFFD(bytes, i, text.size(), c);
    }
    ClassId id = classOf(static_cast<char32_t>(c));
    if (const std::uint8_t traits = table_.traits[id]; (traits & isUnnoticedTrait) == 0) {
      const bool isWord = (traits & isWordTrait) != 0;
      if (isWord != afterWord) id |= ClassifiedText::boundaryFlag;
      afterWord = isWord;
    }
    elements[count++] = id;
  }
  elements[count] = afterWord ? ClassifiedText::boundaryFlag : ClassifiedText::endClass;
  return {std::move(elements), count};
}

}  // namespace quillseal::screening
