#include "applications/ProcessExecutable.h"

#include <filesystem>
#include <system_error>

namespace quillseal::linux {

std::string executableOf(std::uint32_t process) {
  std::error_code error;
  const auto path =
      std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
  return error ? std::string() : path.filename().string();
}

}  // namespace quillseal::linux
