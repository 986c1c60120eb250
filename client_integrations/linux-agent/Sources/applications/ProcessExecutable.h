#pragma once

#include <cstdint>
#include <string>

namespace quillseal::linux {

/// File name of the program that runs as this process; empty when that cannot be known.
[[nodiscard]] std::string executableOf(std::uint32_t process);

}  // namespace quillseal::linux
