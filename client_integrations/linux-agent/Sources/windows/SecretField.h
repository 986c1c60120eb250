#pragma once

#include <QLineEdit>
#include <functional>
#include <vector>

#include "keys/SecretBytes.h"

namespace quillseal::linux {

/// An input line for a secret. The widget holds only bullets; the secret stays in memory that is
/// wiped. Editing works at the end: typing, pasting, Backspace, and Ctrl+U to clear.
class SecretField : public QLineEdit {
 public:
  SecretField();

  /// The typed secret in UTF-8.
  [[nodiscard]] const SecretBytes& secret() const { return secret_; }

  /// Returns the secret and empties the field.
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
