#include "clipboard/ClipboardKeeper.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/text/Error.h"
#include "session/Spawn.h"

namespace quillseal::linux {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::chrono::seconds timeout{5};

[[noreturn]] void fail(const std::string& reason) {
  throw Error({.domain = "ClipboardKeeper",
               .code = 1,
               .description = "The clipboard could not be written: " + reason});
}

[[noreturn]] void failToWait(const std::string& reason) {
  throw Error({.domain = "ClipboardKeeper",
               .code = 2,
               .description = "The clipboard cannot be kept after the end: " + reason});
}

bool endsInTime(pid_t process) {
  const FileDescriptor running(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
  if (!running.isOpen()) return false;
  pollfd ended{.fd = running.get(), .events = POLLIN, .revents = 0};
  const auto deadline = steady_clock::now() + timeout;
  int count = 0;
  do {
    const auto left =
        std::max(milliseconds{0}, std::chrono::ceil<milliseconds>(deadline - steady_clock::now()));
    count = poll(&ended, 1, static_cast<int>(left.count()));
  } while (count < 0 && errno == EINTR);
  return count == 1;
}

/// Waits for the process's end, or ends it. Returns whether it did what it should.
bool endsWell(pid_t process) {
  if (!endsInTime(process)) kill(process, SIGKILL);
  int status = 0;
  return waitpid(process, &status, 0) == process && status == 0;
}

/// Not open when there is not enough memory.
FileDescriptor inputWith(const desktop::PasteboardContent& content) {
  FileDescriptor input(memfd_create("quillseal-clipboard", MFD_CLOEXEC));
  if (!writeAll(input, KeptContent::written(content))) return {};
  lseek(input.get(), 0, SEEK_SET);
  return input;
}

}  // namespace

ClipboardKeeper::ClipboardKeeper(std::vector<std::filesystem::path> places)
    : places_(std::move(places)) {}

std::uint32_t ClipboardKeeper::keep(const desktop::PasteboardContent& content) const {
  const auto place = firstProgram(places_);
  if (!place) fail("a program of Quillseal is missing. Install Quillseal again.");
  const FileDescriptor input = inputWith(content);
  std::array<int, 2> ends{-1, -1};
  if (!input.isOpen() || pipe2(ends.data(), O_CLOEXEC) != 0)
    fail("there is not enough memory. Close some programs and try again.");
  const FileDescriptor readEnd(ends[0]);
  FileDescriptor writeEnd(ends[1]);

  // The process that is started here ends when its child holds the offer that the desktop has
  // taken.
  const auto process = start({.file = *place, .input = input.get(), .output = writeEnd.get()});
  if (!process) fail(place->string() + " could not be started. Install Quillseal again.");
  writeEnd = {};
  std::array<char, 16> window{};
  if (!endsWell(*process) || read(readEnd.get(), window.data(), window.size() - 1) <= 0)
    fail("the desktop did not accept it. If it never does, log out and in.");
  std::uint32_t number = 0;
  std::from_chars(window.begin(), window.end(), number);
  return number;
}

ClipboardKeeper::Waiting ClipboardKeeper::keepLater(
    const desktop::PasteboardContent& content) const {
  const auto place = firstProgram(places_);
  const FileDescriptor input = inputWith(content);
  std::array<int, 2> ends{-1, -1};
  if (!place) failToWait("a program of Quillseal is missing.");
  if (!input.isOpen() || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
    failToWait("there is not enough memory.");
  FileDescriptor ours(ends[0]);
  const FileDescriptor ofKeeper(ends[1]);
  const auto process = start({.file = *place,
                              .arguments = {std::string(waiting)},
                              .input = input.get(),
                              .output = ofKeeper.get()});
  if (!process || !endsWell(*process)) failToWait(place->string() + " could not be started.");
  return Waiting(std::move(ours));
}

void ClipboardKeeper::Waiting::dismiss() {
  if (!line_.isOpen()) return;
  constexpr char byte = 0;
  send(line_.get(), &byte, 1, MSG_NOSIGNAL);
  line_ = {};
}

}  // namespace quillseal::linux
