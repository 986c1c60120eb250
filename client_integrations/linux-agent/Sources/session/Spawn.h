#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillseal::linux {

/// A program to start, and what it gets.
struct Spawn {
  std::filesystem::path file;
  std::vector<std::string> arguments{};
  int input;        ///< descriptor that becomes its standard input
  int output = -1;  ///< descriptor that becomes its standard output; none is /dev/null
};

/// Starts a program without a standard error. Returns its process, to be waited for by the caller;
/// nothing when it cannot be started.
[[nodiscard]] std::optional<pid_t> start(const Spawn& spawn);

/// Returns the first of the candidate paths that is a program; nothing when none is.
[[nodiscard]] std::optional<std::filesystem::path> firstProgram(
    const std::vector<std::filesystem::path>& places);

}  // namespace quillseal::linux
