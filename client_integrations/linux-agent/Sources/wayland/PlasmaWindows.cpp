#include <list>

#include "core/text/UniqueHandle.h"
#include "plasma-window-management-client-protocol.h"
#include "wayland/ProxyHandle.h"
#include "wayland/WindowProtocol.h"

namespace quillseal::linux {
namespace {

// From version 4 on, the compositor marks the end of a window's description; from 13 on it
// announces windows in another way.
constexpr std::uint32_t oldestVersion = 4;
constexpr std::uint32_t newestVersion = 12;

class PlasmaWindows : public WindowProtocol {
 public:
  PlasmaWindows(const WaylandConnection& connection, WindowObserver& observer)
      : observer_(observer) {
    manager_.reset(connection.bind<org_kde_plasma_window_management>(
        org_kde_plasma_window_management_interface, newestVersion));
    org_kde_plasma_window_management_add_listener(manager_.get(), &ofManager, this);
  }

  void activate(std::uint64_t id) override {
    constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
    for (const Entry& entry : entries_)
      if (entry.window.id == id)
        org_kde_plasma_window_set_state(entry.handle.get(), active, active);
  }

 private:
  using Toplevel = org_kde_plasma_window;

  struct Entry {
    Entry(PlasmaWindows& owner, Toplevel* object, std::uint64_t id)
        : windows(owner), handle(object) {
      window.id = id;
    }

    PlasmaWindows& windows;
    UniqueHandle<Toplevel, org_kde_plasma_window_destroy> handle;
    WaylandWindow window;
    bool isKnown = false;  ///< the description is complete
  };

  static Entry& entryOf(void* data) { return *static_cast<Entry*>(data); }
  static void report(const Entry& entry) {
    if (entry.isKnown) entry.windows.observer_.changed(entry.window);
  }

  static void retitled(void* data, Toplevel* /*handle*/, const char* title) {
    entryOf(data).window.title = title;
    report(entryOf(data));
  }
  static void named(void* data, Toplevel* /*handle*/, const char* applicationId) {
    entryOf(data).window.applicationId = applicationId;
    report(entryOf(data));
  }
  static void changed(void* data, Toplevel* /*handle*/, std::uint32_t flags) {
    constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
    entryOf(data).window.isActive = (flags & active) != 0;
    report(entryOf(data));
  }
  static void started(void* data, Toplevel* /*handle*/, std::uint32_t process) {
    entryOf(data).window.process = process;
  }
  static void described(void* data, Toplevel* /*handle*/) {
    entryOf(data).isKnown = true;
    report(entryOf(data));
  }
  static void closed(void* data, Toplevel* handle) {
    PlasmaWindows& windows = entryOf(data).windows;
    windows.observer_.closed(entryOf(data).window.id);
    windows.entries_.remove_if(
        [handle](const Entry& entry) { return entry.handle.get() == handle; });
  }
  static void withNumber(void* /*data*/, Toplevel* /*handle*/, std::int32_t /*number*/) {}
  static void withText(void* /*data*/, Toplevel* /*handle*/, const char* /*text*/) {}
  /// Events of versions newer than the bound one are not sent.
  static constexpr auto ofWindow = [] {
    org_kde_plasma_window_listener listener{};
    listener.title_changed = retitled;
    listener.app_id_changed = named;
    listener.state_changed = changed;
    listener.virtual_desktop_changed = withNumber;
    listener.themed_icon_name_changed = withText;
    listener.unmapped = closed;
    listener.initial_state = described;
    listener.parent_window = [](void*, Toplevel*, Toplevel*) {};
    listener.geometry = [](void*, Toplevel*, std::int32_t, std::int32_t, std::uint32_t,
                           std::uint32_t) {};
    listener.icon_changed = [](void*, Toplevel*) {};
    listener.pid_changed = started;
    listener.virtual_desktop_entered = withText;
    listener.virtual_desktop_left = withText;
    listener.application_menu = [](void*, Toplevel*, const char*, const char*) {};
    return listener;
  }();

  using Management = org_kde_plasma_window_management;
  static void opened(void* data, Management* manager, std::uint32_t number) {
    auto& windows = *static_cast<PlasmaWindows*>(data);
    Entry& entry = windows.entries_.emplace_back(
        windows, org_kde_plasma_window_management_get_window(manager, number), ++windows.lastId_);
    org_kde_plasma_window_add_listener(entry.handle.get(), &ofWindow, &entry);
  }
  static constexpr auto ofManager = [] {
    org_kde_plasma_window_management_listener listener{};
    listener.show_desktop_changed = [](void*, Management*, std::uint32_t) {};
    listener.window = opened;
    listener.stacking_order_changed = [](void*, Management*, wl_array*) {};
    listener.stacking_order_uuid_changed = [](void*, Management*, const char*) {};
    return listener;
  }();

  WindowObserver& observer_;
  wayland::ProxyHandle<Management> manager_;
  std::list<Entry> entries_;
  std::uint64_t lastId_ = 0;
};

}  // namespace

bool offersPlasmaWindows(const WaylandConnection& connection) {
  return connection.versionOf(org_kde_plasma_window_management_interface.name) >= oldestVersion;
}

std::unique_ptr<WindowProtocol> bindPlasmaWindows(const WaylandConnection& connection,
                                                  WindowObserver& observer) {
  if (!offersPlasmaWindows(connection)) return nullptr;
  return std::make_unique<PlasmaWindows>(connection, observer);
}

}  // namespace quillseal::linux
