#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

enum class AlertStyle { informational, warning };

/// A message with one button, "OK".
struct Alert {
  std::string title;
  std::string body;
  AlertStyle style = AlertStyle::warning;
};

/// A message with two buttons; the first is the default.
struct Question {
  std::string title;
  std::string body;
  AlertStyle style = AlertStyle::warning;
  std::string confirm;
  std::string cancel;
};

enum class Answer { confirmed, cancelled };

/// The dialog in which a user confirms a signature: a question with, between text and buttons and
/// from top to bottom, a choice, a text field and a small note. The field has the keyboard at once.
struct ConfirmationForm {
  Question question;
  std::vector<std::string> choices;
  std::size_t selectedChoice = 0;
  std::string fieldPlaceholder;
  std::string note;  ///< small, in the secondary colour
};

struct ConfirmationEntry {
  std::string choice;  ///< the selected text; empty when none is selected
  std::string field;   ///< as typed
};

struct Notification {
  std::string title;
  std::string body;
};

/// Messages to the user. Main thread; no call waits for the user. Dialogs are modal to this program
/// only, come up in front of other windows with the keyboard, and hold plain text, of which any
/// part may come from an untrusted source and must not be read as markup. Long texts scroll.
/// Several may be open at once. Closing one without a button counts as its last button.
class Alerts {
 public:
  virtual ~Alerts() = default;

  [[nodiscard]] virtual Ticket show(const Alert& alert, std::function<void()> dismissed) = 0;

  [[nodiscard]] virtual Ticket ask(const Question& question,
                                   std::function<void(Answer)> answered) = 0;

  /// `answered` gets nothing when the user cancelled.
  [[nodiscard]] virtual Ticket confirm(
      const ConfirmationForm& form,
      std::function<void(std::optional<ConfirmationEntry>)> answered) = 0;

  /// Shows a notification that needs no answer. Lost silently where the desktop shows none.
  virtual void notify(const Notification& notification) = 0;
};

}  // namespace quillseal::desktop
