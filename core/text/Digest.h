#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

/// The two services that the core takes from the platform's cryptography library. The build picks
/// the implementation.
namespace quillseal::digest {

/// SHA-256 (FIPS 180-4) of the bytes of `message`. Throws when the library cannot compute it.
[[nodiscard]] std::array<std::uint8_t, 32> sha256(std::string_view message);

/// Fills `bytes` from the system's cryptographically secure random source. False when it fails;
/// `bytes` then holds nothing of use.
[[nodiscard]] bool fillRandom(std::span<std::uint8_t> bytes);

}  // namespace quillseal::digest
