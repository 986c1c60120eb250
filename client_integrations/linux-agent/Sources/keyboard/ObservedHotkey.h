#pragma once

#include <functional>
#include <utility>

#include "desktop/Hotkey.h"
#include "desktop/Ticket.h"

namespace quillseal::linux {

/// A hotkey whose state may change, which reports that to its observer.
class ObservedHotkey : public desktop::Hotkey {
 public:
  [[nodiscard]] desktop::HotkeyState state() const override { return state_; }

  [[nodiscard]] desktop::Ticket observe(std::function<void()> changed) override {
    changed_ = std::move(changed);
    return desktop::Ticket([this] { changed_ = nullptr; });
  }

 protected:
  void setState(desktop::HotkeyState state) {
    if (state == state_) return;
    state_ = std::move(state);
    if (const auto changed = changed_) changed();
  }
  void turnOff() { setState({.otherKeys = {}, .isOff = true}); }

 private:
  desktop::HotkeyState state_;
  std::function<void()> changed_;
};

}  // namespace quillseal::linux
