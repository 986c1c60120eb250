// An editor whose copied text is marked as a secret, as by password managers, or that hangs when it
// is requested in any format but plain text.
// usage: odd-editor secret|silent TEXT

#include <QApplication>
#include <QMimeData>
#include <QPlainTextEdit>
#include <cstdio>

#include <unistd.h>

namespace {

class SilentData : public QMimeData {
 protected:
  [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType type) const override {
    if (format.startsWith(QStringLiteral("text/plain")))
      return QMimeData::retrieveData(format, type);
    static_cast<void>(std::puts("asked"));
    static_cast<void>(std::fflush(stdout));
    ::pause();
    return {};
  }
};

class OddEditor : public QPlainTextEdit {
 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override {
    const bool isSecret = QApplication::arguments().value(1) == QStringLiteral("secret");
    auto* const copied = isSecret ? new QMimeData : new SilentData;  // owned by the clipboard
    copied->setText(textCursor().selectedText());
    if (isSecret) copied->setData(QStringLiteral("x-kde-passwordManagerHint"), "secret");
    if (!isSecret) copied->setData(QStringLiteral("text/html"), "never seen");
    return copied;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  OddEditor editor;
  editor.setWindowTitle(QStringLiteral("Vault"));
  editor.setPlainText(QApplication::arguments().value(2));
  editor.show();
  return QApplication::exec();
}
