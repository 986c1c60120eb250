#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What a window shows, as far as X tells.
struct WindowView {
  std::string title;        ///< UTF-8; empty when the window has none
  std::uint32_t focus = 0;  ///< the X window inside it that has the keyboard; 0 when none has
};

/// Names what a window shows, for `RunningApplication::document`. The name stays the same while the
/// document does: marks that it was changed ("*", "●") and counters of what has not been read
/// ("(3) Inbox") are left out of the title. A number that does not come first belongs to the
/// document ("letter (2).txt").
[[nodiscard]] std::string documentName(const WindowView& view);

/// Whether a window that showed `before` still does by what `now` tells, both made by
/// `documentName`. What was not known before is passed over.
[[nodiscard]] bool isSameDocument(std::string_view before, std::string_view now);

}  // namespace quillseal::linux
