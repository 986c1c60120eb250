#pragma once

#include "desktop/MainLoop.h"
#include "keyboard/ClaimedHotkey.h"
#include "keyboard/HeldHotkey.h"
#include "session/DesktopBus.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// The global hotkey through KGlobalAccel, which KWin runs. It never takes keys that another
/// shortcut uses. Keys that the user has chosen for Quillseal in the desktop's settings take
/// precedence.
class KwinHotkey : public ClaimedHotkey {
 public:
  /// Loop and bus outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    DesktopBus& bus;
    Notify notify;
  };

  explicit KwinHotkey(const Services& services);
  ~KwinHotkey() override;

  /// Whether the compositor is KWin and has it. On other desktops a program of KDE's may have
  /// started KGlobalAccel: it would take the keys and never report a press.
  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection, DesktopBus& bus);

 private:
  /// The result of a request: whether there was an answer, the keys that were granted, 0 for none,
  /// and whether another component has the requested ones.
  struct Registration {
    bool isAnswered = false;
    int granted = 0;
    bool isTaken = false;
  };
  void claim() override;
  [[nodiscard]] Registration request();
  void takeKeys(int keys);

  Services services_;
  int keys_ = 0;  ///< that were asked for, as Qt numbers them
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
