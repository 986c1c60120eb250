#include "LinuxDesktop/TrayStatusItem.h"

#include <utility>

namespace quillseal {
namespace {

constexpr int kIconSizes[] = {22, 24, 32, 48};

// Menus read "&" as the mark of a mnemonic.
QString menuText(const std::string& text) {
  return toQString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

// Command is Control, unless Control is there too: then it is Super, which Qt calls Meta.
QKeySequence shortcutOf(const desktop::MenuItem& item) {
  using desktop::Modifiers;
  const bool control = contains(item.keyModifiers, Modifiers::control);
  const bool command = contains(item.keyModifiers, Modifiers::command);
  QString text;
  if (control || command) text += QStringLiteral("Ctrl+");
  if (contains(item.keyModifiers, Modifiers::option)) text += QStringLiteral("Alt+");
  if (control && command) text += QStringLiteral("Meta+");
  return QKeySequence(text + toQString(item.keyEquivalent).toUpper());
}

QIcon productIcon() {
  QIcon icon;
  for (const int size : kIconSizes)
    icon.addFile(QStringLiteral(":/icons/quillseal-%1.png").arg(size), {size, size});
  return icon;
}

}  // namespace

TrayStatusItem::TrayStatusItem(Words words) : words_(std::move(words)), icon_(productIcon()) {}

void TrayStatusItem::show(const desktop::StatusMenu& menu) {
  menu_.clear();
  actions_.clear();
  for (const desktop::MenuItem& item : menu.items) {
    QAction* action = nullptr;
    if (item.kind == desktop::MenuItem::Kind::separator) {
      action = menu_.addSeparator();
    } else {
      action = menu_.addAction(menuText(words_(item.title)));
      action->setEnabled(item.kind == desktop::MenuItem::Kind::action);
      if (!item.keyEquivalent.empty()) action->setShortcut(shortcutOf(item));
      if (item.action) QObject::connect(action, &QAction::triggered, &menu_, item.action);
    }
    actions_.push_back(action);
  }
  icon_.setToolTip(toQString(words_(menu.title)).trimmed());
  icon_.setContextMenu(&menu_);
  icon_.show();
}

void TrayStatusItem::setItemTitle(std::size_t index, const std::string& title) {
  actions_.at(index)->setText(menuText(words_(title)));
}

}  // namespace quillseal
