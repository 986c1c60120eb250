#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "desktop/KeyEvents.h"

namespace quillseal::desktop {

/// One line of a menu.
struct MenuItem {
  enum class Kind { action, label, separator };

  Kind kind = Kind::action;
  std::string title;
  std::string keyEquivalent;                    ///< one lower-case character, or empty
  Modifiers keyModifiers = Modifiers::command;  ///< with the key equivalent
  std::function<void()> action;                 ///< empty for labels, which show disabled
};

/// What the status bar shows for this program.
struct StatusMenu {
  std::string symbol;             ///< name of the system symbol
  std::string symbolDescription;  ///< for assistive technology
  std::string title;              ///< beside the symbol
  std::vector<MenuItem> items;
};

/// The program's place in the status bar. Main thread.
class StatusItem {
 public:
  virtual ~StatusItem() = default;

  /// Shows `menu`, now or as soon as the desktop has a status bar. Key equivalents are
  /// shown; one of them may be a global hotkey as well. Actions run on the main thread.
  virtual void show(const StatusMenu& menu) = 0;

  /// Changes the title of the item at `index` of the menu shown last.
  virtual void setItemTitle(std::size_t index, const std::string& title) = 0;
};

}  // namespace quillseal::desktop
