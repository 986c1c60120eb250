#include "windows/QtWindows.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "session/QtText.h"
#include "windows/MessageDialog.h"

namespace quillseal::linux {
namespace {

using desktop::Form;
using desktop::FormButton;
using desktop::FormField;
using desktop::FormSection;
using desktop::FormStatus;
using desktop::FormText;
using desktop::TextColour;
using desktop::TextFont;

constexpr auto green = "#15803d";
constexpr double calloutScale = 0.95;
constexpr double captionScale = 0.88;
constexpr double symbolScale = 1.4;
constexpr int roomForFrame = 40;

// In text presentation: the emoji forms ignore the text's colour.
QString signFor(const std::string& symbol) {
  if (symbol == "checkmark.seal.fill") return QStringLiteral("\u2714\uFE0E");
  if (symbol == "exclamationmark.triangle.fill") return QStringLiteral("\u26A0\uFE0E");
  return QStringLiteral("\u2022");
}

void colour(QLabel& label, TextColour colour) {
  QPalette palette;
  switch (colour) {
    case TextColour::primary:
      break;
    case TextColour::secondary:
      palette.setColor(QPalette::WindowText, palette.color(QPalette::PlaceholderText));
      break;
    case TextColour::green:
      palette.setColor(QPalette::WindowText, QColor(QLatin1String(green)));
      break;
    case TextColour::orange:
      palette.setColor(QPalette::WindowText, QColor(QLatin1String(warningColour)));
      break;
  }
  label.setPalette(palette);
}

void scale(QLabel& label, double factor) {
  QFont font;
  font.setPointSizeF(font.pointSizeF() * factor);
  label.setFont(font);
}

QLabel* topLabel() {
  QLabel* label = plainLabel({});
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

void fill(QLabel& label, const FormText& text) {
  const QString shown = toQString(text.text);
  if (label.text() != shown) label.setText(shown);
  scale(label, text.font == TextFont::body      ? 1.0
               : text.font == TextFont::callout ? calloutScale
                                                : captionScale);
  colour(label, text.colour);
  label.setTextInteractionFlags(text.selectable
                                    ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                    : Qt::NoTextInteraction);
}

class FormWidget : public QWidget {
 public:
  FormWidget() : layout_(new QVBoxLayout(this)) {
    layout_->setContentsMargins(16, 16, 16, 16);
    layout_->setSpacing(12);
  }

  void render(const Form& form) {
    if (!hasShapeOf(form)) build(form);
    shown_ = form;
    for (std::size_t section = 0; section < form.sections.size(); ++section) {
      boxes_[section]->setTitle(toQString(form.sections[section].header));
      for (std::size_t row = 0; row < form.sections[section].rows.size(); ++row)
        rows_[section][row](form.sections[section], row);
    }
  }

 private:
  using ShowRow = std::function<void(const FormSection&, std::size_t)>;

  [[nodiscard]] bool hasShapeOf(const Form& form) const {
    return std::ranges::equal(
        form.sections, shown_.sections, [](const FormSection& a, const FormSection& b) {
          return std::ranges::equal(
              a.rows, b.rows, [](const auto& x, const auto& y) { return x.index() == y.index(); });
        });
  }

  void build(const Form& form) {
    qDeleteAll(boxes_);
    boxes_.clear();
    rows_.clear();
    while (QLayoutItem* item = layout_->takeAt(0))
      delete item;
    for (std::size_t section = 0; section < form.sections.size(); ++section) {
      auto* box = new QGroupBox;
      auto* column = new QVBoxLayout(box);
      column->setSpacing(8);
      rows_.emplace_back();
      for (std::size_t row = 0; row < form.sections[section].rows.size(); ++row)
        rows_.back().push_back(
            std::visit([&](const auto& content) { return addRow(*column, content, section, row); },
                       form.sections[section].rows[row]));
      layout_->addWidget(box);
      boxes_.push_back(box);
    }
    layout_->addStretch();
  }

  ShowRow addRow(QVBoxLayout& column, const FormText&, std::size_t, std::size_t) {
    QLabel* label = topLabel();
    column.addWidget(label);
    return [label](const FormSection& section, std::size_t row) {
      fill(*label, std::get<FormText>(section.rows[row]));
    };
  }

  ShowRow addRow(QVBoxLayout& column, const FormStatus&, std::size_t, std::size_t) {
    QLabel* sign = topLabel();
    sign->setWordWrap(false);
    scale(*sign, symbolScale);
    QLabel* label = topLabel();
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto* line = new QHBoxLayout;
    line->addWidget(sign, 0, Qt::AlignVCenter);
    line->addWidget(label, 1);
    column.addLayout(line);
    return [sign, label](const FormSection& section, std::size_t row) {
      const auto& status = std::get<FormStatus>(section.rows[row]);
      sign->setText(signFor(status.symbol));
      colour(*sign, status.symbolColour);
      fill(*label, status.text);
    };
  }

  ShowRow addRow(QVBoxLayout& column, const FormField&, std::size_t section, std::size_t row) {
    auto* label = topLabel();
    auto* edit = new QLineEdit;
    label->setBuddy(edit);
    column.addWidget(label);
    column.addWidget(edit);
    connect(edit, &QLineEdit::textEdited, this, [this, section, row](const QString& text) {
      // A copy: the call may render the form again, which replaces `shown_`.
      const auto changed = std::get<FormField>(shown_.sections[section].rows[row]).changed;
      if (changed) changed(text.toStdString());
    });
    return [label, edit](const FormSection& shown, std::size_t index) {
      const auto& field = std::get<FormField>(shown.rows[index]);
      label->setText(toQString(field.label));
      edit->setEchoMode(field.masked ? QLineEdit::Password : QLineEdit::Normal);
      const QString value = toQString(field.value);
      if (edit->text() == value) return;
      const QSignalBlocker quiet(edit);
      edit->setText(value);
    };
  }

  ShowRow addRow(QVBoxLayout& column, const FormButton&, std::size_t section, std::size_t row) {
    auto* button = new QPushButton;
    column.addWidget(button, 0, Qt::AlignLeft);
    connect(button, &QPushButton::clicked, this, [this, section, row] {
      const auto pressed = std::get<FormButton>(shown_.sections[section].rows[row]).pressed;
      if (pressed) pressed();
    });
    return [button](const FormSection& shown, std::size_t index) {
      const auto& content = std::get<FormButton>(shown.rows[index]);
      button->setText(withoutMnemonic(content.label));
      button->setEnabled(content.enabled);
    };
  }

  QVBoxLayout* layout_;
  Form shown_;
  std::vector<QGroupBox*> boxes_;
  std::vector<std::vector<ShowRow>> rows_;
};

class FormWindow : public desktop::Window {
 public:
  FormWindow(const desktop::WindowDescription& description, const OwnWindows& windows)
      : windows_(windows), form_(new FormWidget) {
    window_.setWindowTitle(toQString(description.title));
    window_.resize(description.width, description.height);
    window_.setFrameShape(QFrame::NoFrame);
    window_.setWidgetResizable(true);
    window_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    window_.setWidget(form_);
  }

  void render(const Form& form) override {
    form_->render(form);
    if (form.width == width_ && form.height == height_) return;
    width_ = form.width;
    height_ = form.height;
    // Fonts differ between desktops, so the window may need more height than the form asks for.
    const int needed = std::max(form.height, form_->heightForWidth(form.width));
    window_.setMinimumWidth(form.width);
    window_.resize(form.width,
                   std::min(needed, window_.screen()->availableSize().height() - roomForFrame));
  }

  void bringToFront() override { windows_.bringToFront(window_); }

 private:
  const OwnWindows& windows_;
  QScrollArea window_;
  FormWidget* form_;  // owned by the window
  int width_ = 0;
  int height_ = 0;
};

}  // namespace

std::unique_ptr<desktop::Window> QtWindows::make(const desktop::WindowDescription& description) {
  return std::make_unique<FormWindow>(description, windows_);
}

}  // namespace quillseal::linux
