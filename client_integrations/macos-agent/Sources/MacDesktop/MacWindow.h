#pragma once

#include "desktop/Window.h"

namespace quillseal::mac {

/// Windows of AppKit. Forms are laid out in boxes of native controls.
class MacWindows final : public desktop::Windows {
 public:
  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;
};

}  // namespace quillseal::mac
