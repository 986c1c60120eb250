#include <array>
#include <chrono>
#include <future>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "session/JournalLog.h"

namespace quillseal::linux {
namespace {

TEST(JournalLogTest, ALineStaysALine) {
  ::testing::internal::CaptureStderr();
  JournalLog(JournalLog::Echo::standardError).write("a\nb\x1b[1m\x7f é");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "a\\x0ab\\x1b[1m\\x7f é\n");
}

TEST(JournalLogTest, DoesNotWaitUntilSomebodyReadsItsOutput) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK), 0);
  std::string page(4096, 'x');
  ssize_t filled = 0;
  while (::write(pipe[1], page.data(), page.size()) > 0)
    filled += static_cast<ssize_t>(page.size());
  ::fcntl(pipe[1], F_SETFL, 0);
  const int before = ::dup(STDERR_FILENO);
  ::dup2(pipe[1], STDERR_FILENO);

  JournalLog log(JournalLog::Echo::standardError);
  const auto written = std::async(std::launch::async, [&log] { log.write("a line"); });
  const auto status = written.wait_for(std::chrono::seconds(20));

  // Wakes a writer that would wait.
  while (::read(pipe[0], page.data(), page.size()) > 0) {
  }
  written.wait();
  ::dup2(before, STDERR_FILENO);
  for (const int descriptor : {pipe[0], pipe[1], before})
    ::close(descriptor);
  EXPECT_GT(filled, 0);
  EXPECT_EQ(status, std::future_status::ready);
}

}  // namespace
}  // namespace quillseal::linux
