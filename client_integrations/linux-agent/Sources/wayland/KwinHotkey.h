#pragma once

#include <chrono>
#include <functional>

#include "desktop/Hotkey.h"
#include "desktop/MainLoop.h"
#include "wayland/DesktopBus.h"

namespace quillseal::linux {

/// The global hotkey by KGlobalAccel, which KWin runs. It never takes keys that something else has.
/// Where the person has given Quillseal other keys in the desktop's settings, those count.
class KwinHotkey : public desktop::Hotkey {
 public:
  /// Both outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    DesktopBus& bus;
  };

  explicit KwinHotkey(const Services& services);
  ~KwinHotkey() override;

  /// Whether the desktop has it.
  [[nodiscard]] static bool isOfferedBy(DesktopBus& bus);

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  /// Keys that were granted; whether somebody else has those that were asked for.
  struct Registration {
    bool isAnswered = false;
    bool isGranted = false;
    bool isTaken = false;
  };
  [[nodiscard]] Registration request();
  void press();

  Services services_;
  std::function<void()> pressed_;
  int keys_ = 0;  ///< as Qt numbers them
  bool isRegistered_ = false;
  bool isDown_ = false;
  desktop::MainLoop::TimePoint lastPress_;
  desktop::Ticket again_;
  DesktopBus::Receiver onPress_;
  DesktopBus::Receiver onRelease_;
  DesktopBus::Receiver onOwner_;
  DesktopBus::Subscription presses_;
  DesktopBus::Subscription releases_;
  DesktopBus::Subscription owners_;
};

}  // namespace quillseal::linux
