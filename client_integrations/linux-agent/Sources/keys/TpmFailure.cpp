#include "keys/TpmFailure.h"

#include <array>
#include <cerrno>
#include <iomanip>
#include <sstream>
#include <system_error>

#include <tss2/tss2_common.h>
#include <tss2/tss2_tpm2_types.h>

namespace quillseal::linux {

namespace {

constexpr std::string_view wrongSecret = "The PIN is wrong.";
constexpr std::string_view lockedOut =
    "The TPM has locked itself after too many wrong PINs. Wait before you try again: every wrong "
    "PIN makes the wait longer.";
constexpr std::string_view busy = "The TPM is busy. Try again in a moment.";
constexpr std::string_view foreign =
    "This computer’s TPM cannot load the key: the TPM was cleared, or the key comes from another "
    "computer. Enrol this computer again in Settings.";
constexpr std::string_view ownerPassword =
    "The TPM’s storage hierarchy has a password, so Quillseal cannot use it. An administrator can "
    "remove it (tpm2_changeauth -c owner -p file:-, then the password, Enter and Ctrl+D).";
constexpr std::string_view disabled =
    "The TPM is switched off or has failed. Restart the computer; if that does not help, look for "
    "the TPM in its firmware settings.";
constexpr std::string_view unsupported =
    "The TPM lacks an algorithm that Quillseal’s key needs (ECDSA with the curve P-256).";

struct Row {
  TSS2_RC code;
  TpmProblem problem;
  std::string_view message;
};

constexpr Row tpmRows[] = {
    {TPM2_RC_AUTH_FAIL, TpmProblem::wrongSecret, wrongSecret},
    {TPM2_RC_LOCKOUT, TpmProblem::lockedOut, lockedOut},
    {TPM2_RC_RETRY, TpmProblem::busy, busy},
    {TPM2_RC_YIELDED, TpmProblem::busy, busy},
    {TPM2_RC_CANCELED, TpmProblem::busy, busy},
    {TPM2_RC_TESTING, TpmProblem::busy, busy},
    {TPM2_RC_NV_RATE, TpmProblem::busy, busy},
    {TPM2_RC_NV_UNAVAILABLE, TpmProblem::busy, busy},
    {TPM2_RC_MEMORY, TpmProblem::busy, busy},
    {TPM2_RC_OBJECT_MEMORY, TpmProblem::busy, busy},
    {TPM2_RC_SESSION_MEMORY, TpmProblem::busy, busy},
    {TPM2_RC_OBJECT_HANDLES, TpmProblem::busy, busy},
    {TPM2_RC_SESSION_HANDLES, TpmProblem::busy, busy},
    {TPM2_RC_CONTEXT_GAP, TpmProblem::busy, busy},
    {TPM2_RC_INTEGRITY, TpmProblem::foreignKey, foreign},
    {TPM2_RC_SENSITIVE, TpmProblem::foreignKey, foreign},
    {TPM2_RC_BINDING, TpmProblem::foreignKey, foreign},
    // A wrong PIN gives AUTH_FAIL, since the lockout applies to the key; BAD_AUTH can only come
    // from the hierarchy.
    {TPM2_RC_BAD_AUTH, TpmProblem::ownerPassword, ownerPassword},
    {TPM2_RC_AUTH_UNAVAILABLE, TpmProblem::ownerPassword, ownerPassword},
    {TPM2_RC_FAILURE, TpmProblem::disabled, disabled},
    {TPM2_RC_INITIALIZE, TpmProblem::disabled, disabled},
    {TPM2_RC_REBOOT, TpmProblem::disabled, disabled},
    {TPM2_RC_UPGRADE, TpmProblem::disabled, disabled},
    {TPM2_RC_DISABLED, TpmProblem::disabled, disabled},
    {TPM2_RC_NEEDS_TEST, TpmProblem::disabled, disabled},
    {TPM2_RC_HIERARCHY, TpmProblem::disabled, disabled},
    {TPM2_RC_CURVE, TpmProblem::unsupported, unsupported},
    {TPM2_RC_ASYMMETRIC, TpmProblem::unsupported, unsupported},
    {TPM2_RC_SCHEME, TpmProblem::unsupported, unsupported},
    {TPM2_RC_HASH, TpmProblem::unsupported, unsupported},
    {TPM2_RC_COMMAND_CODE, TpmProblem::unsupported, unsupported},
};

constexpr std::string_view noConnection =
    "The connection to the TPM was lost. Try again; if it happens again, restart the computer.";

constexpr Row transportRows[] = {
    {TSS2_BASE_RC_TRY_AGAIN, TpmProblem::busy, busy},
    {TSS2_BASE_RC_NO_CONNECTION, TpmProblem::noDevice, noConnection},
    {TSS2_BASE_RC_IO_ERROR, TpmProblem::noDevice, noConnection},
    {TSS2_BASE_RC_NOT_PERMITTED, TpmProblem::noPermission, noConnection},
};

/// Returns the code without the number of the handle, parameter or session that it concerns.
TSS2_RC withoutPosition(TSS2_RC code) {
  constexpr TSS2_RC formatOneBits = TPM2_RC_FMT1 | 0x3FU;
  return (code & TPM2_RC_FMT1) != 0 ? code & formatOneBits : code & 0xFFFU;
}

}  // namespace

TpmFailure tpmFailureOf(std::uint32_t code) {
  const TSS2_RC layer = code & TSS2_RC_LAYER_MASK;
  if (layer == TSS2_TPM_RC_LAYER || layer == TSS2_RESMGR_TPM_RC_LAYER) {
    for (const Row& row : tpmRows)
      if (row.code == withoutPosition(code))
        return {.problem = row.problem, .message = std::string(row.message)};
  } else {
    for (const Row& row : transportRows)
      if (row.code == (code & ~TSS2_RC_LAYER_MASK))
        return {.problem = row.problem, .message = std::string(row.message)};
  }
  std::ostringstream message;
  message << "The TPM answered with an unexpected error (0x" << std::hex << std::setfill('0')
          << std::setw(8) << code << ").";
  return {.problem = TpmProblem::unknown, .message = message.str()};
}

TpmFailure tpmFailureOf(const DeviceError& error) {
  const std::string device(error.device);
  switch (error.number) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
      return {.problem = TpmProblem::noDevice,
              .message =
                  "This computer has no TPM 2.0, or it is switched off in the firmware "
                  "settings (" +
                  device + " does not exist)."};
    case EACCES:
    case EPERM:
      return {.problem = TpmProblem::noPermission,
              .message = "You have no access to the TPM (" + device +
                         "). An administrator can add you to the group that owns it "
                         "(sudo adduser NAME tss). Log out and in again afterwards."};
    case EBUSY:
      return {.problem = TpmProblem::busy, .message = std::string(busy)};
    default:
      return {.problem = TpmProblem::unknown,
              .message = "The TPM (" + device + ") cannot be opened: " +
                         std::generic_category().message(error.number) + "."};
  }
}

}  // namespace quillseal::linux
