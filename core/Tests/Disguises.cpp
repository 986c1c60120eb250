#include "Disguises.h"

#include <array>
#include <cstddef>

#include "core/text/UnicodeText.h"

namespace quillseal::testing {
namespace {

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool happens(std::mt19937& random, unsigned inHundred) {
  return random() % 100 < inHundred;
}

/// `text` with `change` applied to so many of its words of two ASCII letters or more.
template <typename Change>
std::string inWords(std::string_view text, std::mt19937& random, unsigned inHundred,
                    Change change) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at;
    while (end < text.size() && isLetter(text[end]))
      ++end;
    if (end - at >= 2 && happens(random, inHundred))
      result += change(text.substr(at, end - at));
    else
      result += text.substr(at, end == at ? 1 : end - at);
    at = end == at ? at + 1 : end;
  }
  return result;
}

std::string insertedInWords(std::string_view text, std::mt19937& random, unsigned inHundred,
                            std::string_view sign) {
  return inWords(text, random, inHundred, [&](std::string_view word) {
    std::string changed(word);
    return changed.insert(1 + random() % (word.size() - 1), sign);
  });
}

std::string lettersApart(std::string_view text, std::mt19937& random, std::string_view sign) {
  return inWords(text, random, 33, [&](std::string_view word) {
    std::string changed;
    for (const char letter : word)
      (changed += letter) += sign;
    return changed.substr(0, changed.size() - sign.size());
  });
}

/// Each of so many letters of `from` as the one in its place of `to`.
std::string replaced(std::string_view text, std::mt19937& random, unsigned inHundred,
                     std::string_view from, std::u32string_view to) {
  std::string result;
  for (const char letter : text) {
    const std::size_t at = from.find(letter);
    if (at == std::string_view::npos || !happens(random, inHundred))
      result += letter;
    else
      unicode::append(result, to[at]);
  }
  return result;
}

/// Letters that follow each other in Unicode as they do in ASCII.
std::string inAlphabet(std::string_view text, char32_t capitalA, char32_t smallA) {
  std::string result;
  for (const char letter : text) {
    if (!isLetter(letter))
      result += letter;
    else if (letter < 'a')
      unicode::append(result, capitalA + static_cast<char32_t>(letter - 'A'));
    else
      unicode::append(result, smallA + static_cast<char32_t>(letter - 'a'));
  }
  return result;
}

constexpr std::string_view digitLetters = "aeiostAEIOST";
constexpr std::u32string_view digits = U"431057431057";
constexpr std::string_view cyrillicLetters = "aeopcxyisjABEKMHOPCTX";
constexpr std::u32string_view cyrillic = U"аеорсхуіѕјАВЕКМНОРСТХ";
constexpr std::string_view greekLetters = "aoivunkptxyABEZHIKMNOPTYX";
constexpr std::u32string_view greek = U"αοινυηκρτχγΑΒΕΖΗΙΚΜΝΟΡΤΥΧ";
constexpr std::string_view smallLetters = "abcdefghijklmnopqrtuvwyz";
constexpr std::u32string_view smallCapitals = U"ᴀʙᴄᴅᴇꜰɢʜɪᴊᴋʟᴍɴᴏᴘǫʀᴛᴜᴠᴡʏᴢ";

using Text = std::string_view;
using Random = std::mt19937;

std::string withMarks(Text text, Random& random) {
  constexpr std::u32string_view marks = U"\u0300\u0301\u0308\u0323\u0330";
  std::string result;
  for (const char letter : text) {
    result += letter;
    if (Text("aeiouAEIOU").find(letter) != Text::npos && happens(random, 50))
      unicode::append(result, marks[random() % marks.size()]);
  }
  return result;
}

constexpr std::array all{
    Disguise{"zero-width", [](Text t, Random& r) { return insertedInWords(t, r, 100, "\u200B"); }},
    Disguise{"word-joiner", [](Text t, Random& r) { return insertedInWords(t, r, 100, "\u2060"); }},
    Disguise{"soft-hyphen", [](Text t, Random& r) { return insertedInWords(t, r, 100, "\u00AD"); }},
    Disguise{"full-width", [](Text t, Random&) { return inAlphabet(t, U'\uFF21', U'\uFF41'); }},
    Disguise{"bold", [](Text t, Random&) { return inAlphabet(t, U'\U0001D400', U'\U0001D41A'); }},
    Disguise{"digits", [](Text t, Random& r) { return replaced(t, r, 100, digitLetters, digits); }},
    Disguise{"few-digits",
             [](Text t, Random& r) { return replaced(t, r, 20, digitLetters, digits); }},
    Disguise{"cyrillic",
             [](Text t, Random& r) { return replaced(t, r, 100, cyrillicLetters, cyrillic); }},
    Disguise{"few-cyrillic",
             [](Text t, Random& r) { return replaced(t, r, 20, cyrillicLetters, cyrillic); }},
    Disguise{"greek", [](Text t, Random& r) { return replaced(t, r, 50, greekLetters, greek); }},
    Disguise{"marks", withMarks},
    Disguise{"dots", [](Text t, Random& r) { return lettersApart(t, r, "."); }, 85},
    Disguise{"blanks", [](Text t, Random& r) { return lettersApart(t, r, " "); }, 85},
    Disguise{"dashes", [](Text t, Random& r) { return lettersApart(t, r, "-"); }, 85},
    Disguise{"broken", [](Text t, Random& r) { return insertedInWords(t, r, 33, "-\n"); }, 75},
    Disguise{"circled", [](Text t, Random&) { return inAlphabet(t, U'\u24B6', U'\u24D0'); }},
    Disguise{"small-capitals",
             [](Text t, Random& r) { return replaced(t, r, 100, smallLetters, smallCapitals); },
             75},
    Disguise{"brackets", [](Text t, Random& r) { return insertedInWords(t, r, 100, "<"); }},
    Disguise{"blanks-doubled", [](Text t, Random&) { return unicode::replacingAll(t, " ", "  "); }},
    Disguise{"word-a-line", [](Text t, Random&) { return unicode::replacingAll(t, " ", "\n"); }},
};

}  // namespace

std::span<const Disguise> disguises() {
  return all;
}

}  // namespace quillseal::testing
