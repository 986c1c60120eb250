#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <vector>

#include "Desktop/StatusItem.h"
#include "LinuxDesktop/PlatformWording.h"

namespace quillseal {

/// The status item as an icon in the tray of the panel. It appears whenever a panel with a tray
/// starts; some desktops have none.
class TrayStatusItem : public desktop::StatusItem {
 public:
  explicit TrayStatusItem(PlatformWording::CurrentCircumstances circumstances);

  void show(const desktop::StatusMenu& original) override;
  void setItemTitle(std::size_t index, const std::string& title) override;

 private:
  PlatformWording::CurrentCircumstances circumstances_;
  QSystemTrayIcon icon_;
  QMenu menu_;
  std::vector<QAction*> actions_;  // owned by the menu
};

}  // namespace quillseal
