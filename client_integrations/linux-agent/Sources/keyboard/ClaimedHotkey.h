#pragma once

#include <functional>
#include <string>
#include <utility>

#include "core/text/Error.h"
#include "keyboard/ObservedHotkey.h"

namespace quillseal::linux {

/// A hotkey that the desktop grants or refuses at once. One that was refused is off until a later
/// claim succeeds.
class ClaimedHotkey : public ObservedHotkey {
 public:
  /// Tells the user something in a notification.
  using Notify = std::function<void(const std::string&)>;

  explicit ClaimedHotkey(Notify notify) : notify_(std::move(notify)) {}

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override {
    combination_ = combination;
    pressed_ = std::move(pressed);
    try {
      claim();
    } catch (const Error&) {
      turnOff();
      throw;
    }
  }

  void askAgain() override {
    if (!state().isOff) return;
    try {
      claim();
    } catch (const Error& error) {
      turnOff();  // the claim may have got halfway
      notify_(error.what());
    }
  }

 protected:
  /// Takes the keys, perhaps after an attempt that failed, and sets the state. Throws Error as
  /// `registerHotkey` does.
  virtual void claim() = 0;

  [[nodiscard]] desktop::KeyPress combination() const { return combination_; }
  [[nodiscard]] const std::function<void()>& pressed() const { return pressed_; }

 private:
  Notify notify_;
  desktop::KeyPress combination_{};
  std::function<void()> pressed_;
};

}  // namespace quillseal::linux
