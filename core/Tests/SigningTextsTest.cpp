#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/IdentityName.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"
#include "core/text/StrictJson.h"

namespace quillseal {
namespace {

using ::testing::HasSubstr;

TEST(Base64, EncodesTheVectorsOfItsStandard) {
  for (const auto& each : testing::cases()) {
    const std::string text = each[0];
    const std::string encoded = each[1];
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

std::string failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const JsonError& error) {
    return error.what();
  }
  return "";
}

TEST(StrictJson, ReadsMembersWithTheirTypes) {
  const JsonObject object = JsonObject::parse(
      R"( {"text":"a\/b é \u00e9 😀","number":-210,"flag":true,"none":null,"deep":{"text":1}} )");
  EXPECT_EQ(object.string("text"), "a/b é é 😀");
  EXPECT_EQ(object.integer("number"), -210);
  EXPECT_TRUE(object.boolean("flag"));
  EXPECT_EQ(object.optionalString("none"), std::nullopt);
  EXPECT_EQ(object.optionalString("absent"), std::nullopt);
  EXPECT_EQ(object.optionalString("text"), "a/b é é 😀");
  EXPECT_EQ(object.optionalInteger("none"), std::nullopt);
  EXPECT_EQ(object.optionalInteger("number"), -210);
}

TEST(StrictJson, NamesTheKeyOfAWrongMember) {
  const JsonObject object = JsonObject::parse(
      R"({"text":"x","number":5,"flag":false,"none":null,"list":[],"object":{},
          "fraction":1.0,"huge":9223372036854775808})");
  EXPECT_THAT(failureOf([&] { (void)object.string("absent"); }), HasSubstr("“absent” is missing"));
  for (const std::string key :
       {"text", "number", "flag", "none", "list", "object", "fraction", "huge"}) {
    const auto fails = [&](auto read) { return failureOf(read).find(key) != std::string::npos; };
    EXPECT_EQ(fails([&] { (void)object.string(key); }), key != "text");
    EXPECT_EQ(fails([&] { (void)object.integer(key); }), key != "number");
    EXPECT_EQ(fails([&] { (void)object.boolean(key); }), key != "flag");
    EXPECT_EQ(fails([&] { (void)object.optionalString(key); }), key != "text" && key != "none");
  }
}

TEST(StrictJson, RefusesWhatIsNotOneObject) {
  std::vector<std::string> texts{"{\"a\":\"\x80\"}", "{\"a\":\"\xed\xa0\x80\"}"};
  for (const auto& text : testing::cases())
    texts.push_back(text);
  for (const std::string& text : texts)
    EXPECT_NE(failureOf([&] { (void)JsonObject::parse(text); }), "") << text;
  EXPECT_THAT(failureOf([] { (void)JsonObject::parse(R"({"a":1,"a":2})"); }), HasSubstr("“a”"));
}

TEST(StrictJson, NestingCostsNothing) {
  const std::size_t depth = 1'000'000;
  const std::string bomb =
      R"({"bomb":)" + std::string(depth, '[') + std::string(depth, ']') + R"(,"text":"x"})";
  EXPECT_EQ(JsonObject::parse(bomb).string("text"), "x");
  std::string unclosed;
  for (std::size_t i = 0; i < depth; ++i)
    unclosed += R"({"a":)";
  EXPECT_NE(failureOf([&] { (void)JsonObject::parse(unclosed); }), "");
}

}  // namespace
}  // namespace quillseal
