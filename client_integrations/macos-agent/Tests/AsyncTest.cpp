#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

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

class AsyncMutexTest : public TaskTest {
 protected:
  AsyncMutex mutex{loop};
};

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

TEST_F(AsyncMutexTest, LetsTasksThroughOneByOneInTheOrderTheyCame) {
  scope.start(hold(loop, mutex, trace, "a"));
  scope.start(hold(loop, mutex, trace, "b"));
  while (trace.back() != "left a")
    loop.step();
  scope.start(hold(loop, mutex, trace, "c"));  // free, and assigned to b
  loop.run();
  EXPECT_EQ(trace, (Trace{"has a", "left a", "has b", "left b", "has c", "left c"}));
  EXPECT_EQ(loop.elapsed(), 30ms) << "it is passed on at once";
}

TEST_F(AsyncMutexTest, PassesOverThoseThatAreCancelled) {
  {
    TaskScope cancelled;
    scope.start(hold(loop, mutex, trace, "a"));
    cancelled.start(hold(loop, mutex, trace, "b"));
    cancelled.start(hold(loop, mutex, trace, "c"));
    scope.start(hold(loop, mutex, trace, "d"));
    while (trace.back() != "left a")
      loop.step();
  }
  loop.run();
  EXPECT_EQ(trace, (Trace{"has a", "left a", "left b", "left c", "has d", "left d"}));
}

TEST_F(AsyncMutexTest, RunsNoTaskOfAScopeThatIsDestroyed) {
  {
    TaskScope ended;
    ended.start(hold(loop, mutex, trace, "a"));
    ended.start(hold(loop, mutex, trace, "b"));
  }
  EXPECT_EQ(trace, (Trace{"has a", "left a", "left b"}));
  scope.start(hold(loop, mutex, trace, "c"));
  EXPECT_EQ(trace.back(), "has c");
  loop.run();  // includes the work that the lock of a posted
  EXPECT_EQ(trace.back(), "left c");
}

TEST_F(AsyncMutexTest, MayBeDestroyedWhileItIsHeldAndAwaited) {
  auto owned = std::make_unique<AsyncMutex>(loop);
  scope.start(hold(loop, *owned, trace, "a"));
  scope.start(hold(loop, *owned, trace, "b"));
  owned.reset();
  loop.run();
  EXPECT_EQ(trace, (Trace{"has a", "left a", "has b", "left b"}));
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

TEST(CompletionTest, IsCalledOnceWhicheverCopyCallsFirst) {
  int calls = 0;
  const mac::Completion<int> first([&calls](int value) { calls += value; });
  const mac::Completion<int> second = first;
  second(1);
  first(10);
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(first.isPending());
}

// A copy may be destroyed later on another thread; the function's captures must be destroyed
// before.
TEST(CompletionTest, EndsByACallOrByTheLossOfItsTicket) {
  for (const bool isCalled : {true, false}) {
    int calls = 0;
    int cancelled = 0;
    const auto used = std::make_shared<int>(0);
    const mac::Completion<> completion([&calls, used] { ++calls; });
    std::optional<desktop::Ticket> ticket = completion.ticket([&] { ++cancelled; });
    if (isCalled) completion();
    EXPECT_EQ(used.use_count(), isCalled ? 1 : 2);
    ticket.reset();
    completion();
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
