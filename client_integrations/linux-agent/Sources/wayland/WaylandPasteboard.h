#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "clipboard/ClipboardFormats.h"
#include "clipboard/ClipboardKeeper.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "session/Descriptors.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

/// The clipboard through data-control, which needs no window and no focus. The loss of its owner
/// does not count as a change: it may be the first step of the next copy.
class WaylandPasteboard : public desktop::Pasteboard {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    WaylandConnection& connection;
    const WaylandWindows& windows;
  };

  /// Limits of a fetch: the owner's silence, the whole time, and the size.
  struct Patience {
    /// A word processor may take seconds to render a long document for each format.
    std::chrono::milliseconds silence{5000};
    std::chrono::milliseconds transfer{20000};
    std::size_t largest = std::size_t{64} * 1024 * 1024;  ///< bytes
  };

  WaylandPasteboard(const Services& services, ClipboardKeeper keeper)
      : WaylandPasteboard(services, std::move(keeper), Patience()) {}
  WaylandPasteboard(const Services& services, ClipboardKeeper keeper, Patience patience);
  ~WaylandPasteboard() override;

  [[nodiscard]] std::int64_t changeCount() const override;
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;

  /// Requests one format after the other while the owner keeps within `Patience`. When another
  /// program copies meanwhile, fetches that instead; when the owner goes, the result is empty. The
  /// same holds for `fetchRtf`.
  [[nodiscard]] desktop::Ticket fetch(std::function<void()> fetched) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;
  void write(const desktop::PasteboardContent& content) override;

  /// Uses the primary selection as the copied text if it was made in that window while this program
  /// ran: for programs without a key that copies. Does not change the clipboard.
  void takePrimarySelectionOf(std::uint64_t window);

  /// The time of the last `write`; the epoch when there was none.
  [[nodiscard]] std::chrono::steady_clock::time_point lastWrite() const;

 private:
  struct State;
  class Reading;

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
