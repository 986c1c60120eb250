#include "wayland/WaylandConnector.h"

#include <utility>

#include <sys/socket.h>

#include "session/Connector.h"
#include "session/Environment.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

/// The compositor's address, as libwayland finds it.
std::filesystem::path address() {
  return std::filesystem::path(environmentVariable("XDG_RUNTIME_DIR")) /
         environmentVariable("WAYLAND_DISPLAY");
}

}  // namespace

std::unique_ptr<WaylandConnection> WaylandConnector::open(
    const std::vector<std::filesystem::path>& places) {
  FileDescriptor compositor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  // Once the compositor has answered, it knows the program and needs the process no longer.
  const auto connector = Connector::connect(places, address(), compositor);
  return connector ? WaylandConnection::open(std::move(compositor)) : nullptr;
}

}  // namespace quillseal::linux
