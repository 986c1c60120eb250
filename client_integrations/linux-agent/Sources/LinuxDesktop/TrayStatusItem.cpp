#include "LinuxDesktop/TrayStatusItem.h"

#include <QApplication>
#include <utility>

#include "LinuxDesktop/KeyChords.h"
#include "LinuxDesktop/QtText.h"

namespace quillseal {
namespace {

// Menus read "&" as the mark of a mnemonic.
QString menuText(const std::string& text) {
  return toQString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

// In Qt's notation, where Super is called Meta.
QKeySequence shortcutOf(const std::string& combination) {
  return {toQString(combination).replace(QLatin1String("Super"), QLatin1String("Meta"))};
}

}  // namespace

TrayStatusItem::TrayStatusItem(PlatformWording::CurrentCircumstances circumstances)
    : circumstances_(std::move(circumstances)), icon_(QApplication::windowIcon()) {}

void TrayStatusItem::show(const desktop::StatusMenu& original) {
  const desktop::StatusMenu menu = PlatformWording::adapted(original, circumstances_());
  menu_.clear();
  actions_.clear();
  for (const desktop::MenuItem& item : menu.items) {
    QAction* action = nullptr;
    if (item.kind == desktop::MenuItem::Kind::separator) {
      action = menu_.addSeparator();
    } else {
      action = menu_.addAction(menuText(item.title));
      action->setEnabled(item.kind == desktop::MenuItem::Kind::action);
      // A title that names the combination itself needs no second mention beside it.
      const std::string keys = nameOf(item.keyModifiers, item.keyEquivalent);
      if (!item.keyEquivalent.empty() && item.title.find(keys) == std::string::npos)
        action->setShortcut(shortcutOf(keys));
      if (item.action) QObject::connect(action, &QAction::triggered, &menu_, item.action);
    }
    actions_.push_back(action);
  }
  icon_.setToolTip(toQString(menu.title).trimmed());
  icon_.setContextMenu(&menu_);
  icon_.show();
}

void TrayStatusItem::setItemTitle(std::size_t index, const std::string& title) {
  actions_.at(index)->setText(menuText(PlatformWording::adapted(title, circumstances_())));
}

}  // namespace quillseal
