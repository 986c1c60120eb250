// An editor that marks copied text as a secret, as password managers do.
// usage: secret-editor TEXT

#include <QApplication>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

class SecretEditor : public QPlainTextEdit {
 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override {
    auto* const copied = new QMimeData;  // owned by the clipboard
    copied->setText(textCursor().selectedText());
    copied->setData(QStringLiteral("x-kde-passwordManagerHint"), "secret");
    return copied;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  SecretEditor editor;
  editor.setWindowTitle(QStringLiteral("Vault"));
  editor.setPlainText(QApplication::arguments().value(1));
  editor.show();
  return QApplication::exec();
}
