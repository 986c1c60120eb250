#import "MacDesktop/MacWindow.h"

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#import <AppKit/AppKit.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacProgram.h"
#include "MacDesktop/MacText.h"

/// Receives the actions of one row's control. Functions are copied before they are called: they may
/// render the form again, which replaces this row.
@interface QSRowActions : NSObject <NSTextFieldDelegate>
- (void)setChanged:(std::function<void(const std::string&)>)changed;
- (void)setPressed:(std::function<void()>)pressed;
- (void)press:(id)sender;
@end

@implementation QSRowActions {
  std::function<void(const std::string&)> _changed;
  std::function<void()> _pressed;
}

- (void)setChanged:(std::function<void(const std::string&)>)changed {
  _changed = std::move(changed);
}

- (void)setPressed:(std::function<void()>)pressed {
  _pressed = std::move(pressed);
}

- (void)press:(id)__unused sender {
  quillseal::mac::callGuarded([self] {
    const auto pressed = self->_pressed;
    if (pressed) pressed();
  });
}

- (void)controlTextDidChange:(NSNotification*)notification {
  NSTextField* field = notification.object;
  quillseal::mac::callGuarded([self, field] {
    const auto changed = self->_changed;
    if (changed) changed(quillseal::mac::utf8(field.stringValue));
  });
}

@end

namespace quillseal::mac {
namespace {

using desktop::FormButton;
using desktop::FormField;
using desktop::FormSection;
using desktop::FormStatus;
using desktop::FormText;
using FormRow = decltype(FormSection::rows)::value_type;

constexpr CGFloat padding = 20;
constexpr CGFloat sectionSpacing = 20;
constexpr CGFloat rowSpacing = 8;
constexpr CGFloat symbolWidth = 28;  ///< including the space beside it

NSColor* colourFrom(desktop::TextColour colour) {
  switch (colour) {
    case desktop::TextColour::primary:
      return NSColor.labelColor;
    case desktop::TextColour::secondary:
      return NSColor.secondaryLabelColor;
    case desktop::TextColour::green:
      return NSColor.systemGreenColor;
    case desktop::TextColour::orange:
      return NSColor.systemOrangeColor;
  }
}

NSFont* fontFrom(desktop::TextFont font) {
  switch (font) {
    case desktop::TextFont::body:
      return [NSFont preferredFontForTextStyle:NSFontTextStyleBody options:@{}];
    case desktop::TextFont::callout:
      return [NSFont preferredFontForTextStyle:NSFontTextStyleCallout options:@{}];
    case desktop::TextFont::caption:
      return [NSFont preferredFontForTextStyle:NSFontTextStyleCaption1 options:@{}];
  }
}

NSStackView* stack(NSUserInterfaceLayoutOrientation orientation, CGFloat spacing) {
  NSStackView* view = [[NSStackView alloc] init];
  view.translatesAutoresizingMaskIntoConstraints = NO;
  view.orientation = orientation;
  view.alignment = orientation == NSUserInterfaceLayoutOrientationVertical
                       ? NSLayoutAttributeLeading
                       : NSLayoutAttributeFirstBaseline;
  view.spacing = spacing;
  return view;
}

void show(NSTextField* label, const FormText& text) {
  // Only changed text is assigned: the user may be selecting it to copy.
  NSString* string = nsString(text.text);
  if (![label.stringValue isEqualToString:string]) label.stringValue = string;
  NSFont* font = fontFrom(text.font);
  if (![label.font isEqual:font]) label.font = font;
  NSColor* colour = colourFrom(text.colour);
  if (![label.textColor isEqual:colour]) label.textColor = colour;
  if ([label isSelectable] != text.selectable) label.selectable = text.selectable;
}

NSTextField* wrappingLabel(CGFloat width) {
  NSTextField* label = [NSTextField wrappingLabelWithString:@""];
  label.preferredMaxLayoutWidth = width;
  return label;
}

/// The controls of one row. Each kind of row has a class, which can update to a new description of
/// its kind without disturbing the user's input.
class Row {
 public:
  Row() = default;
  Row(const Row&) = delete;
  Row& operator=(const Row&) = delete;
  virtual ~Row() = default;

  /// Shows `description` instead. Returns false and changes nothing when it is of another kind.
  [[nodiscard]] virtual bool update(const FormRow& description) = 0;

  [[nodiscard]] virtual NSView* view() const = 0;

