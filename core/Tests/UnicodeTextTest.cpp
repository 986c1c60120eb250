#include <memory>
#include <random>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include "Cases.h"
#include "RandomText.h"
#include "core/text/UnicodeText.h"

namespace quillseal::unicode {
namespace {

TEST(UnicodeText, ReplacesEachMaximalIllFormedPart) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"plain", "plain"},
      {"é日🛡️", "é日🛡️"},
      {"a\x80z", "a\uFFFDz"},
      {"\xC0\xAF", "\uFFFD\uFFFD"},                      // an overlong slash
      {"\xE2\x82", "\uFFFD"},                            // cut off
      {"\xE2\x82z", "\uFFFDz"},                          // cut off, and the next byte survives
      {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},  // above U+10FFFF
      {std::string("a\0b", 3), std::string("a\0b", 3)},
  };
  for (const auto& [bytes, expected] : cases)
    EXPECT_EQ(wellFormed(bytes), expected) << bytes;
}

// Each a function, a text and what it makes of it.
TEST(UnicodeText, MakesTheValuesThatAreListed) {
  for (const auto& each : testing::cases()) {
    const std::string name = each[0], text = each[1];
    const std::string value = name == "trimmed"      ? std::string(trimmed(text))
                              : name == "lowercased" ? lowercased(text)
                              : name == "uppercased" ? uppercased(text)
                              : name == "count"
                                  ? std::to_string(characterCount(text))
                                  : std::string(firstCharacters(text, std::stoul(name)));
    EXPECT_EQ(value, each[2]) << each;
  }
  std::size_t position = std::string_view("a\U0001F600").size();
  EXPECT_EQ(previousScalar("a\U0001F600", position), U'\U0001F600');
  EXPECT_EQ(position, 1U);
}

TEST(UnicodeText, ReplacesEveryOccurrenceLeftToRight) {
  EXPECT_EQ(replacingAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replacingAll("a\r\nb\n", "\n", "<br>"), "a\r<br>b<br>");
  EXPECT_EQ(replacingAll("", "x", "y"), "");
}

std::vector<std::string> charactersByCursor(const std::string& text) {
  std::vector<std::string> characters;
  for (CharacterCursor cursor(text); !cursor.atEnd();) {
    for (const char byte : cursor.nextAsciiCharacters())
      characters.emplace_back(1, byte);
    if (!cursor.atEnd()) characters.emplace_back(cursor.next());
  }
  return characters;
}

std::vector<std::string> charactersByIcu(const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> iterator(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  const auto wide = icu::UnicodeString::fromUTF8(text);
  iterator->setText(wide);
  std::vector<std::string> characters;
  std::int32_t start = 0;
  for (std::int32_t end = iterator->next(); end != icu::BreakIterator::DONE;
       end = iterator->next()) {
    wide.tempSubStringBetween(start, end).toUTF8String(characters.emplace_back());
    start = end;
  }
  return characters;
}

/// Of pictures, flags, and what joins and follows them.
std::string randomEmoji(std::mt19937& random) {
  constexpr std::u32string_view parts =
      U"a\r\n\u00A9\u2764\U0001F468\U0001F1E9\U0001F1EA\u200D\u200D\uFE0F\U0001F3FD\u0903\u0600";
  std::string text;
  for (std::size_t left = random() % 10; left > 0; --left)
    unicode::append(text, parts[random() % parts.size()]);
  return text;
}

TEST(UnicodeText, FindsTheCharactersThatIcuFinds) {
  std::mt19937 random(20);
  for (int round = 0; round < 40000; ++round) {
    const std::string text = round % 2 == 0 ? testing::randomText(random, 24) : randomEmoji(random);
    const std::vector<std::string> characters = charactersByIcu(text);
    ASSERT_EQ(charactersByCursor(text), characters) << testing::escaped(text);
    ASSERT_EQ(characterCount(text), characters.size()) << testing::escaped(text);
  }
}

// Each between neighbours that it must not be parted from if it is a mark, a joiner, a half of a
// flag, a jamo or one that prepends.
TEST(UnicodeText, KnowsWhereEveryScalarEnds) {
  for (char32_t first = 0; first < 0x20000; first += 64) {
    std::string text;
    for (char32_t scalar = first; scalar < first + 64; ++scalar)
      for (const char32_t part : {U'\uAC00', scalar, scalar, U'\uAC01', U'\n'})
        append(text, part);
    ASSERT_EQ(characterCount(text), charactersByIcu(text).size())
        << "from " << static_cast<std::uint32_t>(first);
  }
}

}  // namespace
}  // namespace quillseal::unicode
