#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// What is put on the pasteboard: one thing in two flavours.
struct PasteboardContent {
  std::string plainText;  ///< UTF-8
  std::string html;       ///< a whole document, UTF-8
};

/// The general clipboard. Main thread.
///
/// What is read was written by another program: bytes of any kind and size. Readers see the
/// flavours that were offered when they were last fetched; one that is offered but cannot be
/// delivered counts as absent.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;

  /// Changes with every change of the clipboard's owner or content.
  [[nodiscard]] virtual std::int64_t changeCount() const = 0;

  /// Calls `changed` at the next change of the count, never from inside this call; not at all where
  /// the desktop does not report changes. Callers must also poll changeCount().
  [[nodiscard]] virtual Ticket onNextChange(std::function<void()> changed) = 0;

  /// Fetches the flavours for the functions below from the program that owns them, which may hang,
  /// and calls `fetched`, also when they do not come. Needed on some desktops only.
  // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it.
  [[nodiscard]] virtual Ticket fetch(std::function<void()> fetched) {
    fetched();
    return {};
  }

  /// What keeps this program from reading the clipboard, such as a setting of the system, in words
  /// for the log; empty when nothing is known to.
  [[nodiscard]] virtual std::string readingObstacle() const { return {}; }

  /// Whether the program that copied marked it as a secret, as password managers do.
  [[nodiscard]] virtual bool isConcealed() const = 0;

  [[nodiscard]] virtual std::optional<std::string> plainText() const = 0;
  [[nodiscard]] virtual std::optional<std::string> html() const = 0;

  /// Fetches the RTF of what is on the clipboard from the program that owns it, which may hang, and
  /// calls `done` with its bytes as offered; with nothing when none is offered or comes, or when it
  /// is concealed.
  [[nodiscard]] virtual Ticket fetchRtf(std::function<void(std::optional<std::string>)> done) = 0;

  /// Makes `write` possible, for which some desktops ask the user, and calls `ready`; also when
  /// that fails or takes too long, and `write` is going to throw. Needed on some desktops only.
  // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it.
  [[nodiscard]] virtual Ticket prepareWrite(std::function<void()> ready) {
    ready();
    return {};
  }

  /// Replaces the content by `content`, both flavours at once, and no other flavour. It stays until
  /// replaced, where the desktop allows it also when the agent ends. On failure throws Error and
  /// offers none of `content`.
  virtual void write(const PasteboardContent& content) = 0;

  /// Whether programs would paste what was written last. Some desktops need a moment after `write`
  /// until that is so, and may refuse it.
  [[nodiscard]] virtual bool isWritten() const { return true; }
};

}  // namespace quillseal::desktop
