#pragma once

#include <chrono>
#include <functional>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// The event loop of the main thread, on which the whole agent runs, and its one clock.
class MainLoop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  virtual ~MainLoop() = default;

  /// Runs `work` on the main thread, soon, never from inside this call. Calls from one thread keep
  /// their order. Any thread.
  virtual void post(std::function<void()> work) = 0;

  /// Runs `work` on the main thread once `delay` has passed, never from inside this call. Main
  /// thread.
  [[nodiscard]] virtual Ticket after(std::chrono::milliseconds delay,
                                     std::function<void()> work) = 0;

  /// The monotonic time. Any thread.
  [[nodiscard]] virtual TimePoint now() const = 0;

  /// Runs `work` on a worker thread and then `finished` on the main thread. Work that has begun
  /// runs to its end even when the ticket is dropped; only `finished` is then left out. Several
  /// calls may run side by side. `work` does not throw and owns, by value or shared, all that it
  /// touches, but for the desktop services themselves: those outlive the workers.
  [[nodiscard]] virtual Ticket runBlocking(std::function<void()> work,
                                           std::function<void()> finished) = 0;
};

}  // namespace quillseal::desktop
