#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/Hotkey.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"
#include "wayland/SwayIpc.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandLayout.h"

namespace quillseal::linux {

/// The global hotkey by a binding of sway's that does nothing, and whose use sway reports. It gives
/// way to any other binding of the same keys. Without sway there is none.
class SwayHotkey : public desktop::Hotkey {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    WaylandConnection& connection;
    std::string socket;  ///< SWAYSOCK; empty where sway does not run
  };

  explicit SwayHotkey(Services services);
  ~SwayHotkey() override;

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  /// Has sway run a command; false when it did not, or did not say so.
  [[nodiscard]] bool command(const std::string& text);
  [[nodiscard]] std::uint32_t keyInLayout() const;
  [[nodiscard]] std::string combination() const;
  [[nodiscard]] bool bind();
  void unbind();
  void followLayout();
  void receive();
  void handle(const SwayIpc::Message& message);
  void pressedKey();

  Services services_;
  std::unique_ptr<SwayIpc> commands_;
  std::unique_ptr<SwayIpc> events_;
  std::function<void()> pressed_;
  desktop::KeyPress chord_{};
  std::uint32_t key_ = 0;
  bool isBound_ = false;
  bool isDown_ = false;
  desktop::MainLoop::TimePoint lastPress_;
  std::unique_ptr<WaylandLayout> layout_;
  desktop::Ticket following_;
  desktop::Ticket watch_;
};

}  // namespace quillseal::linux
