#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "wayland/AgentKeyboard.h"
#include "wayland/DesktopBus.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandLayout.h"

namespace quillseal::linux {

/// Keys by KWin's fake-input. They count as pressed on the person's keyboard, so that what the
/// person holds down is let go first, and in the layout that is in use.
class KwinKeyboard : public AgentKeyboard {
 public:
  /// Both outlive this object; `bus` is null where there is none.
  KwinKeyboard(WaylandConnection& connection, DesktopBus* bus);
  ~KwinKeyboard() override;

  [[nodiscard]] static bool isOfferedBy(const WaylandConnection& connection);

  [[nodiscard]] bool reachesActiveWindow() const override;

  /// Copies with Ctrl+Insert and pastes with Shift+Insert where the layouts have no key for the
  /// letter, or nobody tells which of them is in use. Then nothing is pressed for other letters
  /// unless no layout has them.
  void tap(std::span<const Keysym> chord) override;

 private:
  struct Device;

  [[nodiscard]] std::optional<std::uint32_t> keyFor(Keysym symbol);
  [[nodiscard]] std::vector<std::uint32_t> keysFor(std::span<const Keysym> chord);

  WaylandConnection& connection_;
  DesktopBus* bus_;
  std::unique_ptr<Device> device_;
  std::map<Keysym, std::vector<std::optional<std::uint32_t>>> known_;  ///< keys in each layout
  WaylandLayout layout_;
};

}  // namespace quillseal::linux
