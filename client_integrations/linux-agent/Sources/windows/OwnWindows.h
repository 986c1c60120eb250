#pragma once

class QWidget;

namespace quillseal::linux {

/// Raises this program's own windows. Main thread.
class OwnWindows {
 public:
  virtual ~OwnWindows() = default;

  /// Shows `window` above all others and focuses it, also while another program is active.
  virtual void bringToFront(QWidget& window) const = 0;
};

}  // namespace quillseal::linux
