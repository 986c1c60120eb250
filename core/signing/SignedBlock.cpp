#include "core/signing/SignedBlock.h"

#include <array>
#include <utility>

#include "core/text/CalendarDate.h"
#include "core/text/UnicodeText.h"

namespace quillseal::SignedBlock {
namespace {

constexpr auto monthNames =
    std::to_array<std::string_view>({"January", "February", "March", "April", "May", "June", "July",
                                     "August", "September", "October", "November", "December"});

std::string verificationLink(const Fields& fields) {
  return std::string{fields.server}.append("/verify/").append(fields.signatureId);
}

std::string escapedText(std::string_view text) {
  std::string html;
  html.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '\n':
        html += "<br>";
        break;
      default:
        html += c;
    }
  }
  return html;
}

std::string withoutDocumentTags(std::string_view html) {
  std::string body{html};
  for (const std::string_view tag :
       {"<!--StartFragment-->", "<!--EndFragment-->", "<html>", "</html>", "<body>", "</body>"}) {
    body = unicode::replacingAll(body, tag, "");
  }
  return body;
}

std::string cornerBracket(std::string_view reference) {
  return std::string{R"(<span style="color: #1e3a8a; font-weight: 700; font-family: inherit;">)"}
      .append(reference)
      .append("</span>");
}

std::string stamp(const Fields& fields) {
  const std::string link = verificationLink(fields);
  std::string html = R"(<br>
<table role="presentation" cellpadding="0" cellspacing="0" border="0" style="margin-top:14px;border-collapse:collapse;">
  <tr>
    <td style="width:3px;background-color:#1d4ed8;font-size:0;line-height:0;">&nbsp;</td>
    <td style="padding:9px 14px;background-color:#f8fafc;border:1px solid #e2e8f0;border-left:none;font-family:-apple-system,BlinkMacSystemFont,'Segoe UI',Roboto,Helvetica,Arial,sans-serif;">
      <div style="font-size:10px;letter-spacing:1.5px;color:#64748b;font-weight:700;">🛡️&nbsp;QUILLSEAL</div>
      <div style="font-size:12px;color:#0f172a;font-weight:600;padding-top:3px;">)";
  html.append(fields.scope).append(" · ").append(readableDate(fields.issued));
  html += R"(</div>
      <div style="font-size:12px;padding-top:5px;"><a href=")";
  html += link;
  html +=
      R"(" style="color:#1d4ed8;text-decoration:none;font-weight:600;">Check this signature →</a> <span style="color:#94a3b8;font-size:11px;">)";
  html += link;
  html += R"(</span></div>
    </td>
  </tr>
</table>)";
  return html;
}

}  // namespace

bool isSafeIdentifier(std::string_view identifier) {
  constexpr std::size_t longest = 256;
  constexpr std::string_view allowed =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~:=";
  // A path takes the last two for folders.
  return !identifier.empty() && identifier.size() <= longest &&
         identifier.find_first_not_of(allowed) == std::string_view::npos && identifier != "." &&
         identifier != "..";
}

std::string readableDate(std::string_view date) {
  const auto parsed = parsedDate(date);
  if (!parsed) return std::string{date};
  std::string text = std::to_string(static_cast<unsigned>(parsed->day()));
  text.append(" ").append(monthNames.at(static_cast<unsigned>(parsed->month()) - 1)).append(" ");
  return text.append(date.substr(0, 4));
}

std::string plainText(const Fields& fields) {
  std::string block = "『";
  block += unicode::trimmed(fields.text);
  block +=
      "』\n\n────────────────────\n🛡️ QUILLSEAL · ";
  block.append(fields.scope).append(" · ").append(readableDate(fields.issued));
  return block.append("\nCheck this signature → ").append(verificationLink(fields));
}

std::string htmlDocument(const Fields& fields) {
  const bool hasHtml = fields.html && !fields.html->empty();
  std::string document = R"(<!DOCTYPE html>
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
</head>
<body style="font-family: inherit; font-size: inherit; color: inherit; line-height: inherit; margin: 0; padding: 0;">
<!--StartFragment-->
<div style="font-family: inherit; font-size: inherit; color: inherit; line-height: inherit;">
    )";
  document += cornerBracket("&#x300E;");
  document +=
      hasHtml ? withoutDocumentTags(*fields.html) : escapedText(unicode::trimmed(fields.text));
  document += cornerBracket("&#x300F;");
  document += "\n    ";
  document += stamp(fields);
  document += R"(
</div>
<!--EndFragment-->
</body>
</html>)";
  return document;
}

}  // namespace quillseal::SignedBlock
