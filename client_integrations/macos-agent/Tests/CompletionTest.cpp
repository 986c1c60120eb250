#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "MacDesktop/Completion.h"

namespace quillseal::mac {
namespace {

TEST(CompletionTest, IsCalledOnceWhicheverCopyCallsFirst) {
  int calls = 0;
  const Completion<int> first([&calls](int value) { calls += value; });
  const Completion<int> second = first;
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
    const Completion<> completion([&calls, used] { ++calls; });
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
  const Completion<> completion([&ticket] { ticket.reset(); });
  ticket = completion.ticket([&cancelled] { ++cancelled; });
  completion();
  EXPECT_FALSE(ticket.has_value());
  EXPECT_EQ(cancelled, 0);
}

}  // namespace
}  // namespace quillseal::mac
