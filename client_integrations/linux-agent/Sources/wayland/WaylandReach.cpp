#include "wayland/WaylandReach.h"

#include "wayland/KeyboardFactory.h"
#include "wayland/WaylandDataControl.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

bool showsWindows(const WaylandConnection& connection) {
  return connection.isAlive() && wayland::offersDataControl(connection) &&
         WaylandWindows::areOfferedBy(connection);
}

bool reachesApplications(const WaylandConnection& connection) {
  return showsWindows(connection) && offersKeyboard(connection);
}

}  // namespace quillseal::linux
