#include "session/StartupChecks.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <initializer_list>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"
#include "session/BusMessage.h"

namespace quillseal::linux {
namespace {

using std::chrono::microseconds;

// The hung bus's accept queue is full.
constexpr int queueFull = -EAGAIN;

using Bus = UniqueHandle<sd_bus, ::sd_bus_close_unref>;

struct Answer {
  BusMessage message;  ///< null after an error or a time-out
  bool isInTime = true;
};

bool isReadyWithin(sd_bus& bus, microseconds timeout) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point deadline = Clock::now() + timeout;
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

/// Calls a method with string arguments. Starts no service.
Answer ask(sd_bus& bus, const BusMethod& method, microseconds timeout,
           std::initializer_list<const char*> arguments = {}) {
  const BusMessage call = newCall(&bus, method);
  if (call == nullptr) return {};
  for (const char* text : arguments)
    ::sd_bus_message_append_basic(call.get(), SD_BUS_TYPE_STRING, text);
  ::sd_bus_message_set_auto_start(call.get(), 0);
  sd_bus_message* reply = nullptr;
  const int result =
      ::sd_bus_call(&bus, call.get(), static_cast<std::uint64_t>(timeout.count()), nullptr, &reply);
  return {.message = BusMessage(reply), .isInTime = result != -ETIMEDOUT};
}

/// Asks the registry on the accessibility bus.
bool answersOnItsBus(const char* address, microseconds timeout) {
  sd_bus* made = nullptr;
  if (::sd_bus_new(&made) < 0) return true;
  const Bus bus(made);
  ::sd_bus_set_address(made, address);
  ::sd_bus_set_bus_client(made, 1);
  if (const int result = ::sd_bus_start(made); result < 0) return result != queueFull;
  const BusMethod ping{.service = "org.a11y.atspi.Registry",
                       .path = "/org/a11y/atspi/registry",
                       .interface = "org.freedesktop.DBus.Peer",
                       .name = "Ping"};
  return isReadyWithin(*bus, timeout) && ask(*bus, ping, timeout).isInTime;
}

bool accessibilityAnswersOn(sd_bus& bus, microseconds timeout) {
  BusMethod method = propertyOf("org.a11y.Bus", "/org/a11y/bus");
  int isEnabled = 0;
  for (const char* property : {"ScreenReaderEnabled", "IsEnabled"}) {
    const Answer answer = ask(bus, method, timeout, {"org.a11y.Status", property});
    int isTrue = 0;
    if (!answer.isInTime) return false;
    if (answer.message) ::sd_bus_message_read(answer.message.get(), "v", "b", &isTrue);
    isEnabled = std::max(isEnabled, isTrue);
  }
  // Asking for the bus's address would start it.
  if (isEnabled == 0) return true;
  method.interface = "org.a11y.Bus";
  method.name = "GetAddress";
  const Answer answer = ask(bus, method, timeout);
  const char* address = nullptr;
  if (!answer.message || ::sd_bus_message_read(answer.message.get(), "s", &address) <= 0)
    return answer.isInTime;
  return answersOnItsBus(address, timeout);
}

}  // namespace

bool sessionBusAnswers(std::chrono::milliseconds timeout) {
  sd_bus* opened = nullptr;
  const int result = ::sd_bus_open_user(&opened);
  const Bus bus(opened);
  return result < 0 ? result != queueFull : isReadyWithin(*bus, timeout);
}

Handover handOver(const std::string& method, std::chrono::milliseconds timeout) {
  sd_bus* opened = nullptr;
  if (::sd_bus_open_user(&opened) < 0) return Handover::noAgent;
  const Bus bus(opened);
  constexpr std::chrono::seconds usually{1};  // a bus that hangs is waited for later
  if (!isReadyWithin(*bus, usually)) return Handover::noAgent;
  const Answer owner = ask(*bus, methodOfBus("NameHasOwner"), usually, {agentName});
  int hasAgent = 0;
  if (!owner.message || ::sd_bus_message_read(owner.message.get(), "b", &hasAgent) <= 0 ||
      hasAgent == 0)
    return Handover::noAgent;
  const Answer answer =
      ask(*bus,
          {.service = agentName, .path = agentPath, .interface = agentName, .name = method.c_str()},
          timeout);
  return answer.message ? Handover::done : Handover::noAnswer;
}

bool accessibilityAnswers(std::chrono::milliseconds timeout) {
  sd_bus* opened = nullptr;
  if (::sd_bus_open_user(&opened) < 0) return true;
  const Bus bus(opened);
  return accessibilityAnswersOn(*bus, timeout);
}

}  // namespace quillseal::linux
