#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Pasteboard.h"

namespace quillseal::linux {

/// Keeps text on the clipboard after the agent has ended: under Wayland the clipboard's content is
/// lost when the program that offers it ends. A separate process offers it, until another program
/// copies.
class ClipboardKeeper {
 public:
  static constexpr std::string_view program = "quillseal-clipboard-keeper";

  /// `places`: candidate paths of the program; the first that exists is used.
  explicit ClipboardKeeper(std::vector<std::filesystem::path> places);

  /// Starts offering `content` and returns once the compositor has taken the offer. Throws Error,
  /// and offers nothing, when that takes more than five seconds. REQUIRES: SIGCHLD is not ignored,
  /// or the keeper's exit status is lost.
  void keep(const desktop::PasteboardContent& content) const;

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
