#pragma once

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"

/// What the connections to a D-Bus bus share.
namespace quillseal::linux {

using BusMessage = UniqueHandle<sd_bus_message, ::sd_bus_message_unref>;

/// A subscription or a pending call, active as long as it is kept.
using BusSlot = UniqueHandle<sd_bus_slot, ::sd_bus_slot_unref>;

struct BusMethod {
  const char* service;
  const char* path;
  const char* interface;
  const char* name;
};

/// The name of the bus itself, and of its interface.
inline constexpr const char* busName = "org.freedesktop.DBus";
inline constexpr const char* busPath = "/org/freedesktop/DBus";

/// Returns a method of the bus itself.
[[nodiscard]] constexpr BusMethod methodOfBus(const char* name) {
  return {.service = busName, .path = busPath, .interface = busName, .name = name};
}

/// Returns the method that reads a property of an object. Its arguments are the property's
/// interface and name.
[[nodiscard]] constexpr BusMethod propertyOf(const char* service, const char* path) {
  return {.service = service,
          .path = path,
          .interface = "org.freedesktop.DBus.Properties",
          .name = "Get"};
}

/// Makes a call without arguments. Null when the bus is gone.
[[nodiscard]] inline BusMessage newCall(sd_bus* bus, const BusMethod& method) {
  sd_bus_message* made = nullptr;
  ::sd_bus_message_new_method_call(bus, &made, method.service, method.path, method.interface,
                                   method.name);
  return BusMessage(made);
}

}  // namespace quillseal::linux
