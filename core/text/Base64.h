#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Base64 (RFC 4648) on one line.
namespace quillseal {

/// The standard alphabet, padded.
[[nodiscard]] std::string base64(std::span<const std::uint8_t> bytes);

/// The alphabet for URLs ("-" and "_"), of the bytes of `text`, without padding.
[[nodiscard]] std::string base64Url(std::string_view text);

}  // namespace quillseal
