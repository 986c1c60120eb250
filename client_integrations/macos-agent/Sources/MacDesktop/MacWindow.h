#pragma once

#include "desktop/Window.h"

namespace quillseal::mac {

/// Shows forms in AppKit windows, with native controls in boxes.
class MacWindows final : public desktop::Windows {
 public:
  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;
};

}  // namespace quillseal::mac
