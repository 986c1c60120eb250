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

/// The clipboard by data-control, which needs no window and no focus. The end of the program that
/// owns it is not a change: it may be the first step of the next copy.
class WaylandPasteboard : public desktop::Pasteboard {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    WaylandConnection& connection;
    const WaylandWindows& windows;
  };

  /// How long the owner may be silent, how long deliver all, and how much.
  struct Patience {
    /// A word processor that lays a long document out anew for each format is silent for seconds.
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

  /// Asks for one format after the other, as long as the owner keeps within `Patience`. When
  /// somebody else copies meanwhile, that is fetched; when the owner goes, nothing counts. The same
  /// holds for `fetchRtf`.
  [[nodiscard]] desktop::Ticket fetch(std::function<void()> fetched) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;
  void write(const desktop::PasteboardContent& content) override;

  /// Takes what is selected in that window as if it had been copied, when the primary selection was
  /// made there while this program ran: for programs without a key that copies. The clipboard
  /// itself is left alone.
  void takePrimarySelectionOf(std::uint64_t window);

  /// When `write` was last called; the epoch when it never was.
  [[nodiscard]] std::chrono::steady_clock::time_point lastWrite() const;

 private:
  struct State;
  class Reading;

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
