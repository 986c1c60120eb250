#pragma once

#include <optional>
#include <utility>

#include "VirtualLoop.h"
#include "core/tasks/Async.h"
#include "core/tasks/Task.h"
#include "core/text/Error.h"

namespace quillseal::testing {

template <typename T>
Task<> store(Task<T> task, std::optional<Outcome<T>>& outcome) {
  try {
    T result = co_await std::move(task);
    outcome.emplace(std::move(result));
  } catch (const Error& error) {
    outcome.emplace(error);
  }
}

/// Runs `task` and returns its result or the Error that it threw. REQUIRES: it ends.
template <typename T>
Outcome<T> resultOf(VirtualLoop& loop, Task<T> task) {
  std::optional<Outcome<T>> outcome;
  TaskScope scope;
  scope.start(store(std::move(task), outcome));
  loop.run();
  return std::move(outcome).value();
}

}  // namespace quillseal::testing
