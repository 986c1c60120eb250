#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sys/resource.h>

namespace quillseal::testing {

/// A new folder (0700) that is deleted with its contents.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quillseal-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

 private:
  std::filesystem::path path_;
};

/// As far as it can be read: a file below /proc may go meanwhile.
inline std::string contentsOf(const std::filesystem::path& path) {
  std::ostringstream contents;
  contents << std::ifstream(path, std::ios::binary).rdbuf();
  return contents.str();
}

inline void overwrite(const std::filesystem::path& path, std::string_view contents) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << contents;
}

/// Runs `action` as with a full disk: in this process no file may grow beyond `bytes`.
inline void onFullDisk(rlim_t bytes, const auto& action) {
  rlimit usual{};
  if (::getrlimit(RLIMIT_FSIZE, &usual) != 0) throw std::runtime_error("no limits");
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{.rlim_cur = bytes, .rlim_max = usual.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  action();
  ::setrlimit(RLIMIT_FSIZE, &usual);
  static_cast<void>(std::signal(SIGXFSZ, handler));
}

}  // namespace quillseal::testing
