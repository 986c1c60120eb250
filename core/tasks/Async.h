#pragma once

#include <chrono>
#include <coroutine>
#include <cstdint>
#include <exception>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

#include "core/tasks/Task.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"

/// What tasks wait for. Everything here belongs to the main thread.
namespace quillseal {

namespace detail {

template <typename T>
using Completion = std::conditional_t<
    std::is_void_v<T>, std::function<void()>,
    std::function<void(std::conditional_t<std::is_void_v<T>, std::monostate, T>)>>;

/// Suspends until the completion that `start` was given is called. The completion reaches the
/// awaiter through a shared cell, so that one that comes late, twice or not at all does no harm.
template <typename T, typename Start>
class [[nodiscard]] CompletionAwaiter {
 public:
  explicit CompletionAwaiter(Start start) : start_(std::move(start)) {}
  CompletionAwaiter(const CompletionAwaiter&) = delete;
  CompletionAwaiter& operator=(const CompletionAwaiter&) = delete;
  ~CompletionAwaiter() {
    if (cell_) *cell_ = nullptr;
  }

  [[nodiscard]] bool await_ready() const noexcept { return false; }

  /// False, to go on at once, when the completion was called while starting.
  [[nodiscard]] bool await_suspend(std::coroutine_handle<> awaiting) {
    cell_ = std::make_shared<CompletionAwaiter*>(this);
    desktop::Ticket ticket = start_(completion());
    ticket_ = std::move(ticket);
    if (value_) return false;
    awaiting_ = awaiting;
    return true;
  }

  T await_resume() {
    if constexpr (!std::is_void_v<T>) return std::move(*value_);
  }

 private:
  using Value = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

  Completion<T> completion() {
    if constexpr (std::is_void_v<T>) {
      return [cell = cell_] { complete(*cell, {}); };
    } else {
      return [cell = cell_](T value) { complete(*cell, std::move(value)); };
    }
  }

  static void complete(CompletionAwaiter* awaiter, Value value) {
    if (awaiter == nullptr || awaiter->value_) return;
    awaiter->value_.emplace(std::move(value));
    if (awaiter->awaiting_) awaiter->awaiting_.resume();
  }

  Start start_;
  std::shared_ptr<CompletionAwaiter*> cell_;
  std::optional<Value> value_;
  std::coroutine_handle<> awaiting_;
  desktop::Ticket ticket_;
};

}  // namespace detail

/// Waits for a desktop service. `start` gets the completion to hand over and returns the ticket:
///
///     const Answer answer = co_await completionOf<Answer>(
///         [&](auto done) { return alerts.ask(question, std::move(done)); });
template <typename T, typename Start>
[[nodiscard]] auto completionOf(Start start) {
  return detail::CompletionAwaiter<T, Start>(std::move(start));
}

/// Waits until `duration` has passed.
[[nodiscard]] inline auto sleep(desktop::MainLoop& loop, std::chrono::milliseconds duration) {
  return completionOf<void>([&loop, duration](std::function<void()> done) {
    return loop.after(duration, std::move(done));
  });
}

/// Runs `work()` on a worker thread and gives its result, or throws what it threw. `work` is moved
/// there and owns what it uses: when the task is cancelled meanwhile, it still runs to its end. A
/// closure that holds more than references and numbers is made in a statement of its own: GCC 12
/// destroys one that is written inside the awaiting expression twice.
template <typename Work, typename Result = std::invoke_result_t<Work&>>
[[nodiscard]] Task<Result> offload(desktop::MainLoop& loop, Work work) {
  struct Shared {
    explicit Shared(Work w) : work(std::move(w)) {}
    Work work;
    std::optional<std::conditional_t<std::is_void_v<Result>, std::monostate, Result>> result;
    std::exception_ptr failure;
  };
  const auto shared = std::make_shared<Shared>(std::move(work));
  const auto run = [shared] {
    try {
      if constexpr (std::is_void_v<Result>) {
        shared->work();
        shared->result.emplace();
      } else {
        shared->result.emplace(shared->work());
      }
    } catch (...) {
      shared->failure = std::current_exception();
    }
  };
  co_await completionOf<void>(
      // NOLINTNEXTLINE(performance-unnecessary-value-param): it is moved on.
      [&loop, &run](std::function<void()> done) { return loop.runBlocking(run, std::move(done)); });
  if (shared->failure) std::rethrow_exception(shared->failure);
  if constexpr (!std::is_void_v<Result>) co_return std::move(*shared->result);
}

/// Lets one task at a time through, in the order in which they asked:
///
///     AsyncMutex::Lock lock = co_await mutex.lock();
///
/// The next task continues from the event loop, not from inside the one that releases the lock, so
/// that a scope which is being destroyed runs none of its tasks. A cancelled task leaves the queue,
/// or releases the lock. Locks and waiting tasks may outlive the mutex; the loop outlives them all.
class AsyncMutex {
  struct Queue;
  struct Release {
    std::shared_ptr<Queue> queue;
    void operator()(Queue*) const { queue->release(); }
  };

