#include "LinuxDesktop/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <array>
#include <memory>
#include <utility>

#include "Desktop/Error.h"
#include "LinuxDesktop/QtText.h"
#include "LinuxDesktop/X11SelectionOwner.h"

namespace quillseal {
namespace {

// The names under which X programs offer rich text.
constexpr std::array rtfFormats = {"text/rtf", "application/rtf", "text/richtext"};

// Set by KDE's and KeePassXC's convention, and by that of macOS for programs that know both.
constexpr auto passwordHint = "x-kde-passwordManagerHint";
constexpr auto concealed = "org.nspasteboard.ConcealedType";

// Longer than any program takes that is merely busy.
constexpr std::chrono::seconds patience{2};

std::optional<std::string> present(std::string text) {
  if (text.empty()) return std::nullopt;
  return text;
}

}  // namespace

QtPasteboard::QtPasteboard() {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &receiver_,
                   [this] { ++changeCount_; });
}

const QMimeData* QtPasteboard::offered() const {
  const QClipboard* const clipboard = QGuiApplication::clipboard();
  if (clipboard->ownsClipboard()) return clipboard->mimeData();
  if (std::exchange(askedAt_, changeCount_) != changeCount_)
    hasAnswered_ = ownerAnswers(X11Selection::clipboard, patience);
  return hasAnswered_ ? clipboard->mimeData() : nullptr;
}

desktop::Ticket QtPasteboard::onNextChange(std::function<void()> changed) {
  // Qt drops the connection before it calls, and keeps `changed` until the call has returned.
  const auto watch = QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged,
                                      &receiver_, std::move(changed), Qt::SingleShotConnection);
  return desktop::Ticket([watch] { QObject::disconnect(watch); });
}

bool QtPasteboard::isConcealed() const {
  const QMimeData* data = offered();
  if (data == nullptr) return false;
  return data->hasFormat(QLatin1String(concealed)) ||
         (data->hasFormat(QLatin1String(passwordHint)) &&
          data->data(QLatin1String(passwordHint)) == "secret");
}

std::optional<std::string> QtPasteboard::plainText() const {
  const QMimeData* data = offered();
  if (data == nullptr || !data->hasText()) return std::nullopt;
  return present(data->text().toStdString());
}

std::optional<std::string> QtPasteboard::html() const {
  const QMimeData* data = offered();
  if (data == nullptr || !data->hasHtml()) return std::nullopt;
  return present(data->html().toStdString());
}

std::optional<std::string> QtPasteboard::rtf() const {
  const QMimeData* data = offered();
  if (data == nullptr) return std::nullopt;
  for (const char* format : rtfFormats)
    if (data->hasFormat(QLatin1String(format)))
      if (auto bytes = present(data->data(QLatin1String(format)).toStdString())) return bytes;
  return std::nullopt;
}

void QtPasteboard::write(const desktop::PasteboardContent& content) {
  auto data = std::make_unique<QMimeData>();
  data->setText(toQString(content.plainText));
  data->setHtml(toQString(content.html));
  QClipboard* const clipboard = QGuiApplication::clipboard();
  clipboard->setMimeData(data.release());  // the clipboard owns it from here
  lastWrite_ = std::chrono::steady_clock::now();
  if (!clipboard->ownsClipboard())
    throw Error({.domain = "QtPasteboard",
                 .code = 1,
                 .description = "The clipboard could not be written: another program holds it."});
}

void QtPasteboard::copyPrimarySelection() {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  if (!clipboard->ownsSelection() && !ownerAnswers(X11Selection::primary, patience)) return;
  const QString selected = clipboard->text(QClipboard::Selection);
  if (!selected.isEmpty()) clipboard->setText(selected);
}

void QtPasteboard::offerAsPrimarySelection() {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  clipboard->setText(clipboard->text(), QClipboard::Selection);
}

}  // namespace quillseal
