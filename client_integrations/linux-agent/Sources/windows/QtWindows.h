#pragma once

#include "desktop/Window.h"
#include "session/PlatformWording.h"
#include "windows/OwnWindows.h"

namespace quillseal {

/// Windows of Qt that show a form.
class QtWindows : public desktop::Windows {
 public:
  QtWindows(const OwnWindows& windows, PlatformWording::CurrentCircumstances circumstances);

  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;

 private:
  const OwnWindows& windows_;
  PlatformWording::CurrentCircumstances circumstances_;
};

}  // namespace quillseal
