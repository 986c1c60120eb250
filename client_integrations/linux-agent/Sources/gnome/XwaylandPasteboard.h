#pragma once

#include <cstdint>
#include <optional>

#include "clipboard/ClipboardKeeper.h"
#include "gnome/ShellExtension.h"
#include "x11/QtPasteboard.h"
#include "x11/WindowManager.h"

namespace quillseal::linux {

/// The clipboard of all programs of a GNOME session, through Xwayland, on which a keeper offers
/// what is written. The Shell learns a moment later what was written, and until then programs paste
/// what was there before.
class XwaylandPasteboard : public QtPasteboard {
 public:
  /// All outlive this object.
  struct Services {
    X11Selection::Services reading;
    const WindowManager& windows;
    const ShellExtension& extension;
  };

  XwaylandPasteboard(const Services& services, ClipboardKeeper keeper);

  void write(const desktop::PasteboardContent& content) override;

  /// Whether programs would paste what was written last. Where the extension does not answer, only
  /// Xwayland is asked.
  [[nodiscard]] bool isWritten() const override;

 private:
  [[nodiscard]] std::optional<std::uint32_t> changes() const;

  Services services_;
  std::optional<std::uint32_t> before_;  ///< changes that the Shell had counted at the last write
};

}  // namespace quillseal::linux
