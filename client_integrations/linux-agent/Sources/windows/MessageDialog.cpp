#include "windows/MessageDialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "session/QtText.h"

namespace quillseal::linux {
namespace {

constexpr int textWidth = 420;
constexpr int pictureSize = 48;
constexpr double titleScale = 1.15;
constexpr double largestShareOfScreen = 0.5;

QPixmap pixmapOf(MessageDialog::Picture picture, const QStyle& style) {
  switch (picture) {
    case MessageDialog::Picture::warning:
      return style.standardIcon(QStyle::SP_MessageBoxWarning).pixmap(pictureSize);
    case MessageDialog::Picture::information:
      return style.standardIcon(QStyle::SP_MessageBoxInformation).pixmap(pictureSize);
    case MessageDialog::Picture::key:
    case MessageDialog::Picture::product:
      break;
  }
  // Not a new icon: Qt would cache another pixmap each time.
  return QApplication::windowIcon().pixmap(pictureSize);
}

// Some texts end in line breaks that separate them from what follows on another desktop.
QString withoutEnd(QString text) {
  while (!text.isEmpty() && text.back().isSpace())
    text.chop(1);
  return text;
}

/// Makes a text that scrolls where it is too long for the dialog's screen.
QScrollArea* scrollingText(const QString& text, const QWidget& dialog) {
  QLabel* label = plainLabel(text);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(label);
  const int bar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const int wanted = label->heightForWidth(textWidth);
  const int largest =
      static_cast<int>(dialog.screen()->availableSize().height() * largestShareOfScreen);
  scroll->setFixedSize(textWidth + (wanted > largest ? bar : 0), std::min(wanted, largest));
  return scroll;
}

}  // namespace

QLabel* plainLabel(const QString& text) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setText(text);
  return label;
}

// Qt's parents own their children: every widget that is added to a layout below is deleted with the
// dialog.
MessageDialog::MessageDialog(const Look& look)
    : rows_(new QVBoxLayout), buttons_(new QDialogButtonBox) {
  setWindowTitle(toQString(look.title));

  auto* picture = new QLabel;
  picture->setPixmap(pixmapOf(look.picture, *style()));

  QLabel* title = plainLabel(toQString(look.title));
  QFont bold = title->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * titleScale);
  title->setFont(bold);
  title->setFixedWidth(textWidth);

  auto* column = new QVBoxLayout;
  column->addWidget(title);
  const QString shown = withoutEnd(toQString(look.text));
  if (!shown.isEmpty()) column->addWidget(scrollingText(shown, *this));
  column->addLayout(rows_);
  column->addStretch();

  auto* upper = new QHBoxLayout;
  upper->setSpacing(16);
  upper->addWidget(picture, 0, Qt::AlignTop);
  upper->addLayout(column);

  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(18, 18, 18, 14);
  all->setSpacing(14);
  all->addLayout(upper);
  all->addWidget(buttons_);
  all->setSizeConstraint(QLayout::SetFixedSize);

  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QPushButton& MessageDialog::addButton(const std::string& label, QDialogButtonBox::ButtonRole role) {
  QPushButton* button = buttons_->addButton(withoutMnemonic(label), role);
  button->setDefault(role == QDialogButtonBox::AcceptRole);
  button->setAutoDefault(true);
  return *button;
}

desktop::Ticket MessageDialog::open(std::unique_ptr<MessageDialog> dialog,
                                    const OwnWindows& windows, std::function<void(bool)> closed) {
  const QPointer<MessageDialog> shown = dialog.release();  // deletes itself when closed
  connect(shown, &QDialog::finished, shown, [shown, closed = std::move(closed)](int result) {
    shown->deleteLater();
    const std::function<void(bool)> call = closed;
    call(result == QDialog::Accepted);
  });
  shown->setModal(true);
  windows.bringToFront(*shown);
  return desktop::Ticket([shown] {
    if (shown.isNull()) return;
    shown->disconnect();
    shown->hide();
    shown->deleteLater();
  });
}

std::string mediumLine(const std::string& medium) {
  return medium.empty() ? std::string() : "Medium: " + medium;
}

}  // namespace quillseal::linux
