#pragma once

#include <chrono>

namespace quillseal::linux {

// What Qt waits for on the main thread. A missing service counts as answering, since nobody waits
// for that.

/// Whether the session bus accepts a client within `patience`. Qt has no timeout for this when it
/// makes the application.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds patience);

/// Whether each service of the accessibility bus answers within `patience`. Qt waits 50 seconds or
/// for ever for them when the event loop starts.
[[nodiscard]] bool accessibilityAnswers(std::chrono::milliseconds patience);

}  // namespace quillseal::linux
