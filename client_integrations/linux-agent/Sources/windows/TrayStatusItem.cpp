#include "windows/TrayStatusItem.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <limits>
#include <utility>

#include "keyboard/KeyChords.h"
#include "session/QtText.h"

namespace quillseal::linux {
namespace {

// In Qt's notation, where Super is called Meta.
QKeySequence shortcutOf(const std::string& combination) {
  return {toQString(combination).replace(QLatin1String("Super"), QLatin1String("Meta"))};
}

}  // namespace

TrayStatusItem::TrayStatusItem() {
  awaitPanel();
}

// Qt asks the same when the icon is made and blocks the main thread for the answer, half a minute
// when the panel hangs. So this asks first, without blocking.
void TrayStatusItem::awaitPanel() {
  const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
  QDBusMessage question = QDBusMessage::createMethodCall(
      watcher, QStringLiteral("/StatusNotifierWatcher"),
      QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  question << watcher << QStringLiteral("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  constexpr int forever = std::numeric_limits<int>::max();
  const auto* answer = new QDBusPendingCallWatcher(
      QDBusConnection::sessionBus().asyncCall(question, forever), &menu_);
  // An error is enough too: Qt then gets it at once and looks for an X11 tray.
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, &menu_,
                   [this](QDBusPendingCallWatcher* finished) {
                     finished->deleteLater();
                     icon_.emplace(QApplication::windowIcon());
                     showIcon();
                   });
}

void TrayStatusItem::showIcon() {
  if (!icon_ || menu_.isEmpty()) return;
  icon_->setToolTip(toolTip_);
  icon_->setContextMenu(&menu_);
  icon_->show();
}

void TrayStatusItem::show(const desktop::StatusMenu& menu) {
  menu_.clear();
  actions_.clear();
  for (const desktop::MenuItem& item : menu.items) {
    QAction* action = nullptr;
    if (item.kind == desktop::MenuItem::Kind::separator) {
      action = menu_.addSeparator();
    } else {
      action = menu_.addAction(withoutMnemonic(item.title));
      action->setEnabled(item.kind == desktop::MenuItem::Kind::action);
      // A title that names the shortcut needs none beside it.
      const std::string keys = nameOf(item.keyModifiers, item.keyEquivalent);
      if (!item.keyEquivalent.empty() && item.title.find(keys) == std::string::npos)
        action->setShortcut(shortcutOf(keys));
      if (item.action) QObject::connect(action, &QAction::triggered, &menu_, item.action);
    }
    actions_.push_back(action);
  }
  toolTip_ = toQString(menu.title).trimmed();
  showIcon();
}

void TrayStatusItem::setItemTitle(std::size_t index, const std::string& title) {
  actions_.at(index)->setText(withoutMnemonic(title));
}

}  // namespace quillseal::linux
