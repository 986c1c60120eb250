#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Pasteboard.h"

namespace quillseal::linux {

/// Under Wayland what is on the clipboard is gone when the program ends that offers it. So a
/// process of its own offers it, and ends when somebody else copies.
class ClipboardKeeper {
 public:
  static constexpr std::string_view program = "quillseal-clipboard-keeper";

  /// `places`: where the program may be; the first there counts.
  explicit ClipboardKeeper(std::vector<std::filesystem::path> places);

  /// Has `content` offered, and returns once the compositor has taken the offer. Throws Error when
  /// it did not within five seconds; nothing is offered then. REQUIRES: SIGCHLD is not ignored,
  /// else nobody can tell that it did.
  void keep(const desktop::PasteboardContent& content) const;

 private:
  std::vector<std::filesystem::path> places_;
};

/// What the keeper is given on its standard input.
namespace KeptContent {

[[nodiscard]] std::string written(const desktop::PasteboardContent& content);

/// Nothing when it was not `written`.
[[nodiscard]] std::optional<desktop::PasteboardContent> read(std::string_view text);

}  // namespace KeptContent

}  // namespace quillseal::linux