  /// The input control; nil in a row without one.
  [[nodiscard]] virtual NSView* field() const { return nil; }
};

class TextRow final : public Row {
 public:
  explicit TextRow(CGFloat width) : label_(wrappingLabel(width)) {}

  bool update(const FormRow& description) override {
    const auto* text = std::get_if<FormText>(&description);
    if (text == nullptr) return false;
    show(label_, *text);
    return true;
  }

  NSView* view() const override { return label_; }

 private:
  NSTextField* label_;
};

class StatusRow final : public Row {
 public:
  explicit StatusRow(CGFloat width)
      : view_(stack(NSUserInterfaceLayoutOrientationHorizontal, rowSpacing)),
        symbol_([[NSImageView alloc] init]),
        label_(wrappingLabel(width - symbolWidth)) {
    [symbol_ setContentHuggingPriority:NSLayoutPriorityRequired
                        forOrientation:NSLayoutConstraintOrientationHorizontal];
    [view_ addArrangedSubview:symbol_];
    [view_ addArrangedSubview:label_];
  }

  bool update(const FormRow& description) override {
    const auto* status = std::get_if<FormStatus>(&description);
    if (status == nullptr) return false;
    // The text beside it says the same, so the symbol needs no description.
    symbol_.image = [NSImage imageWithSystemSymbolName:nsString(status->symbol)
                              accessibilityDescription:nil];
    symbol_.contentTintColor = colourFrom(status->symbolColour);
    show(label_, status->text);
    return true;
  }

  NSView* view() const override { return view_; }

 private:
  NSStackView* view_;
  NSImageView* symbol_;
  NSTextField* label_;
};

class FieldRow final : public Row {
 public:
  FieldRow(CGFloat width, bool masked)
      : view_(stack(NSUserInterfaceLayoutOrientationVertical, rowSpacing / 2)),
        label_([NSTextField labelWithString:@""]),
        field_([[(masked ? NSSecureTextField.class : NSTextField.class) alloc] init]),
        actions_([[QSRowActions alloc] init]),
        masked_(masked) {
    field_.bezelStyle = NSTextFieldRoundedBezel;
    field_.usesSingleLineMode = YES;
    field_.cell.wraps = NO;
    field_.cell.scrollable = YES;
    field_.delegate = actions_;
    [view_ addArrangedSubview:label_];
    [view_ addArrangedSubview:field_];
    [field_.widthAnchor constraintEqualToConstant:width].active = YES;
  }

  bool update(const FormRow& description) override {
    const auto* field = std::get_if<FormField>(&description);
    if (field == nullptr || field->masked != masked_) return false;
    label_.stringValue = nsString(field->label);
    field_.accessibilityLabel = label_.stringValue;
    [actions_ setChanged:field->changed];
    // Setting the text moves the caret, so it is set only when it differs.
    NSText* editor = field_.currentEditor;
    if (utf8(editor != nil ? editor.string : field_.stringValue) != field->value) {
      field_.stringValue = nsString(field->value);
    }
    return true;
  }

  NSView* view() const override { return view_; }

  NSView* field() const override { return field_; }

 private:
  NSStackView* view_;
  NSTextField* label_;
  NSTextField* field_;
  QSRowActions* actions_;  ///< controls do not own their delegates
  bool masked_;
};

class ButtonRow final : public Row {
 public:
  ButtonRow()
      : actions_([[QSRowActions alloc] init]),
        button_([NSButton buttonWithTitle:@"" target:actions_ action:@selector(press:)]) {}

  bool update(const FormRow& description) override {
    const auto* button = std::get_if<FormButton>(&description);
    if (button == nullptr) return false;
    button_.title = nsString(button->label);
    button_.enabled = button->enabled;
    [actions_ setPressed:button->pressed];
    return true;
  }

  NSView* view() const override { return button_; }

 private:
  QSRowActions* actions_;  ///< controls do not own their targets
  NSButton* button_;
};

std::unique_ptr<Row> makeRow(const FormRow& description, CGFloat width) {
  std::unique_ptr<Row> row;
  if (std::holds_alternative<FormText>(description)) {
    row = std::make_unique<TextRow>(width);
  } else if (std::holds_alternative<FormStatus>(description)) {
    row = std::make_unique<StatusRow>(width);
  } else if (const auto* field = std::get_if<FormField>(&description)) {
    row = std::make_unique<FieldRow>(width, field->masked);
  } else {
    row = std::make_unique<ButtonRow>();
  }
  static_cast<void>(row->update(description));  // cannot fail: it is of this kind
  return row;
}

/// A header and its rows.
class Section {
 public:
  explicit Section(CGFloat width)
      : width_(width),
        view_(stack(NSUserInterfaceLayoutOrientationVertical, rowSpacing)),
        header_([NSTextField labelWithString:@""]) {
    header_.font = [NSFont preferredFontForTextStyle:NSFontTextStyleHeadline options:@{}];
    [view_ addArrangedSubview:header_];
    [view_.widthAnchor constraintEqualToConstant:width].active = YES;
  }

