#include "windows/SecretField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace quillseal::linux {
namespace {

constexpr std::size_t largest = 1024;
constexpr ushort bullet = 0x2022;

bool isPrintable(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(),
                                        [](QChar c) { return c.isPrint() || c.isSurrogate(); });
}

}  // namespace

SecretField::SecretField() {
  setContextMenuPolicy(Qt::NoContextMenu);
  setDragEnabled(false);
  setAcceptDrops(false);
  setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                      Qt::ImhNoAutoUppercase);
}

SecretBytes SecretField::take() {
  lengths_.clear();
  SecretBytes taken = std::exchange(secret_, SecretBytes());
  edited();
  return taken;
}

void SecretField::keyPressEvent(QKeyEvent* event) {
  const bool control = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (event->matches(QKeySequence::Paste)) {
    append(QGuiApplication::clipboard()->text());
  } else if (event->key() == Qt::Key_Backspace) {
    removeLast();
  } else if (control && event->key() == Qt::Key_U) {
    static_cast<void>(take());
  } else if (!control && isPrintable(event->text())) {
    append(event->text());
  } else {
    event->ignore();  // Enter, Escape and Tab are for the dialog
  }
}

void SecretField::inputMethodEvent(QInputMethodEvent* event) {
  if (isPrintable(event->commitString())) append(event->commitString());
  event->accept();
}

void SecretField::append(const QString& text) {
  QByteArray bytes = text.toUtf8();
  if (secret_.size() + static_cast<std::size_t>(bytes.size()) <= largest && !bytes.isEmpty()) {
    SecretBytes longer(secret_.size() + static_cast<std::size_t>(bytes.size()));
    const auto middle =
        std::copy(secret_.bytes().begin(), secret_.bytes().end(), longer.bytes().begin());
    std::copy(bytes.begin(), bytes.end(), middle);
    secret_ = std::move(longer);
    lengths_.push_back(static_cast<std::size_t>(bytes.size()));
  }
  wipe({reinterpret_cast<unsigned char*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
  edited();
}

void SecretField::removeLast() {
  if (lengths_.empty()) return;
  secret_.shorten(secret_.size() - lengths_.back());
  lengths_.pop_back();
  edited();
}

void SecretField::edited() {
  setText(QString(static_cast<qsizetype>(lengths_.size()), QChar(bullet)));
  if (onEdit) onEdit();
}

}  // namespace quillseal::linux
