#include "x11/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "session/QtText.h"

namespace quillseal::linux {
namespace {

ClipboardFormats::Content contentOf(const QMimeData* data,
                                    const ClipboardFormats::Groups& formats) {
  ClipboardFormats::Content content;
  if (data == nullptr) return content;
  for (const std::vector<std::string>& group : formats)
    for (const std::string& format : group)
      if (const QString name = toQString(format); data->hasFormat(name))
        content[format] = data->data(name).toStdString();
  return content;
}

/// Whether no other program has to be asked for what is on the clipboard.
bool isAtHand() {
  return QGuiApplication::clipboard()->ownsClipboard() ||
         qGuiApp->nativeInterface<QNativeInterface::QX11Application>() == nullptr;
}

}  // namespace

QtPasteboard::QtPasteboard(const X11Selection::Services& services, ClipboardKeeper keeper)
    : services_(services), keeper_(std::move(keeper)) {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &receiver_, [this] {
    ++changeCount_;
    fetched_.reset();
  });
}

ClipboardFormats::Content QtPasteboard::offered() const {
  if (isAtHand())
    return contentOf(QGuiApplication::clipboard()->mimeData(), ClipboardFormats::wanted());
  return fetched_.value_or(ClipboardFormats::Content());
}

desktop::Ticket QtPasteboard::onNextChange(std::function<void()> changed) {
  // A single-shot connection ends before the call, and Qt keeps `changed` until the call has
  // returned.
  const auto watch = QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged,
                                      &receiver_, std::move(changed), Qt::SingleShotConnection);
  return desktop::Ticket([watch] { QObject::disconnect(watch); });
}

desktop::Ticket QtPasteboard::fetch(std::function<void()> fetched) {
  if (isAtHand() || fetched_) {
    fetched();
    return {};
  }
  return read(ClipboardFormats::wanted(),
              [this, fetched = std::move(fetched)](ClipboardFormats::Content content) {
                fetched_ = std::move(content);
                fetched();
              });
}

desktop::Ticket QtPasteboard::fetchRtf(std::function<void(std::optional<std::string>)> done) {
  return read(ClipboardFormats::wantedForRtf(),
              [done = std::move(done)](const ClipboardFormats::Content& content) {
                done(ClipboardFormats::rtfOf(content));
              });
}

desktop::Ticket QtPasteboard::read(const ClipboardFormats::Groups& formats,
                                   std::function<void(ClipboardFormats::Content)> done) {
  if (isAtHand()) {
    done(contentOf(QGuiApplication::clipboard()->mimeData(), formats));
    return {};
  }
  return X11Selection::read(services_,
                            {.selection = X11Selection::Name::clipboard,
                             .formats = formats,
                             .isEnough = ClipboardFormats::isSecret},
                            std::move(done));
}

bool QtPasteboard::isConcealed() const {
  return ClipboardFormats::isSecret(offered());
}

std::optional<std::string> QtPasteboard::plainText() const {
  return ClipboardFormats::plainTextOf(offered());
}

std::optional<std::string> QtPasteboard::html() const {
  return ClipboardFormats::htmlOf(offered());
}

void QtPasteboard::write(const desktop::PasteboardContent& content) {
  keepersWindow_ = keeper_.keep(content);
  lastWrite_ = std::chrono::steady_clock::now();
}

desktop::Ticket QtPasteboard::copyPrimarySelection(std::function<void()> done) {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  const auto arrive = [clipboard,
                       done = std::move(done)](const ClipboardFormats::Content& content) {
    if (const auto text = ClipboardFormats::plainTextOf(content))
      clipboard->setText(toQString(*text));
    done();
  };
  if (clipboard->ownsSelection()) {
    arrive(
        contentOf(clipboard->mimeData(QClipboard::Selection), {ClipboardFormats::ofPlainText()}));
    return {};
  }
  return X11Selection::read(services_,
                            {.selection = X11Selection::Name::primary,
                             .formats = {ClipboardFormats::ofPlainText()},
                             .isEnough = {}},
                            arrive);
}

}  // namespace quillseal::linux
