#include "wayland/WaylandReach.h"

#include "wayland/KeyboardFactory.h"
#include "wayland/WaylandDataControl.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

bool reachesApplications(const WaylandConnection& connection) {
  return connection.isAlive() && wayland::offersDataControl(connection) &&
         offersKeyboard(connection) && WaylandWindows::areOfferedBy(connection);
}

}  // namespace quillseal::linux
