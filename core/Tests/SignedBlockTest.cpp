#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/signing/SignedBlock.h"

namespace quillseal::SignedBlock {
namespace {

const std::string openingBracket =
    R"(<span style="color: #1e3a8a; font-weight: 700; font-family: inherit;">&#x300E;</span>)";
const std::string closingBracket =
    R"(<span style="color: #1e3a8a; font-weight: 700; font-family: inherit;">&#x300F;</span>)";

/// The part of the document between the two corner brackets.
std::string body(std::string_view text, std::optional<std::string_view> html) {
  const std::string document = htmlDocument(
      {.signatureId = "", .text = text, .html = html, .issued = "", .scope = "", .server = ""});
  const std::size_t start = document.find(openingBracket) + openingBracket.size();
  return document.substr(start, document.find(closingBracket) - start);
}

TEST(SignedBlock, IsTheFramedTextWithItsStamp) {
  const Fields fields{.signatureId = "sig_1",
                      .text = "\n  Hi <b>\u00A0\n",
                      .html = {},
                      .issued = "2025-01-30",
                      .scope = "Email Message (Mail) → Ada",
                      .server = "https://seal.example/"};
  EXPECT_EQ(plainText(fields),
            "『Hi <b>』\n\n"
            "────────────────────\n"
            "🛡️ QUILLSEAL · Email Message (Mail) → Ada · 30 January 2025\n"
            "Check this signature → https://seal.example//verify/sig_1");
  EXPECT_EQ(htmlDocument(fields), R"(<!DOCTYPE html>
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
</head>
<body style="font-family: inherit; font-size: inherit; color: inherit; line-height: inherit; margin: 0; padding: 0;">
<!--StartFragment-->
<div style="font-family: inherit; font-size: inherit; color: inherit; line-height: inherit;">
    <span style="color: #1e3a8a; font-weight: 700; font-family: inherit;">&#x300E;</span>Hi &lt;b&gt;<span style="color: #1e3a8a; font-weight: 700; font-family: inherit;">&#x300F;</span>
    <br>
<table role="presentation" cellpadding="0" cellspacing="0" border="0" style="margin-top:14px;border-collapse:collapse;">
  <tr>
    <td style="width:3px;background-color:#1d4ed8;font-size:0;line-height:0;">&nbsp;</td>
    <td style="padding:9px 14px;background-color:#f8fafc;border:1px solid #e2e8f0;border-left:none;font-family:-apple-system,BlinkMacSystemFont,'Segoe UI',Roboto,Helvetica,Arial,sans-serif;">
      <div style="font-size:10px;letter-spacing:1.5px;color:#64748b;font-weight:700;">🛡️&nbsp;QUILLSEAL</div>
      <div style="font-size:12px;color:#0f172a;font-weight:600;padding-top:3px;">Email Message (Mail) → Ada · 30 January 2025</div>
      <div style="font-size:12px;padding-top:5px;"><a href="https://seal.example//verify/sig_1" style="color:#1d4ed8;text-decoration:none;font-weight:600;">Check this signature →</a> <span style="color:#94a3b8;font-size:11px;">https://seal.example//verify/sig_1</span></div>
    </td>
  </tr>
</table>
</div>
<!--EndFragment-->
</body>
</html>)");
}

TEST(SignedBlock, TakesCapturedHtmlOrEscapesTheText) {
  EXPECT_EQ(body("a & <b>\nc", {}), "a &amp; &lt;b&gt;<br>c");
  EXPECT_EQ(body("&lt;\r\n\"שלום\" 😀", ""), "&amp;lt;\r<br>\"שלום\" 😀");
  EXPECT_EQ(body("x", "<html><body><!--StartFragment--><p>x</p><!--EndFragment--></body></html>"),
            "<p>x</p>");
  EXPECT_EQ(body("x", "<html>\n<HEAD></HEAD><body class=a>&<BODY></html>"),
            "\n<HEAD></HEAD><body class=a>&<BODY>");
  // A tag that appears when an earlier one is taken out goes too; the other order leaves it.
  EXPECT_EQ(body("x", "<ht<!--EndFragment-->ml>"), "");
  EXPECT_EQ(body("x", "<!--Start<body>Fragment-->"), "<!--StartFragment-->");
}

TEST(ReadableDate, NamesExistingDaysOnly) {
  const std::pair<std::string, std::string> cases[] = {
      {"2025-01-30", "30 January 2025"}, {"2024-02-29", "29 February 2024"},
      {"0987-12-01", "1 December 0987"}, {"2025-13-45", "2025-13-45"},
      {"2025-02-29", "2025-02-29"},      {" 2025-01-30", " 2025-01-30"},
      {"2025-1-3", "2025-1-3"},          {"", ""},
  };
  for (const auto& [date, readable] : cases)
    EXPECT_EQ(readableDate(date), readable);
}

TEST(IsSafeIdentifier, AllowsOnlyWhatMeansTheSameEverywhere) {
  const std::string longest(256, 'a');
  for (const std::string_view safe : {"sig_9-A.~:=", "0", "...", longest.c_str()})
    EXPECT_TRUE(isSafeIdentifier(safe)) << safe;
  std::vector<std::string> unsafe{"", ".", "..", std::string(257, 'a'), std::string("a\0b", 3)};
  for (const char* oddity :
       {"\"",     "'",      "`",      "<",      ">",      "\\",     " ",      "\n",     "\t",
        "\x7F",   "/",      "?",      "#",      "%20",    "&",      ";",      "+",      "$",
        "\u0085", "\u00A0", "\u00E9", "\u0430", "\u061C", "\u200B", "\u200E", "\u2028", "\u202E",
        "\u2066", "\u2069", "\u3164", "\uFE0F", "\uFEFF", "\xFF"})
    unsafe.push_back("a" + std::string(oddity) + "b");
  for (const std::string& identifier : unsafe)
    EXPECT_FALSE(isSafeIdentifier(identifier)) << testing::PrintToString(identifier);
}

}  // namespace
}  // namespace quillseal::SignedBlock
