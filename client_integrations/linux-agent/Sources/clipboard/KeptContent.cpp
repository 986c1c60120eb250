#include <charconv>
#include <optional>

#include "clipboard/ClipboardKeeper.h"

namespace quillseal::linux::KeptContent {

// The length of the plain text, a line feed, the plain text, the HTML.
std::string written(const desktop::PasteboardContent& content) {
  return std::to_string(content.plainText.size()) + "\n" + content.plainText + content.html;
}

std::optional<desktop::PasteboardContent> read(std::string_view text) {
  std::size_t length = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
  const auto begin = static_cast<std::size_t>(end - text.data()) + 1;
  if (error != std::errc() || begin > text.size() || *end != '\n' || length > text.size() - begin)
    return std::nullopt;
  return desktop::PasteboardContent{.plainText = std::string(text.substr(begin, length)),
                                    .html = std::string(text.substr(begin + length))};
}

}  // namespace quillseal::linux::KeptContent
