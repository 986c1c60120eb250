#pragma once

class QWidget;

namespace quillseal::linux {

/// The windows of this program among those of others. Main thread.
class OwnWindows {
 public:
  virtual ~OwnWindows() = default;

  /// Shows `window` above all others and with the keyboard, also while another program is active.
  virtual void bringToFront(QWidget& window) const = 0;
};

}  // namespace quillseal::linux
