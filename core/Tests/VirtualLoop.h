#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

#include "desktop/MainLoop.h"

namespace quillseal::testing {

/// A main loop whose time only moves when nothing else is left to do: waiting takes no time at all.
/// Blocking work runs inline, as a step of the loop.
class VirtualLoop final : public desktop::MainLoop {
 public:
  void post(std::function<void()> work) override { add({}, std::move(work)); }

  desktop::Ticket after(std::chrono::milliseconds delay, std::function<void()> work) override {
    const Position position = add(delay, std::move(work));
    return desktop::Ticket([this, position] { steps_.erase(position); });
  }

  [[nodiscard]] TimePoint now() const override { return now_; }

  desktop::Ticket runBlocking(std::function<void()> work, std::function<void()> finished) override {
    return after({}, [work = std::move(work), finished = std::move(finished)] {
      work();
      finished();
    });
  }

  [[nodiscard]] std::chrono::milliseconds elapsed() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(now_.time_since_epoch());
  }

  /// Lets time pass in which nothing runs, as while the machine sleeps.
  void leap(std::chrono::milliseconds duration) { now_ += duration; }

  /// Runs the next step, moving the time to it. False when there is none.
  bool step() {
    if (steps_.empty()) return false;
    const auto first = steps_.begin();
    now_ = std::max(now_, first->first.first);
    const std::function<void()> work = std::move(first->second);
    steps_.erase(first);
    work();
    return true;
  }

  /// Runs until nothing is left to do.
  void run() {
    while (step()) {
    }
  }

 private:
  using Position = std::pair<TimePoint, std::uint64_t>;

  Position add(std::chrono::milliseconds delay, std::function<void()> work) {
    const Position position{now_ + delay, count_++};
    steps_.emplace(position, std::move(work));
    return position;
  }

  TimePoint now_;
  std::uint64_t count_ = 0;
  std::map<Position, std::function<void()>> steps_;
};

}  // namespace quillseal::testing
