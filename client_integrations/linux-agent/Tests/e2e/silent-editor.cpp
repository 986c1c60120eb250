// An editor that hangs when its copied text is requested in any format but plain text.
// usage: silent-editor TEXT

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

class SilentEditor : public QPlainTextEdit {
 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override {
    auto* const copied = new SilentData;  // owned by the clipboard
    copied->setText(textCursor().selectedText());
    for (const char* format : {"text/html", "text/rtf"})
      copied->setData(QString::fromLatin1(format), "never seen");
    return copied;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  SilentEditor editor;
  editor.setWindowTitle(QStringLiteral("Silence"));
  editor.setPlainText(QApplication::arguments().value(1));
  editor.show();
  return QApplication::exec();
}
