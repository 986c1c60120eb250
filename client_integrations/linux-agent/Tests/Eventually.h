#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace quillseal::testing {

/// Waits until what another process or thread does makes `condition` true; false on a time-out.
inline bool eventually(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

}  // namespace quillseal::testing
