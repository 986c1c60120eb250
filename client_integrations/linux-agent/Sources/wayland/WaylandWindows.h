#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "wayland/WaylandConnection.h"
#include "wayland/WaylandWindow.h"

namespace quillseal::linux {

/// The windows of all programs. Main thread.
class WaylandWindows {
 public:
  /// Windows with `ownApplicationId` are this program's. The connection outlives this object.
  WaylandWindows(WaylandConnection& connection, std::string ownApplicationId);
  ~WaylandWindows();
  WaylandWindows(const WaylandWindows&) = delete;
  WaylandWindows& operator=(const WaylandWindows&) = delete;

  /// Returns whether the compositor offers the protocol that this class needs.
  [[nodiscard]] static bool areOfferedBy(const WaylandConnection& connection);

  /// Returns the focused window. Nothing when the focus is elsewhere, such as in a launcher or the
  /// screen lock.
  [[nodiscard]] std::optional<WaylandWindow> active() const;

  /// Returns the active window or, when it is this program's, the last active one of another
  /// program.
  [[nodiscard]] std::optional<WaylandWindow> frontForeign() const;

  /// Returns the window; nothing when it has closed.
  [[nodiscard]] std::optional<WaylandWindow> withId(std::uint64_t id) const;

  /// Returns the last active window of another program for which `matches` is true.
  [[nodiscard]] std::optional<WaylandWindow> lastActiveOf(
      const std::function<bool(const WaylandWindow&)>& matches) const;

  /// Asks for the window to be raised and focused.
  void activate(std::uint64_t id);

  /// The same for this program's window with this title, as soon as it exists.
  void activateOwn(const std::string& title);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
