#pragma once

#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include <sys/wait.h>

#include "session/Spawn.h"

namespace quillseal::testing {

/// Waits until what another process or thread does makes `condition` true; false on a time-out.
inline bool eventually(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

/// Another program that runs as long as this object lives. Throws when it is not installed.
class Program {
 public:
  explicit Program(const linux::Spawn& spawn) : process(linux::start(spawn).value()) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    if (process <= 0) return;
    ::kill(process, SIGTERM);
    ::kill(process, SIGCONT);
    ::waitpid(process, nullptr, 0);
  }

  pid_t process;  ///< 0 when somebody has waited for its end
};

}  // namespace quillseal::testing
