#include "wayland/WaylandWindows.h"

#include <algorithm>
#include <list>
#include <utility>

#include "wayland/WindowProtocol.h"

namespace quillseal::linux {

struct WaylandWindows::State : WindowObserver {
  struct Entry {
    WaylandWindow window;
    std::uint64_t activity = 0;  ///< higher for a window that was active later
  };

  State(WaylandConnection& itsConnection, std::string itsApplicationId)
      : connection(itsConnection),
        ownApplicationId(std::move(itsApplicationId)),
        protocol(bindWlrootsWindows(connection, *this)) {
    if (protocol == nullptr) protocol = bindPlasmaWindows(connection, *this);
  }

  WaylandConnection& connection;
  std::string ownApplicationId;
  std::unique_ptr<WindowProtocol> protocol;  ///< null where there is none
  std::list<Entry> entries;
  std::string awaited;  ///< title of the window of this program to activate
  std::uint64_t lastActivity = 0;

  [[nodiscard]] bool isOwn(const WaylandWindow& window) const {
    return window.applicationId == ownApplicationId;
  }

  void changed(const WaylandWindow& window) override {
    auto found =
        std::ranges::find(entries, window.id, [](const Entry& entry) { return entry.window.id; });
    if (found == entries.end()) found = entries.emplace(found);
    if (window.isActive && !found->window.isActive) found->activity = ++lastActivity;
    found->window = window;
    if (awaited.empty() || !isOwn(window) || window.title != awaited) return;
    awaited.clear();
    activate(*found);
  }

  void closed(std::uint64_t id) override {
    entries.remove_if([id](const Entry& entry) { return entry.window.id == id; });
  }

  void activate(const Entry& entry) const {
    protocol->activate(entry.window.id);
    connection.flush();
  }

  [[nodiscard]] const Entry* latest(const auto& condition) const {
    const Entry* found = nullptr;
    for (const Entry& entry : entries)
      if (condition(entry.window) && (found == nullptr || entry.activity > found->activity))
        found = &entry;
    return found;
  }

  [[nodiscard]] static std::optional<WaylandWindow> windowOf(const Entry* entry) {
    if (entry == nullptr) return std::nullopt;
    return entry->window;
  }
};

WaylandWindows::WaylandWindows(WaylandConnection& connection, std::string ownApplicationId)
    : state_(std::make_unique<State>(connection, std::move(ownApplicationId))) {}

WaylandWindows::~WaylandWindows() = default;

bool WaylandWindows::areOfferedBy(const WaylandConnection& connection) {
  return offersWlrootsWindows(connection) || offersPlasmaWindows(connection);
}

std::optional<WaylandWindow> WaylandWindows::active() const {
  return State::windowOf(
      state_->latest([](const WaylandWindow& window) { return window.isActive; }));
}

std::optional<WaylandWindow> WaylandWindows::frontForeign() const {
  std::optional<WaylandWindow> front = active();
  if (!front || !state_->isOwn(*front)) return front;
  return lastActiveOf([](const WaylandWindow&) { return true; });
}

std::optional<WaylandWindow> WaylandWindows::withId(std::uint64_t id) const {
  return State::windowOf(
      state_->latest([id](const WaylandWindow& window) { return window.id == id; }));
}

std::optional<WaylandWindow> WaylandWindows::lastActiveOf(
    const std::function<bool(const WaylandWindow&)>& matches) const {
  const State::Entry* entry = state_->latest(
      [&](const WaylandWindow& window) { return !state_->isOwn(window) && matches(window); });
  return entry == nullptr || entry->activity == 0 ? std::nullopt : State::windowOf(entry);
}

void WaylandWindows::activate(std::uint64_t id) {
  const State::Entry* entry =
      state_->latest([id](const WaylandWindow& window) { return window.id == id; });
  if (entry != nullptr) state_->activate(*entry);
}

void WaylandWindows::activateOwn(const std::string& title) {
  const State::Entry* entry = state_->latest(
      [&](const WaylandWindow& window) { return state_->isOwn(window) && window.title == title; });
  if (entry != nullptr)
    state_->activate(*entry);
  else
    state_->awaited = title;
}

}  // namespace quillseal::linux
