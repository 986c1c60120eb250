#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// The cause of a failed TPM operation, as far as the user can act on it.
enum class TpmProblem {
  wrongSecret,
  lockedOut,
  busy,        ///< passes by itself
  foreignKey,  ///< the key was made by another TPM, or by this one before it was cleared
  noDevice,
  noPermission,
  ownerPassword,  ///< somebody set a password on the TPM's storage hierarchy
  disabled,       ///< switched off or broken; the firmware settings or a restart may help
  unsupported,    ///< lacks P-256 or another algorithm that the key needs
  unknown,
};

struct TpmFailure {
  TpmProblem problem;
  std::string message;  ///< what is wrong and what helps, as sentences for the user
};

/// Interprets a response code of any layer of the TPM software stack (TSS2_RC; TCG TSS 2.0
/// Overview, 4, and TPM 2.0 Library Part 2, 6.6). REQUIRES: code is not success.
[[nodiscard]] TpmFailure tpmFailureOf(std::uint32_t code);

/// Interprets the errno with which opening the device failed.
struct DeviceError {
  std::string_view device;
  int number;
};
[[nodiscard]] TpmFailure tpmFailureOf(const DeviceError& error);

}  // namespace quillseal::linux
