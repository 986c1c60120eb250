#pragma once

#include <array>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <tss2/tss2_esys.h>
#include <tss2/tss2_tctildr.h>
#include <unistd.h>

namespace quillseal::testing {

/// A socket that accepts connections from now on, before there is anybody to serve them: nothing
/// has to wait for the process to start.
inline int listeningSocket(const std::filesystem::path& path) {
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

inline void with(const std::string& device, const std::function<TSS2_RC(ESYS_CONTEXT*)>& command) {
  TSS2_TCTI_CONTEXT* transport = nullptr;
  ESYS_CONTEXT* context = nullptr;
  TSS2_RC code = ::Tss2_TctiLdr_Initialize(device.c_str(), &transport);
  if (code == TSS2_RC_SUCCESS) code = ::Esys_Initialize(&context, transport, nullptr);
  if (code == TSS2_RC_SUCCESS) code = command(context);
  ::Esys_Finalize(&context);
  ::Tss2_TctiLdr_Finalize(&transport);
  if (code != TSS2_RC_SUCCESS) throw std::runtime_error("the TPM refuses a command");
}

/// A TPM 2.0 in a process of its own (swtpm), listening on a socket in `folder`, which also keeps
/// its state: a second one with the same folder is the same TPM after a restart.
class SoftwareTpm {
 public:
  /// Throws when swtpm is not installed.
  explicit SoftwareTpm(const std::filesystem::path& folder)
      : socket_(folder / "tpm"), log_(folder / "log"), process_(0) {
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
                                      "--log=level=2,file=" + log_.string()};
    std::array<char*, words.size() + 1> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
      arguments[i] = words[i].data();
    const int error =
        ::posix_spawnp(&process_, arguments[0], nullptr, nullptr, arguments.data(), environ);
    ::close(server);
    ::close(control);
    if (error != 0) throw std::runtime_error("swtpm is not installed");
  }
  SoftwareTpm(const SoftwareTpm&) = delete;
  SoftwareTpm& operator=(const SoftwareTpm&) = delete;
  ~SoftwareTpm() {
    ::kill(process_, SIGTERM);
    ::waitpid(process_, nullptr, 0);
  }

  /// Its TCTI for the tss2 libraries.
  [[nodiscard]] std::string device() const { return "swtpm:path=" + socket_.string(); }

  /// `hierarchy`: one of tss2's, such as ESYS_TR_RH_LOCKOUT.
  void setPassword(std::uint32_t hierarchy, std::string_view password) const {
    TPM2B_AUTH value{};
    value.size = static_cast<UINT16>(password.copy(reinterpret_cast<char*>(value.buffer), 32));
    with(device(), [&](ESYS_CONTEXT* context) {
      return ::Esys_HierarchyChangeAuth(context, hierarchy, ESYS_TR_PASSWORD, ESYS_TR_NONE,
                                        ESYS_TR_NONE, &value);
    });
  }

  /// The bytes of every command so far, as they came over the bus.
  [[nodiscard]] std::vector<std::string> commands() const {
    std::ifstream log(log_);
    std::vector<std::string> commands;
    bool isCommand = false;
    for (std::string line; std::getline(log, line);) {
      if (line.find("length") != std::string::npos) {
        isCommand = line.find("SWTPM_IO_Read") != std::string::npos;
        if (isCommand) commands.emplace_back();
      } else if (isCommand) {
        std::istringstream bytes(line);
        for (unsigned byte = 0; bytes >> std::hex >> byte;)
          commands.back() += static_cast<char>(byte);
      }
    }
    return commands;
  }

  /// As a program does that has access to the TPM and knows no password; false when it is refused.
  [[nodiscard]] bool undoLock() const {
    bool undone = false;
    with(device(), [&](ESYS_CONTEXT* context) {
      undone = ::Esys_DictionaryAttackLockReset(context, ESYS_TR_RH_LOCKOUT, ESYS_TR_PASSWORD,
                                                ESYS_TR_NONE, ESYS_TR_NONE) == TSS2_RC_SUCCESS;
      return TSS2_RC_SUCCESS;
    });
    return undone;
  }

 private:
  std::filesystem::path socket_;
  std::filesystem::path log_;
  pid_t process_;
};

}  // namespace quillseal::testing
