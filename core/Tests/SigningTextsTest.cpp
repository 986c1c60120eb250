#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Cases.h"
#include "core/signing/HandoffPage.h"
#include "core/signing/IdentityName.h"
#include "core/signing/SignedBlock.h"
#include "core/text/Base64.h"

namespace quillseal {
namespace {

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

}  // namespace
}  // namespace quillseal
