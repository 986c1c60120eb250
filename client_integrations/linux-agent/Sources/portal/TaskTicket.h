#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "core/tasks/Async.h"
#include "core/tasks/Task.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"

namespace quillseal::linux {

namespace detail {

template <typename Result>
class TaskRun {
 public:
  TaskRun(desktop::MainLoop& loop, std::function<void(Result)> done)
      : loop_(loop), done_(std::move(done)) {}

  void start(Task<Result> task) { scope_.start(finish(std::move(task))); }

 private:
  // A task must not be destroyed from inside itself, which the completion may do.
  Task<> finish(Task<Result> task) {
    result_ = co_await std::move(task);
    reporting_ = loop_.after({}, [this] {
      const auto done = std::move(done_);
      done(std::move(*result_));
    });
  }

  desktop::MainLoop& loop_;
  std::function<void(Result)> done_;
  std::optional<Result> result_;
  desktop::Ticket reporting_;
  TaskScope scope_;
};

}  // namespace detail

/// Runs a task, which must not throw, for as long as the ticket is kept. Calls `done` with its
/// result, never from inside this call.
template <typename Result>
[[nodiscard]] desktop::Ticket runTask(desktop::MainLoop& loop, Task<Result> task,
                                      std::function<void(Result)> done) {
  const auto run = std::make_shared<detail::TaskRun<Result>>(loop, std::move(done));
  run->start(std::move(task));
  return desktop::Ticket([run] {});
}

}  // namespace quillseal::linux
