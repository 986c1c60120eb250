#include "wayland/WaylandConnection.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <poll.h>

namespace quillseal::linux {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds timeout{2};

}  // namespace

struct WaylandConnection::Listeners {
  static void appeared(void* data, wl_registry* /*registry*/, std::uint32_t name,
                       const char* interface, std::uint32_t version) {
    static_cast<WaylandConnection*>(data)->globals_[name] = {.interface = interface,
                                                             .version = version};
  }
  static void disappeared(void* data, wl_registry* /*registry*/, std::uint32_t name) {
    static_cast<WaylandConnection*>(data)->globals_.erase(name);
  }
  static void answered(void* data, wl_callback* /*callback*/, std::uint32_t /*serial*/) {
    *static_cast<bool*>(data) = true;
  }
  // Only marks it as done: the callback may call `roundTrip`, which is not allowed inside an event.
  static void caughtUp(void* data, wl_callback* /*callback*/, std::uint32_t /*serial*/) {
    static_cast<Waiting*>(data)->isReady = true;
  }

  static constexpr wl_registry_listener registry = {.global = appeared,
                                                    .global_remove = disappeared};
  static constexpr wl_callback_listener roundTrip = {.done = answered};
  static constexpr wl_callback_listener waiting = {.done = caughtUp};
};

std::unique_ptr<WaylandConnection> WaylandConnection::open() {
  return greet(Display(wl_display_connect(nullptr)));
}

std::unique_ptr<WaylandConnection> WaylandConnection::open(FileDescriptor socket) {
  return greet(Display(wl_display_connect_to_fd(std::move(socket).release())));
}

std::unique_ptr<WaylandConnection> WaylandConnection::greet(Display display) {
  if (display == nullptr) return nullptr;
  std::unique_ptr<WaylandConnection> connection(new WaylandConnection(std::move(display)));
  if (!connection->roundTrip()) return nullptr;
  connection->seat_.reset(connection->bind<wl_seat>(wl_seat_interface, 1));
  return connection->seat_ == nullptr ? nullptr : std::move(connection);
}

WaylandConnection::WaylandConnection(Display display)
    : display_(std::move(display)), registry_(wl_display_get_registry(display_.get())) {
  wl_registry_add_listener(registry_.get(), &Listeners::registry, this);
}

std::uint32_t WaylandConnection::versionOf(std::string_view interface) const {
  const auto found = std::ranges::find_if(
      globals_, [&](const auto& entry) { return entry.second.interface == interface; });
  return found == globals_.end() ? 0 : found->second.version;
}

void* WaylandConnection::bindGlobal(const wl_interface& interface, std::uint32_t newest) const {
  const auto found = std::ranges::find_if(
      globals_, [&](const auto& entry) { return entry.second.interface == interface.name; });
  if (found == globals_.end()) return nullptr;
  return wl_registry_bind(registry_.get(), found->first, &interface,
                          std::min(newest, found->second.version));
}

void WaylandConnection::serve(desktop::MainLoop& loop, Descriptors& descriptors) {
  loop_ = &loop;
  watch_ = descriptors.watch(wl_display_get_fd(display_.get()), Descriptors::Interest::reading,
                             [this](Descriptors::Interest) { receive(); });
  flush();
}

void WaylandConnection::flush() {
  if (isAlive_) wl_display_flush(display_.get());
}

desktop::Ticket WaylandConnection::catchUp(std::function<void()> done) {
  if (!isAlive_) return loop_->after({}, std::move(done));
  const std::uint64_t id = ++lastWaiting_;
  Waiting& waiting = waiting_[id];
  waiting.callback.reset(wl_display_sync(display_.get()));
  waiting.done = std::move(done);
  wl_callback_add_listener(waiting.callback.get(), &Listeners::waiting, &waiting);
  flush();
  return desktop::Ticket([this, id] { waiting_.erase(id); });
}

bool WaylandConnection::roundTrip() {
  if (!isAlive_) return false;
  bool isAnswered = false;
  const wayland::ProxyHandle<wl_callback> callback(wl_display_sync(display_.get()));
  wl_callback_add_listener(callback.get(), &Listeners::roundTrip, &isAnswered);
  const auto deadline = steady_clock::now() + timeout;
  while (!isAnswered) {
    if (!prepareRead()) break;
    wl_display_flush(display_.get());
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now());
    pollfd ready{.fd = wl_display_get_fd(display_.get()), .events = POLLIN, .revents = 0};
    if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) <= 0) {
      wl_display_cancel_read(display_.get());
      break;
    }
    if (wl_display_read_events(display_.get()) < 0 ||
        wl_display_dispatch_pending(display_.get()) < 0)
      break;
  }
  if (!isAnswered) end();
  const bool isSomebodyReady =
      std::ranges::any_of(waiting_, [](const auto& entry) { return entry.second.isReady; });
  if (loop_ != nullptr && (isSomebodyReady || !isAlive_))
    later_ = loop_->after({}, [this] { callWaiting(); });
  return isAnswered;
}

/// False when the connection has failed.
bool WaylandConnection::prepareRead() {
  while (wl_display_prepare_read(display_.get()) != 0)
    if (wl_display_dispatch_pending(display_.get()) < 0) return false;
  return true;
}

void WaylandConnection::receive() {
  if (!prepareRead() || wl_display_read_events(display_.get()) < 0 ||
      wl_display_dispatch_pending(display_.get()) < 0)
    end();
  flush();
  callWaiting();
}

void WaylandConnection::callWaiting() {
  const auto next = [this] {
    return std::ranges::find_if(waiting_, [](const auto& entry) { return entry.second.isReady; });
  };
  for (auto found = next(); found != waiting_.end(); found = next()) {
    const auto done = std::move(found->second.done);
    waiting_.erase(found);
    done();
  }
  if (!isAlive_)
    if (const auto ended = std::exchange(ended_, nullptr)) ended();
}

void WaylandConnection::end() {
  isAlive_ = false;
  watch_ = {};
  for (auto& [id, waiting] : waiting_)
    waiting.isReady = true;
}

}  // namespace quillseal::linux
