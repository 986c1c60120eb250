#include "presence/SystemBus.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

#include <poll.h>
#include <sys/eventfd.h>

#include "core/text/Error.h"

namespace quillseal::linux {

namespace {

// Long enough for a service that the call starts; a running one needs less.
constexpr std::uint64_t callLimitMicroseconds = 10'000'000;

/// Owns an sd_bus_error.
class BusError {
 public:
  BusError() = default;
  BusError(const BusError&) = delete;
  BusError& operator=(const BusError&) = delete;
  ~BusError() { ::sd_bus_error_free(&error_); }
  [[nodiscard]] sd_bus_error* get() noexcept { return &error_; }

 private:
  sd_bus_error error_ = SD_BUS_ERROR_NULL;
};

[[noreturn]] void fail(const sd_bus_error& error) {
  throw Error({.domain = error.name != nullptr ? error.name : "DBus",
               .code = 0,
               .description = error.message != nullptr ? error.message : "no answer"});
}

}  // namespace

Interrupt::Interrupt() : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (!descriptor_.isOpen()) throw std::system_error(errno, std::generic_category());
}

void Interrupt::raise() const noexcept {
  ::eventfd_write(descriptor_.get(), 1);
}

bool Interrupt::isRaised() const noexcept {
  pollfd raised{.fd = descriptor_.get(), .events = POLLIN, .revents = 0};
  return ::poll(&raised, 1, 0) > 0;
}

void SystemBus::check(int result) {
  if (result < 0)
    throw Error({.domain = "DBus",
                 .code = -result,
                 .description = std::generic_category().message(-result)});
}

SystemBus::SystemBus() {
  sd_bus* bus = nullptr;
  check(::sd_bus_open_system(&bus));
  bus_.reset(bus);
}

BusMessage SystemBus::newCall(const Target& target, const char* method) {
  sd_bus_message* request = nullptr;
  check(::sd_bus_message_new_method_call(bus_.get(), &request, target.service, target.path,
                                         target.interface, method));
  return BusMessage(request);
}

BusMessage SystemBus::send(sd_bus_message& request) {
  BusError error;
  sd_bus_message* reply = nullptr;
  const int result =
      ::sd_bus_call(bus_.get(), &request, callLimitMicroseconds, error.get(), &reply);
  if (result < 0) fail(*error.get());
  return BusMessage(reply);
}

BusMessage SystemBus::sendAndWait(const LongCall& call) {
  BusMessage answer;
  const auto keep = [](sd_bus_message* message, void* into, sd_bus_error*) {
    static_cast<BusMessage*>(into)->reset(::sd_bus_message_ref(message));
    return 0;
  };
  sd_bus_slot* slot = nullptr;
  check(::sd_bus_call_async(bus_.get(), &slot, &call.request, keep, &answer, UINT64_MAX));
  const BusSlot owner(slot);
  constexpr Seconds nobodyIsThere = std::chrono::minutes(5);
  if (!wait({.interrupt = call.interrupt, .limit = nobodyIsThere, .isDone = [&answer] {
               return answer != nullptr;
             }}))
    return nullptr;
  if (const sd_bus_error* error = ::sd_bus_message_get_error(answer.get())) fail(*error);
  return answer;
}

bool SystemBus::wait(const Wait& wait) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + wait.limit;
  while (!wait.isDone()) {
    const int handled = ::sd_bus_process(bus_.get(), nullptr);
    check(handled);
    if (handled > 0) continue;

    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0 || wait.interrupt.isRaised()) return false;
    const int events = ::sd_bus_get_events(bus_.get());
    check(events);
    auto sources = std::to_array<pollfd>(
        {{.fd = ::sd_bus_get_fd(bus_.get()), .events = static_cast<short>(events), .revents = 0},
         {.fd = wait.interrupt.descriptor(), .events = POLLIN, .revents = 0}});
    if (::poll(sources.data(), sources.size(), static_cast<int>(left.count())) < 0 &&
        errno != EINTR)
      check(-errno);
  }
  return true;
}

}  // namespace quillseal::linux
