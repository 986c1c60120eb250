#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Formats of NIST P-256 public keys and signatures.
namespace quillseal::linux::P256 {

inline constexpr std::size_t coordinateSize = 32;

/// 0x04 ‖ X ‖ Y, each coordinate 32 bytes, big-endian (SEC 1, 2.3.3, uncompressed).
using Point = std::array<std::uint8_t, 1 + 2 * coordinateSize>;
using Digest = std::array<std::uint8_t, 32>;
using Bytes = std::span<const std::uint8_t>;

/// Two big-endian integers of at most 32 bytes, which may lack leading zero bytes.
struct Pair {
  Bytes first;
  Bytes second;
};

/// Returns the point with these coordinates; nothing when one has more than 32 bytes.
[[nodiscard]] std::optional<Point> pointOf(const Pair& coordinates);

/// Returns a signature in DER: a sequence of the integers r and s.
[[nodiscard]] std::vector<std::uint8_t> derSignature(const Pair& signature);

/// What `verifies` checks.
struct Claim {
  const Point& publicKey;
  const Digest& digest;
  Bytes signature;  ///< DER
};

/// Returns whether the signature over the digest was made with the key's private half. False when
/// the point is not on the curve.
[[nodiscard]] bool verifies(const Claim& claim);

}  // namespace quillseal::linux::P256
