#pragma once

#include <functional>

#include "desktop/Ticket.h"

namespace quillseal::linux {

/// Watches file descriptors in the main loop, for libraries that do their own I/O. Main thread.
class Descriptors {
 public:
  enum class Interest { reading, writing, both };

  virtual ~Descriptors() = default;

  /// Calls `ready` repeatedly while `descriptor` is ready for `interest`, has failed, or was closed
  /// at its other end; never from inside this call. `ready` may drop the ticket. One watch at a
  /// time for each descriptor, which must stay open.
  [[nodiscard]] virtual desktop::Ticket watch(int descriptor, Interest interest,
                                              std::function<void(Interest)> ready) = 0;
};

}  // namespace quillseal::linux
