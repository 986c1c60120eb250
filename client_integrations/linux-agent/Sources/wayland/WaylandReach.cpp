#include "wayland/WaylandReach.h"

#include "wayland/WaylandDataControl.h"
#include "wayland/WaylandKeyboard.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {

bool reachesApplications(const WaylandConnection& connection) {
  return connection.isAlive() && wayland::offersDataControl(connection) &&
         WaylandKeyboard::isOfferedBy(connection) && WaylandWindows::areOfferedBy(connection);
}

}  // namespace quillseal::linux
