#include "ScriptedCompositor.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <future>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-server.h>

#include "fake-input-server-protocol.h"
#include "plasma-window-management-server-protocol.h"
#include "virtual-keyboard-unstable-v1-server-protocol.h"
#include "wlr-data-control-unstable-v1-server-protocol.h"
#include "wlr-foreign-toplevel-management-unstable-v1-server-protocol.h"

namespace quillseal::testing {
namespace {

/// Writes the text, again and again if `isEndless`, until nobody reads any more.
void pour(int file, const std::string& text, bool isEndless) {
  ssize_t count = 0;
  for (std::size_t done = 0; done < text.size(); done += static_cast<std::size_t>(count)) {
    count = write(file, text.data() + done, text.size() - done);
    if (count <= 0) break;
    if (isEndless) count = 0;
  }
  ::close(file);
}

}  // namespace

struct ScriptedCompositor::Server {
  struct WindowState {
    Window window;
    bool isActive = false;
    bool isOpen = true;
  };
  struct Global {
    Server& server;
    wl_interface interface;
    wl_global* global = nullptr;
  };

  Traits traits;
  wl_display* display = wl_display_create();
  int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  std::mutex mutex{};
  std::vector<std::function<void()>> work{};  // guarded by mutex
  std::atomic<bool> ends = false;
  std::map<std::string, Global> globals{};
  std::vector<wl_resource*> resources{};
  std::vector<WindowState> windows{};
  std::map<wl_resource*, std::size_t> shown{};  ///< windows of the resources that stand for them
  std::array<std::optional<Offered>, 2> offered{};
  std::map<wl_resource*, Offered> offers{};  ///< clients may still read older ones
  wl_resource* source = nullptr;             ///< of a client
  std::vector<std::string> sourceFormats{};
  std::vector<int> openEnds{};
  std::vector<std::thread> writers{};
  std::vector<std::string> keys{};
  bool isAuthenticated = false;  ///< by a program that presses keys of KWin's
  std::vector<std::string> asked{};
  std::thread thread{};

  // Resources ------------------------------------------------------------------------------------

  static Server& of(wl_resource* resource) {
    return *static_cast<Server*>(wl_resource_get_user_data(resource));
  }

  wl_resource* make(wl_client* client, const wl_interface& interface, int version,
                    std::uint32_t id) {
    wl_resource* const resource = wl_resource_create(client, &interface, version, id);
    wl_resource_set_dispatcher(resource, perform, nullptr, this, [](wl_resource* gone) {
      Server& server = of(gone);
      std::erase(server.resources, gone);
      server.shown.erase(gone);
      server.offers.erase(gone);
      if (server.source == gone) server.source = nullptr;
    });
    resources.push_back(resource);
    return resource;
  }
  wl_resource* make(wl_resource* parent, const wl_interface& interface, std::uint32_t id) {
    return make(wl_resource_get_client(parent), interface, wl_resource_get_version(parent), id);
  }

  void forEach(const wl_interface& interface, const auto& act) {
    for (wl_resource* resource : std::vector(resources))
      if (wl_resource_get_class(resource) == std::string_view(interface.name)) act(resource);
  }

  static int perform(const void*, void* target, std::uint32_t, const wl_message* message,
                     wl_argument* arguments) {
    auto* const resource = static_cast<wl_resource*>(target);
    of(resource).perform(message->name, resource, arguments);
    return 0;
  }

