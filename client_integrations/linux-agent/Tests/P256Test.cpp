#include <algorithm>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "keys/P256.h"

namespace quillseal::linux::P256 {
namespace {

std::vector<std::uint8_t> bytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

std::vector<std::uint8_t> integer(std::size_t zeros, std::uint8_t first, std::size_t length) {
  std::vector<std::uint8_t> bytes(zeros, 0);
  bytes.push_back(first);
  bytes.resize(length, 0x11);
  return bytes;
}

// X.690, 8.3: the shortest encoding, with a clear first bit, since the number is not negative.
TEST(P256, EncodesSignaturesInDer) {
  const struct {
    std::vector<std::uint8_t> r, s;
    std::string header, between;
    std::size_t skipped;  ///< leading zero bytes of r, which DER omits
  } cases[] = {
      {integer(0, 0x7f, 32), integer(0, 0x01, 32), "\x30\x44\x02\x20", "\x02\x20", 0},
      {integer(0, 0x80, 32), integer(0, 0x7f, 32), std::string("\x30\x45\x02\x21\0", 5), "\x02\x20",
       0},
      {integer(0, 0xff, 32), integer(0, 0xff, 32), std::string("\x30\x46\x02\x21\0", 5),
       std::string("\x02\x21\0", 3), 0},
      {integer(1, 0x7f, 32), integer(0, 0x7f, 32), "\x30\x43\x02\x1f", "\x02\x20", 1},
      {integer(1, 0x80, 32), integer(0, 0x7f, 32), std::string("\x30\x44\x02\x20\0", 5), "\x02\x20",
       1},
      {integer(31, 0x05, 32), integer(0, 0x01, 1), "\x30\x06\x02\x01", "\x02\x01", 31},
  };
  for (const auto& [r, s, header, between, skipped] : cases) {
    std::vector<std::uint8_t> expected = bytesOf(header);
    expected.insert(expected.end(), r.begin() + static_cast<std::ptrdiff_t>(skipped), r.end());
    std::ranges::copy(bytesOf(between), std::back_inserter(expected));
    expected.insert(expected.end(), s.begin(), s.end());
    EXPECT_EQ(derSignature({.first = r, .second = s}), expected) << ::testing::PrintToString(r);
  }
}

TEST(P256, PadsCoordinates) {
  const auto x = integer(0, 0xab, 31);
  const auto y = integer(0, 0xcd, 1);
  const auto point = pointOf({.first = x, .second = y});
  ASSERT_TRUE(point);
  std::vector<std::uint8_t> expected{0x04, 0x00};
  expected.insert(expected.end(), x.begin(), x.end());
  expected.insert(expected.end(), 31, 0x00);
  expected.push_back(0xcd);
  EXPECT_THAT(*point, ::testing::ElementsAreArray(expected));
  EXPECT_FALSE(pointOf({.first = integer(0, 1, 33), .second = y}));
  EXPECT_FALSE(pointOf({.first = x, .second = integer(0, 1, 33)}));
}

}  // namespace
}  // namespace quillseal::linux::P256
