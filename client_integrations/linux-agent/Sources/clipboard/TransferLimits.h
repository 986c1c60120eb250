#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>

#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// The limits of reading another program's clipboard.
struct TransferLimits {
  /// The longest time in which the owner sends nothing. A word processor may take seconds to render
  /// a long document for each format.
  std::chrono::milliseconds silence{5000};
  std::chrono::milliseconds transfer{20000};            ///< of all formats together
  std::size_t largest = std::size_t{64} * 1024 * 1024;  ///< bytes of one format

  /// Returns how long to wait at `now` for the next bytes of a transfer that has to end at `end`.
  [[nodiscard]] std::chrono::milliseconds timeout(desktop::MainLoop::TimePoint now,
                                                  desktop::MainLoop::TimePoint end) const {
    using std::chrono::milliseconds;
    const auto left = std::chrono::ceil<milliseconds>(end - now);
    return std::clamp<milliseconds>(left, milliseconds{0}, silence);
  }
};

}  // namespace quillseal::linux
