#pragma once

#include <coroutine>
#include <exception>
#include <optional>
#include <type_traits>
#include <utility>

/// Coroutines of the main thread.
///
///     Task<std::string> greeting(MainLoop& loop) {
///       co_await sleep(loop, 2s);
///       co_return "hello";
///     }
///     const std::string text = co_await greeting(loop);
///
/// A task is lazy: it runs when it is awaited, on the awaiting thread. An exception that leaves it
/// comes out of the `co_await`. Destroying a task that has not ended cancels it: its locals, the
/// tasks it awaits and at last the timer, request or dialog it waits for are destroyed in turn, and
/// nothing of it runs afterwards. So a task must not outlive what it refers to, and a lambda that
/// is a coroutine captures nothing. Reference parameters are safe where the call is awaited at
/// once.
namespace quillseal {

template <typename T = void>
class Task;

namespace detail {

class TaskPromiseBase {
 public:
  [[nodiscard]] std::suspend_always initial_suspend() const noexcept { return {}; }

  [[nodiscard]] auto final_suspend() const noexcept {
    struct ResumeAwaiting {
      [[nodiscard]] bool await_ready() const noexcept { return false; }
      [[nodiscard]] std::coroutine_handle<> await_suspend(std::coroutine_handle<>) const noexcept {
        return awaiting;
      }
      void await_resume() const noexcept {}
      std::coroutine_handle<> awaiting;
    };
    return ResumeAwaiting{awaiting_};
  }

  void unhandled_exception() noexcept { failure_ = std::current_exception(); }
  void setAwaiting(std::coroutine_handle<> awaiting) noexcept { awaiting_ = awaiting; }

 protected:
  void rethrowFailure() const {
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  std::coroutine_handle<> awaiting_;
  std::exception_ptr failure_;
};

template <typename T>
class TaskPromise : public TaskPromiseBase {
 public:
  [[nodiscard]] Task<T> get_return_object() noexcept;

  template <typename Value>
  void return_value(Value&& value) {
    value_.emplace(std::forward<Value>(value));
  }

  [[nodiscard]] T result() {
    rethrowFailure();
    return std::move(*value_);
  }

 private:
  std::optional<T> value_;
};

template <>
class TaskPromise<void> : public TaskPromiseBase {
 public:
  [[nodiscard]] Task<void> get_return_object() noexcept;
  void return_void() const noexcept {}
  void result() const { rethrowFailure(); }
};

}  // namespace detail

template <typename T>
class [[nodiscard]] Task {
 public:
  using promise_type = detail::TaskPromise<T>;

  explicit Task(std::coroutine_handle<promise_type> frame) noexcept : frame_(frame) {}
  Task(Task&& other) noexcept : frame_(std::exchange(other.frame_, nullptr)) {}
  Task& operator=(Task&& other) noexcept {
    Task old(std::move(*this));
    frame_ = std::exchange(other.frame_, nullptr);
    return *this;
  }
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;

  ~Task() {
    if (frame_) frame_.destroy();
  }

  /// Runs the task and gives its result. A task is awaited once.
  [[nodiscard]] auto operator co_await() && noexcept {
    struct Awaiter {
      [[nodiscard]] bool await_ready() const noexcept { return false; }
      [[nodiscard]] std::coroutine_handle<> await_suspend(
          std::coroutine_handle<> awaiting) const noexcept {
        frame.promise().setAwaiting(awaiting);
        return frame;
      }
      T await_resume() const { return frame.promise().result(); }
      std::coroutine_handle<promise_type> frame;
    };
    return Awaiter{frame_};
  }

 private:
  std::coroutine_handle<promise_type> frame_;
};

namespace detail {

template <typename T>
Task<T> TaskPromise<T>::get_return_object() noexcept {
  return Task<T>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> TaskPromise<void>::get_return_object() noexcept {
  return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

}  // namespace detail

}  // namespace quillseal
