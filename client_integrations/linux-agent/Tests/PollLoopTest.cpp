#include <vector>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quillseal::linux
