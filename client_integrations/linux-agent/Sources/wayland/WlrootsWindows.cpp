#include <algorithm>
#include <list>

#include "core/text/UniqueHandle.h"
#include "wayland/WindowProtocol.h"
#include "wlr-foreign-toplevel-management-unstable-v1-client-protocol.h"

namespace quillseal::linux {
namespace {

constexpr std::uint32_t newestVersion = 3;

class WlrootsWindows : public WindowProtocol {
 public:
  WlrootsWindows(const WaylandConnection& connection, WindowObserver& observer)
      : connection_(connection), observer_(observer) {
    manager_.reset(connection.bind<zwlr_foreign_toplevel_manager_v1>(
        zwlr_foreign_toplevel_manager_v1_interface, newestVersion));
    zwlr_foreign_toplevel_manager_v1_add_listener(manager_.get(), &ofManager, this);
  }

  void activate(std::uint64_t id) override {
    for (const Entry& entry : entries_)
      if (entry.next.id == id)
        zwlr_foreign_toplevel_handle_v1_activate(entry.handle.get(), connection_.seat());
  }

 private:
  using Manager =
      UniqueHandle<zwlr_foreign_toplevel_manager_v1, zwlr_foreign_toplevel_manager_v1_destroy>;
  using HandleOfWindow =
      UniqueHandle<zwlr_foreign_toplevel_handle_v1, zwlr_foreign_toplevel_handle_v1_destroy>;

  struct Entry {
    Entry(WlrootsWindows& owner, zwlr_foreign_toplevel_handle_v1* object, std::uint64_t id)
        : windows(owner), handle(object) {
      next.id = id;
    }

    WlrootsWindows& windows;
    HandleOfWindow handle;
    WaylandWindow next;  ///< set once the compositor has sent its whole state
  };

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
  static void done(void* data, Toplevel* /*handle*/) {
    const Entry& entry = entryOf(data);
    entry.windows.observer_.changed(entry.next);
  }
  static void closed(void* data, Toplevel* handle) {
    WlrootsWindows& windows = entryOf(data).windows;
    windows.observer_.closed(entryOf(data).next.id);
    windows.entries_.remove_if(
        [handle](const Entry& entry) { return entry.handle.get() == handle; });
  }
  static void parented(void* /*data*/, Toplevel* /*handle*/, Toplevel* /*parent*/) {}
  static constexpr zwlr_foreign_toplevel_handle_v1_listener ofWindow = {.title = retitled,
                                                                        .app_id = named,
                                                                        .output_enter = moved,
                                                                        .output_leave = moved,
                                                                        .state = changed,
                                                                        .done = done,
                                                                        .closed = closed,
                                                                        .parent = parented};

  static void opened(void* data, zwlr_foreign_toplevel_manager_v1* /*manager*/,
                     zwlr_foreign_toplevel_handle_v1* handle) {
    auto& windows = *static_cast<WlrootsWindows*>(data);
    Entry& entry = windows.entries_.emplace_back(windows, handle, ++windows.lastId_);
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &ofWindow, &entry);
  }
  // The compositor reports no more windows. The last state must not be trusted.
  static void finished(void* data, zwlr_foreign_toplevel_manager_v1* /*manager*/) {
    auto& windows = *static_cast<WlrootsWindows*>(data);
    for (const Entry& entry : windows.entries_)
      windows.observer_.closed(entry.next.id);
    windows.entries_.clear();
  }
  static constexpr zwlr_foreign_toplevel_manager_v1_listener ofManager = {.toplevel = opened,
                                                                          .finished = finished};

  const WaylandConnection& connection_;
  WindowObserver& observer_;
  Manager manager_;
  std::list<Entry> entries_;
  std::uint64_t lastId_ = 0;
};

}  // namespace

bool offersWlrootsWindows(const WaylandConnection& connection) {
  return connection.versionOf(zwlr_foreign_toplevel_manager_v1_interface.name) > 0;
}

std::unique_ptr<WindowProtocol> bindWlrootsWindows(const WaylandConnection& connection,
                                                   WindowObserver& observer) {
  if (!offersWlrootsWindows(connection)) return nullptr;
  return std::make_unique<WlrootsWindows>(connection, observer);
}

}  // namespace quillseal::linux
