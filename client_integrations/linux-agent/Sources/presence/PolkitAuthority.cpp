#include "presence/PolkitAuthority.h"

#include <string>
#include <string_view>

#include "presence/PresenceError.h"

namespace quillseal::linux::PolkitAuthority {

namespace {

constexpr SystemBus::Target authority{.service = "org.freedesktop.PolicyKit1",
                                      .path = "/org/freedesktop/PolicyKit1/Authority",
                                      .interface = "org.freedesktop.PolicyKit1.Authority"};
constexpr std::uint32_t withoutQuestion = 0;
constexpr std::uint32_t withQuestion = 1;
constexpr const char* cancellationId = "quillseal-presence";

struct Decision {
  bool authorized = false;
  bool mayAsk = false;
  bool dismissed = false;
};

BusMessage checkRequest(SystemBus& bus, std::uint32_t flags) {
  const char* self = nullptr;
  SystemBus::check(::sd_bus_get_unique_name(bus.get(), &self));
  BusMessage request = bus.newCall(authority, "CheckAuthorization");
  SystemBus::check(::sd_bus_message_append(request.get(), "(sa{sv})sa{ss}us", "system-bus-name", 1U,
                                           "name", "s", self, presenceAction, 0U, flags,
                                           flags == withQuestion ? cancellationId : ""));
  return request;
}

Decision decisionIn(sd_bus_message& reply) {
  int authorized = 0;
  int mayAsk = 0;
  SystemBus::check(::sd_bus_message_enter_container(&reply, 'r', "bba{ss}"));
  SystemBus::check(::sd_bus_message_read(&reply, "bb", &authorized, &mayAsk));
  Decision decision{.authorized = authorized != 0, .mayAsk = mayAsk != 0, .dismissed = false};
  SystemBus::check(::sd_bus_message_enter_container(&reply, 'a', "{ss}"));
  const char* key = nullptr;
  const char* value = nullptr;
  while (::sd_bus_message_read(&reply, "{ss}", &key, &value) > 0)
    if (std::string_view(key) == "polkit.dismissed") decision.dismissed = true;
  return decision;
}

}  // namespace

bool canAsk() {
  try {
    SystemBus bus;
    const BusMessage reply = bus.send(*checkRequest(bus, withoutQuestion));
    const Decision decision = decisionIn(*reply);
    return decision.authorized || decision.mayAsk;
  } catch (const Error&) {
    return false;
  }
}

bool ask(const Interrupt& interrupt) {
  SystemBus bus;
  const BusMessage request = checkRequest(bus, withQuestion);
  const BusMessage reply = bus.sendAndWait({.request = *request, .interrupt = interrupt});
  if (!reply) {
    bus.call(authority, "CancelCheckAuthorization", "s", cancellationId);
    throw presenceCancelled();
  }
  const Decision decision = decisionIn(*reply);
  if (decision.dismissed) throw presenceCancelled();
  if (!decision.authorized && decision.mayAsk)
    throw presenceError(
        "Nobody could ask for your password: this desktop runs no polkit "
        "authentication agent.");
  return decision.authorized;
}

}  // namespace quillseal::linux::PolkitAuthority
