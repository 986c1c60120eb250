#include "ScriptedCompositor.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <future>
#include <list>
#include <mutex>
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

struct ScriptedCompositor::Server {
  struct WindowState {
    Window window;
    bool isActive = false;
    bool isOpen = true;
  };
  struct Handle {
    wl_resource* resource;
    std::size_t window;
  };
  struct Offering {
    Server& server;
    Offered what;
  };
  enum Kind { clipboard, primary };

  Traits traits;
  wl_display* display = wl_display_create();
  int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  std::mutex mutex{};
  std::vector<std::function<void()>> work{};  // guarded by mutex
  std::atomic<bool> ends = false;
  std::map<std::string, wl_global*> globals{};
  wl_interface dataControl = zwlr_data_control_manager_v1_interface;

  std::vector<WindowState> windows{};
  std::vector<wl_resource*> managers{};
  std::vector<Handle> handles{};

  std::vector<wl_resource*> seatKeyboards{};

  std::vector<wl_resource*> devices{};
  std::array<Offering*, 2> offered{};
  std::list<Offering> everOffered{};  ///< clients may still read older ones
  wl_resource* source = nullptr;      ///< of a client
  std::vector<std::string> sourceFormats{};
  std::vector<int> openEnds{};
  std::vector<std::thread> writers{};
  std::vector<std::string> keys{};
  wl_interface fakeInput = org_kde_kwin_fake_input_interface;
  bool isAuthenticated = false;  ///< by a program that presses keys of KWin's
  std::vector<std::string> asked{};
  std::thread thread{};

  // Requests -------------------------------------------------------------------------------------

  static Server& of(wl_resource* resource) {
    return *static_cast<Server*>(wl_resource_get_user_data(resource));
  }
  static void ends_(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }
  static void ignored(wl_client*, wl_resource*) {}

  template <auto list>
  static void forget(wl_resource* resource) {
    std::erase(of(resource).*list, resource);
  }

  static wl_resource* make(wl_client* client, const wl_interface* interface, wl_resource* parent,
                           std::uint32_t id, const void* requests, void* data) {
    wl_resource* resource =
        wl_resource_create(client, interface, wl_resource_get_version(parent), id);
    wl_resource_set_implementation(resource, requests, data, nullptr);
    return resource;
  }

  // Clipboard
  static void receive(wl_client*, wl_resource* resource, const char* format, int file) {
    auto& offering = *static_cast<Offering*>(wl_resource_get_user_data(resource));
    offering.server.asked.emplace_back(format);
    offering.server.answer(offering.what, format, file);
  }

