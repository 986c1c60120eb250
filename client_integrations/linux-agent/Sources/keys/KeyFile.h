#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The text format of both key stores: a headline, a line with the SHA-256 of the rest, then PEM
/// blocks (RFC 7468). The checksum tells accidental damage from a wrong secret; it does not protect
/// against tampering.
namespace quillseal::linux::KeyFile {

/// One PEM block.
struct Block {
  std::string_view label;
  std::vector<std::uint8_t> bytes;
};

/// Returns the text of a file with these blocks.
[[nodiscard]] std::string write(std::string_view headline, std::span<const Block> blocks);

/// Parses a file whose blocks must be the named ones, in that order. Nothing when it is damaged or
/// of another kind.
[[nodiscard]] std::optional<std::vector<Block>> read(std::string_view file,
                                                     std::span<const std::string_view> labels);

}  // namespace quillseal::linux::KeyFile
