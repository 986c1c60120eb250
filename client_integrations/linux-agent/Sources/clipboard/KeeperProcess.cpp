#include "clipboard/KeeperProcess.h"

#include <csignal>
#include <optional>
#include <string>
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

}  // namespace

int runKeeper(
    const std::function<std::unique_ptr<KeptOffer>(desktop::PasteboardContent)>& offerOf) {
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));  // a reader may close its pipe
  std::optional<desktop::PasteboardContent> content =
      KeptContent::read(everythingFrom(STDIN_FILENO));
  if (!content) return 2;
  const std::unique_ptr<KeptOffer> offer = offerOf(std::move(*content));
  if (offer == nullptr || !offer->make()) return 1;
  const pid_t child = fork();
  if (child != 0) _exit(child < 0 ? 1 : 0);
  // Detaches from the agent's process group and terminal, so that signals to those do not reach it.
  setsid();
  close(STDIN_FILENO);
  offer->hold();
  return 0;
}

}  // namespace quillseal::linux
