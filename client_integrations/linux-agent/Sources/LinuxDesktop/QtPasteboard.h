#pragma once

#include <QObject>
#include <chrono>
#include <functional>

#include "Desktop/Pasteboard.h"

class QMimeData;

namespace quillseal {

/// The clipboard through QClipboard, whose change signal covers every program of the X session.
/// What a program offers that does not answer counts as nothing.
class QtPasteboard : public desktop::Pasteboard {
 public:
  QtPasteboard();

  [[nodiscard]] std::int64_t changeCount() const override { return changeCount_; }
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] std::optional<std::string> rtf() const override;
  void write(const desktop::PasteboardContent& content) override;

  /// Copies what is selected anywhere on the desktop, its plain text, as the program could that it
  /// is selected in. Leaves the clipboard alone when that is nothing.
  void copyPrimarySelection();

  /// Offers the clipboard's plain text as the primary selection too, for programs that paste that.
  void offerAsPrimarySelection();

  /// When `write` was last called; the epoch when it never was.
  [[nodiscard]] std::chrono::steady_clock::time_point lastWrite() const { return lastWrite_; }

 private:
  [[nodiscard]] const QMimeData* offered() const;

  QObject receiver_;
  std::int64_t changeCount_ = 0;
  mutable std::int64_t askedAt_ = -1;  // the change after which the owner was last asked
  mutable bool hasAnswered_ = true;
  std::chrono::steady_clock::time_point lastWrite_;
};

}  // namespace quillseal
