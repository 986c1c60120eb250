#include "session/Connector.h"

#include <array>
#include <csignal>

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "session/Spawn.h"

namespace quillseal::linux {
namespace {

constexpr int timeoutMilliseconds = 2000;

bool reportsConnection(const FileDescriptor& connector) {
  pollfd report{.fd = connector.get(), .events = POLLIN, .revents = 0};
  char byte = 0;
  return poll(&report, 1, timeoutMilliseconds) == 1 && read(connector.get(), &byte, 1) == 1;
}

}  // namespace

std::optional<Connector> Connector::connect(const std::vector<std::filesystem::path>& places,
                                            const std::filesystem::path& address,
                                            const FileDescriptor& socket) {
  const auto file = firstProgram(places);
  std::array<int, 2> ends{-1, -1};
  if (!file || !socket.isOpen() ||
      ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
    return std::nullopt;
  FileDescriptor ours(ends[0]);
  FileDescriptor ofConnector(ends[1]);
  const auto process = start({.file = *file,
                              .arguments = {address.string()},
                              .input = socket.get(),
                              .output = ofConnector.get()});
  if (!process) return std::nullopt;
  ofConnector = {};
  Connector connector(*process, std::move(ours));
  if (!reportsConnection(connector.pipe_)) return std::nullopt;
  return connector;
}

Connector::~Connector() {
  if (process_ == 0) return;
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

}  // namespace quillseal::linux
