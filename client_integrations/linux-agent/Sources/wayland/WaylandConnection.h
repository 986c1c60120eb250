#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <wayland-client.h>

#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// A connection of the agent's own to the Wayland compositor, beside that of the toolkit. Its
/// events are dealt with in turns of the main loop. Main thread.
class WaylandConnection {
 public:
  /// Null where no compositor answers within two seconds, or has no seat.
  [[nodiscard]] static std::unique_ptr<WaylandConnection> open();

  ~WaylandConnection();
  WaylandConnection(const WaylandConnection&) = delete;
  WaylandConnection& operator=(const WaylandConnection&) = delete;

  /// The version of an interface that the compositor offers; 0 when it does not, or not any more.
  [[nodiscard]] std::uint32_t versionOf(std::string_view interface) const;

  /// An object of a global interface, in the version that is offered or `newest` if that is lower.
  /// Null when it is not offered.
  template <typename Object>
  [[nodiscard]] Object* bind(const wl_interface& interface, std::uint32_t newest) const {
    return static_cast<Object*>(bindGlobal(interface, newest));
  }

  [[nodiscard]] wl_seat* seat() const { return seat_; }

  /// From now on events arrive. Both outlive this object.
  void serve(desktop::MainLoop& loop, Descriptors& descriptors);

  /// Whether the compositor still answers.
  [[nodiscard]] bool isAlive() const { return isAlive_; }

  /// Has `ended` called when it does not any more. One at a time.
  void onEnd(std::function<void()> ended) { ended_ = std::move(ended); }

  /// Sends what was asked for.
  void flush();

  /// Calls `done` once everything has arrived that the compositor has sent so far, or the
  /// connection has ended. REQUIRES: `serve` was called.
  [[nodiscard]] desktop::Ticket catchUp(std::function<void()> done);

  /// Waits until the compositor has dealt with all requests; false when it does not within two
  /// seconds. Not from inside an event.
  [[nodiscard]] bool roundTrip();

 private:
  struct Global {
    std::string interface;
    std::uint32_t version;
  };
  struct Listeners;
  /// One who waits until everything sent so far has arrived.
  struct Waiting {
    wl_callback* callback;
    std::function<void()> done;
    bool isReady = false;
  };

  explicit WaylandConnection(wl_display* display);

  [[nodiscard]] void* bindGlobal(const wl_interface& interface, std::uint32_t newest) const;
  [[nodiscard]] bool prepareRead();
  void receive();
  void callWaiting();
  void end();

  wl_display* display_;
  wl_registry* registry_ = nullptr;
  wl_seat* seat_ = nullptr;
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
