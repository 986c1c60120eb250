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

TEST(CompletionTest, IsNotCalledAfterItsTicketWasDropped) {
  int calls = 0;
  int cancelled = 0;
  const Completion<> completion([&calls] { ++calls; });
  std::optional<desktop::Ticket> ticket = completion.ticket([&cancelled] { ++cancelled; });
  ticket.reset();
  completion();
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(cancelled, 1);
}

TEST(CompletionTest, CancelsNothingThatHasEnded) {
  int cancelled = 0;
  const Completion<> completion([] {});
  std::optional<desktop::Ticket> ticket = completion.ticket([&cancelled] { ++cancelled; });
  completion();
  ticket.reset();
  EXPECT_EQ(cancelled, 0);
}

// A copy may be destroyed later on another thread; the function's captures must be destroyed
// before.
TEST(CompletionTest, ReleasesTheFunctionWhenItEnds) {
  const auto used = std::make_shared<int>(0);
  const Completion<> called([used] {});
  const Completion<> withdrawn([used] {});
  called();
  EXPECT_EQ(used.use_count(), 2);
  { const desktop::Ticket ticket = withdrawn.ticket(); }
  EXPECT_EQ(used.use_count(), 1);
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
