#include "windows/QtPresencePrompt.h"

#include <QLabel>
#include <QPointer>
#include <utility>

#include "session/QtText.h"
#include "windows/MessageDialog.h"

namespace quillseal::linux {
namespace {

class Window : public PresenceWindow {
 public:
  Window(desktop::Ticket dialog, QLabel* instruction)
      : dialog_(std::move(dialog)), instruction_(instruction) {}

  void setInstruction(std::string_view instruction) override {
    if (!instruction_.isNull()) instruction_->setText(toQString(instruction));
  }

 private:
  desktop::Ticket dialog_;
  QPointer<QLabel> instruction_;
};

}  // namespace

std::unique_ptr<PresenceWindow> QtPresencePrompt::open(const PresenceRequest& request,
                                                       std::function<void(bool)> answered) {
  std::string text = request.reason;
  if (!request.medium.empty()) text += "\n\n" + mediumLine(request.medium);
  auto dialog = std::make_unique<MessageDialog>(MessageDialog::Look{
      .picture = MessageDialog::Picture::product, .title = "Confirm that it is you", .text = text});
  QLabel* instruction = plainLabel(toQString(request.instruction));
  dialog->rows().addWidget(instruction);
  if (request.needsConsent) dialog->addButton("Continue", QDialogButtonBox::AcceptRole);
  dialog->addButton("Cancel", QDialogButtonBox::RejectRole);
  return std::make_unique<Window>(
      MessageDialog::open(std::move(dialog), windows_, std::move(answered)), instruction);
}

}  // namespace quillseal::linux
