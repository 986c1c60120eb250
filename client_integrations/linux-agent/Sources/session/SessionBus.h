#pragma once

#include <chrono>

namespace quillseal::linux {

// What Qt waits for on the main thread. What does not exist counts as answering, since nobody waits
// for that.

/// Whether the session bus lets a program in within `patience`. Qt waits for it without end, while
/// it makes the application.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds patience);

/// Whether what serves screen readers answers, each part of it within `patience`. Qt waits 50
/// seconds or without end for it, when the event loop begins.
[[nodiscard]] bool accessibilityAnswers(std::chrono::milliseconds patience);

}  // namespace quillseal::linux
