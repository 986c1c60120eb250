#include "gnome/XwaylandPasteboard.h"

#include <utility>

namespace quillseal::linux {

XwaylandPasteboard::XwaylandPasteboard(const Services& services, ClipboardKeeper keeper)
    : QtPasteboard(services.reading, std::move(keeper)), services_(services) {}

void XwaylandPasteboard::write(const desktop::PasteboardContent& content) {
  before_ = changes();
  QtPasteboard::write(content);
}

bool XwaylandPasteboard::isWritten() const {
  if (services_.windows.clipboardOwner() != keepersWindow()) return false;
  const std::optional<std::uint32_t> now = changes();
  return !before_ || !now || *now != *before_;
}

std::optional<std::uint32_t> XwaylandPasteboard::changes() const {
  const std::optional<ShellFront> front = services_.extension.front();
  if (!front) return std::nullopt;
  return front->clipboardChanges;
}

}  // namespace quillseal::linux