  void answer(const Offered& entry, const std::string& format, int file) {
    const auto found = entry.formats.find(format);
    const std::string text = found == entry.formats.end() ? "" : found->second;
    switch (entry.answer) {
      case Answer::nothing:
        openEnds.push_back(file);
        return;
      case Answer::part:
        static_cast<void>(!write(file, text.data(), text.size()));
        openEnds.push_back(file);
        return;
      case Answer::endless:
        writers.emplace_back([file, text] {
          while (write(file, text.data(), text.size()) > 0) {
          }
          ::close(file);
        });
        return;
      case Answer::thenLeaves:
        static_cast<void>(!write(file, text.data(), text.size()));
        offered[clipboard] = nullptr;
        tell(clipboard);
        ::close(file);
        return;
      case Answer::all:
        break;
    }
    writers.emplace_back([file, text] {
      for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = write(file, text.data() + done, text.size() - done);
        if (count <= 0) break;
        done += static_cast<std::size_t>(count);
      }
      ::close(file);
    });
  }

  static constexpr struct zwlr_data_control_offer_v1_interface offerRequests = {.receive = receive,
                                                                                .destroy = ends_};

  void tell(Kind kind, wl_resource* device) {
    Offering* const offering = offered[kind];
    wl_resource* offer = nullptr;
    if (offering != nullptr) {
      offer = make(wl_resource_get_client(device), &zwlr_data_control_offer_v1_interface, device, 0,
                   &offerRequests, offering);
      zwlr_data_control_device_v1_send_data_offer(device, offer);
      for (const auto& [format, text] : offering->what.formats)
        zwlr_data_control_offer_v1_send_offer(offer, format.c_str());
    }
    if (kind == clipboard)
      zwlr_data_control_device_v1_send_selection(device, offer);
    else
      zwlr_data_control_device_v1_send_primary_selection(device, offer);
  }
  void tell(Kind kind) {
    for (wl_resource* device : devices)
      tell(kind, device);
  }
  void offer(Kind kind, const Offered& what) {
    cancelSource();
    offered[kind] = &everOffered.emplace_back(*this, what);
    tell(kind);
  }
  void cancelSource() {
    if (source != nullptr) zwlr_data_control_source_v1_send_cancelled(source);
    source = nullptr;
  }

  static void setSelection(wl_client*, wl_resource* device, wl_resource* source) {
    Server& server = of(device);
    server.cancelSource();
    server.source = source;
    if (!server.traits.takesSelections) return server.cancelSource();
    Offered what;
    for (const std::string& format : server.sourceFormats)
      what.formats[format] = "";
    server.offered[clipboard] = &server.everOffered.emplace_back(server, what);
    server.tell(clipboard);
  }
  static void setPrimary(wl_client*, wl_resource*, wl_resource*) {}
  static constexpr struct zwlr_data_control_device_v1_interface deviceRequests = {
      .set_selection = setSelection, .destroy = ends_, .set_primary_selection = setPrimary};

  static void addFormat(wl_client*, wl_resource* source, const char* format) {
    of(source).sourceFormats.emplace_back(format);
  }
  static constexpr struct zwlr_data_control_source_v1_interface sourceRequests = {
      .offer = addFormat, .destroy = ends_};

  static void createSource(wl_client* client, wl_resource* manager, std::uint32_t id) {
    of(manager).sourceFormats.clear();
    wl_resource* source = make(client, &zwlr_data_control_source_v1_interface, manager, id,
                               &sourceRequests, &of(manager));
    wl_resource_set_destructor(source, [](wl_resource* gone) {
      if (of(gone).source == gone) of(gone).source = nullptr;
    });
  }
  static void getDevice(wl_client* client, wl_resource* manager, std::uint32_t id, wl_resource*) {
    Server& server = of(manager);
    wl_resource* device =
        make(client, &zwlr_data_control_device_v1_interface, manager, id, &deviceRequests, &server);
    wl_resource_set_destructor(device, forget<&Server::devices>);
    server.devices.push_back(device);
    for (const Kind kind : {clipboard, primary})
      if (!server.traits.isKwin || server.offered[kind] != nullptr) server.tell(kind, device);
  }
  static constexpr struct zwlr_data_control_manager_v1_interface managerRequests = {
      .create_data_source = createSource, .get_data_device = getDevice, .destroy = ends_};

  // Keys
  static void setKeymap(wl_client*, wl_resource*, std::uint32_t, int file, std::uint32_t) {
    ::close(file);
  }
  static void key(wl_client*, wl_resource* keyboard, std::uint32_t, std::uint32_t code,
                  std::uint32_t state) {
    of(keyboard).keys.push_back(std::to_string(code) + (state == 1 ? "+" : "-"));
  }
  static void modifiers(wl_client*, wl_resource* keyboard, std::uint32_t depressed, std::uint32_t,
                        std::uint32_t, std::uint32_t) {
    of(keyboard).keys.push_back("mods " + std::to_string(depressed));
  }
  static constexpr struct zwp_virtual_keyboard_v1_interface keyboardRequests = {
      .keymap = setKeymap, .key = key, .modifiers = modifiers, .destroy = ends_};
  static void createKeyboard(wl_client* client, wl_resource* manager, wl_resource*,
                             std::uint32_t id) {
    make(client, &zwp_virtual_keyboard_v1_interface, manager, id, &keyboardRequests, &of(manager));
  }
  static constexpr struct zwp_virtual_keyboard_manager_v1_interface keyboardManagerRequests = {
      .create_virtual_keyboard = createKeyboard};

  // Keys of KWin
  static void authenticate(wl_client*, wl_resource* input, const char*, const char*) {
    of(input).isAuthenticated = true;
  }
  static void fakeKey(wl_client*, wl_resource* input, std::uint32_t code, std::uint32_t state) {
    if (of(input).isAuthenticated)
      of(input).keys.push_back(std::to_string(code) + (state == 1 ? "+" : "-"));
  }
  // Only the requests that the agent uses; the others differ between versions of the protocol file.
  static constexpr auto fakeInputRequests = [] {
    struct org_kde_kwin_fake_input_interface requests {};
    requests.authenticate = authenticate;
    requests.keyboard_key = fakeKey;
    return requests;
  }();

  // Windows
  void describe(const Handle& handle) {
    if (traits.isKwin) return describePlasma(handle);
    const WindowState& state = windows[handle.window];
    zwlr_foreign_toplevel_handle_v1_send_title(handle.resource, state.window.title.c_str());
    zwlr_foreign_toplevel_handle_v1_send_app_id(handle.resource,
                                                state.window.applicationId.c_str());
    wl_array states;
    wl_array_init(&states);
    if (state.isActive)
      *static_cast<std::uint32_t*>(wl_array_add(&states, sizeof(std::uint32_t))) =
          ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED;
    zwlr_foreign_toplevel_handle_v1_send_state(handle.resource, &states);
    wl_array_release(&states);
    zwlr_foreign_toplevel_handle_v1_send_done(handle.resource);
  }
  void describe(std::size_t window) {
    for (const Handle& handle : handles)
      if (handle.window == window) describe(handle);
  }
  void describePlasma(const Handle& handle) const {
    const WindowState& state = windows[handle.window];
    org_kde_plasma_window_send_app_id_changed(handle.resource, state.window.applicationId.c_str());
    org_kde_plasma_window_send_title_changed(handle.resource, state.window.title.c_str());
    constexpr std::uint32_t closeable = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_CLOSEABLE;
    constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
    org_kde_plasma_window_send_state_changed(handle.resource,
                                             closeable | (state.isActive ? active : 0U));
  }
  static void getPlasmaWindow(wl_client* client, wl_resource* manager, std::uint32_t id,
                              std::uint32_t number) {
    Server& server = of(manager);
    wl_resource* resource =
        make(client, &org_kde_plasma_window_interface, manager, id, &plasmaRequests, &server);
    wl_resource_set_destructor(resource, [](wl_resource* gone) {
      std::erase_if(of(gone).handles, [gone](const Handle& h) { return h.resource == gone; });
    });
    server.describe(server.handles.emplace_back(Handle{.resource = resource, .window = number}));
    org_kde_plasma_window_send_initial_state(resource);
  }
  static void setPlasmaState(wl_client*, wl_resource* handle, std::uint32_t flags,
                             std::uint32_t state) {
    constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
    if ((flags & state & active) != 0) activationAsked(nullptr, handle, nullptr);
  }
  static constexpr auto plasmaRequests = [] {
    struct org_kde_plasma_window_interface requests {};
    requests.set_state = setPlasmaState;
    requests.destroy = ends_;
    return requests;
  }();
  static constexpr auto plasmaManagerRequests = [] {
    struct org_kde_plasma_window_management_interface requests {};
    requests.get_window = getPlasmaWindow;
    return requests;
  }();

  void announce(std::size_t window, wl_resource* manager) {
    if (traits.isKwin)
      return org_kde_plasma_window_management_send_window(manager,
                                                          static_cast<std::uint32_t>(window));
    wl_resource* resource =
        make(wl_resource_get_client(manager), &zwlr_foreign_toplevel_handle_v1_interface, manager,
             0, &handleRequests, this);
    wl_resource_set_destructor(resource, [](wl_resource* gone) {
      std::erase_if(of(gone).handles, [gone](const Handle& h) { return h.resource == gone; });
    });
    zwlr_foreign_toplevel_manager_v1_send_toplevel(manager, resource);
    describe(handles.emplace_back(Handle{.resource = resource, .window = window}));
  }
  void activate(std::size_t window) {
    for (std::size_t i = 0; i < windows.size(); ++i) {
      if (windows[i].isActive == (i == window)) continue;
      windows[i].isActive = i == window;
      describe(i);
    }
  }

  static void activationAsked(wl_client*, wl_resource* handle, wl_resource*) {
    Server& server = of(handle);
    for (const Handle& known : server.handles)
      if (known.resource == handle) return server.activate(known.window);
  }
  static void withOutput(wl_client*, wl_resource*, wl_resource*) {}
  static void rectangle(wl_client*, wl_resource*, wl_resource*, int, int, int, int) {}
  static constexpr struct zwlr_foreign_toplevel_handle_v1_interface handleRequests = {
      .set_maximized = ignored,
      .unset_maximized = ignored,
      .set_minimized = ignored,
      .unset_minimized = ignored,
      .activate = activationAsked,
      .close = ignored,
      .set_rectangle = rectangle,
      .destroy = ends_,
      .set_fullscreen = withOutput,
      .unset_fullscreen = ignored};
  static constexpr struct zwlr_foreign_toplevel_manager_v1_interface windowRequests = {.stop =
                                                                                           ignored};

  // The seat
  static void noPointer(wl_client*, wl_resource*, std::uint32_t) {}
  static constexpr struct wl_keyboard_interface seatKeyboardRequests = {.release = ends_};
  void tellLayout(wl_resource* keyboard) const {
    const std::string& layout = traits.layout;
    const int file = memfd_create("layout", MFD_CLOEXEC);
    static_cast<void>(!write(file, layout.c_str(), layout.size() + 1));
    wl_keyboard_send_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                            static_cast<std::uint32_t>(layout.size() + 1));
    ::close(file);
  }
  static void getKeyboard(wl_client* client, wl_resource* seat, std::uint32_t id) {
    Server& server = of(seat);
    wl_resource* keyboard =
        make(client, &wl_keyboard_interface, seat, id, &seatKeyboardRequests, &server);
    wl_resource_set_destructor(keyboard, forget<&Server::seatKeyboards>);
    server.seatKeyboards.push_back(keyboard);
    server.tellLayout(keyboard);
  }
  static constexpr struct wl_seat_interface seatRequests = {.get_pointer = noPointer,
                                                            .get_keyboard = getKeyboard,
                                                            .get_touch = noPointer,
                                                            .release = ends_};

  // Globals --------------------------------------------------------------------------------------

  template <auto& interface, auto& requests>
  static wl_resource* bound(wl_client* client, void* data, std::uint32_t version,
                            std::uint32_t id) {
    wl_resource* resource = wl_resource_create(client, &interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, &requests, data, nullptr);
    return resource;
  }
  void add(const wl_interface& interface, int version, wl_global_bind_func_t bind) {
    globals[interface.name] = wl_global_create(display, &interface, version, this, bind);
  }

  void addWindows(const wl_interface& interface, int version, wl_global_bind_func_t bind) {
    if (traits.namesWindows) add(interface, version, bind);
  }
  static void follow(wl_resource* manager) {
    wl_resource_set_destructor(manager, forget<&Server::managers>);
    Server& server = of(manager);
    server.managers.push_back(manager);
    for (std::size_t i = 0; i < server.windows.size(); ++i)
      if (server.windows[i].isOpen) server.announce(i, manager);
  }

  void addWlroots() {
    if (traits.hasKeyboards)
      add(zwp_virtual_keyboard_manager_v1_interface, 1,
          [](wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
            bound<zwp_virtual_keyboard_manager_v1_interface, keyboardManagerRequests>(client, data,
                                                                                      version, id);
          });
    addWindows(zwlr_foreign_toplevel_manager_v1_interface, 3,
               [](wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
                 follow(bound<zwlr_foreign_toplevel_manager_v1_interface, windowRequests>(
                     client, data, version, id));
               });
  }
  void addKwin() {
    // The description that is installed may be older.
    fakeInput.version = traits.fakeInputVersion;
    if (traits.hasKeyboards)
      add(fakeInput, traits.fakeInputVersion,
          [](wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
            bound<org_kde_kwin_fake_input_interface, fakeInputRequests>(client, data, version, id);
          });
    addWindows(org_kde_plasma_window_management_interface, 16,
               [](wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
                 follow(bound<org_kde_plasma_window_management_interface, plasmaManagerRequests>(
                     client, data, version, id));
               });
  }

  void addGlobals() {
    add(wl_seat_interface, 4,
        [](wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
          wl_resource* seat = bound<wl_seat_interface, seatRequests>(client, data, version, id);
          const bool hasKeyboard = !of(seat).traits.layout.empty();
          wl_seat_send_capabilities(
              seat, static_cast<std::uint32_t>(hasKeyboard ? WL_SEAT_CAPABILITY_KEYBOARD : 0));
        });
    if (!traits.dataControl.empty()) {
      dataControl.name = traits.dataControl.c_str();
      const int version = traits.dataControl.starts_with("zwlr") ? 2 : 1;
      add(dataControl, version,
          [](wl_client* client, void* data, std::uint32_t bindVersion, std::uint32_t id) {
            bound<zwlr_data_control_manager_v1_interface, managerRequests>(client, data,
                                                                           bindVersion, id);
          });
    }
    if (traits.isKwin)
      addKwin();
    else
      addWlroots();
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
    for (wl_resource* manager : server.managers)
      server.announce(place, manager);
    server.activate(place);
  });
  return place;
}

void ScriptedCompositor::close(std::size_t window) {
  perform([&](Server& server) {
    server.windows[window].isOpen = false;
    for (const auto& handle : server.handles)
      if (handle.window == window && server.traits.isKwin)
        org_kde_plasma_window_send_unmapped(handle.resource);
      else if (handle.window == window)
        zwlr_foreign_toplevel_handle_v1_send_closed(handle.resource);
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

void ScriptedCompositor::copy(const Offered& offered) {
  perform([&](Server& server) { server.offer(Server::clipboard, offered); });
}

void ScriptedCompositor::select(const Offered& offered) {
  perform([&](Server& server) { server.offer(Server::primary, offered); });
}

void ScriptedCompositor::clear() {
  perform([](Server& server) {
    server.offered[Server::clipboard] = nullptr;
    server.tell(Server::clipboard);
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
    for (wl_resource* keyboard : server.seatKeyboards)
      server.tellLayout(keyboard);
  });
}

void ScriptedCompositor::withdraw(std::string_view interface) {
  perform([&](Server& server) { wl_global_remove(server.globals.at(std::string(interface))); });
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
