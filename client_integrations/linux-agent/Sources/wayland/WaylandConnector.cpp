#include "wayland/WaylandConnector.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "session/FileDescriptor.h"
#include "session/Spawn.h"

namespace quillseal::linux {
namespace {

constexpr int patienceMilliseconds = 2000;

/// The compositor's address, as libwayland finds it.
std::filesystem::path address() {
  const auto variable = [](const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): before any thread
    return std::filesystem::path(value == nullptr ? "" : value);
  };
  return variable("XDG_RUNTIME_DIR") / variable("WAYLAND_DISPLAY");
}

bool reportsConnection(const FileDescriptor& connector) {
  pollfd report{.fd = connector.get(), .events = POLLIN, .revents = 0};
  char byte = 0;
  return poll(&report, 1, patienceMilliseconds) == 1 && read(connector.get(), &byte, 1) == 1;
}

}  // namespace

std::unique_ptr<WaylandConnection> WaylandConnector::open(
    const std::vector<std::filesystem::path>& places) {
  const auto file = firstProgram(places);
  FileDescriptor compositor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  std::array<int, 2> ends{-1, -1};
  if (!file || !compositor.isOpen() ||
      ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
    return nullptr;
  const FileDescriptor connector(ends[0]);
  FileDescriptor ofConnector(ends[1]);
  const auto process = start({.file = *file,
                              .arguments = {address().string()},
                              .input = compositor.get(),
                              .output = ofConnector.get()});
  if (!process) return nullptr;
  ofConnector = {};
  std::unique_ptr<WaylandConnection> connection;
  if (reportsConnection(connector)) connection = WaylandConnection::open(std::move(compositor));
  // The compositor has answered, so it knows the program and needs the process no longer.
  kill(*process, SIGKILL);
  waitpid(*process, nullptr, 0);
  return connection;
}

}  // namespace quillseal::linux
