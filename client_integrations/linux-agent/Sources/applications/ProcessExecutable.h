#pragma once

#include <cstdint>
#include <string>

namespace quillseal::linux {

/// Returns the file name of the process's executable; empty when it is not known.
[[nodiscard]] std::string executableOf(std::uint32_t process);

}  // namespace quillseal::linux
