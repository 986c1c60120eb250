#include "SoftwareTpm.h"

#include <array>
#include <csignal>
#include <stdexcept>

#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace quillseal::testing {

namespace {

/// A socket that accepts connections from now on, before there is anybody to serve them: nothing
/// has to wait for the process to start.
int listeningSocket(const std::filesystem::path& path) {
  std::filesystem::remove(path);
  const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.string().copy(address.sun_path, sizeof address.sun_path - 1);
  if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      ::listen(descriptor, 8) != 0)
    throw std::runtime_error("no socket for the TPM");
  return descriptor;
}

}  // namespace

SoftwareTpm::SoftwareTpm(const std::filesystem::path& folder)
    : socket_(folder / "tpm"), process_(0) {
  const int server = listeningSocket(socket_);
  const int control = listeningSocket(socket_.string() + ".ctrl");
  std::array<std::string, 11> words{"swtpm",
                                    "socket",
                                    "--tpm2",
                                    "--tpmstate",
                                    "dir=" + folder.string(),
                                    "--server",
                                    "type=unixio,fd=" + std::to_string(server),
                                    "--ctrl",
                                    "type=unixio,fd=" + std::to_string(control),
                                    "--flags=not-need-init,startup-clear",
                                    "--log=file=" + (folder / "log").string()};
  std::array<char*, words.size() + 1> arguments{};
  for (std::size_t i = 0; i < words.size(); ++i)
    arguments[i] = words[i].data();
  const int error =
      ::posix_spawnp(&process_, arguments[0], nullptr, nullptr, arguments.data(), environ);
  ::close(server);
  ::close(control);
  if (error != 0) throw std::runtime_error("swtpm is not installed");
}

SoftwareTpm::~SoftwareTpm() {
  ::kill(process_, SIGTERM);
  ::waitpid(process_, nullptr, 0);
}

}  // namespace quillseal::testing
