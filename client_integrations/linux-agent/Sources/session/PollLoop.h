#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "desktop/MainLoop.h"
#include "session/Descriptors.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// A main loop on poll(2), for programs and tests without a toolkit.
class PollLoop final : public desktop::MainLoop, public Descriptors {
 public:
  PollLoop();
  /// Waits for workers that still run.
  ~PollLoop() override;
  PollLoop(const PollLoop&) = delete;
  PollLoop& operator=(const PollLoop&) = delete;

  void post(std::function<void()> work) override;
  [[nodiscard]] desktop::Ticket after(std::chrono::milliseconds delay,
                                      std::function<void()> work) override;
  [[nodiscard]] TimePoint now() const override;
  [[nodiscard]] desktop::Ticket runBlocking(std::function<void()> work,
                                            std::function<void()> finished) override;
  [[nodiscard]] desktop::Ticket watch(int descriptor, Interest interest,
                                      std::function<void(Interest)> ready) override;

  /// Runs the loop until `stop`. The calling thread becomes the main thread.
  void run();

  /// Ends `run` soon, or the next `run` at once. Any thread.
  void stop();

 private:
  struct Watch {
    std::uint64_t id;
    Interest interest;
    std::function<void(Interest)> ready;
  };
  using TimerKey = std::pair<TimePoint, std::uint64_t>;

  void wake() const;
  void waitForEvents();
  void runTimers();
  void runPosted();

  FileDescriptor wakeUp_;  // an eventfd
  std::atomic<bool> stopped_ = false;
  std::uint64_t lastId_ = 0;
  std::map<TimerKey, std::function<void()>> timers_;
  std::map<int, Watch> watches_;
  std::vector<std::thread> workers_;
  std::mutex mutex_;
  std::vector<std::function<void()>> posted_;  // guarded by mutex_
};

}  // namespace quillseal::linux
