#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace quillseal::testing {

/// A TPM 2.0 in a separate process (swtpm) that listens on a socket in `folder`. The folder also
/// holds its state: a second object with the same folder is the same TPM after a restart.
class SoftwareTpm {
 public:
  /// Throws when swtpm is not installed.
  explicit SoftwareTpm(const std::filesystem::path& folder);
  SoftwareTpm(const SoftwareTpm&) = delete;
  SoftwareTpm& operator=(const SoftwareTpm&) = delete;
  ~SoftwareTpm();

  /// Its TCTI for the tss2 libraries.
  [[nodiscard]] std::string device() const { return "swtpm:path=" + socket_.string(); }

  /// `hierarchy`: one of tss2's, such as ESYS_TR_RH_LOCKOUT.
  void setPassword(std::uint32_t hierarchy, std::string_view password) const;

  /// Returns the bytes of every command so far, as sent over the bus.
  [[nodiscard]] std::vector<std::string> commands() const;

  /// Resets the lockout as a program with access to the TPM and without a password; false when
  /// refused.
  [[nodiscard]] bool undoLock() const;

 private:
  std::filesystem::path socket_;
  std::filesystem::path log_;
  pid_t process_;
};

}  // namespace quillseal::testing
