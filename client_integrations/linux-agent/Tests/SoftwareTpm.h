#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace quillseal::testing {

/// A TPM 2.0 in a process of its own (swtpm), listening on a socket in `folder`, which also keeps
/// its state: a second one with the same folder is the same TPM after a restart.
class SoftwareTpm {
 public:
  /// Throws when swtpm is not installed.
  explicit SoftwareTpm(const std::filesystem::path& folder);
  SoftwareTpm(const SoftwareTpm&) = delete;
  SoftwareTpm& operator=(const SoftwareTpm&) = delete;
  ~SoftwareTpm();

  /// What a TPM user of the tss2 libraries names it.
  [[nodiscard]] std::string device() const { return "swtpm:path=" + socket_.string(); }

  /// `hierarchy`: one of tss2's, such as ESYS_TR_RH_LOCKOUT.
  void setPassword(std::uint32_t hierarchy, std::string_view password) const;

  /// The bytes of every command so far, as they came over the bus.
  [[nodiscard]] std::vector<std::string> commands() const;

  /// As a program does that has access to the TPM and knows no password; false when it is refused.
  [[nodiscard]] bool undoLock() const;

 private:
  std::filesystem::path socket_;
  std::filesystem::path log_;
  pid_t process_;
};

}  // namespace quillseal::testing
