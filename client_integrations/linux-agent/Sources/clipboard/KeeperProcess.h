#pragma once

#include <functional>
#include <memory>

#include "desktop/Pasteboard.h"

namespace quillseal::linux {

/// What a clipboard keeper offers.
class KeptOffer {
 public:
  virtual ~KeptOffer() = default;

  /// Makes the offer. Returns whether the desktop has taken it.
  [[nodiscard]] virtual bool make() = 0;

  /// Serves the offer until another program copies or the desktop ends. May run in another process
  /// than `make`, which has ended by then.
  virtual void hold() = 0;
};

/// The whole program of a clipboard keeper, whose counterpart is ClipboardKeeper: offers what is on
/// standard input. Returns the exit status, which is 0 once the desktop has taken the offer; a
/// child process goes on to hold it. `offerOf` returns null where there is no desktop.
[[nodiscard]] int runKeeper(
    const std::function<std::unique_ptr<KeptOffer>(desktop::PasteboardContent)>& offerOf);

}  // namespace quillseal::linux
