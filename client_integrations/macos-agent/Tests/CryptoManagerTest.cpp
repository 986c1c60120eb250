#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include "Quillseal/CryptoManager.h"
#include "RandomText.h"
#include "core/text/UnicodeText.h"

namespace quillseal::CryptoManager {
namespace {

TEST(NormalizeText, OrdersLongRunsOfMarksAsIcuDoes) {
  std::mt19937 random(42);
  const std::u32string_view marks = U"\u0300\u0301\u0315\u0316\u0327\u0344\u05B0\u0F71\u0F73\u302A";
  std::uniform_int_distribution<std::size_t> mark(0, marks.size() - 1);
  for (int round = 0; round < 200; ++round) {
    std::string text = "e";
    for (int i = 0; i < 100; ++i)
      unicode::append(text, marks[mark(random)]);
    text += "o\u0308.";
    UErrorCode status = U_ZERO_ERROR;
    std::string expected;
    icu::Normalizer2::getNFCInstance(status)
        ->normalize(icu::UnicodeString::fromUTF8(text), status)
        .toUTF8String(expected);
    ASSERT_EQ(normalizeText(text), expected) << testing::escaped(text);
  }
}

TEST(RandomHex, HasTheRightShapeAndVaries) {
  const std::string nonce = randomHex(16);
  EXPECT_EQ(nonce.size(), 32U);
  EXPECT_EQ(nonce.find_first_not_of("0123456789abcdef"), std::string::npos);
  EXPECT_NE(nonce, randomHex(16));
  EXPECT_EQ(randomHex(0), "");
  EXPECT_DEATH(static_cast<void>(randomHex(-1)), "negative");
}

using Urls = std::vector<std::string>;

Urls urlsByIcu(const std::string& html) {
  UErrorCode status = U_ZERO_ERROR;
  icu::RegexMatcher matcher(icu::UnicodeString::fromUTF8(
                                R"re(<img\b[^>]*?\bsrc\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s>]+)))re"),
                            UREGEX_CASE_INSENSITIVE, status);
  const auto wide = icu::UnicodeString::fromUTF8(html);
  matcher.reset(wide);
  Urls urls;
  while (matcher.find(status)) {
    for (int group = 1; group <= 3; ++group) {
      std::string text;
      matcher.group(group, status).toUTF8String(text);
      if (const auto url = unicode::trimmed(text); !url.empty()) {
        urls.emplace_back(url);
        break;
      }
    }
  }
  return urls;
}

TEST(ImageUrls, FindsWhatTheExpressionFinds) {
  const std::string_view pieces[] = {
      "<img", "<IMG", "<iMg ",  " src",   "SRC=", "ſrc",     "=", " ",      "\n", "\"", "'",   ">",
      "a",    "-",    "\u0301", "\u200D", "<",    "src='b'", "/", "\u00A0", "é",  "_",  "rc=", "s"};
  std::mt19937 random(44);
  std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
  for (int round = 0; round < 30000; ++round) {
    std::string html;
    for (int i = 0; i < 14; ++i)
      html += pieces[piece(random)];
    ASSERT_EQ(imageURLs(html), urlsByIcu(html)) << testing::escaped(html);
  }
}

TEST(ImageManifestDigest, BindsOrderAndRepetition) {
  EXPECT_EQ(imageManifestDigest({" b\n", "", " ", "a", "a"}),
            sha256Hex("quillseal/images/v1\nb\na\na"));
  EXPECT_EQ(imageManifestDigest({}), sha256Hex("quillseal/images/v1\n"));
}

}  // namespace
}  // namespace quillseal::CryptoManager