  /// Their names differ, whatever the interface. Those that are not here have no effect.
  void perform(std::string_view request, wl_resource* resource, const wl_argument* its) {
    if (request == "destroy" || request == "release") {
      wl_resource_destroy(resource);
    } else if (request == "receive") {
      asked.emplace_back(its[0].s);
      answer(offers.at(resource), its[0].s, its[1].h);
    } else if (request == "create_data_source") {
      sourceFormats.clear();
      make(resource, zwlr_data_control_source_v1_interface, its[0].n);
    } else if (request == "offer") {
      sourceFormats.emplace_back(its[0].s);
    } else if (request == "get_data_device") {
      wl_resource* const device = make(resource, zwlr_data_control_device_v1_interface, its[0].n);
      for (const Kind kind : {clipboard, primary})
        if (!traits.isKwin || offered[kind]) tell(kind, device);
    } else if (request == "set_selection") {
      cancelSource();
      source = reinterpret_cast<wl_resource*>(its[0].o);
      if (!traits.takesSelections) return cancelSource();
      offered[clipboard].emplace().answer = "source";
      for (const std::string& format : sourceFormats)
        offered[clipboard]->formats[format] = "";
      tell(clipboard);
    } else if (request == "create_virtual_keyboard") {
      make(resource, zwp_virtual_keyboard_v1_interface, its[1].n);
    } else if (request == "keymap") {
      std::string text(its[2].u, ' ');
      if (::pread(its[1].h, text.data(), text.size(), 0) < 1 || text.back() != '\0')
        keys.emplace_back("a keymap without its end");
      ::close(its[1].h);
    } else if (request == "key") {
      press(its[1].u, its[2].u);
    } else if (request == "modifiers") {
      keys.push_back("mods " + std::to_string(its[0].u));
    } else if (request == "authenticate") {
      isAuthenticated = true;
    } else if (request == "keyboard_key" && isAuthenticated) {
      press(its[0].u, its[1].u);
    } else if (request == "get_keyboard") {
      tellLayout(make(resource, wl_keyboard_interface, its[0].n));
    } else if (request == "get_window") {
      wl_resource* const handle = make(resource, org_kde_plasma_window_interface, its[0].n);
      shown[handle] = its[1].u;
      describe(handle);
      org_kde_plasma_window_send_initial_state(handle);
    } else if (request == "activate" ||
               (request == "set_state" &&
                (its[0].u & its[1].u & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE) != 0)) {
      activate(shown.at(resource));
    }
  }

  // Clipboard ------------------------------------------------------------------------------------

  void answer(const Offered& entry, const std::string& format, int file) {
    const auto found = entry.formats.find(format);
    const std::string text = found == entry.formats.end() ? "" : found->second;
    const std::string& how = entry.answer;
    if (how == "source") {
      if (source != nullptr) zwlr_data_control_source_v1_send_send(source, format.c_str(), file);
      ::close(file);
      return;
    }
    if (how == "all" || how == "endless" || (how == "onlyOnce" && asked.size() == 1)) {
      writers.emplace_back(pour, file, text, how == "endless");
      return;
    }
    if (how != "nothing") static_cast<void>(!write(file, text.data(), text.size()));
    if (how != "thenLeaves") return openEnds.push_back(file);
    offered[clipboard].reset();
    tell(clipboard);
    ::close(file);
  }

  void tell(Kind kind, wl_resource* device) {
    wl_resource* offer = nullptr;
    if (offered[kind]) {
      offer = make(device, zwlr_data_control_offer_v1_interface, 0);
      zwlr_data_control_device_v1_send_data_offer(device, offer);
      for (const auto& [format, text] : offered[kind]->formats)
        zwlr_data_control_offer_v1_send_offer(offer, format.c_str());
      offers[offer] = *offered[kind];
    }
    if (kind == clipboard)
      zwlr_data_control_device_v1_send_selection(device, offer);
    else
      zwlr_data_control_device_v1_send_primary_selection(device, offer);
  }
  void tell(Kind kind) {
    forEach(zwlr_data_control_device_v1_interface,
            [this, kind](wl_resource* device) { tell(kind, device); });
  }
  void cancelSource() {
    if (source != nullptr) zwlr_data_control_source_v1_send_cancelled(source);
    source = nullptr;
  }

  // Windows --------------------------------------------------------------------------------------

  [[nodiscard]] const wl_interface& windowManager() const {
    return traits.isKwin ? org_kde_plasma_window_management_interface
                         : zwlr_foreign_toplevel_manager_v1_interface;
  }

  void describe(wl_resource* handle) const {
    const auto& [window, isActive, isOpen] = windows[shown.at(handle)];
    if (traits.isKwin) {
      constexpr std::uint32_t closeable = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_CLOSEABLE;
      constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
      org_kde_plasma_window_send_app_id_changed(handle, window.applicationId.c_str());
      org_kde_plasma_window_send_title_changed(handle, window.title.c_str());
      org_kde_plasma_window_send_state_changed(handle, closeable | (isActive ? active : 0U));
      return;
    }
    zwlr_foreign_toplevel_handle_v1_send_title(handle, window.title.c_str());
    zwlr_foreign_toplevel_handle_v1_send_app_id(handle, window.applicationId.c_str());
    std::uint32_t active = ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED;
    wl_array states{.size = isActive ? sizeof active : 0, .alloc = 0, .data = &active};
    zwlr_foreign_toplevel_handle_v1_send_state(handle, &states);
    zwlr_foreign_toplevel_handle_v1_send_done(handle);
  }
  void describe(std::size_t window) const {
    for (const auto& [handle, number] : shown)
      if (number == window) describe(handle);
  }

