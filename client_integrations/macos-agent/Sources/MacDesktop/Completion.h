#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "desktop/Ticket.h"

namespace quillseal::mac {

/// The completion function of a request. It is called at most once, and not after the request's
/// ticket was dropped. Copies share the function, so blocks may carry one through any thread. Call
/// it, query it and drop the ticket on the main thread, where the function is also destroyed.
template <typename... Results>
class Completion {
 public:
  explicit Completion(std::function<void(Results...)> done)
      : done_(std::make_shared<std::function<void(Results...)>>(std::move(done))) {}

  [[nodiscard]] bool isPending() const { return *done_ != nullptr; }

  void operator()(Results... results) const {
    if (const auto done = std::exchange(*done_, nullptr)) done(std::move(results)...);
  }

  /// Returns a ticket that withdraws the function and then calls `cancel`, if the request is still
  /// open.
  [[nodiscard]] desktop::Ticket ticket(std::function<void()> cancel = [] {}) const {
    return desktop::Ticket([done = done_, cancel = std::move(cancel)] {
      if (*done == nullptr) return;
      *done = nullptr;
      cancel();
    });
  }

 private:
  std::shared_ptr<std::function<void(Results...)>> done_;
};

}  // namespace quillseal::mac
