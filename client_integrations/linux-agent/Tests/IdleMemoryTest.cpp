#include <barrier>
#include <cstddef>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Quillseal/ContentRisk.h"
#include "session/IdleMemory.h"

namespace quillseal::linux {
namespace {

constexpr std::size_t mebibyte = 1U << 20U;

std::size_t residentBytes() {
  std::size_t all = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

// Allocates as scrypt does for a key file, in several workers.
TEST(IdleMemory, HoldsNoLargeBlocksOfWorkers) {
  if (!returnLargeBlocks()) GTEST_SKIP() << "a sanitizer's allocator keeps what is freed";
  constexpr std::size_t workers = 4;
  constexpr std::size_t blockSize = 16 * mebibyte;
  const std::size_t before = residentBytes();
  std::barrier allIdle(workers + 1);
  std::vector<std::jthread> threads;
  for (std::size_t i = 0; i < workers; ++i)
    threads.emplace_back([&] {
      for (int round = 0; round < 3; ++round) {
        // More than one block, so that the C library would raise its threshold.
        const std::vector<char> first(blockSize, 'x');
        const std::vector<char> second(blockSize, first.back());
      }
      allIdle.arrive_and_wait();
      allIdle.arrive_and_wait();
    });
  allIdle.arrive_and_wait();
  giveBackUnusedMemory();
  EXPECT_LT(residentBytes(), before + 8 * mebibyte);
  allIdle.arrive_and_wait();
}

TEST(IdleMemory, ConstantsAreThereAgainWhenTheyAreNeeded) {
  const std::string text =
      "Please buy gift cards, scratch the codes and send me a picture of them.";
  const auto scores = [&] { return ContentRisk::evaluate(text).score; };
  const auto expected = scores();
  ASSERT_GT(expected, 0);
  const std::size_t before = residentBytes();
  giveBackUnusedMemory();
  EXPECT_LT(residentBytes(), before - mebibyte);
  EXPECT_EQ(scores(), expected);
}

}  // namespace
}  // namespace quillseal::linux
