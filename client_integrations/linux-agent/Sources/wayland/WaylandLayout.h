#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "keyboard/Keysym.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// The layout of the user's keyboard. Main thread.
class WaylandLayout {
 public:
  /// `changed` is called when the layout changes, from inside an event of the connection. The
  /// connection outlives this object.
  WaylandLayout(WaylandConnection& connection, std::function<void()> changed);
  ~WaylandLayout();
  WaylandLayout(const WaylandLayout&) = delete;
  WaylandLayout& operator=(const WaylandLayout&) = delete;

  /// Returns the XKB key code that gives `symbol` without a modifier, in the first of the user's
  /// layouts that has it. Nothing when none has it, or there is no keyboard.
  [[nodiscard]] std::optional<std::uint32_t> keyFor(Keysym symbol) const;

  /// Returns that key code for each layout. Empty when there is no keyboard.
  [[nodiscard]] std::vector<std::optional<std::uint32_t>> keysFor(Keysym symbol) const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
