#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace quillseal::desktop {

enum class TextColour { primary, secondary, green, orange };
enum class TextFont { body, callout, caption };

/// Text that stands in a form; never markup.
struct FormText {
  std::string text;
  TextFont font = TextFont::body;
  TextColour colour = TextColour::primary;
  bool selectable = false;
};

/// A symbol with a text beside it.
struct FormStatus {
  std::string symbol;  ///< name of the system symbol
  TextColour symbolColour = TextColour::primary;
  FormText text;
};

/// A line of text that the user edits, with a rounded border.
struct FormField {
  std::string label;
  std::string value;
  bool masked = false;
  std::function<void(const std::string&)> changed;  ///< with every edit
};

struct FormButton {
  std::string label;
  bool enabled = true;
  std::function<void()> pressed;
};

struct FormSection {
  std::string header;
  std::vector<std::variant<FormText, FormStatus, FormField, FormButton>> rows;
};

/// A padded form of fixed size, in points.
struct Form {
  int width = 0;
  int height = 0;
  std::vector<FormSection> sections;
};

/// A titled window that can be closed and shown again, centred when new.
struct WindowDescription {
  std::string title;
  int width = 0;  ///< of the content, in points, before the form asks for its own size
  int height = 0;
};

/// A window that shows a form. Main thread. Closing it only hides it.
class Window {
 public:
  virtual ~Window() = default;

  /// Shows `form` instead of the one before. A field that stays keeps its caret and selection.
  /// Actions run on the main thread and may render again.
  virtual void render(const Form& form) = 0;

  /// Shows the window, brings it to the front with the keyboard and activates this program.
  virtual void bringToFront() = 0;
};

/// Makes windows. Main thread.
class Windows {
 public:
  virtual ~Windows() = default;

  [[nodiscard]] virtual std::unique_ptr<Window> make(const WindowDescription& description) = 0;
};

}  // namespace quillseal::desktop
