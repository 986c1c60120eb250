#include "clipboard/KeeperProcess.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <unistd.h>

#include "clipboard/ClipboardKeeper.h"

namespace quillseal::linux {
namespace {

std::string everythingFrom(int file) {
  std::string text;
  std::vector<char> piece(std::size_t{64} * 1024);
  for (ssize_t count = 0; (count = read(file, piece.data(), piece.size())) > 0;)
    text.append(piece.data(), static_cast<std::size_t>(count));
  return text;
}

std::optional<desktop::PasteboardContent> contentFromInput() {
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));  // a reader may close its pipe
  return KeptContent::read(everythingFrom(STDIN_FILENO));
}

/// Ends this process, and goes on in a child that is independent of the agent: of the signals to
/// its process group and terminal, and of its folder.
void goOnInChild() {
  const pid_t child = fork();
  if (child != 0) _exit(child < 0 ? 1 : 0);
  setsid();
  std::error_code error;
  std::filesystem::current_path("/", error);
  close(STDIN_FILENO);
}

}  // namespace

int runKeeper(const OfferMaker& offerOf) {
  std::optional<desktop::PasteboardContent> content = contentFromInput();
  if (!content) return 2;
  const std::unique_ptr<KeptOffer> offer = offerOf(std::move(*content));
  if (offer == nullptr || !offer->make()) return 1;
  const std::string window = std::to_string(offer->window());
  if (write(STDOUT_FILENO, window.data(), window.size()) < 0) return 1;
  close(STDOUT_FILENO);
  goOnInChild();
  offer->hold();
  return 0;
}

int runWaitingKeeper(const OfferMaker& offerOf) {
  std::optional<desktop::PasteboardContent> content = contentFromInput();
  if (!content) return 2;
  goOnInChild();
  char byte = 0;
  ssize_t count = 0;
  do
    count = read(STDOUT_FILENO, &byte, 1);
  while (count < 0 && errno == EINTR);
  if (count > 0) return 0;
  const std::unique_ptr<KeptOffer> offer = offerOf(std::move(*content));
  if (offer == nullptr || !offer->makeInPlace()) return 1;
  offer->hold();
  return 0;
}

void KeeperLoop::replaced(bool isIdle) {
  isReplaced_ = true;
  if (isIdle) return loop_.stop();
  end_ = loop_.after(timeout, [this] { loop_.stop(); });  // lets running transfers finish
}

void KeeperLoop::transferEnded(bool isIdle) {
  if (isReplaced_ && isIdle) loop_.stop();
}

}  // namespace quillseal::linux
