#include "clipboard/ClipboardKeeper.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <utility>

#include <poll.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/text/Error.h"
#include "session/FileDescriptor.h"
#include "session/Spawn.h"

namespace quillseal::linux {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::chrono::seconds patience{5};

[[noreturn]] void fail(const std::string& reason) {
  throw Error({.domain = "ClipboardKeeper",
               .code = 1,
               .description = "The clipboard could not be written: " + reason});
}

bool endsInTime(pid_t process) {
  const FileDescriptor running(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
  if (!running.isOpen()) return false;
  pollfd ended{.fd = running.get(), .events = POLLIN, .revents = 0};
  const auto deadline = steady_clock::now() + patience;
  int count = 0;
  do {
    const auto left =
        std::max(milliseconds{0}, std::chrono::ceil<milliseconds>(deadline - steady_clock::now()));
    count = poll(&ended, 1, static_cast<int>(left.count()));
  } while (count < 0 && errno == EINTR);
  return count == 1;
}

}  // namespace

ClipboardKeeper::ClipboardKeeper(std::vector<std::filesystem::path> places)
    : places_(std::move(places)) {}

void ClipboardKeeper::keep(const desktop::PasteboardContent& content) const {
  const auto place = firstProgram(places_);
  if (!place) fail("a program of Quillseal is missing. Install Quillseal again.");
  const FileDescriptor input(memfd_create("quillseal-clipboard", MFD_CLOEXEC));
  if (!writeAll(input, KeptContent::written(content)))
    fail("there is not enough memory. Close some programs and try again.");
  lseek(input.get(), 0, SEEK_SET);

  // The process that is started here ends when its child holds the offer that the desktop has
  // taken.
  const auto process = start({.file = *place, .input = input.get()});
  if (!process) fail(place->string() + " could not be started. Install Quillseal again.");
  if (!endsInTime(*process)) kill(*process, SIGKILL);
  int status = 0;
  if (waitpid(*process, &status, 0) != *process || status != 0)
    fail("the desktop did not accept it. If it never does, log out and in.");
}

}  // namespace quillseal::linux
