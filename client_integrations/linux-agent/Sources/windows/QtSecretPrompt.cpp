#include "windows/QtSecretPrompt.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <future>
#include <utility>

#include "windows/MessageDialog.h"
#include "windows/SecretField.h"

namespace quillseal::linux {

// One question. Shown and answered once, on the main thread.
class QtSecretPrompt::Pending {
 public:
  [[nodiscard]] std::future<std::optional<SecretBytes>> future() { return promise_.get_future(); }

  void show(desktop::Ticket dialog) { dialog_ = std::move(dialog); }

  void finish(std::optional<SecretBytes> secret) {
    if (std::exchange(answered_, true)) return;
    dialog_ = {};  // destroyed on the main thread, not on the waiting one
    promise_.set_value(std::move(secret));
  }
  [[nodiscard]] bool answered() const { return answered_; }

 private:
  desktop::Ticket dialog_;
  std::promise<std::optional<SecretBytes>> promise_;
  bool answered_ = false;
};

namespace {

QLabel* problemLabel(std::string_view text) {
  QLabel* label = plainLabel(toQString(text));
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, QColor(QLatin1String(warningColour)));
  label->setPalette(palette);
  return label;
}

std::string paragraphs(std::initializer_list<std::string_view> texts) {
  std::string result;
  for (const std::string_view text : texts) {
    if (text.empty()) continue;
    if (!result.empty()) result += "\n\n";
    result += text;
  }
  return result;
}

bool same(const SecretBytes& a, const SecretBytes& b) {
  return a.text() == b.text();
}

}  // namespace

QtSecretPrompt::QtSecretPrompt(desktop::MainLoop& loop, const OwnWindows& windows)
    : loop_(loop), windows_(windows) {}

QtSecretPrompt::~QtSecretPrompt() = default;

std::optional<SecretBytes> QtSecretPrompt::ask(const SecretRequest& request) {
  return wait([this, request](const std::shared_ptr<Pending>& pending) {
    const std::string name(nameOf(request.kind));
    auto dialog = std::make_unique<MessageDialog>(MessageDialog::Look{
        .picture = MessageDialog::Picture::key,
        .title = "Enter the " + name + " of your signing key",
        .text = paragraphs({request.reason, mediumLine(request.destination), request.medium})});
    auto* field = new SecretField;
    field->setAccessibleName(toQString(capitalised(name)));
    field->setPlaceholderText(toQString(capitalised(name)));
    std::string problem = request.problem;
    if (request.attempt > 1 && request.attempts > 1)
      problem += (problem.empty() ? "" : " ") + std::string("Try ") +
                 std::to_string(request.attempt) + " of " + std::to_string(request.attempts) + ".";
    if (!problem.empty()) dialog->rows().addWidget(problemLabel(problem));
    dialog->rows().addWidget(field);
    QPushButton* sign = &dialog->addButton("Sign", QDialogButtonBox::AcceptRole);
    dialog->addButton("Cancel", QDialogButtonBox::RejectRole);
    sign->setEnabled(false);
    field->onEdit = [field, sign] { sign->setEnabled(!field->secret().empty()); };
    field->setFocus();
    return MessageDialog::open(std::move(dialog), windows_, [pending, field](bool accepted) {
      pending->finish(accepted ? std::optional(field->take()) : std::nullopt);
    });
  });
}

std::optional<SecretBytes> QtSecretPrompt::askForNew(const NewSecretRequest& request) {
  return wait([this, request](const std::shared_ptr<Pending>& pending) {
    const std::string name(nameOf(request.kind));
    auto dialog = std::make_unique<MessageDialog>(MessageDialog::Look{
        .picture = MessageDialog::Picture::key,
        .title = "Choose a " + name + " for your signing key",
        .text = paragraphs({"You will be asked for it at every signature. It "
                            "cannot be looked up or reset.",
                            request.medium, request.notice, rulesFor(request.kind)})});
    auto* first = new SecretField;
    auto* second = new SecretField;
    auto* form = new QFormLayout;
    form->addRow(toQString(capitalised(name)), first);
    form->addRow(QStringLiteral("Once more"), second);
    QLabel* objection = problemLabel(request.problem.empty() ? " " : request.problem);
    dialog->rows().addLayout(form);
    dialog->rows().addWidget(objection);
    QPushButton* use =
        &dialog->addButton("Use This " + capitalised(name), QDialogButtonBox::AcceptRole);
    dialog->addButton("Cancel", QDialogButtonBox::RejectRole);
    use->setEnabled(false);
    const auto check = [kind = request.kind, name, first, second, objection, use] {
      std::string problem;
      if (!first->secret().empty()) problem = objectionTo(kind, first->secret());
      const bool repeated = same(first->secret(), second->secret());
      if (problem.empty() && !second->secret().empty() && !repeated)
        problem = "The two entries differ.";
      objection->setText(problem.empty() ? QStringLiteral(" ") : toQString(problem));
      use->setEnabled(problem.empty() && repeated && !first->secret().empty());
    };
    first->onEdit = check;
    second->onEdit = check;
    first->setFocus();
    return MessageDialog::open(std::move(dialog), windows_, [pending, first](bool accepted) {
      pending->finish(accepted ? std::optional(first->take()) : std::nullopt);
    });
  });
}

std::optional<SecretBytes> QtSecretPrompt::wait(Show show) {
  const auto pending = std::make_shared<Pending>();
  auto answer = pending->future();
  {
    const std::lock_guard lock(mutex_);
    if (closed_) return std::nullopt;
    pending_.push_back(pending);
  }
  loop_.post([pending, show = std::move(show)] {
    if (!pending->answered()) pending->show(show(pending));
  });
  std::optional<SecretBytes> secret = answer.get();
  const std::lock_guard lock(mutex_);
  pending_.remove(pending);
  return secret;
}

void QtSecretPrompt::close() {
  std::list<std::shared_ptr<Pending>> open;
  {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    open = pending_;
  }
  for (const auto& pending : open) {
    pending->finish(std::nullopt);
  }
}

}  // namespace quillseal::linux
