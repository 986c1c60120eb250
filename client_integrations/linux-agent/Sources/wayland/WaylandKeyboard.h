#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "keyboard/Keysym.h"
#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// A virtual keyboard (virtual-keyboard-unstable-v1). Keys that the user holds on their own
/// keyboard do not affect it, and it has its own layout, so that a chord means the same in every
/// application whatever layout the user has. Main thread.
class WaylandKeyboard : public AgentKeyboard {
 public:
  /// The connection outlives this object.
  explicit WaylandKeyboard(WaylandConnection& connection);
  ~WaylandKeyboard() override;
  WaylandKeyboard(const WaylandKeyboard&) = delete;
  WaylandKeyboard& operator=(const WaylandKeyboard&) = delete;

  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection);

  /// Returns whether a keymap from the compositor is the one of this keyboard.
  [[nodiscard]] static bool isOwnLayout(std::string_view text);

  void prepare() override {}
  /// A window of the compositor's own takes the keyboard from the active one.
  [[nodiscard]] bool reachesActiveWindow() const override { return true; }
  void tap(std::span<const Keysym> chord) override;

 private:
  struct Device;
  WaylandConnection& connection_;
  std::unique_ptr<Device> device_;
};

}  // namespace quillseal::linux
