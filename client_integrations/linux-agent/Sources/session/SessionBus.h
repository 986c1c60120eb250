#pragma once

#include <chrono>

namespace quillseal::linux {

// Checks the services for which Qt blocks the main thread. A missing service counts as answering,
// since Qt does not wait for it.

/// Returns whether the session bus accepts a client within `patience`. Qt waits for that without a
/// time-out when the QApplication is created.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds patience);

/// Returns whether the services of the accessibility bus answer within `patience`. Qt waits for
/// them, 50 seconds or for ever, when the event loop starts.
[[nodiscard]] bool accessibilityAnswers(std::chrono::milliseconds patience);

}  // namespace quillseal::linux
