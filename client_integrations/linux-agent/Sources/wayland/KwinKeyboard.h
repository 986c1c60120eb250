#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "session/DesktopBus.h"
#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandLayout.h"

namespace quillseal::linux {

/// Key presses through KWin's fake-input. They count as pressed on the user's keyboard in the
/// active layout, so keys that the user holds are to be released first.
class KwinKeyboard : public AgentKeyboard {
 public:
  /// Both outlive this object. Where `bus` is null, it is not known whether the screen is locked,
  /// so no key is pressed.
  KwinKeyboard(WaylandConnection& connection, DesktopBus* bus);
  ~KwinKeyboard() override;

  /// Whether the compositor lets programs press keys, and release those that the user holds.
  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection);

  [[nodiscard]] bool isUsable() const override { return bus_ != nullptr; }
  void prepare() override;
  [[nodiscard]] bool reachesActiveWindow() const override { return !isCovered_; }

  void releaseHeldKeys() override;

  /// Copies with Ctrl+Insert and pastes with Shift+Insert where the layouts have no key for the
  /// letter, or the active layout is not known. In that case other letters are pressed only if no
  /// layout has them.
  void tap(std::span<const Keysym> chord) override;

 private:
  struct Device;

  /// Null when the compositor has withdrawn its protocol.
  [[nodiscard]] Device* device();
  [[nodiscard]] std::optional<std::uint32_t> keyFor(Keysym symbol);
  [[nodiscard]] std::vector<std::uint32_t> keysFor(std::span<const Keysym> chord);

  WaylandConnection& connection_;
  DesktopBus* bus_;
  std::unique_ptr<Device> device_;
  /// The screen is or may be locked, or a part of KWin takes the keys.
  bool isCovered_ = false;
  std::optional<std::uint32_t> layoutInUse_;
  std::map<Keysym, std::vector<std::optional<std::uint32_t>>> known_;  ///< keys in each layout
  WaylandLayout layout_;
};

}  // namespace quillseal::linux
