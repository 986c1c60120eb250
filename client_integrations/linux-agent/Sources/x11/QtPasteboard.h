#pragma once

#include <QObject>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "clipboard/ClipboardFormats.h"
#include "clipboard/ClipboardKeeper.h"
#include "desktop/Pasteboard.h"
#include "x11/X11Selection.h"

namespace quillseal::linux {

/// The clipboard of an X server. Changes are reported by QClipboard, whose signal covers every
/// program; offers are read by X11Selection; and a keeper offers what is written.
class QtPasteboard : public desktop::Pasteboard {
 public:
  QtPasteboard(const X11Selection::Services& services, ClipboardKeeper keeper);

  [[nodiscard]] std::int64_t changeCount() const override { return changeCount_; }
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;
  [[nodiscard]] desktop::Ticket fetch(std::function<void()> fetched) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;
  void write(const desktop::PasteboardContent& content) override;

  /// Copies the plain text of the primary selection to the clipboard, in place of the program that
  /// owns it. Changes nothing when it is empty. Calls `done` afterwards in both cases.
  [[nodiscard]] desktop::Ticket copyPrimarySelection(std::function<void()> done);

  /// The time of the last `write`; the epoch when there was none.
  [[nodiscard]] std::chrono::steady_clock::time_point lastWrite() const { return lastWrite_; }

 protected:
  /// The window that took the clipboard with what was written last; 0 when nothing was.
  [[nodiscard]] std::uint32_t keepersWindow() const { return keepersWindow_; }

 private:
  [[nodiscard]] ClipboardFormats::Content offered() const;
  [[nodiscard]] desktop::Ticket read(const ClipboardFormats::Groups& formats,
                                     std::function<void(ClipboardFormats::Content)> done);

  X11Selection::Services services_;
  ClipboardKeeper keeper_;
  std::uint32_t keepersWindow_ = 0;
  QObject receiver_;
  std::int64_t changeCount_ = 0;
  /// The offer of another program; nothing until it has been read.
  std::optional<ClipboardFormats::Content> fetched_;
  std::chrono::steady_clock::time_point lastWrite_;
};

}  // namespace quillseal::linux
