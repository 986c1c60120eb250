#include "LinuxDesktop/SessionBus.h"

#include <cerrno>
#include <cstdint>
#include <memory>

#include <systemd/sd-bus.h>

namespace quillseal {
namespace {

struct Close {
  void operator()(sd_bus* bus) const { ::sd_bus_close_unref(bus); }
};

}  // namespace

bool sessionBusAnswers(std::chrono::milliseconds patience) {
  using Clock = std::chrono::steady_clock;
  using std::chrono::microseconds;
  const Clock::time_point deadline = Clock::now() + patience;
  sd_bus* opened = nullptr;
  const int result = ::sd_bus_open_user(&opened);
  if (result < 0) return result != -EAGAIN;  // as many wait at its door as it lets stand there
  const std::unique_ptr<sd_bus, Close> bus(opened);
  while (::sd_bus_is_ready(bus.get()) == 0) {
    const int handled = ::sd_bus_process(bus.get(), nullptr);
    if (handled < 0) return true;
    if (handled > 0) continue;
    const auto left = std::chrono::ceil<microseconds>(deadline - Clock::now());
    if (left <= microseconds{0}) return false;
    ::sd_bus_wait(bus.get(), static_cast<std::uint64_t>(left.count()));
  }
  return true;
}

}  // namespace quillseal
