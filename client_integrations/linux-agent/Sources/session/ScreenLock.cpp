#include "session/ScreenLock.h"

namespace quillseal::linux {

bool isScreenLocked(DesktopBus& bus) {
  constexpr const char* service = "org.freedesktop.ScreenSaver";
  const DesktopBus::Message answer = bus.call({.service = service,
                                               .path = "/ScreenSaver",
                                               .interface = "org.freedesktop.ScreenSaver",
                                               .name = "GetActive"},
                                              "");
  int isLocked = 0;
  if (answer != nullptr && ::sd_bus_message_read(answer.get(), "b", &isLocked) > 0)
    return isLocked != 0;
  // Without the service nobody locks the screen. One that does not answer may have locked it.
  return bus.knows(service).value_or(true);
}

}  // namespace quillseal::linux
