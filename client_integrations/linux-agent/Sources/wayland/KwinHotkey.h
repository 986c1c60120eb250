#pragma once

#include <functional>

#include "desktop/Hotkey.h"
#include "desktop/MainLoop.h"
#include "keyboard/HeldHotkey.h"
#include "session/DesktopBus.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// The global hotkey through KGlobalAccel, which KWin runs. It never takes keys that another
/// shortcut uses. Keys that the user has chosen for Quillseal in the desktop's settings take
/// precedence.
class KwinHotkey : public desktop::Hotkey {
 public:
  /// Both outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    DesktopBus& bus;
  };

  explicit KwinHotkey(const Services& services);
  ~KwinHotkey() override;

  /// Whether the compositor is KWin and has it. On other desktops a program of KDE's may have
  /// started KGlobalAccel: it would take the keys and never report a press.
  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection, DesktopBus& bus);

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

  [[nodiscard]] desktop::HotkeyState state() const override { return state_; }
  [[nodiscard]] desktop::Ticket observe(std::function<void()> changed) override;

 private:
  /// The result of a request: whether there was an answer, the keys that were granted, 0 for none,
  /// and whether another component has the requested ones.
  struct Registration {
    bool isAnswered = false;
    int granted = 0;
    bool isTaken = false;
  };
  [[nodiscard]] Registration request();
  void become(int keys);

  Services services_;
  std::function<void()> pressed_;
  int keys_ = 0;  ///< that were asked for, as Qt numbers them
  desktop::HotkeyState state_;
  std::function<void()> changed_;
  bool mayHaveKeys_ = false;
  HeldHotkey held_;
  desktop::Ticket again_;
  DesktopBus::Receiver onPress_;
  DesktopBus::Receiver onRelease_;
  DesktopBus::Receiver onChange_;
  DesktopBus::Receiver onOwner_;
  DesktopBus::Subscription presses_;
  DesktopBus::Subscription releases_;
  DesktopBus::Subscription changes_;
  DesktopBus::Subscription owners_;
};

}  // namespace quillseal::linux
