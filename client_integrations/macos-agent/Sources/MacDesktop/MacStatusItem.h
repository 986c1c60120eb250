#pragma once

#include "desktop/StatusItem.h"

@class NSMenu;
@class NSStatusItem;
@class QSMenuTarget;

namespace quillseal::mac {

/// An item of variable length in the system's status bar.
class MacStatusItem final : public desktop::StatusItem {
 public:
  MacStatusItem() = default;
  ~MacStatusItem() override;
  MacStatusItem(const MacStatusItem&) = delete;
  MacStatusItem& operator=(const MacStatusItem&) = delete;

  void show(const desktop::StatusMenu& menu) override;
  void setItemTitle(std::size_t index, const std::string& title) override;

  /// The item's menu; nil before there is one.
  [[nodiscard]] NSMenu* menu() const;

 private:
  void render(const desktop::StatusMenu& menu);

  NSStatusItem* item_;    ///< made when there is something to show
  QSMenuTarget* target_;  ///< menu items do not own their target
};

}  // namespace quillseal::mac
