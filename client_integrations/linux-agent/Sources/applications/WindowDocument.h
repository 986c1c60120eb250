#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What X reveals about a window's content.
struct WindowView {
  std::string title;        ///< UTF-8; empty when the window has none
  std::uint32_t focus = 0;  ///< the focused X window inside it; 0 when there is none
};

/// Returns a name for the document that a window shows, for `RunningApplication::document`. The
/// name stays the same as long as the document does: marks of a change ("*", "●") and counters of
/// unread messages ("(3) Inbox") are left out of the title. A number that does not come first
/// belongs to the document ("letter (2).txt").
[[nodiscard]] std::string documentName(const WindowView& view);

/// Returns whether a window that showed `before` still shows the same document `now`. Both were
/// made by `documentName`. Parts that were not known before are not compared.
[[nodiscard]] bool isSameDocument(std::string_view before, std::string_view now);

}  // namespace quillseal::linux
