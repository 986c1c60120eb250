#pragma once

#include "desktop/Pasteboard.h"

namespace quillseal::mac {

/// The general pasteboard.
class MacPasteboard final : public desktop::Pasteboard {
 public:
  [[nodiscard]] std::int64_t changeCount() const override;
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;
  [[nodiscard]] std::string readingObstacle() const override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;
  void write(const desktop::PasteboardContent& content) override;
};

}  // namespace quillseal::mac
