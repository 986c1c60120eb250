#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "clipboard/ClipboardFormats.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"

namespace quillseal::linux {

/// A clipboard whose offers are read format by format. The loss of its owner does not count as a
/// change: it may be the first step of the next copy.
class FetchingPasteboard : public desktop::Pasteboard {
 public:
  [[nodiscard]] std::int64_t changeCount() const override { return changeCount_; }
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;
  [[nodiscard]] desktop::Ticket fetch(std::function<void()> fetched) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;

 protected:
  explicit FetchingPasteboard(desktop::MainLoop& loop) : loop_(loop) {}

  /// Reads the first offered format of each group, one after the other, while the owner keeps
  /// within the `TransferLimits`. Never calls `done` from inside this call.
  [[nodiscard]] virtual desktop::Ticket read(
      const ClipboardFormats::Groups& groups,
      std::function<void(ClipboardFormats::Content)> done) = 0;

  /// Counts a change of the owner or content, and reports it soon.
  void change();

 private:
  desktop::MainLoop& loop_;
  std::int64_t changeCount_ = 0;
  std::map<std::uint64_t, std::function<void()>> watches_;
  std::uint64_t lastWatch_ = 0;
  desktop::Ticket reporting_;
  ClipboardFormats::Content fetched_;
};

}  // namespace quillseal::linux
