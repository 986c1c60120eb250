#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Cases.h"
#include "MacDesktop/Completion.h"
#include "VirtualLoop.h"
#include "core/tasks/Async.h"

namespace quillseal {
namespace {

using namespace std::chrono_literals;
using testing::VirtualLoop;

using Trace = std::vector<std::string>;

/// Records its destruction.
class Leaving {
 public:
  Leaving(Trace& trace, std::string name) : trace_(trace), name_(std::move(name)) {}
  Leaving(const Leaving&) = delete;
  Leaving& operator=(const Leaving&) = delete;
  ~Leaving() { trace_.push_back("left " + name_); }

 private:
  Trace& trace_;
  std::string name_;
};

class TaskTest : public ::testing::Test {
 protected:
  VirtualLoop loop;
  Trace trace;
  TaskScope scope;
};
using TaskScopeTest = TaskTest;
using CompletionOfTest = TaskTest;
using OffloadTest = TaskTest;

Task<> inner(VirtualLoop& loop, Trace& trace) {
  const Leaving leaving(trace, "inner");
  co_await sleep(loop, 1s);
  trace.emplace_back("never");
}

Task<> outer(VirtualLoop& loop, Trace& trace) {
  const Leaving leaving(trace, "outer");
  co_await inner(loop, trace);
  trace.emplace_back("never");
}

TEST_F(TaskScopeTest, CancelsWhatStillRunsFromTheInsideOut) {
  {
    TaskScope ended;
    ended.start(outer(loop, trace));
  }
  EXPECT_EQ(trace, (Trace{"left inner", "left outer"}));
  EXPECT_FALSE(loop.step()) << "the timer outlived its task";
}

Task<> awaitNumber(std::function<void(int)>& completion, Trace& trace) {
  const int number = co_await completionOf<int>([&](std::function<void(int)> done) {
    completion = std::move(done);
    return desktop::Ticket([&trace] { trace.emplace_back("withdrawn"); });
  });
  trace.push_back(std::to_string(number));
}

TEST_F(CompletionOfTest, IgnoresCompletionsThatComeTwiceOrTooLate) {
  std::function<void(int)> completion;
  {
    TaskScope ended;
    ended.start(awaitNumber(completion, trace));
    completion(1);
    completion(2);
    ended.start(awaitNumber(completion, trace));
  }
  completion(3);
  EXPECT_EQ(trace, (Trace{"withdrawn", "1", "withdrawn"}));
}

Task<> awaitAtOnce(Trace& trace) {
  trace.push_back(co_await completionOf<std::string>([](std::function<void(std::string)> done) {
    done("at once");
    done("again");
    return desktop::Ticket();
  }));
}

TEST_F(CompletionOfTest, TakesACompletionThatComesWhileStarting) {
  scope.start(awaitAtOnce(trace));
  EXPECT_EQ(trace, (Trace{"at once"}));
}

Task<> hold(VirtualLoop& loop, AsyncMutex& mutex, Trace& trace, std::string name) {
  const Leaving leaving(trace, name);
  const AsyncMutex::Lock lock = co_await mutex.lock();
  trace.push_back("has " + name);
  co_await sleep(loop, 10ms);
}

// async-cases.jsonl explains the steps.
TEST(AsyncMutexTest, LetsTasksThroughOneByOneInTheOrderTheyCame) {
  for (const auto& [steps, expected, milliseconds] : testing::cases<Trace, Trace, int>()) {
    VirtualLoop loop;
    Trace trace;
    auto mutex = std::make_unique<AsyncMutex>(loop);
    TaskScope lasting;
    auto cancelled = std::make_unique<TaskScope>();
    for (const std::string& step : steps) {
      const auto [verb, name] = testing::divided(step, " ");
      if (verb == "start") lasting.start(hold(loop, *mutex, trace, name));
      if (verb == "try") cancelled->start(hold(loop, *mutex, trace, name));
      while (verb == "until" && trace.back() != name)
        loop.step();
      if (verb == "cancel") cancelled.reset();
      if (verb == "destroy") mutex.reset();
      if (verb == "note") trace.push_back(name);
      if (verb == "run") loop.run();
    }
    EXPECT_EQ(trace, expected);
    EXPECT_EQ(loop.elapsed().count(), milliseconds);
  }
}

Task<> offloadAndFail(VirtualLoop& loop, Trace& trace) {
  const auto text = co_await offload(loop, [] { return std::make_unique<std::string>("worked"); });
  trace.push_back(*text);
  std::string failure;
  try {
    co_await offload(loop, [] { throw std::runtime_error("refused"); });
  } catch (const std::runtime_error& error) {
    failure = error.what();
  }
  trace.push_back(failure);
}

TEST_F(OffloadTest, BringsResultsAndExceptionsBack) {
  scope.start(offloadAndFail(loop, trace));
  EXPECT_TRUE(trace.empty());
  loop.run();
  EXPECT_EQ(trace, (Trace{"worked", "refused"}));
}

// A copy may be destroyed later on another thread; the function's captures must be destroyed
// before.
TEST(CompletionTest, EndsByACallOfAnyCopyOrByTheLossOfItsTicket) {
  for (const bool isCalled : {true, false}) {
    int calls = 0;
    int cancelled = 0;
    const auto used = std::make_shared<int>(0);
    const mac::Completion<int> completion([&calls, used](int value) { calls += value; });
    const mac::Completion<int> copy = completion;
    std::optional<desktop::Ticket> ticket = completion.ticket([&] { ++cancelled; });
    if (isCalled) copy(1);
    EXPECT_NE(completion.isPending(), isCalled);
    EXPECT_EQ(used.use_count(), isCalled ? 1 : 2);
    ticket.reset();
    completion(10);
    EXPECT_EQ(calls, isCalled ? 1 : 0);
    EXPECT_EQ(cancelled, isCalled ? 0 : 1);
    EXPECT_EQ(used.use_count(), 1);
  }
}

TEST(CompletionTest, MayDropItsOwnTicketWhileItRuns) {
  std::optional<desktop::Ticket> ticket;
  int cancelled = 0;
  const mac::Completion<> completion([&ticket] { ticket.reset(); });
  ticket = completion.ticket([&cancelled] { ++cancelled; });
  completion();
  EXPECT_FALSE(ticket.has_value());
  EXPECT_EQ(cancelled, 0);
}

}  // namespace
}  // namespace quillseal