  void announce(std::size_t window, wl_resource* manager) {
    if (traits.isKwin)
      return org_kde_plasma_window_management_send_window(manager,
                                                          static_cast<std::uint32_t>(window));
    wl_resource* const handle = make(manager, zwlr_foreign_toplevel_handle_v1_interface, 0);
    shown[handle] = window;
    zwlr_foreign_toplevel_manager_v1_send_toplevel(manager, handle);
    describe(handle);
  }
  void activate(std::size_t window) {
    for (std::size_t i = 0; i < windows.size(); ++i) {
      if (windows[i].isActive == (i == window)) continue;
      windows[i].isActive = i == window;
      describe(i);
    }
  }

  // Keys -----------------------------------------------------------------------------------------

  void press(std::uint32_t code, std::uint32_t state) {
    keys.push_back(std::to_string(code) + (state == 1 ? "+" : "-"));
  }

  void tellLayout(wl_resource* keyboard) const {
    const std::string& layout = traits.layout;
    const int file = memfd_create("layout", MFD_CLOEXEC);
    static_cast<void>(!write(file, layout.c_str(), layout.size() + 1));
    wl_keyboard_send_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                            static_cast<std::uint32_t>(layout.size() + 1));
    ::close(file);
  }

  // Globals --------------------------------------------------------------------------------------

  void add(wl_interface interface, int version) {
    Global& added = globals.emplace(interface.name, Global{.server = *this, .interface = interface})
                        .first->second;
    // The description that is installed may be older.
    added.interface.version = version;
    added.global = wl_global_create(display, &added.interface, version, &added, bind);
  }

  static void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
    const auto& [server, interface, global] = *static_cast<Global*>(data);
    wl_resource* const resource = server.make(client, interface, static_cast<int>(version), id);
    if (interface.name == std::string_view("wl_seat") && !server.traits.layout.empty())
      wl_seat_send_capabilities(resource, WL_SEAT_CAPABILITY_KEYBOARD);
    if (interface.name != std::string_view(server.windowManager().name)) return;
    for (std::size_t i = 0; i < server.windows.size(); ++i)
      if (server.windows[i].isOpen) server.announce(i, resource);
  }

  void addGlobals() {
    add(wl_seat_interface, 4);
    wl_interface dataControl = zwlr_data_control_manager_v1_interface;
    dataControl.name = traits.dataControl.c_str();
    if (!traits.dataControl.empty())
      add(dataControl, traits.dataControl.starts_with("zwlr") ? 2 : 1);
    if (traits.hasKeyboards && traits.isKwin)
      add(org_kde_kwin_fake_input_interface, traits.fakeInputVersion);
    else if (traits.hasKeyboards)
      add(zwp_virtual_keyboard_manager_v1_interface, 1);
    if (traits.namesWindows) add(windowManager(), traits.isKwin ? 4 : 3);
  }

  void run() {
    wl_event_source* waking = wl_event_loop_add_fd(
        wl_display_get_event_loop(display), wake, WL_EVENT_READABLE,
        [](int, std::uint32_t, void* data) {
          auto& server = *static_cast<Server*>(data);
          std::uint64_t count = 0;
          static_cast<void>(!read(server.wake, &count, sizeof count));
          std::vector<std::function<void()>> due;
          {
            const std::lock_guard lock(server.mutex);
            due.swap(server.work);
          }
          for (const auto& task : due)
            task();
          return 0;
        },
        this);
    while (!ends) {
      wl_display_flush_clients(display);
      wl_event_loop_dispatch(wl_display_get_event_loop(display), -1);
    }
    wl_event_source_remove(waking);
    wl_display_destroy_clients(display);
  }

  void post(std::function<void()> task) {
    {
      const std::lock_guard lock(mutex);
      work.push_back(std::move(task));
    }
    const std::uint64_t one = 1;
    static_cast<void>(!write(wake, &one, sizeof one));
  }
};

