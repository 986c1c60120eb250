#pragma once

#include <QMenu>
#include <QString>
#include <QSystemTrayIcon>
#include <optional>
#include <vector>

#include "desktop/StatusItem.h"

namespace quillseal::linux {

/// The status item as an icon in the panel's tray. It appears once a panel with a tray is running
/// and answers; some desktops have none.
class TrayStatusItem : public desktop::StatusItem {
 public:
  TrayStatusItem();

  void show(const desktop::StatusMenu& menu) override;
  void setItemTitle(std::size_t index, const std::string& title) override;

 private:
  void awaitPanel();
  void showIcon();

  QString toolTip_;
  std::optional<QSystemTrayIcon> icon_;
  QMenu menu_;
  std::vector<QAction*> actions_;  // owned by the menu
};

}  // namespace quillseal::linux
