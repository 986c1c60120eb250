#pragma once

#include <cstdint>
#include <optional>

#include "gnome/ShellExtension.h"
#include "x11/QtPasteboard.h"

namespace quillseal::linux {

/// The clipboard of all programs of a GNOME session, through Xwayland. The Shell learns a moment
/// later what was written, and until then programs paste what was there before.
class XwaylandPasteboard : public QtPasteboard {
 public:
  /// The extension outlives this object.
  XwaylandPasteboard(const X11Selection::Services& services, const ShellExtension& extension)
      : QtPasteboard(services), extension_(extension) {}

  void write(const desktop::PasteboardContent& content) override;

  /// Whether programs would paste what was written last. Not known, and so true, where the
  /// extension does not answer.
  [[nodiscard]] bool isWritten() const;

 private:
  [[nodiscard]] std::optional<std::uint32_t> changes() const;

  const ShellExtension& extension_;
  std::optional<std::uint32_t> before_;  ///< changes that the Shell had counted at the last write
};

}  // namespace quillseal::linux
