#include <array>
#include <chrono>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

TEST(PollLoop, RunsWhatManyThreadsPostInTheirOrder) {
  constexpr int workers = 4;
  constexpr int posts = 20'000;
  PollLoop loop;
  std::vector<int> seen(workers);
  int finished = 0;
  std::vector<desktop::Ticket> tickets;
  for (int& count : seen)
    tickets.push_back(loop.runBlocking(
        [&] {
          for (int i = 0; i < posts; ++i)
            loop.post([&count, i] { count += count == i ? 1 : 0; });
        },
        [&] {
          if (++finished == workers) loop.stop();
        }));
  desktop::Ticket withdrawn = loop.runBlocking([] {}, [] { ADD_FAILURE() << "was withdrawn"; });
  withdrawn = {};
  loop.run();
  EXPECT_EQ(seen, std::vector<int>(workers, posts));
}

TEST(PollLoop, AnEarlierTicketEndsNoNewWatch) {
  using Interest = Descriptors::Interest;
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  PollLoop loop;
  bool isReady = false;
  desktop::Ticket old = loop.watch(ends[0], Interest::reading, [](Interest) { ADD_FAILURE(); });
  const desktop::Ticket current = loop.watch(ends[0], Interest::reading, [&](Interest) {
    isReady = true;
    loop.stop();
  });
  old = {};
  const desktop::Ticket end = loop.after(std::chrono::seconds(5), [&] { loop.stop(); });
  EXPECT_EQ(::write(ends[1], "x", 1), 1);
  loop.run();
  EXPECT_TRUE(isReady);
  for (const int descriptor : ends)
    ::close(descriptor);
}

}  // namespace
}  // namespace quillseal::linux
