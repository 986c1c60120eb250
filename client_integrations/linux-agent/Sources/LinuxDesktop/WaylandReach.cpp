#include "LinuxDesktop/WaylandReach.h"

#include "LinuxDesktop/WaylandDataControl.h"
#include "LinuxDesktop/WaylandKeyboard.h"
#include "LinuxDesktop/WaylandWindows.h"

namespace quillseal {

bool reachesApplications(const WaylandConnection& connection) {
  return connection.isAlive() && wayland::offersDataControl(connection) &&
         WaylandKeyboard::isOfferedBy(connection) && WaylandWindows::areOfferedBy(connection);
}

}  // namespace quillseal
