#pragma once

#include <functional>

#include "desktop/Ticket.h"

namespace quillseal::linux {

/// Watches file descriptors in the main loop, for libraries that do their own input and output.
/// Main thread.
class Descriptors {
 public:
  enum class Interest { reading, writing, both };

  virtual ~Descriptors() = default;

  /// Calls `ready` again and again while `descriptor` is ready for what is of interest, or has
  /// failed or been closed at its other end; never from inside this call. The call may drop the
  /// ticket. One watch at a time for each descriptor, which stays open meanwhile.
  [[nodiscard]] virtual desktop::Ticket watch(int descriptor, Interest interest,
                                              std::function<void(Interest)> ready) = 0;
};

}  // namespace quillseal::linux
