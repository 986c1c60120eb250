#pragma once

#include "Desktop/StatusItem.h"

@class NSStatusItem;
@class QSMenuTarget;

namespace quillseal::mac {

/// An item of variable length in the system's status bar.
class MacStatusItem final : public desktop::StatusItem {
 public:
  /// Main thread; the system's status bar shows the item from now on.
  MacStatusItem();
  ~MacStatusItem() override;
  MacStatusItem(const MacStatusItem&) = delete;
  MacStatusItem& operator=(const MacStatusItem&) = delete;

  void show(const desktop::StatusMenu& menu) override;
  void setItemTitle(std::size_t index, const std::string& title) override;

 private:
  NSStatusItem* item_;
  QSMenuTarget* target_;  ///< menu items do not keep theirs
};

}  // namespace quillseal::mac
