#include "windows/QtProgram.h"

#include <QApplication>

#include "windows/MessageDialog.h"

namespace quillseal::linux {

void QtProgram::becomeAccessory() {
  QApplication::setQuitOnLastWindowClosed(false);
}

void QtProgram::showAbout() {
  auto dialog = std::make_unique<MessageDialog>(MessageDialog::Look{
      .picture = MessageDialog::Picture::product,
      .title = "Quillseal " QUILLSEAL_VERSION,
      .text =
          "Attest that you yourself wrote and approved a text: select it in any application and "
          "press the hotkey, or choose “Sign Selected Text” in the menu."});
  dialog->addButton("OK", QDialogButtonBox::AcceptRole);
  about_ = MessageDialog::open(std::move(dialog), windows_, [](bool) {});
}

void QtProgram::terminate() {
  QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace quillseal::linux
