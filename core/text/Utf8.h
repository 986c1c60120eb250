#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <unicode/utf8.h>

/// What is inlined where whole texts are read.
namespace quillseal::unicode {

/// As `nextScalar`.
inline char32_t decodeNext(std::string_view text, std::size_t& position) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  UChar32 scalar = 0;
  U8_NEXT_OR_FFFD(bytes, position, text.size(), scalar);
  return static_cast<char32_t>(scalar);
}

/// Three bytes that may be a scalar from U+1000 on: Chinese, Japanese and Korean are runs of such.
/// The two parts are read off more quickly than the scalar, and tables in blocks of 64 need no
/// more.
class ThreeBytes {
 public:
  static constexpr std::size_t size = 3;
  static constexpr char32_t first = 0x1000;

  /// REQUIRES: `size` bytes.
  explicit ThreeBytes(const char* bytes)
      : block_((byteAt(bytes, 0) << 6 | trail(bytes, 1)) - (0xE0U << 6)),
        offset_(trail(bytes, 2)),
        isSequence_((trail(bytes, 1) | offset_) < 64 &&
                    block_ - first / 64 < endBlock - first / 64) {}

  /// Whether they have the form of a scalar; true for surrogates, which are not scalars.
  [[nodiscard]] bool isSequence() const { return isSequence_; }
  [[nodiscard]] bool isScalar() const {
    return isSequence_ && block_ - surrogates >= endOfSurrogates - surrogates;
  }
  /// The scalar, divided by 64. REQUIRES: isSequence().
  [[nodiscard]] std::uint32_t block() const { return block_; }
  /// What remains.
  [[nodiscard]] std::uint32_t offset() const { return offset_; }

 private:
  static constexpr std::uint32_t endBlock = 0x10000 / 64;
  static constexpr std::uint32_t surrogates = 0xD800 / 64;
  static constexpr std::uint32_t endOfSurrogates = 0xE000 / 64;

  static std::uint32_t byteAt(const char* bytes, std::size_t index) {
    return static_cast<std::uint8_t>(bytes[index]);
  }
  /// Below 64 in a byte that may follow the first.
  static std::uint32_t trail(const char* bytes, std::size_t index) {
    return byteAt(bytes, index) ^ 0x80U;
  }

  std::uint32_t block_;
  std::uint32_t offset_;
  bool isSequence_;
};

}  // namespace quillseal::unicode
