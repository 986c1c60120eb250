#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>

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

/// Returns what is called back with, after `start` was given the callback.
template <typename T>
T awaited(linux::PollLoop& loop, const auto& start) {
  std::optional<T> result;
  const desktop::Ticket ticket = start([&result](T value) { result = std::move(value); });
  runUntil(loop, [&result] { return result.has_value(); });
  return *std::move(result);
}

}  // namespace quillseal::testing
