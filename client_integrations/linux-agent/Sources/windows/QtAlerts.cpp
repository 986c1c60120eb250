#include "windows/QtAlerts.h"

#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVariantMap>
#include <memory>

#include "session/QtText.h"
#include "windows/MessageDialog.h"

namespace quillseal::linux {
namespace {

constexpr int noteFontSize = 8;  // points

MessageDialog::Picture pictureOf(desktop::AlertStyle style) {
  return style == desktop::AlertStyle::warning ? MessageDialog::Picture::warning
                                               : MessageDialog::Picture::information;
}

std::unique_ptr<MessageDialog> questionDialog(const desktop::Question& question,
                                              MessageDialog::Picture picture) {
  auto dialog = std::make_unique<MessageDialog>(
      MessageDialog::Look{.picture = picture, .title = question.title, .text = question.body});
  // Qt would focus the leftmost, which in GNOME's order is the other one.
  dialog->addButton(question.confirm, QDialogButtonBox::AcceptRole).setFocus();
  dialog->addButton(question.cancel, QDialogButtonBox::RejectRole);
  return dialog;
}

// Notification services may interpret the body as markup.
QString escaped(const std::string& text) {
  return toQString(text).toHtmlEscaped();
}

}  // namespace

desktop::Ticket QtAlerts::show(const desktop::Alert& alert, std::function<void()> dismissed) {
  auto dialog = std::make_unique<MessageDialog>(MessageDialog::Look{
      .picture = pictureOf(alert.style), .title = alert.title, .text = alert.body});
  dialog->addButton("OK", QDialogButtonBox::AcceptRole).setFocus();
  return MessageDialog::open(std::move(dialog), windows_,
                             [dismissed = std::move(dismissed)](bool) { dismissed(); });
}

desktop::Ticket QtAlerts::ask(const desktop::Question& question,
                              std::function<void(desktop::Answer)> answered) {
  return MessageDialog::open(
      questionDialog(question, pictureOf(question.style)), windows_,
      [answered = std::move(answered)](bool confirmed) {
        answered(confirmed ? desktop::Answer::confirmed : desktop::Answer::cancelled);
      });
}

desktop::Ticket QtAlerts::confirm(
    const desktop::ConfirmationForm& form,
    std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) {
  auto dialog = questionDialog(form.question, MessageDialog::Picture::product);

  auto* choice = new QComboBox;
  choice->setAccessibleName(QStringLiteral("Medium"));
  for (const std::string& option : form.choices)
    choice->addItem(toQString(option));
  choice->setCurrentIndex(static_cast<int>(form.selectedChoice));
  auto* field = new QLineEdit;
  field->setAccessibleName(QStringLiteral("Recipient"));
  field->setPlaceholderText(toQString(form.fieldPlaceholder));
  QLabel* note = plainLabel(toQString(form.note));
  note->setForegroundRole(QPalette::PlaceholderText);
  QFont small = note->font();
  small.setPointSize(noteFontSize);
  note->setFont(small);

  dialog->rows().addWidget(choice);
  dialog->rows().addWidget(field);
  dialog->rows().addWidget(note);
  field->setFocus();

  return MessageDialog::open(
      std::move(dialog), windows_, [choice, field, answered = std::move(answered)](bool confirmed) {
        if (!confirmed) return answered(std::nullopt);
        answered(desktop::ConfirmationEntry{.choice = choice->currentText().toStdString(),
                                            .field = field->text().toStdString()});
      });
}

void QtAlerts::notify(const desktop::Notification& notification) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.Notifications"),
      QStringLiteral("/org/freedesktop/Notifications"),
      QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
  constexpr quint32 replacesNone = 0;
  constexpr int usualTime = -1;
  call << QStringLiteral("Quillseal") << replacesNone << QStringLiteral("quillseal")
       << toQString(notification.title) << escaped(notification.body) << QStringList()
       << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("quillseal")}} << usualTime;
  QDBusConnection::sessionBus().send(call);
}

}  // namespace quillseal::linux