 public:
  /// Held until it is destroyed or reset.
  using Lock = std::unique_ptr<Queue, Release>;

  explicit AsyncMutex(desktop::MainLoop& loop) : queue_(std::make_shared<Queue>(loop)) {}

  [[nodiscard]] Task<Lock> lock() { return lockOf(queue_); }

 private:
  struct Queue {
    explicit Queue(desktop::MainLoop& l) : loop(l) {}

    [[nodiscard]] bool takeAtOnce() {
      if (isHeld || !waiting.empty()) return false;
      return isHeld = true;
    }

    void release() {
      isHeld = false;
      if (!waiting.empty()) waking = loop.after({}, [this] { letNextThrough(); });
    }

    /// The first in the queue may have left since the lock was released.
    void letNextThrough() {
      if (isHeld || waiting.empty()) return;
      isHeld = true;
      const auto next = waiting.extract(waiting.begin());
      next.mapped()();
    }

    desktop::MainLoop& loop;
    bool isHeld = false;
    std::uint64_t count = 0;
    std::map<std::uint64_t, std::function<void()>> waiting;  ///< in the order in which they came
    desktop::Ticket waking;
  };

  static Task<Lock> lockOf(std::shared_ptr<Queue> queue) {
    if (!queue->takeAtOnce()) {
      co_await completionOf<void>([&queue](std::function<void()> done) {
        const std::uint64_t number = queue->count++;
        queue->waiting.emplace(number, std::move(done));
        return desktop::Ticket([queue, number] { queue->waiting.erase(number); });
      });
    }
    co_return Lock(queue.get(), Release{queue});
  }

  std::shared_ptr<Queue> queue_;
};

/// Owns tasks that nobody awaits. Each is destroyed when it has ended. The others are cancelled
/// with the scope, which must not be destroyed from inside one of them.
class TaskScope {
 public:
  TaskScope() = default;
  TaskScope(const TaskScope&) = delete;
  TaskScope& operator=(const TaskScope&) = delete;
  ~TaskScope() {
    while (!running_.empty())
      running_.front().destroy();
  }

  /// Runs `task` until it first waits; it goes on beside the caller. An exception that leaves the
  /// task ends the program.
  void start(Task<> task) { run(*this, std::move(task)); }

 private:
  using Running = std::list<std::coroutine_handle<>>;

  /// A coroutine that is listed while it lives and destroys itself at its end.
  struct Root {
    class promise_type {
     public:
      promise_type(TaskScope& scope, const Task<>&)
          : running_(scope.running_),
            position_(running_.insert(running_.end(),
                                      std::coroutine_handle<promise_type>::from_promise(*this))) {}
      promise_type(const promise_type&) = delete;
      promise_type& operator=(const promise_type&) = delete;
      ~promise_type() { running_.erase(position_); }

      [[nodiscard]] Root get_return_object() const noexcept { return {}; }
      [[nodiscard]] std::suspend_never initial_suspend() const noexcept { return {}; }
      [[nodiscard]] std::suspend_never final_suspend() const noexcept { return {}; }
      void return_void() const noexcept {}
      [[noreturn]] void unhandled_exception() const noexcept { std::terminate(); }

     private:
      Running& running_;
      Running::iterator position_;
    };
  };

  static Root run(TaskScope&, Task<> task) { co_await std::move(task); }

  Running running_;
};

}  // namespace quillseal
