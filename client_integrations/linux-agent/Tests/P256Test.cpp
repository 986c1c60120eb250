#include "Cases.h"
#include "keys/P256.h"

namespace quillseal::linux::P256 {
namespace {

std::vector<std::uint8_t> bytesOf(const std::string& hex) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t at = 0; at < hex.size(); at += 2)
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(hex.substr(at, 2), nullptr, 16)));
  return bytes;
}

TEST(P256, EncodesSignaturesInDer) {
  for (const auto& [r, s, signature] : testing::cases<std::string, std::string, std::string>())
    EXPECT_EQ(derSignature({.first = bytesOf(r), .second = bytesOf(s)}), bytesOf(signature)) << r;
}

TEST(P256, PadsCoordinates) {
  for (const auto& [x, y, expected] : testing::cases<std::string, std::string, std::string>()) {
    const auto point = pointOf({.first = bytesOf(x), .second = bytesOf(y)});
    EXPECT_EQ(point ? std::vector(point->begin(), point->end()) : std::vector<std::uint8_t>(),
              bytesOf(expected));
  }
}

}  // namespace
}  // namespace quillseal::linux::P256
