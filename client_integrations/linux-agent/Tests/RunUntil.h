#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>

#include "session/PollLoop.h"

namespace quillseal::testing {

/// Runs the loop until `condition` holds. Throws on a time-out.
inline void runUntil(linux::PollLoop& loop, const std::function<bool()>& condition) {
  constexpr std::chrono::milliseconds pause{2};
  const auto end = loop.now() + std::chrono::seconds(20);
  while (!condition()) {
    if (loop.now() > end) throw std::runtime_error("nothing happened");
    const desktop::Ticket look = loop.after(pause, [&loop] { loop.stop(); });
    loop.run();
  }
}

}  // namespace quillseal::testing
