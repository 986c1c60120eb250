#pragma once

#include "Desktop/Window.h"
#include "LinuxDesktop/QtText.h"
#include "LinuxDesktop/WindowManager.h"

namespace quillseal {

/// Windows of Qt that show a form.
class QtWindows : public desktop::Windows {
 public:
  QtWindows(const WindowManager& windows, Words words);

  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;

 private:
  const WindowManager& windows_;
  Words words_;
};

}  // namespace quillseal