ScriptedCompositor::ScriptedCompositor(Traits traits) {
  std::signal(SIGPIPE, SIG_IGN);
  server_.reset(new Server{.traits = std::move(traits)});
  const std::string socket = (folder_.path() / "wayland").string();
  setenv("WAYLAND_DISPLAY", socket.c_str(), 1);
  setenv("XDG_RUNTIME_DIR", folder_.path().c_str(), 1);
  if (wl_display_add_socket(server_->display, "wayland") != 0)
    throw std::runtime_error("no socket for the compositor");
  server_->addGlobals();
  server_->thread = std::thread([this] { server_->run(); });
}

ScriptedCompositor::~ScriptedCompositor() {
  server_->ends = true;
  server_->post([] {});
  server_->thread.join();
  for (const int file : server_->openEnds)
    ::close(file);
  for (std::thread& writer : server_->writers)
    writer.join();
  wl_display_destroy(server_->display);
  ::close(server_->wake);
  unsetenv("WAYLAND_DISPLAY");
}

void ScriptedCompositor::perform(std::function<void(Server&)> work) {
  std::promise<void> done;
  server_->post([this, &work, &done] {
    work(*server_);
    wl_display_flush_clients(server_->display);
    done.set_value();
  });
  done.get_future().wait();
}

std::size_t ScriptedCompositor::open(const Window& window) {
  std::size_t place = 0;
  perform([&](Server& server) {
    place = server.windows.size();
    server.windows.push_back({.window = window});
    server.forEach(server.windowManager(), [&](wl_resource* m) { server.announce(place, m); });
    server.activate(place);
  });
  return place;
}

void ScriptedCompositor::close(std::size_t window) {
  perform([&](Server& server) {
    server.windows[window].isOpen = false;
    for (const auto& [handle, number] : server.shown)
      if (number == window && server.traits.isKwin)
        org_kde_plasma_window_send_unmapped(handle);
      else if (number == window)
        zwlr_foreign_toplevel_handle_v1_send_closed(handle);
  });
}

void ScriptedCompositor::retitle(std::size_t window, const std::string& title) {
  perform([&](Server& server) {
    server.windows[window].window.title = title;
    server.describe(window);
  });
}

void ScriptedCompositor::makeActive(std::size_t window) {
  perform([&](Server& server) { server.activate(window); });
}

void ScriptedCompositor::offer(Kind kind, const std::optional<Offered>& what) {
  perform([&](Server& server) {
    if (what) server.cancelSource();
    server.offered[kind] = what;
    server.tell(kind);
  });
}

std::string ScriptedCompositor::pasted(const std::string& format) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  perform([&](Server& server) {
    if (server.source != nullptr)
      zwlr_data_control_source_v1_send_send(server.source, format.c_str(), ends[1]);
    ::close(ends[1]);
  });
  std::string text;
  std::array<char, 4096> piece{};
  for (ssize_t count = 0; (count = read(ends[0], piece.data(), piece.size())) > 0;)
    text.append(piece.data(), static_cast<std::size_t>(count));
  ::close(ends[0]);
  return text;
}

void ScriptedCompositor::setLayout(const std::string& layout) {
  perform([&](Server& server) {
    server.traits.layout = layout;
    server.forEach(wl_keyboard_interface, [&](wl_resource* k) { server.tellLayout(k); });
  });
}

void ScriptedCompositor::withdraw(std::string_view interface) {
  perform([&](Server& server) {
    wl_global_remove(server.globals.at(std::string(interface)).global);
    if (interface == zwlr_foreign_toplevel_manager_v1_interface.name)
      server.forEach(server.windowManager(), zwlr_foreign_toplevel_manager_v1_send_finished);
    if (interface == zwlr_data_control_manager_v1_interface.name)
      server.forEach(zwlr_data_control_device_v1_interface,
                     zwlr_data_control_device_v1_send_finished);
  });
}

void ScriptedCompositor::hang() {
  std::promise<void> isHanging;
  server_->post([this, &isHanging] {
    isHanging.set_value();
    while (!server_->ends)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
  });
  isHanging.get_future().wait();
}

std::vector<std::string> ScriptedCompositor::keys() {
  std::vector<std::string> keys;
  perform([&](Server& server) { keys = server.keys; });
  return keys;
}

std::vector<std::string> ScriptedCompositor::asked() {
  std::vector<std::string> asked;
  perform([&](Server& server) { asked = server.asked; });
  return asked;
}

}  // namespace quillseal::testing
