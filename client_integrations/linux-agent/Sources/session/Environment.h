#pragma once

#include <cstdlib>
#include <string>

namespace quillseal::linux {

/// Returns the value of a variable of the process's environment; empty when it is not set. Main
/// thread, which alone changes the environment.
[[nodiscard]] inline std::string environmentVariable(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): see above
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace quillseal::linux
