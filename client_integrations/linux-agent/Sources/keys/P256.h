#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The few forms in which a NIST P-256 public key and its signatures leave a key store.
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

/// The point with these coordinates; nothing when one has more than 32 bytes.
[[nodiscard]] std::optional<Point> pointOf(const Pair& coordinates);

/// The DER form (a sequence of the integers r and s) of a signature.
[[nodiscard]] std::vector<std::uint8_t> derSignature(const Pair& signature);

/// What `verifies` checks.
struct Claim {
  const Point& publicKey;
  const Digest& digest;
  Bytes signature;  ///< DER
};

/// Whether the signature over the digest was made with the private half of the public key. False
/// too when the point is none of the curve.
[[nodiscard]] bool verifies(const Claim& claim);

}  // namespace quillseal::linux::P256
