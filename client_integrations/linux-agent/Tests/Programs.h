#pragma once

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "session/FileDescriptor.h"
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

/// A program that reports on its standard output how it is reached.
class Server : public Program {
 public:
  explicit Server(linux::Spawn spawn) : Server(std::move(spawn), pipe()) {}

  std::string address;  ///< the first line

 private:
  using Pipe = std::array<linux::FileDescriptor, 2>;

  Server(linux::Spawn spawn, Pipe ends) : Program(withOutput(spawn, ends[1])) {
    ends[1] = {};
    char letter = 0;
    while (::read(ends[0].get(), &letter, 1) == 1 && letter != '\n')
      address += letter;
    if (address.empty()) throw std::runtime_error(spawn.file.string() + " does not start");
  }
  static Pipe pipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    return {linux::FileDescriptor(ends[0]), linux::FileDescriptor(ends[1])};
  }
  static const linux::Spawn& withOutput(linux::Spawn& spawn, const linux::FileDescriptor& output) {
    spawn.output = output.get();
    return spawn;
  }
};

}  // namespace quillseal::testing
