#pragma once

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillseal::testing {

/// A private dbus-daemon. While the object lives, the environment's `variable` names it. It has no
/// services at first, and starts none of the computer's.
class PrivateBus {
 public:
  explicit PrivateBus(const char* variable) : variable_(variable) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    constexpr std::string_view configuration =
        "<busconfig><listen>unix:tmpdir=/tmp</listen><policy context='default'>"
        "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/><allow own='*'/>"
        "</policy></busconfig>";
    const int file = ::memfd_create("bus", 0);
    static_cast<void>(::write(file, configuration.data(), configuration.size()) < 0);
    std::array<std::string, 5> words{
        "dbus-daemon", "--config-file=/proc/self/fd/" + std::to_string(file), "--nofork",
        "--nopidfile", "--print-address=" + std::to_string(ends[1])};
    std::array<char*, words.size() + 1> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
      arguments[i] = words[i].data();
    const int error =
        ::posix_spawnp(&process_, arguments[0], nullptr, nullptr, arguments.data(), environ);
    ::close(ends[1]);
    ::close(file);
    std::string address;
    for (char c = 0; error == 0 && ::read(ends[0], &c, 1) == 1 && c != '\n';)
      address += c;
    ::close(ends[0]);
    if (address.empty()) throw std::runtime_error("dbus-daemon is not installed");
    ::setenv(variable_.c_str(), address.c_str(), 1);
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus() {
    ::unsetenv(variable_.c_str());
    ::kill(process_, SIGTERM);
    ::kill(process_, SIGCONT);
    ::waitpid(process_, nullptr, 0);
  }

  /// From now on it answers nothing.
  void hang() const { ::kill(process_, SIGSTOP); }

 private:
  std::string variable_;
  pid_t process_ = 0;
};

}  // namespace quillseal::testing
