#include "LinuxDesktop/SessionBus.h"

#include <cerrno>
#include <cstdint>
#include <memory>

#include <systemd/sd-bus.h>

namespace quillseal {
namespace {

using std::chrono::microseconds;

struct Close {
  void operator()(sd_bus* bus) const { ::sd_bus_close_unref(bus); }
};

struct Unref {
  void operator()(sd_bus_message* message) const { ::sd_bus_message_unref(message); }
};

bool letsIn(sd_bus& bus, microseconds patience) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point deadline = Clock::now() + patience;
  while (::sd_bus_is_ready(&bus) == 0) {
    const int handled = ::sd_bus_process(&bus, nullptr);
    if (handled < 0) return true;
    if (handled > 0) continue;
    const auto left = std::chrono::ceil<microseconds>(deadline - Clock::now());
    if (left <= microseconds{0}) return false;
    ::sd_bus_wait(&bus, static_cast<std::uint64_t>(left.count()));
  }
  return true;
}

bool tellsOfScreenReaders(sd_bus& bus, microseconds patience) {
  sd_bus_message* made = nullptr;
  if (::sd_bus_message_new_method_call(&bus, &made, "org.a11y.Bus", "/org/a11y/bus",
                                       "org.freedesktop.DBus.Properties", "Get") < 0)
    return true;
  const std::unique_ptr<sd_bus_message, Unref> question(made);
  ::sd_bus_message_append(made, "ss", "org.a11y.Status", "IsEnabled");
  ::sd_bus_message_set_auto_start(made, 0);
  const auto limit = static_cast<std::uint64_t>(patience.count());
  return ::sd_bus_call(&bus, made, limit, nullptr, nullptr) != -ETIMEDOUT;
}

}  // namespace

SessionBusState examineSessionBus(std::chrono::milliseconds patience) {
  sd_bus* opened = nullptr;
  const int result = ::sd_bus_open_user(&opened);
  // As many as it lets stand there wait at the door of one that hangs.
  if (result < 0) return {.busAnswers = result != -EAGAIN};
  const std::unique_ptr<sd_bus, Close> bus(opened);
  if (!letsIn(*bus, patience)) return {.busAnswers = false};
  return {.accessibilityAnswers = tellsOfScreenReaders(*bus, patience)};
}

}  // namespace quillseal
