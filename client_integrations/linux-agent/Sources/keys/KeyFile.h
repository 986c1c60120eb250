#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The text form in which both key stores keep a key: a line that says what it is, a line with the
/// SHA-256 of the rest, then PEM blocks (RFC 7468). The sum tells accidental damage apart from a
/// wrong secret; it is no protection against tampering.
namespace quillseal::linux::KeyFile {

/// One PEM block.
struct Block {
  std::string_view label;
  std::vector<std::uint8_t> bytes;
};

/// The file of these blocks, in their order.
[[nodiscard]] std::string write(std::string_view headline, std::span<const Block> blocks);

/// The blocks of a file, which must be the ones named, in that order; nothing when the file is
/// damaged or another kind of file.
[[nodiscard]] std::optional<std::vector<Block>> read(std::string_view file,
                                                     std::span<const std::string_view> labels);

}  // namespace quillseal::linux::KeyFile
