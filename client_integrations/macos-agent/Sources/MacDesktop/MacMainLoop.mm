#import "MacDesktop/MacMainLoop.h"

#include <deque>
#include <mutex>

#import <Foundation/Foundation.h>

#include "MacDesktop/CfHandle.h"
#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"

namespace quillseal::mac {

/// Posted work, in a custom run-loop source. The dispatch main queue is no alternative: it stops in
/// a nested run loop that was entered from one of its blocks, which happens when posted work opens
/// an alert.
class MacMainLoop::Queue {
 public:
  Queue() {
    CFRunLoopSourceContext context{};
    context.info = this;
    context.perform = [](void* info) { static_cast<Queue*>(info)->runNext(); };
    source_ = CfHandle(::CFRunLoopSourceCreate(kCFAllocatorDefault, 0, &context));
    ::CFRunLoopAddSource(::CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
  }
  Queue(const Queue&) = delete;
  Queue& operator=(const Queue&) = delete;
  ~Queue() { close(); }

  void push(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    if (closed_) return;
    work_.push_back(std::move(work));
    signal();
  }

  /// Discards all work. Main thread.
  void close() {
    std::deque<std::function<void()>> dropped;
    const std::lock_guard lock(mutex_);
    closed_ = true;
    dropped.swap(work_);
    ::CFRunLoopSourceInvalidate(source_.get());
  }

 private:
  void signal() {
    ::CFRunLoopSourceSignal(source_.get());
    ::CFRunLoopWakeUp(::CFRunLoopGetMain());
  }

  void runNext() {
    std::function<void()> work;
    {
      const std::lock_guard lock(mutex_);
      if (work_.empty()) return;
      work = std::move(work_.front());
      work_.pop_front();
      // Signalled before the work runs, so that a nested run loop continues with the rest.
      if (!work_.empty()) signal();
    }
    @autoreleasepool {
      callGuarded(work);
    }
  }

  std::mutex mutex_;
  bool closed_ = false;
  std::deque<std::function<void()>> work_;
  CfHandle<CFRunLoopSourceRef> source_;
};

void MacMainLoop::Poster::post(std::function<void()> work) const { queue_->push(std::move(work)); }

MacMainLoop::MacMainLoop() : queue_(std::make_shared<Queue>()) {}

MacMainLoop::~MacMainLoop() { queue_->close(); }

void MacMainLoop::post(std::function<void()> work) { queue_->push(std::move(work)); }

desktop::Ticket MacMainLoop::after(std::chrono::milliseconds delay, std::function<void()> work) {
  const Completion<> completion(std::move(work));
  const std::shared_ptr<Queue> queue = queue_;
  ::dispatch_after(::dispatch_time(DISPATCH_TIME_NOW, std::chrono::nanoseconds(delay).count()),
                   ::dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), ^{
                     queue->push(completion);
                   });
  return completion.ticket();
}

desktop::MainLoop::TimePoint MacMainLoop::now() const { return std::chrono::steady_clock::now(); }

desktop::Ticket MacMainLoop::runBlocking(std::function<void()> work,
                                         std::function<void()> finished) {
  const Completion<> completion(std::move(finished));
  const std::shared_ptr<Queue> queue = queue_;
  // Dispatch adds threads while workers block in a prompt, so calls do not wait for each other.
  ::dispatch_async(::dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), ^{
    @autoreleasepool {
      callGuarded(work);
    }
    queue->push(completion);
  });
  return completion.ticket();
}

}  // namespace quillseal::mac
