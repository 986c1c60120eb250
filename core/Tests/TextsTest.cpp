#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include "Cases.h"
#include "RandomText.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/IdentityName.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"
#include "core/text/StrictJson.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

TEST(Base64, EncodesTheVectorsOfItsStandard) {
  for (const auto& each : testing::cases()) {
    const std::string text = each[0], encoded = each[1];
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    EXPECT_EQ(base64(bytes), encoded);
    EXPECT_EQ(base64Url(text), encoded.substr(0, encoded.find('=')));
  }
  EXPECT_EQ(base64(std::array<std::uint8_t, 3>{0xFB, 0xEF, 0xFF}), "++//");
  EXPECT_EQ(base64Url("\xFB\xEF\xFF"), "--__");
}

// Text, HTML, fragment, and the length of HTML that is left out.
TEST(Fragment, CarriesTextAndHtml) {
  for (const auto& each : testing::cases()) {
    const auto fragment =
        HandoffPage::fragmentFor(each[0].get<std::string>(), each[1].get<std::string>());
    EXPECT_EQ(fragment.text, each[2]);
    EXPECT_EQ(fragment.omittedHtmlLength.value_or(0), each[3]);
  }
  EXPECT_EQ(HandoffPage::fragmentFor("foob", {}).text, "t=Zm9vYg");
}

void expectTaken(bool (*takes)(std::string_view)) {
  for (const auto& each : testing::cases())
    for (const auto& [verdict, texts] : each.items())
      for (const std::string text : texts)
        EXPECT_EQ(takes(text), verdict == "taken") << text;
}

TEST(IsOpenable, TakesWebAddressesOnly) {
  expectTaken(HandoffPage::isOpenable);
}

TEST(IsSafeIdentifier, AllowsOnlyWhatMeansTheSameEverywhere) {
  expectTaken(SignedBlock::isSafeIdentifier);
  EXPECT_FALSE(SignedBlock::isSafeIdentifier("a\xFF"));
}

// Each name, whether it is plain, and how it is shown.
TEST(IdentityName, ShowsAllOfItself) {
  for (const auto& each : testing::cases()) {
    const std::string name = each[0];
    EXPECT_EQ(IdentityName::isPlain(name), each[1]) << each;
    EXPECT_EQ(IdentityName::shown(name), each[2]) << each;
  }
}

// Each a document, what is read from it, the key, and what that gives: a value or the error.
TEST(StrictJson, GivesAMemberOrSaysWhyNot) {
  const auto orNull = [](const auto& value) { return value ? testing::Json(*value) : nullptr; };
  for (const auto& each : testing::cases()) {
    const std::string type = each[1], key = each[2];
    testing::Json given;
    try {
      const JsonObject object = JsonObject::parse(each[0].get<std::string>());
      if (type == "string") given = object.string(key);
      if (type == "integer") given = object.integer(key);
      if (type == "boolean") given = object.boolean(key);
      if (type == "string?") given = orNull(object.optionalString(key));
      if (type == "integer?") given = orNull(object.optionalInteger(key));
    } catch (const JsonError& error) {
      given["error"] = error.what();
    }
    EXPECT_EQ(given, each[3]) << each;
  }
  for (const char* illFormed : {"{\"a\":\"\x80\"}", "{\"a\":\"\xed\xa0\x80\"}"})
    EXPECT_THROW((void)JsonObject::parse(illFormed), JsonError) << illFormed;
}

TEST(StrictJson, NestingCostsNothing) {
  const std::size_t depth = 1'000'000;
  const std::string bomb =
      R"({"bomb":)" + std::string(depth, '[') + std::string(depth, ']') + R"(,"text":"x"})";
  EXPECT_EQ(JsonObject::parse(bomb).string("text"), "x");
  std::string unclosed;
  for (std::size_t i = 0; i < depth; ++i)
    unclosed += R"({"a":)";
  EXPECT_THROW((void)JsonObject::parse(unclosed), JsonError);
}

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
    EXPECT_EQ(unicode::wellFormed(bytes), expected) << bytes;
}

// Each a function, a text and what it makes of it.
TEST(UnicodeText, MakesTheValuesThatAreListed) {
  for (const auto& each : testing::cases()) {
    const std::string name = each[0], text = each[1];
    const std::string value = name == "trimmed"      ? std::string(unicode::trimmed(text))
                              : name == "lowercased" ? unicode::lowercased(text)
                              : name == "uppercased" ? unicode::uppercased(text)
                              : name == "count"
                                  ? std::to_string(unicode::characterCount(text))
                                  : std::string(unicode::firstCharacters(text, std::stoul(name)));
    EXPECT_EQ(value, each[2]) << each;
  }
  std::size_t position = std::string_view("a\U0001F600").size();
  EXPECT_EQ(unicode::previousScalar("a\U0001F600", position), U'\U0001F600');
  EXPECT_EQ(position, 1U);
}

TEST(UnicodeText, ReplacesEveryOccurrenceLeftToRight) {
  EXPECT_EQ(unicode::replacingAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(unicode::replacingAll("a\r\nb\n", "\n", "<br>"), "a\r<br>b<br>");
  EXPECT_EQ(unicode::replacingAll("", "x", "y"), "");
}

std::vector<std::string> charactersByCursor(const std::string& text) {
  std::vector<std::string> characters;
  for (unicode::CharacterCursor cursor(text); !cursor.atEnd();) {
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
    ASSERT_EQ(unicode::characterCount(text), characters.size()) << testing::escaped(text);
  }
}

// Each between neighbours that it must not be parted from if it is a mark, a joiner, a half of a
// flag, a jamo or one that prepends.
TEST(UnicodeText, KnowsWhereEveryScalarEnds) {
  for (char32_t first = 0; first < 0x20000; first += 64) {
    std::string text;
    for (char32_t scalar = first; scalar < first + 64; ++scalar)
      for (const char32_t part : {U'\uAC00', scalar, scalar, U'\uAC01', U'\n'})
        unicode::append(text, part);
    ASSERT_EQ(unicode::characterCount(text), charactersByIcu(text).size())
        << "from " << static_cast<std::uint32_t>(first);
  }
}

}  // namespace
}  // namespace quillseal
