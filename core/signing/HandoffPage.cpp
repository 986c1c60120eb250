#include "core/signing/HandoffPage.h"

#include <algorithm>
#include <cctype>

#include "core/text/Base64.h"
#include "core/text/UnicodeText.h"

namespace quillseal::HandoffPage {
namespace {

bool isHexDigit(char c) {
  return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

/// Whether `text` holds only what RFC 3986 allows in a path, query or fragment, or one of `others`.
bool isUrlText(std::string_view text, std::string_view others) {
  constexpr std::string_view punctuation = "-._~!$&'()*+,;=:@/";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool isAscii = static_cast<unsigned char>(c) < 0x80;
    if (isAscii && std::isalnum(static_cast<unsigned char>(c)) != 0) continue;
    if (punctuation.find(c) != std::string_view::npos) continue;
    if (others.find(c) != std::string_view::npos) continue;
    if (c != '%' || text.size() - i < 3 || !isHexDigit(text[i + 1]) || !isHexDigit(text[i + 2]))
      return false;
  }
  return true;
}

bool isAuthority(std::string_view authority) {
  const std::size_t at = authority.find('@');
  const std::string_view hostAndPort =
      at == std::string_view::npos ? authority : authority.substr(at + 1);
  const bool isAddress = hostAndPort.substr(0, 1) == "[";
  const std::size_t addressEnd = isAddress ? hostAndPort.find(']') : 0;
  if (addressEnd == std::string_view::npos) return false;
  const std::size_t colon = hostAndPort.find(':', addressEnd);
  const std::string_view host = hostAndPort.substr(0, colon);
  const std::string_view port =
      colon == std::string_view::npos ? std::string_view{} : hostAndPort.substr(colon + 1);
  return !host.empty() && isUrlText(authority, isAddress ? "[]" : "") &&
         std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

Fragment fragmentFor(std::string_view text, std::optional<std::string_view> html) {
  Fragment fragment{.text = "t=" + base64Url(text), .omittedHtmlLength = {}};
  if (!html || html->empty()) return fragment;
  const std::size_t encodedLength = (4 * html->size() + 2) / 3;  // base64 without padding
  if (encodedLength > longestEncodedHtml) {
    fragment.omittedHtmlLength = encodedLength;
  } else {
    fragment.text.append("&h=").append(base64Url(*html));
  }
  return fragment;
}

bool isOpenable(std::string_view url) {
  const std::size_t schemeEnd = url.find("://");
  if (schemeEnd == std::string_view::npos) return false;
  const std::string scheme = unicode::lowercased(url.substr(0, schemeEnd));
  if (scheme != "https" && scheme != "http") return false;
  const std::string_view rest = url.substr(schemeEnd + 3);
  const std::string_view authority = rest.substr(0, rest.find_first_of("/?#"));
  const std::string_view behind = rest.substr(authority.size());
  const std::size_t hash = behind.find('#');
  const std::string_view fragment =
      hash == std::string_view::npos ? std::string_view{} : behind.substr(hash + 1);
  return isAuthority(authority) && isUrlText(behind.substr(0, hash), "?") &&
         isUrlText(fragment, "?");
}

}  // namespace quillseal::HandoffPage
