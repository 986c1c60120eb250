#include "Quillseal/CharacterClasses.h"

#include <unicode/utf8.h>

namespace quillseal::screening {

ClassifiedText CharacterClasses::classify(std::string_view text) const {
  std::vector<ClassId> elements;
  elements.reserve(text.size() + 1);
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
    if (!has(id, isUnnoticedTrait)) {
      if (isWord(id) != afterWord) id |= ClassifiedText::boundaryFlag;
      afterWord = isWord(id & ClassifiedText::classMask);
    }
    elements.push_back(id);
  }
  elements.push_back(afterWord ? ClassifiedText::boundaryFlag : ClassifiedText::endClass);
  return ClassifiedText(std::move(elements));
}

}  // namespace quillseal::screening
