#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "presence/SystemBus.h"

/// The fingerprint service of Linux (fprintd, net.reactivated.Fprint). Everything blocks.
namespace quillseal::linux::FingerprintReader {

/// Whether there is a reader and this user has enrolled a finger. False as well when the service is
/// missing or does not answer.
[[nodiscard]] bool isEnrolled();

/// What the service says about one touch (VerifyStatus of net.reactivated.Fprint.Device).
struct Touch {
  enum class Kind { match, noMatch, again, failure };
  Kind kind;
  std::string_view instruction;  ///< for the person, or the reason of a failure
};
[[nodiscard]] Touch touchOf(std::string_view status) noexcept;

/// Called with what the person shall do next.
using Instruct = std::function<void(std::string_view)>;

/// Waits for a finger, three tries at most. Whether it was the right one; throws Error when
/// interrupted, and when the reader fails or nobody touches it for a minute.
[[nodiscard]] bool verify(const Interrupt& interrupt, const Instruct& instruct);

}  // namespace quillseal::linux::FingerprintReader
