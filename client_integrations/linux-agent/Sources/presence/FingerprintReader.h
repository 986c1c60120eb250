#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "presence/SystemBus.h"

/// A client of the fingerprint service (fprintd, net.reactivated.Fprint). Every function blocks.
namespace quillseal::linux::FingerprintReader {

/// Returns whether there is a reader and this user has enrolled a finger. False when the service is
/// missing or does not answer.
[[nodiscard]] bool isEnrolled();

/// The result of one touch (VerifyStatus of net.reactivated.Fprint.Device).
struct Touch {
  enum class Kind { match, noMatch, again, failure };
  Kind kind;
  std::string_view instruction;  ///< for the user, or the reason of a failure
};
[[nodiscard]] Touch touchOf(std::string_view status) noexcept;

/// Called with the instruction that the user should see.
using Instruct = std::function<void(std::string_view)>;

/// Waits for a finger, three tries at most, and returns whether it was recognised. Throws Error
/// when interrupted, when the reader fails, and when nobody touches it for a minute.
[[nodiscard]] bool verify(const Interrupt& interrupt, const Instruct& instruct);

}  // namespace quillseal::linux::FingerprintReader
