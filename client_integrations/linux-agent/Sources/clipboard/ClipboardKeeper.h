#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/Pasteboard.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// Keeps text on the clipboard after the agent has ended: the clipboard's content is lost when the
/// program that offers it ends. A separate process offers it, until another program copies.
class ClipboardKeeper {
 public:
  static constexpr std::string_view program = "quillseal-clipboard-keeper";
  /// For the clipboard of an X server. It is also the class of its window there.
  static constexpr std::string_view programForX11 = "quillseal-clipboard-keeper-x11";
  /// The argument with which the program for X11 waits.
  static constexpr std::string_view waiting = "--waiting";

  /// A keeper that waits, and makes its offer once this object or its process has gone.
  class Waiting {
   public:
    Waiting() = default;  ///< none
    explicit Waiting(FileDescriptor line) : line_(std::move(line)) {}

    /// Ends it, and nothing is offered.
    void dismiss();

   private:
    FileDescriptor line_;
  };

  /// `places`: candidate paths of one of the programs; the first that exists is used.
  explicit ClipboardKeeper(std::vector<std::filesystem::path> places);

  /// Starts offering `content`. Returns the window that owns the clipboard, 0 under Wayland, once
  /// the compositor or X server has taken the offer. Throws Error, and offers nothing,
  /// when that takes more than five seconds. REQUIRES: SIGCHLD is not ignored, or the keeper's exit
  /// status is lost.
  [[nodiscard]] std::uint32_t keep(const desktop::PasteboardContent& content) const;

  /// Starts a keeper for X11 that waits. When the result is gone, it offers `content` on the X
  /// server's clipboard, if that holds the same plain text or nothing. Throws Error when none can
  /// wait.
  [[nodiscard]] Waiting keepLater(const desktop::PasteboardContent& content) const;

 private:
  std::vector<std::filesystem::path> places_;
};

/// The format of the keeper's standard input.
namespace KeptContent {

[[nodiscard]] std::string written(const desktop::PasteboardContent& content);

/// Parses what `written` made; nothing for anything else.
[[nodiscard]] std::optional<desktop::PasteboardContent> read(std::string_view text);

}  // namespace KeptContent

}  // namespace quillseal::linux
