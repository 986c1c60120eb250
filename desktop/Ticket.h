#pragma once

#include <functional>
#include <utility>

namespace quillseal::desktop {

/// Holds something that was started: a timer, a request, an open dialog, an observer. Dropping the
/// ticket withdraws it: the timer is stopped, the request abandoned, the dialog closed, the
/// observer removed. Dropping the ticket of something that has ended already does nothing.
///
/// Everything in this folder that returns a ticket and takes a completion calls the completion on
/// the main thread, once, and as its last act: the call may destroy the ticket and whatever else
/// belongs to the request. It may call it before the starting call returns, and never after the
/// ticket was dropped. Tickets are dropped on the main thread.
class [[nodiscard]] Ticket {
 public:
  /// Nothing is under way, or nothing can be withdrawn.
  Ticket() = default;

  explicit Ticket(std::function<void()> withdraw) : withdraw_(std::move(withdraw)) {}

  Ticket(Ticket&& other) noexcept : withdraw_(std::exchange(other.withdraw_, nullptr)) {}
  Ticket& operator=(Ticket&& other) noexcept {
    Ticket old(std::move(*this));
    withdraw_ = std::exchange(other.withdraw_, nullptr);
    return *this;
  }
  Ticket(const Ticket&) = delete;
  Ticket& operator=(const Ticket&) = delete;

  ~Ticket() {
    if (withdraw_) withdraw_();
  }

 private:
  std::function<void()> withdraw_;
};

}  // namespace quillseal::desktop
