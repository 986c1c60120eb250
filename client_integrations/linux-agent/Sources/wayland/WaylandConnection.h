#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <wayland-client.h>

#include "core/text/UniqueHandle.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "session/Descriptors.h"
#include "session/FileDescriptor.h"
#include "wayland/ProxyHandle.h"

namespace quillseal::linux {

/// The agent's own connection to the Wayland compositor, beside the toolkit's. The main loop
/// dispatches its events. Main thread.
class WaylandConnection {
 public:
  /// Null when no compositor answers within two seconds, or it has no seat.
  [[nodiscard]] static std::unique_ptr<WaylandConnection> open();
  /// The same on a connected socket.
  [[nodiscard]] static std::unique_ptr<WaylandConnection> open(FileDescriptor socket);

  ~WaylandConnection() = default;
  WaylandConnection(const WaylandConnection&) = delete;
  WaylandConnection& operator=(const WaylandConnection&) = delete;

  /// Returns the version of an interface that the compositor offers; 0 when it is not offered or no
  /// longer.
  [[nodiscard]] std::uint32_t versionOf(std::string_view interface) const;

  /// Binds a global interface, in the offered version or `newest` if that is lower. Null when it is
  /// not offered.
  template <typename Object>
  [[nodiscard]] Object* bind(const wl_interface& interface, std::uint32_t newest) const {
    return static_cast<Object*>(bindGlobal(interface, newest));
  }

  [[nodiscard]] wl_seat* seat() const { return seat_.get(); }

  /// Starts dispatching events. Both outlive this object.
  void serve(desktop::MainLoop& loop, Descriptors& descriptors);

  /// Whether the compositor still answers.
  [[nodiscard]] bool isAlive() const { return isAlive_; }

  /// Sets the function that is called when the connection fails. One at a time.
  void onEnd(std::function<void()> ended) { ended_ = std::move(ended); }

  /// Sends buffered requests.
  void flush();

  /// Calls `done` once all events that the compositor has sent so far have been dispatched, or the
  /// connection has failed. REQUIRES: `serve` was called.
  [[nodiscard]] desktop::Ticket catchUp(std::function<void()> done);

  /// Waits until the compositor has handled all requests; false when that takes more than two
  /// seconds. Not from inside an event.
  [[nodiscard]] bool roundTrip();

 private:
  struct Global {
    std::string interface;
    std::uint32_t version;
  };
  struct Listeners;
  /// A pending `catchUp`.
  struct Waiting {
    wayland::ProxyHandle<wl_callback> callback;
    std::function<void()> done;
    bool isReady = false;
  };

  using Display = UniqueHandle<wl_display, ::wl_display_disconnect>;

  explicit WaylandConnection(Display display);
  [[nodiscard]] static std::unique_ptr<WaylandConnection> greet(Display display);

  [[nodiscard]] void* bindGlobal(const wl_interface& interface, std::uint32_t newest) const;
  [[nodiscard]] bool prepareRead();
  void receive();
  void callWaiting();
  void end();

  // Members are destroyed from the last to the first: the watch ends before the connection does.
  Display display_;
  wayland::ProxyHandle<wl_registry> registry_;
  wayland::ProxyHandle<wl_seat> seat_;
  std::map<std::uint32_t, Global> globals_;
  std::map<std::uint64_t, Waiting> waiting_;
  std::uint64_t lastWaiting_ = 0;
  desktop::MainLoop* loop_ = nullptr;
  bool isAlive_ = true;
  std::function<void()> ended_;
  desktop::Ticket watch_;
  desktop::Ticket later_;
};

}  // namespace quillseal::linux
