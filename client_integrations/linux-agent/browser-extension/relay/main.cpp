// The native messaging host of the extension: passes messages between the browser, on standard
// input and output, and the agent, for which it waits. Ends when either of them does.

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"
#include "session/PrivateFolder.h"

namespace quillseal::linux {
namespace {

constexpr int exitProtocol = 1;
constexpr int exitCaller = 2;

/// Returns whether the browser starts this program for the extension: Chromium passes the
/// extension's origin, Firefox the manifest's path and the extension's id.
bool isCalledForExtension(std::span<char*> arguments) {
  constexpr std::string_view chromiumOrigin =
      "chrome-extension://" QUILLSEAL_CHROMIUM_EXTENSION "/";
  constexpr std::string_view firefoxId = QUILLSEAL_FIREFOX_EXTENSION;
  return (arguments.size() == 2 && arguments[1] == chromiumOrigin) ||
         (arguments.size() == 3 && arguments[2] == firefoxId);
}

/// Returns the file name of the parent process, which is the browser.
std::string parentProgram() {
  constexpr std::string_view replaced = " (deleted)";  // the browser was updated while running
  std::error_code error;
  std::string program =
      std::filesystem::read_symlink("/proc/" + std::to_string(::getppid()) + "/exe", error)
          .filename()
          .string();
  if (program.ends_with(replaced)) program.erase(program.size() - replaced.size());
  return program;
}

class Relay {
 public:
  /// Passes messages on until the browser or the agent closes the connection.
  void run() {
    std::optional<FileDescriptor> agent = awaitAgent();
    if (!agent) return;
    const std::string greeting = written(TabMessages::Greeting{.program = parentProgram()});
    if (!TabSocket::send(*agent, TabMessages::framed(greeting))) return;
    TabMessages::Deframer fromBrowser;
    TabMessages::Deframer fromAgent;
    while (true) {
      const Readiness readable = wait(*agent);
      if (readable.browser) {
        if (!receive(browser_, fromBrowser)) return;
        while (const auto message = fromBrowser.next()) {
          const auto answer = TabMessages::readAnswer(*message);
          if (!TabSocket::send(*agent, TabMessages::framed(written(answer)))) return;
        }
      }
      if (readable.other) {
        if (!receive(*agent, fromAgent)) return;
        while (const auto message = fromAgent.next()) {
          const auto request = TabMessages::readRequest(*message);
          if (!sendToBrowser(TabMessages::framed(written(request)))) return;
        }
      }
    }
  }

 private:
  struct Readiness {
    bool browser;
    bool other;
  };

  [[nodiscard]] Readiness wait(const FileDescriptor& other) const {
    auto descriptors =
        std::to_array<pollfd>({{.fd = browser_.get(), .events = POLLIN, .revents = 0},
                               {.fd = other.get(), .events = POLLIN, .revents = 0}});
    while (::poll(descriptors.data(), descriptors.size(), -1) < 0) {
      if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "poll");
    }
    return {.browser = descriptors[0].revents != 0, .other = descriptors[1].revents != 0};
  }

  static bool receive(const FileDescriptor& from, TabMessages::Deframer& into) {
    const std::string bytes = TabSocket::receive(from);
    into.append(bytes);
    return !bytes.empty();
  }

  /// The pipe to the browser holds many messages; if it is full, the browser hangs.
  [[nodiscard]] bool sendToBrowser(std::string_view bytes) const {
    const ssize_t count = ::write(toBrowser_.get(), bytes.data(), bytes.size());
    return count >= 0 && static_cast<std::size_t>(count) == bytes.size();
  }

  /// Waits for the agent. Nothing when the browser closes the connection first.
  [[nodiscard]] std::optional<FileDescriptor> awaitAgent() const {
    const FileDescriptor changes(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    // The watch comes before the first try, so that an agent that starts in between is not missed.
    if (!changes.isOpen() ||
        ::inotify_add_watch(changes.get(), runtimeFolder().c_str(), IN_MOVED_TO) < 0)
      throw std::system_error(errno, std::generic_category(), "inotify");
    while (true) {
      if (auto agent = TabSocket::connect()) return agent;
      const Readiness readable = wait(changes);
      if (readable.browser) {
        if (TabSocket::receive(browser_).empty()) return std::nullopt;
        throw TabMessages::ProtocolError("The browser speaks without having been asked.");
      }
      if (readable.other) (void)TabSocket::receive(changes);
    }
  }

  FileDescriptor browser_{STDIN_FILENO};
  FileDescriptor toBrowser_{STDOUT_FILENO};
};

int relay(std::span<char*> arguments) {
  if (!isCalledForExtension(arguments)) {
    std::cerr << "quillseal-tab-relay: this program is started by browsers, for the Quillseal "
                 "extension.\n";
    return exitCaller;
  }
  (void)std::signal(SIGPIPE, SIG_IGN);
  const int flags = ::fcntl(STDOUT_FILENO, F_GETFL);
  if (flags < 0 || ::fcntl(STDOUT_FILENO, F_SETFL, flags | O_NONBLOCK) < 0)
    throw std::system_error(errno, std::generic_category(), "standard output");
  Relay().run();
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace quillseal::linux

int main(int count, char** arguments) {
  try {
    return quillseal::linux::relay({arguments, static_cast<std::size_t>(count)});
  } catch (const std::exception& error) {
    std::cerr << "quillseal-tab-relay: " << error.what() << '\n';
    return quillseal::linux::exitProtocol;
  }
}
