#pragma once

#include <QLineEdit>
#include <functional>
#include <vector>

#include "keys/SecretBytes.h"

namespace quillseal::linux {

/// A line for a secret. The widget itself holds bullets only; the secret stays in memory that is
/// wiped. It is edited at its end: typing, pasting, Backspace, and Ctrl+U for all of it.
class SecretField : public QLineEdit {
 public:
  SecretField();

  /// The secret as typed, UTF-8.
  [[nodiscard]] const SecretBytes& secret() const { return secret_; }

  /// Hands the secret over and leaves the field empty.
  [[nodiscard]] SecretBytes take();

  std::function<void()> onEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  void append(const QString& text);
  void removeLast();
  void edited();

  SecretBytes secret_;
  std::vector<std::size_t> lengths_;  // of each character typed, in bytes
};

}  // namespace quillseal::linux
