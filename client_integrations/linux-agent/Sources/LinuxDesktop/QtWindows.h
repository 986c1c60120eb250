#pragma once

#include "Desktop/Window.h"
#include "LinuxDesktop/PlatformWording.h"
#include "LinuxDesktop/WindowManager.h"

namespace quillseal {

/// Windows of Qt that show a form.
class QtWindows : public desktop::Windows {
 public:
  QtWindows(const WindowManager& windows, PlatformWording::CurrentCircumstances circumstances);

  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;

 private:
  const WindowManager& windows_;
  PlatformWording::CurrentCircumstances circumstances_;
};

}  // namespace quillseal
