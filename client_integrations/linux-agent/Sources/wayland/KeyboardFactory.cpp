#include "wayland/KeyboardFactory.h"

#include "wayland/KwinKeyboard.h"
#include "wayland/WaylandKeyboard.h"

namespace quillseal::linux {

bool offersKeyboard(const WaylandConnection& connection) {
  return WaylandKeyboard::isOfferedBy(connection) || KwinKeyboard::isOfferedBy(connection);
}

std::unique_ptr<AgentKeyboard> makeKeyboard(WaylandConnection& connection, DesktopBus* bus) {
  if (WaylandKeyboard::isOfferedBy(connection))
    return std::make_unique<WaylandKeyboard>(connection);
  return std::make_unique<KwinKeyboard>(connection, bus);
}

}  // namespace quillseal::linux
