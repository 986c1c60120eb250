#pragma once

#include <csignal>
#include <cstdlib>
#include <optional>
#include <string>

#include <sys/mman.h>

#include "Programs.h"
#include "session/FileDescriptor.h"

namespace quillseal::testing {

/// A private dbus-daemon. While the object lives, the environment's `variable` names it. It has no
/// services at first, and starts none of the computer's, but those of the folder `services`.
class PrivateBus {
 public:
  explicit PrivateBus(const char* variable, const std::string& services = "/nowhere")
      : variable_(variable) {
    const std::string configuration =
        "<busconfig><listen>unix:tmpdir=/tmp</listen><policy context='default'>"
        "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/><allow own='*'/>"
        "</policy><servicedir>" +
        services + "</servicedir></busconfig>";
    const linux::FileDescriptor file(::memfd_create("bus", 0));
    static_cast<void>(linux::writeAll(file, configuration));
    daemon_.emplace(
        linux::Spawn{.file = "/usr/bin/dbus-daemon",
                     .arguments = {"--config-file=/proc/self/fd/" + std::to_string(file.get()),
                                   "--nofork", "--nopidfile", "--print-address=1"},
                     .input = file.get()});
    ::setenv(variable_.c_str(), daemon_->address.c_str(), 1);
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus() { ::unsetenv(variable_.c_str()); }

  /// From now on it answers nothing.
  void hang() const { ::kill(daemon_->process, SIGSTOP); }

 private:
  std::string variable_;
  std::optional<Server> daemon_;
};

}  // namespace quillseal::testing
