#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "wayland/WaylandConnection.h"
#include "x11/KeyChords.h"

namespace quillseal::linux {

/// The layout of the person's keyboard. Main thread.
class WaylandLayout {
 public:
  /// `changed` is called when the layout is another one than before, from inside the connection's
  /// events. The connection outlives this object.
  WaylandLayout(WaylandConnection& connection, std::function<void()> changed);
  ~WaylandLayout();
  WaylandLayout(const WaylandLayout&) = delete;
  WaylandLayout& operator=(const WaylandLayout&) = delete;

  /// The key, in XKB's numbering, that gives `symbol` without a modifier in one of the layouts that
  /// the person has, the first of them that does. Nothing when none does, or there is no keyboard.
  [[nodiscard]] std::optional<std::uint32_t> keyFor(Keysym symbol) const;

  /// The same in each of them. Empty when there is no keyboard.
  [[nodiscard]] std::vector<std::optional<std::uint32_t>> keysFor(Keysym symbol) const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
