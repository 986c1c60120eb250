#pragma once

#include <chrono>

namespace quillseal {

/// Whether the session bus lets a program in within `patience`; true as well when there is none,
/// for which nobody waits. Qt waits for it without end, while it makes the application.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds patience);

}  // namespace quillseal
