#pragma once

#include <filesystem>
#include <string>

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

 private:
  std::filesystem::path socket_;
  pid_t process_;
};

}  // namespace quillseal::testing