  void update(const FormSection& description) {
    header_.stringValue = nsString(description.header);
    while (rows_.size() > description.rows.size()) {
      [rows_.back()->view() removeFromSuperview];
      rows_.pop_back();
    }
    for (std::size_t i = 0; i < description.rows.size(); ++i) {
      if (i < rows_.size() && rows_[i]->update(description.rows[i])) continue;
      auto row = makeRow(description.rows[i], width_);
      if (i < rows_.size()) {
        [rows_[i]->view() removeFromSuperview];
        rows_[i] = std::move(row);
      } else {
        rows_.push_back(std::move(row));
      }
      // The header comes first.
      [view_ insertArrangedSubview:rows_[i]->view() atIndex:static_cast<NSInteger>(i) + 1];
    }
  }

  [[nodiscard]] NSView* view() const { return view_; }

  /// The first input control of its rows; nil when there is none.
  [[nodiscard]] NSView* field() const {
    for (const std::unique_ptr<Row>& row : rows_) {
      if (NSView* field = row->field()) return field;
    }
    return nil;
  }

 private:
  CGFloat width_;
  NSStackView* view_;
  NSTextField* header_;
  std::vector<std::unique_ptr<Row>> rows_;
};

class MacWindow final : public desktop::Window {
 public:
  explicit MacWindow(const desktop::WindowDescription& description)
      : window_([[NSWindow alloc]
            initWithContentRect:NSMakeRect(0, 0, description.width, description.height)
                      styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                        backing:NSBackingStoreBuffered
                          defer:NO]),
        sectionStack_(stack(NSUserInterfaceLayoutOrientationVertical, sectionSpacing)) {
    window_.title = nsString(description.title);
    window_.releasedWhenClosed = NO;
    NSView* content = window_.contentView;
    [content addSubview:sectionStack_];
    [sectionStack_.topAnchor constraintEqualToAnchor:content.topAnchor constant:padding].active =
        YES;
    [sectionStack_.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:padding]
        .active = YES;
    [window_ center];
  }
  MacWindow(const MacWindow&) = delete;
  MacWindow& operator=(const MacWindow&) = delete;
  ~MacWindow() override { [window_ close]; }

  void render(const desktop::Form& form) override {
    callSystem([&] { show(form); });
  }

  void bringToFront() override {
    callSystem([this] { open(); });
  }

 private:
  void show(const desktop::Form& form) {
    const NSSize size = NSMakeSize(form.width, form.height);
    if (!NSEqualSizes(size, window_.contentView.frame.size)) {
      [window_ setContentSize:size];
      if (!window_.visible) [window_ center];
    }
    while (sections_.size() > form.sections.size()) {
      [sections_.back()->view() removeFromSuperview];
      sections_.pop_back();
    }
    for (std::size_t i = 0; i < form.sections.size(); ++i) {
      if (i == sections_.size()) {
        sections_.push_back(std::make_unique<Section>(form.width - 2 * padding));
        [sectionStack_ addArrangedSubview:sections_.back()->view()];
      }
      sections_[i]->update(form.sections[i]);
    }
  }

  void open() {
    [window_ makeKeyAndOrderFront:nil];
    if (!std::exchange(wasOpened_, true)) [window_ makeFirstResponder:firstField()];
    // If the system refuses to activate this program, the window is at least visible.
    [window_ orderFrontRegardless];
    activateProgram();
  }

  /// The control that has the focus first. By default AppKit would also choose a text that can only
  /// be selected.
  [[nodiscard]] NSView* firstField() const {
    for (const std::unique_ptr<Section>& section : sections_) {
      if (NSView* field = section->field()) return field;
    }
    return nil;
  }

  NSWindow* window_;
  NSStackView* sectionStack_;
  std::vector<std::unique_ptr<Section>> sections_;
  bool wasOpened_ = false;
};

}  // namespace

std::unique_ptr<desktop::Window> MacWindows::make(const desktop::WindowDescription& description) {
  return callSystem([&] { return std::make_unique<MacWindow>(description); });
}

}  // namespace quillseal::mac
