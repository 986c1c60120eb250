#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "clipboard/ClipboardKeeper.h"
#include "clipboard/FetchingPasteboard.h"
#include "clipboard/TransferLimits.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// The clipboard through data-control, which needs no window and no focus.
class WaylandPasteboard : public FetchingPasteboard {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    WaylandConnection& connection;
    const WaylandWindows& windows;
  };

  WaylandPasteboard(const Services& services, ClipboardKeeper keeper)
      : WaylandPasteboard(services, std::move(keeper), TransferLimits()) {}
  WaylandPasteboard(const Services& services, ClipboardKeeper keeper, TransferLimits limits);
  ~WaylandPasteboard() override;

  void write(const desktop::PasteboardContent& content) override;

  /// Compares texts, not owners: clipboard managers commonly take over every copy. The first call
  /// after a change begins to read the text, and this is false until it has been read. Nothing that
  /// people copy later is read unasked.
  [[nodiscard]] bool isWritten() const override;

  /// Uses the primary selection as the copied text if it was made in that window while this program
  /// ran: for programs without a key that copies. Does not change the clipboard.
  void takePrimarySelectionOf(std::uint64_t window);

  /// The time of the last `write`; the epoch when there was none.
  [[nodiscard]] std::chrono::steady_clock::time_point lastWrite() const;

 private:
  struct State;
  class Reading;

  /// When another program copies meanwhile, fetches that instead; when the owner goes, the result
  /// is empty.
  [[nodiscard]] desktop::Ticket read(const ClipboardFormats::Groups& groups,
                                     std::function<void(ClipboardFormats::Content)> done) override;

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
