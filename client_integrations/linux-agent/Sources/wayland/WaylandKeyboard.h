#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandConnection.h"
#include "x11/KeyChords.h"

namespace quillseal::linux {

/// A keyboard of the agent's own, by virtual-keyboard: what the person holds down on theirs takes
/// no part. It has a layout of its own too, so that a chord is the same in every application
/// whatever layout the person uses. Main thread.
class WaylandKeyboard : public AgentKeyboard {
 public:
  /// The connection outlives this object.
  explicit WaylandKeyboard(WaylandConnection& connection);
  ~WaylandKeyboard() override;
  WaylandKeyboard(const WaylandKeyboard&) = delete;
  WaylandKeyboard& operator=(const WaylandKeyboard&) = delete;

  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection);

  /// Whether a layout that the compositor names is the one of this keyboard.
  [[nodiscard]] static bool isOwnLayout(std::string_view text);

  /// A window of the compositor's own takes the keyboard from the active one.
  [[nodiscard]] bool reachesActiveWindow() const override { return true; }
  void tap(std::span<const Keysym> chord) override;

 private:
  struct Device;
  WaylandConnection& connection_;
  std::unique_ptr<Device> device_;
};

}  // namespace quillseal::linux
