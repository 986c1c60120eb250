#pragma once

#include "desktop/Window.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// Shows forms in Qt windows.
class QtWindows : public desktop::Windows {
 public:
  explicit QtWindows(const OwnWindows& windows) : windows_(windows) {}

  [[nodiscard]] std::unique_ptr<desktop::Window> make(
      const desktop::WindowDescription& description) override;

 private:
  const OwnWindows& windows_;
};

}  // namespace quillseal::linux
