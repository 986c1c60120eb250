#include "LinuxDesktop/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <utility>

#include "Desktop/Error.h"
#include "LinuxDesktop/QtText.h"

namespace quillseal {
namespace {

// The names under which X programs offer rich text.
constexpr std::array rtfFormats = {"text/rtf", "application/rtf", "text/richtext"};

// Set by KDE's and KeePassXC's convention, and by that of macOS for programs that know both.
constexpr auto passwordHint = "x-kde-passwordManagerHint";
constexpr auto concealed = "org.nspasteboard.ConcealedType";

// The first needs no conversion, the last holds Latin-1.
constexpr auto latin1 = "STRING";
constexpr std::array textFormats = {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain",
                                    latin1};

template <std::size_t Size>
std::vector<std::string> oneOf(const std::array<const char*, Size>& formats) {
  return {formats.begin(), formats.end()};
}

/// Some programs send the NUL along that ends their strings: LibreOffice Writer with its HTML.
QString withoutNuls(QString text) {
  return text.remove(QChar(u'\0'));
}

std::unique_ptr<QMimeData> dataOf(const X11Selection::Content& content) {
  auto data = std::make_unique<QMimeData>();
  for (const auto& [format, bytes] : content) {
    const QByteArray raw = QByteArray::fromStdString(bytes);
    if (format == latin1)
      data->setText(QString::fromLatin1(raw));
    else if (std::ranges::find(textFormats, format) != textFormats.end())
      data->setText(QString::fromUtf8(raw));
    else
      data->setData(toQString(format), raw);
  }
  return data;
}

bool isSecret(const QMimeData& data) {
  return data.hasFormat(QLatin1String(concealed)) ||
         (data.hasFormat(QLatin1String(passwordHint)) &&
          data.data(QLatin1String(passwordHint)) == "secret");
}

bool isOnX() {
  return qGuiApp->nativeInterface<QNativeInterface::QX11Application>() != nullptr;
}

std::optional<std::string> present(std::string text) {
  if (text.empty()) return std::nullopt;
  return text;
}

}  // namespace

QtPasteboard::QtPasteboard(const X11Selection::Services& services) : services_(services) {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &receiver_, [this] {
    ++changeCount_;
    fetched_.reset();
  });
}

const QMimeData* QtPasteboard::offered() const {
  const QClipboard* const clipboard = QGuiApplication::clipboard();
  return clipboard->ownsClipboard() || !isOnX() ? clipboard->mimeData() : fetched_.get();
}

desktop::Ticket QtPasteboard::onNextChange(std::function<void()> changed) {
  // Qt drops the connection before it calls, and keeps `changed` until the call has returned.
  const auto watch = QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged,
                                      &receiver_, std::move(changed), Qt::SingleShotConnection);
  return desktop::Ticket([watch] { QObject::disconnect(watch); });
}

desktop::Ticket QtPasteboard::fetch(std::function<void()> fetched) {
  if (QGuiApplication::clipboard()->ownsClipboard() || !isOnX() || fetched_ != nullptr) {
    fetched();
    return {};
  }
  // The marks come first, so that a secret is not even read.
  return X11Selection::read(
      services_,
      {.selection = X11Selection::Name::clipboard,
       .formats =
           {{concealed}, {passwordHint}, oneOf(textFormats), {"text/html"}, oneOf(rtfFormats)},
       .isEnough = [](const X11Selection::Content& content) { return isSecret(*dataOf(content)); }},
      [this, fetched = std::move(fetched)](const X11Selection::Content& content) {
        fetched_ = dataOf(content);
        fetched();
      });
}

bool QtPasteboard::isConcealed() const {
  const QMimeData* data = offered();
  return data != nullptr && isSecret(*data);
}

std::optional<std::string> QtPasteboard::plainText() const {
  const QMimeData* data = offered();
  if (data == nullptr || !data->hasText()) return std::nullopt;
  return present(withoutNuls(data->text()).toStdString());
}

std::optional<std::string> QtPasteboard::html() const {
  const QMimeData* data = offered();
  if (data == nullptr || !data->hasHtml()) return std::nullopt;
  return present(withoutNuls(data->html()).toStdString());
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

desktop::Ticket QtPasteboard::copyPrimarySelection(std::function<void()> done) {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  const auto arrive = [clipboard, done = std::move(done)](const QString& text) {
    if (const QString written = withoutNuls(text); !written.isEmpty()) clipboard->setText(written);
    done();
  };
  if (clipboard->ownsSelection()) {
    arrive(clipboard->text(QClipboard::Selection));
    return {};
  }
  return X11Selection::read(
      services_,
      {.selection = X11Selection::Name::primary, .formats = {oneOf(textFormats)}, .isEnough = {}},
      [arrive](const X11Selection::Content& content) { arrive(dataOf(content)->text()); });
}

}  // namespace quillseal
