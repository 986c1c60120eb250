#include <array>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "core/signing/HandoffPage.h"
#include "core/text/Base64.h"

namespace quillseal::HandoffPage {
namespace {

TEST(Base64, EncodesTheVectorsOfItsStandard) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"f", "Zg=="},
      {"fo", "Zm8="},
      {"foo", "Zm9v"},
      {"foob", "Zm9vYg=="},
      {"fooba", "Zm9vYmE="},
      {"foobar", "Zm9vYmFy"},
  };
  for (const auto& [text, encoded] : cases) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    EXPECT_EQ(base64(bytes), encoded);
    EXPECT_EQ(base64Url(text), encoded.substr(0, encoded.find('=')));
  }
  EXPECT_EQ(base64(std::array<std::uint8_t, 3>{0xFB, 0xEF, 0xFF}), "++//");
  EXPECT_EQ(base64Url("\xFB\xEF\xFF"), "--__");
}

TEST(Fragment, CarriesTextAndHtml) {
  EXPECT_EQ(fragmentFor("foob", {}).text, "t=Zm9vYg");
  EXPECT_EQ(fragmentFor("ï¿>", "").text, "t=w6_Cvz4");
  EXPECT_EQ(fragmentFor("foob", "<p>").text, "t=Zm9vYg&h=PHA-");
}

TEST(Fragment, LeavesOutHtmlOfMoreThanSixtyThousandCharacters) {
  const Fragment longest = fragmentFor("foo", std::string(45'000, 'a'));
  EXPECT_EQ(longest.text.size(), std::string("t=Zm9v&h=").size() + 60'000);
  EXPECT_EQ(longest.omittedHtmlLength, std::nullopt);
  const Fragment tooLong = fragmentFor("foo", std::string(45'001, 'a'));
  EXPECT_EQ(tooLong.text, "t=Zm9v");
  EXPECT_EQ(tooLong.omittedHtmlLength, 60'002U);
}

TEST(IsOpenable, TakesWebAddressesOnly) {
  for (const std::string_view url :
       {"https://seal.example/handoff?h=1#t=Zm9v-_&h=x", "HTTP://127.0.0.1:8080",
        "https://[::1]:9/", "https://u:p@host/%20~", "https://host?q?/#a?/"})
    EXPECT_TRUE(isOpenable(url)) << url;
  for (const std::string_view url :
       {"", "/handoff", "https://", "https:///x", "https:host", "javascript://host/%0Aalert(1)",
        "file:///etc/passwd", "https://a b/", "https://host/a b", "https://host/\"",
        "https://host/<", "https://host/%2", "https://host/%zz", "https://host/#a#b",
        "https://host/ü", "https://host:x/", "https://[::1/", "https://:80/", "https://host/\n"})
    EXPECT_FALSE(isOpenable(url)) << url;
}

}  // namespace
}  // namespace quillseal::HandoffPage
