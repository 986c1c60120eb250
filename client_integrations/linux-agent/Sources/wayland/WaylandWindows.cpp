#include "wayland/WaylandWindows.h"

#include <algorithm>
#include <list>
#include <utility>

#include "core/text/UniqueHandle.h"
#include "wlr-foreign-toplevel-management-unstable-v1-client-protocol.h"

namespace quillseal::linux {
namespace {

constexpr std::uint32_t newestVersion = 3;

}  // namespace

struct WaylandWindows::State {
  using Manager =
      UniqueHandle<zwlr_foreign_toplevel_manager_v1, zwlr_foreign_toplevel_manager_v1_destroy>;
  using HandleOfWindow =
      UniqueHandle<zwlr_foreign_toplevel_handle_v1, zwlr_foreign_toplevel_handle_v1_destroy>;

  struct Entry {
    Entry(State& owner, zwlr_foreign_toplevel_handle_v1* object, std::uint64_t id)
        : state(owner), handle(object) {
      window.id = next.id = id;
    }

    State& state;
    HandleOfWindow handle;
    WaylandWindow window;
    WaylandWindow next;          ///< holds once the compositor has told all of it
    std::uint64_t activity = 0;  ///< the higher the later it was active
  };

  WaylandConnection& connection;
  std::string ownApplicationId;
  Manager manager{};
  std::list<Entry> entries{};
  std::string awaited{};  ///< title of an own window to activate
  std::uint64_t lastId = 0;
  std::uint64_t lastActivity = 0;

  [[nodiscard]] bool isOwn(const WaylandWindow& window) const {
    return window.applicationId == ownApplicationId;
  }

  void apply(Entry& entry) {
    if (entry.next.isActive && !entry.window.isActive) entry.activity = ++lastActivity;
    entry.window = entry.next;
    if (!awaited.empty() && isOwn(entry.window) && entry.window.title == awaited) {
      awaited.clear();
      activate(entry);
    }
  }

  void activate(const Entry& entry) const {
    zwlr_foreign_toplevel_handle_v1_activate(entry.handle.get(), connection.seat());
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

  static Entry& entryOf(void* data) { return *static_cast<Entry*>(data); }

  using Toplevel = zwlr_foreign_toplevel_handle_v1;
  static void retitled(void* data, Toplevel* /*handle*/, const char* title) {
    entryOf(data).next.title = title;
  }
  static void named(void* data, Toplevel* /*handle*/, const char* applicationId) {
    entryOf(data).next.applicationId = applicationId;
  }
  static void moved(void* /*data*/, Toplevel* /*handle*/, wl_output* /*output*/) {}
  static void changed(void* data, Toplevel* /*handle*/, wl_array* states) {
    const auto* const first = static_cast<const std::uint32_t*>(states->data);
    const auto* const end = first + states->size / sizeof(std::uint32_t);
    entryOf(data).next.isActive =
        std::find(first, end, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) != end;
  }
  static void told(void* data, Toplevel* /*handle*/) {
    Entry& entry = entryOf(data);
    entry.state.apply(entry);
  }
  static void closed(void* data, Toplevel* handle) {
    entryOf(data).state.entries.remove_if(
        [handle](const Entry& entry) { return entry.handle.get() == handle; });
  }
  static void parented(void* /*data*/, Toplevel* /*handle*/, Toplevel* /*parent*/) {}
  static constexpr zwlr_foreign_toplevel_handle_v1_listener ofWindow = {.title = retitled,
                                                                        .app_id = named,
                                                                        .output_enter = moved,
                                                                        .output_leave = moved,
                                                                        .state = changed,
                                                                        .done = told,
                                                                        .closed = closed,
                                                                        .parent = parented};

  static void opened(void* data, zwlr_foreign_toplevel_manager_v1* /*manager*/,
                     zwlr_foreign_toplevel_handle_v1* handle) {
    auto& state = *static_cast<State*>(data);
    Entry& entry = state.entries.emplace_back(state, handle, ++state.lastId);
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &ofWindow, &entry);
  }
  // The compositor reports windows no longer, and its last report would be trusted from now on.
  static void finished(void* data, zwlr_foreign_toplevel_manager_v1* /*manager*/) {
    static_cast<State*>(data)->entries.clear();
  }
  static constexpr zwlr_foreign_toplevel_manager_v1_listener ofManager = {.toplevel = opened,
                                                                          .finished = finished};
};

WaylandWindows::WaylandWindows(WaylandConnection& connection, std::string ownApplicationId)
    : state_(new State{.connection = connection, .ownApplicationId = std::move(ownApplicationId)}) {
  state_->manager.reset(connection.bind<zwlr_foreign_toplevel_manager_v1>(
      zwlr_foreign_toplevel_manager_v1_interface, newestVersion));
  if (state_->manager == nullptr) return;
  zwlr_foreign_toplevel_manager_v1_add_listener(state_->manager.get(), &State::ofManager,
                                                state_.get());
}

WaylandWindows::~WaylandWindows() = default;

bool WaylandWindows::areOfferedBy(const WaylandConnection& connection) {
  return connection.versionOf(zwlr_foreign_toplevel_manager_v1_interface.name) > 0;
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
