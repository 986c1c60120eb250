#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <string>

#include "desktop/Ticket.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// A dialog of the agent: a picture, a title in bold, a text, rows that the caller adds, and
/// buttons. All text is plain. Long text scrolls, so that the buttons stay visible on a small
/// screen.
class MessageDialog : public QDialog {
 public:
  enum class Picture { information, warning, key, product };

  struct Look {
    Picture picture = Picture::information;
    std::string title;
    std::string text;
  };

  explicit MessageDialog(const Look& look);

  /// The layout for rows between text and buttons.
  [[nodiscard]] QVBoxLayout& rows() { return *rows_; }

  /// Adds a button. The first accepting one is the default.
  QPushButton& addButton(const std::string& label, QDialogButtonBox::ButtonRole role);

  /// Shows the dialog in front of all programs' windows, focused, and calls `closed` once with
  /// whether it was accepted. Dropping the ticket closes it without the call. The dialog is modal
  /// for this program.
  [[nodiscard]] static desktop::Ticket open(std::unique_ptr<MessageDialog> dialog,
                                            const OwnWindows& windows,
                                            std::function<void(bool)> closed);

 private:
  QVBoxLayout* rows_;
  QDialogButtonBox* buttons_;
};

/// Makes a label that shows the text as it is, on several lines where needed. The layout that it is
/// added to owns it.
[[nodiscard]] QLabel* plainLabel(const QString& text);

/// For text that says what is wrong.
inline constexpr auto warningColour = "#b45309";

/// Returns the line of a prompt that says where the text is going; empty when that is not known.
[[nodiscard]] std::string mediumLine(const std::string& medium);

}  // namespace quillseal::linux
