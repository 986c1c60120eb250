#include <cerrno>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "keys/TpmFailure.h"

namespace quillseal::linux {
namespace {

using ::testing::HasSubstr;

// Real codes: 0x0C0000 is the resource manager's layer, 0x0A0000 the transport's; in a format-one
// code, bits 6 and 8 to 11 give the parameter, session or handle (TPM 2.0 Library Part 2, 6.6; TCG
// TSS 2.0 Overview, 4.3).
TEST(TpmFailure, UnderstandsEveryLayer) {
  const std::pair<TpmProblem, std::vector<std::uint32_t>> rows[] = {
      {TpmProblem::wrongSecret, {0x98e, 0x08e, 0xc098e}},
      {TpmProblem::lockedOut, {0x921}},
      {TpmProblem::busy,
       {0x922, 0x908, 0x909, 0x90a, 0x920, 0x923, 0x904, 0x902, 0x903, 0x905, 0x906, 0x901, 0xc0902,
        0xa0009}},
      {TpmProblem::foreignKey, {0x1df, 0x155, 0x1e5}},
      {TpmProblem::ownerPassword, {0x9a2, 0x12f}},
      {TpmProblem::disabled, {0x101, 0x100, 0x130, 0x12d, 0x120, 0x153, 0x185}},
      {TpmProblem::unsupported, {0x2e6, 0x2c1, 0x2d2, 0x2c3, 0x143}},
      {TpmProblem::noDevice, {0xa0008, 0xa000a}},
      {TpmProblem::noPermission, {0xa000c}},
      {TpmProblem::unknown, {0x70001, 0x1c4, 0xa0921}},
  };
  for (const auto& [problem, codes] : rows) {
    for (const std::uint32_t code : codes) {
      const TpmFailure failure = tpmFailureOf(code);
      EXPECT_EQ(failure.problem, problem) << std::hex << code << ' ' << failure.message;
      EXPECT_EQ(failure.message.back(), '.') << failure.message;
    }
  }
  EXPECT_THAT(tpmFailureOf(0x00070001).message, HasSubstr("(0x00070001)"));
}

TEST(TpmFailure, SaysWhyTheDeviceDoesNotOpen) {
  const struct {
    std::vector<int> numbers;
    TpmProblem problem;
    const char* phrase;
  } rows[] = {{{ENOENT, ENODEV, ENXIO}, TpmProblem::noDevice, "/dev/tpmrm0 does not exist"},
              {{EACCES, EPERM}, TpmProblem::noPermission, "group"},
              {{EBUSY}, TpmProblem::busy, "busy"},
              {{EIO}, TpmProblem::unknown, "Input/output error"}};
  for (const auto& [numbers, problem, phrase] : rows)
    for (const int number : numbers) {
      const TpmFailure failure =
          tpmFailureOf(DeviceError{.device = "/dev/tpmrm0", .number = number});
      EXPECT_EQ(failure.problem, problem) << number;
      EXPECT_THAT(failure.message, HasSubstr(phrase));
    }
}

}  // namespace
}  // namespace quillseal::linux
