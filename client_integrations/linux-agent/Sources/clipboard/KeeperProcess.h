#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

#include "desktop/Pasteboard.h"
#include "desktop/Ticket.h"
#include "session/PollLoop.h"

namespace quillseal::linux {

/// What a clipboard keeper offers.
class KeptOffer {
 public:
  virtual ~KeptOffer() = default;

  /// Makes the offer. Returns whether the desktop has taken it.
  [[nodiscard]] virtual bool make() = 0;

  /// Makes the offer in place of one of the same plain text, or of none. Returns false when another
  /// text is on the clipboard, and changes nothing then.
  [[nodiscard]] virtual bool makeInPlace() { return false; }

  /// The window that owns the clipboard on an X server; 0 elsewhere.
  [[nodiscard]] virtual std::uint32_t window() const { return 0; }

  /// Serves the offer until another program copies or the desktop ends. May run in another process
  /// than `make`, which has ended by then.
  virtual void hold() = 0;
};

using OfferMaker = std::function<std::unique_ptr<KeptOffer>(desktop::PasteboardContent)>;

/// The whole program of a clipboard keeper, whose counterpart is ClipboardKeeper: offers what is on
/// standard input. Returns the exit status, which is 0 once the desktop has taken the offer, whose
/// window is then on standard output; a child process goes on to hold it. `offerOf` returns null
/// where there is no desktop.
[[nodiscard]] int runKeeper(const OfferMaker& offerOf);

/// The same for ClipboardKeeper::keepLater: the child makes the offer in place once the other end
/// of standard output, a socket, is closed. It ends when it can read from there instead.
[[nodiscard]] int runWaitingKeeper(const OfferMaker& offerOf);

/// The loop of a keeper. It ends once another program has copied and no transfer runs, or five
/// seconds after the copy.
class KeeperLoop {
 public:
  [[nodiscard]] PollLoop& loop() { return loop_; }
  [[nodiscard]] bool isReplaced() const { return isReplaced_; }

  /// Another program has copied. `isIdle`: no transfer runs.
  void replaced(bool isIdle);

  /// A transfer has ended.
  void transferEnded(bool isIdle);

 private:
  static constexpr std::chrono::seconds timeout{5};

  PollLoop loop_;
  bool isReplaced_ = false;
  desktop::Ticket end_;
};

}  // namespace quillseal::linux
