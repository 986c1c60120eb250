#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cases.h"
#include "core/text/StrictJson.h"

namespace quillseal {
namespace {

using ::testing::HasSubstr;

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
