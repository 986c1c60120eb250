#include <cerrno>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "keys/TpmFailure.h"

namespace quillseal::linux {
namespace {

using ::testing::HasSubstr;

// Codes as they come: 0x0C0000 is the resource manager's layer, 0x0A0000 the transport's; bits 6
// and 8 to 11 of a format-one code number the parameter, session or handle it is about.
TEST(TpmFailure, UnderstandsEveryLayer) {
  struct Row {
    std::uint32_t code;
    TpmProblem problem;
  };
  constexpr Row rows[] = {
      {0x0000098e, TpmProblem::wrongSecret},  // session 1, AUTH_FAIL
      {0x0000008e, TpmProblem::wrongSecret},
      {0x000c098e, TpmProblem::wrongSecret},
      {0x00000921, TpmProblem::lockedOut},
      {0x00000922, TpmProblem::busy},  // RETRY
      {0x00000902, TpmProblem::busy},  // OBJECT_MEMORY
      {0x000c0902, TpmProblem::busy},
      {0x000001df, TpmProblem::foreignKey},     // parameter 1, INTEGRITY
      {0x000009a2, TpmProblem::ownerPassword},  // session 1, BAD_AUTH
      {0x00000101, TpmProblem::disabled},       // FAILURE
      {0x00000185, TpmProblem::disabled},       // handle 1, HIERARCHY
      {0x000002e6, TpmProblem::unsupported},    // parameter 2, CURVE
      {0x000a0009, TpmProblem::busy},           // TRY_AGAIN
      {0x000a000a, TpmProblem::noDevice},       // IO_ERROR
      {0x00070001, TpmProblem::unknown},
      {0x000001c4, TpmProblem::unknown},  // parameter 1, VALUE
  };
  for (const Row& row : rows) {
    const TpmFailure failure = tpmFailureOf(row.code);
    EXPECT_EQ(failure.problem, row.problem) << std::hex << row.code << ' ' << failure.message;
    EXPECT_EQ(failure.message.back(), '.') << failure.message;
  }
  EXPECT_THAT(tpmFailureOf(0x00070001).message, HasSubstr("(0x00070001)"));
}

TEST(TpmFailure, SaysWhyTheDeviceDoesNotOpen) {
  struct Row {
    int number;
    TpmProblem problem;
    const char* phrase;
  };
  constexpr Row rows[] = {
      {ENOENT, TpmProblem::noDevice, "/dev/tpmrm0 does not exist"},
      {EACCES, TpmProblem::noPermission, "group"},
      {EBUSY, TpmProblem::busy, "busy"},
      {EIO, TpmProblem::unknown, "Input/output error"},
  };
  for (const Row& row : rows) {
    const TpmFailure failure =
        tpmFailureOf(DeviceError{.device = "/dev/tpmrm0", .number = row.number});
    EXPECT_EQ(failure.problem, row.problem) << row.number;
    EXPECT_THAT(failure.message, HasSubstr(row.phrase));
  }
}

}  // namespace
}  // namespace quillseal::linux
