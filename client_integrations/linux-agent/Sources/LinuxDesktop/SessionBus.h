#pragma once

#include <chrono>

namespace quillseal {

/// What Qt would wait for on the main thread: for the bus without end, while it makes the
/// application; for the service that tells about screen readers 50 seconds, when the event loop
/// begins. What does not exist counts as answering, since nobody waits for that.
struct SessionBusState {
  bool busAnswers = true;
  bool accessibilityAnswers = true;
};

/// Gives each of them `patience`.
[[nodiscard]] SessionBusState examineSessionBus(std::chrono::milliseconds patience);

}  // namespace quillseal
