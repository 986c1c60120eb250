#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <string>

#include "desktop/Ticket.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// A dialog of the agent: a picture, a title in bold, a text, then rows that its maker adds, and
/// buttons. All text is plain. Long text scrolls, so that the buttons stay on a small screen.
class MessageDialog : public QDialog {
 public:
  enum class Picture { information, warning, key, product };

  struct Look {
    Picture picture = Picture::information;
    std::string title;
    std::string text;
  };

  explicit MessageDialog(const Look& look);

  /// The rows between text and buttons.
  [[nodiscard]] QVBoxLayout& rows() { return *rows_; }

  /// The first accepting button is the default one.
  QPushButton& addButton(const std::string& label, QDialogButtonBox::ButtonRole role);

  /// Shows the dialog in front of the windows of other programs, with the keyboard, and calls
  /// `closed` once with whether it was accepted. Dropping the ticket closes it without the call.
  /// While it is open, no other window of this program takes input.
  [[nodiscard]] static desktop::Ticket open(std::unique_ptr<MessageDialog> dialog,
                                            const OwnWindows& windows,
                                            std::function<void(bool)> closed);

 private:
  QVBoxLayout* rows_;
  QDialogButtonBox* buttons_;
};

/// How a prompt says where the text is going; empty when that is not known.
[[nodiscard]] std::string mediumLine(const std::string& medium);

}  // namespace quillseal::linux
