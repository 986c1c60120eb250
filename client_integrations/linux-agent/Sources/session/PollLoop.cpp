#include "session/PollLoop.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <memory>
#include <system_error>
#include <utility>

#include <poll.h>
#include <sys/eventfd.h>

namespace quillseal::linux {
namespace {

short eventsOf(Descriptors::Interest interest) {
  switch (interest) {
    case Descriptors::Interest::reading:
      return POLLIN;
    case Descriptors::Interest::writing:
      return POLLOUT;
    case Descriptors::Interest::both:
      break;
  }
  return POLLIN | POLLOUT;
}

Descriptors::Interest readinessOf(int events) {
  const bool isReadable = (events & POLLIN) != 0;
  const bool isWritable = (events & POLLOUT) != 0;
  if (isReadable == isWritable) return Descriptors::Interest::both;
  return isReadable ? Descriptors::Interest::reading : Descriptors::Interest::writing;
}

}  // namespace

PollLoop::PollLoop() : wakeUp_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  if (!wakeUp_.isOpen()) throw std::system_error(errno, std::generic_category(), "eventfd");
}

PollLoop::~PollLoop() {
  for (std::thread& worker : workers_)
    worker.join();
}

void PollLoop::post(std::function<void()> work) {
  {
    const std::scoped_lock lock(mutex_);
    posted_.push_back(std::move(work));
  }
  wake();
}

desktop::Ticket PollLoop::after(std::chrono::milliseconds delay, std::function<void()> work) {
  const TimerKey key{now() + delay, ++lastId_};
  timers_.emplace(key, std::move(work));
  return desktop::Ticket([this, key] { timers_.erase(key); });
}

PollLoop::TimePoint PollLoop::now() const {
  return std::chrono::steady_clock::now();
}

desktop::Ticket PollLoop::runBlocking(std::function<void()> work, std::function<void()> finished) {
  const auto wanted = std::make_shared<std::function<void()>>(std::move(finished));
  workers_.emplace_back([this, work = std::move(work), wanted] {
    work();
    post([wanted] {
      if (const auto call = std::exchange(*wanted, nullptr)) call();
    });
  });
  return desktop::Ticket([wanted] { *wanted = nullptr; });
}

desktop::Ticket PollLoop::watch(int descriptor, Interest interest,
                                std::function<void(Interest)> ready) {
  const std::uint64_t id = ++lastId_;
  watches_.insert_or_assign(descriptor,
                            Watch{.id = id, .interest = interest, .ready = std::move(ready)});
  return desktop::Ticket([this, descriptor, id] {
    const auto found = watches_.find(descriptor);
    if (found != watches_.end() && found->second.id == id) watches_.erase(found);
  });
}

void PollLoop::run() {
  while (!stopped_.exchange(false)) {
    waitForEvents();
    runTimers();
    runPosted();
  }
}

void PollLoop::stop() {
  stopped_ = true;
  wake();
}

void PollLoop::wake() const {
  // Fails only when a wake-up is already pending.
  (void)eventfd_write(wakeUp_.get(), 1);
}

void PollLoop::waitForEvents() {
  std::vector<pollfd> descriptors{{.fd = wakeUp_.get(), .events = POLLIN, .revents = 0}};
  std::vector<std::uint64_t> ids{0};
  for (const auto& [descriptor, watch] : watches_) {
    descriptors.push_back({.fd = descriptor, .events = eventsOf(watch.interest), .revents = 0});
    ids.push_back(watch.id);
  }
  int timeout = -1;
  if (!timers_.empty()) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(timers_.begin()->first.first - now()).count();
    timeout = static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
  }
  if (poll(descriptors.data(), descriptors.size(), timeout) < 0) {
    if (errno == EINTR) return;
    throw std::system_error(errno, std::generic_category(), "poll");
  }
  eventfd_t ignored = 0;
  (void)eventfd_read(wakeUp_.get(), &ignored);
  for (std::size_t i = 1; i < descriptors.size(); ++i) {
    if (descriptors[i].revents == 0) continue;
    // An earlier callback may have ended this watch, or started another on the same descriptor.
    const auto found = watches_.find(descriptors[i].fd);
    if (found == watches_.end() || found->second.id != ids[i]) continue;
    const std::function<void(Interest)> ready = found->second.ready;
    ready(readinessOf(descriptors[i].revents));
  }
}

void PollLoop::runTimers() {
  const TimePoint present = now();
  while (!timers_.empty() && timers_.begin()->first.first <= present) {
    const std::function<void()> work = std::move(timers_.begin()->second);
    timers_.erase(timers_.begin());
    work();
  }
}

void PollLoop::runPosted() {
  std::vector<std::function<void()>> batch;
  {
    const std::scoped_lock lock(mutex_);
    batch.swap(posted_);
  }
  for (const std::function<void()>& work : batch)
    work();
}

}  // namespace quillseal::linux
