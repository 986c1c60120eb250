#include "core/text/Base64.h"

#include <cstddef>

namespace quillseal {
namespace {

constexpr std::string_view standardAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::string_view urlAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

template <typename Bytes>
std::string encoded(const Bytes& bytes, std::string_view alphabet) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  std::uint32_t pending = 0;
  unsigned pendingBits = 0;
  for (const auto byte : bytes) {
    pending = (pending << 8U | static_cast<std::uint8_t>(byte)) & 0xFFFFU;
    pendingBits += 8;
    while (pendingBits >= 6) {
      pendingBits -= 6;
      text += alphabet[pending >> pendingBits & 0x3FU];
    }
  }
  if (pendingBits > 0) text += alphabet[pending << (6 - pendingBits) & 0x3FU];
  return text;
}

}  // namespace

std::string base64(std::span<const std::uint8_t> bytes) {
  std::string text = encoded(bytes, standardAlphabet);
  text.resize((text.size() + 3) / 4 * 4, '=');
  return text;
}

std::string base64Url(std::string_view text) {
  return encoded(text, urlAlphabet);
}

}  // namespace quillseal
