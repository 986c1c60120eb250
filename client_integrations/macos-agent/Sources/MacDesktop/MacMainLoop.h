#pragma once

#include <memory>
#include <utility>

#include "desktop/MainLoop.h"

namespace quillseal::mac {

/// The main run loop. Posted work also runs while an alert is modal or a menu is open, even if
/// posted work opened the alert.
class MacMainLoop final : public desktop::MainLoop {
  class Queue;

 public:
  /// Posts to a loop that may no longer exist, for blocks that the system calls at any time.
  class Poster {
   public:
    /// Like `MainLoop::post`; does nothing once the loop has ended. Any thread.
    void post(std::function<void()> work) const;

   private:
    friend class MacMainLoop;
    explicit Poster(std::shared_ptr<Queue> queue) : queue_(std::move(queue)) {}

    std::shared_ptr<Queue> queue_;
  };

  /// Main thread.
  MacMainLoop();
  ~MacMainLoop() override;
  MacMainLoop(const MacMainLoop&) = delete;
  MacMainLoop& operator=(const MacMainLoop&) = delete;

  void post(std::function<void()> work) override;
  [[nodiscard]] desktop::Ticket after(std::chrono::milliseconds delay,
                                      std::function<void()> work) override;
  [[nodiscard]] TimePoint now() const override;
  [[nodiscard]] desktop::Ticket runBlocking(std::function<void()> work,
                                            std::function<void()> finished) override;

  [[nodiscard]] Poster poster() const { return Poster(queue_); }

 private:
  std::shared_ptr<Queue> queue_;  ///< shared with timers and workers that end after the loop
};

}  // namespace quillseal::mac
