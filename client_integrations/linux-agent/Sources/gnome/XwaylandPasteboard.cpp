#include "gnome/XwaylandPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quillseal::linux {

void XwaylandPasteboard::write(const desktop::PasteboardContent& content) {
  before_ = changes();
  QtPasteboard::write(content);
}

bool XwaylandPasteboard::isWritten() const {
  if (!QGuiApplication::clipboard()->ownsClipboard()) return false;
  const std::optional<std::uint32_t> now = changes();
  return !before_ || !now || *now != *before_;
}

std::optional<std::uint32_t> XwaylandPasteboard::changes() const {
  const std::optional<ShellFront> front = extension_.front();
  if (!front) return std::nullopt;
  return front->clipboardChanges;
}

}  // namespace quillseal::linux
