#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The address of a signing page, which carries the text in its fragment: browsers do not send
/// fragments. Pure functions.
namespace quillseal::HandoffPage {

/// HTML that takes more characters than this in the fragment is left out.
inline constexpr std::size_t longestEncodedHtml = 60'000;

struct Fragment {
  std::string text;
  /// How many characters the HTML would have taken, when it was left out for its length.
  std::optional<std::size_t> omittedHtmlLength;
};

/// The fragment for a text and, if there is one, its HTML form; an empty one counts as none.
[[nodiscard]] Fragment fragmentFor(std::string_view text, std::optional<std::string_view> html);

/// Whether a browser may be asked to open `url`: an absolute http or https URL with a host, made of
/// the characters of RFC 3986 alone.
[[nodiscard]] bool isOpenable(std::string_view url);

}  // namespace quillseal::HandoffPage
