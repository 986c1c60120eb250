#pragma once

#include <chrono>

#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// Desktops repeat a press while the keys are held, and let people choose delays up to this.
inline constexpr std::chrono::milliseconds longestRepeatDelay{1000};

/// Tells new presses of a hotkey from repetitions, where the desktop reports both alike and may not
/// report every release.
class HeldHotkey {
 public:
  /// Takes a report of a press. Returns whether it is a new one.
  [[nodiscard]] bool press(desktop::MainLoop::TimePoint now) {
    const bool isRepeated = isDown_ && now - lastPress_ < longestRepeatDelay;
    isDown_ = true;
    lastPress_ = now;
    return !isRepeated;
  }
  void release() { isDown_ = false; }

  [[nodiscard]] bool isDown() const { return isDown_; }

 private:
  bool isDown_ = false;
  desktop::MainLoop::TimePoint lastPress_;
};

}  // namespace quillseal::linux
