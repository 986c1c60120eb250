#include "wayland/WaylandSystem.h"

#include <QGuiApplication>
#include <QWidget>
#include <utility>

#include "session/LoadedModule.h"
#include "wayland/WaylandReach.h"

namespace quillseal::linux {
namespace {

std::string swaySocket() {
  return qgetenv("SWAYSOCK").toStdString();
}

}  // namespace

WaylandSystem::WaylandSystem(std::unique_ptr<WaylandConnection> connection,
                             const Services& services)
    : connection_(std::move(connection)),
      windows_(std::make_unique<WaylandWindows>(*connection_,
                                                QGuiApplication::desktopFileName().toStdString())),
      pasteboard_({.loop = services.loop,
                   .descriptors = services.descriptors,
                   .connection = *connection_,
                   .windows = *windows_},
                  ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::program))),
      applications_({.windows = *windows_, .entries = services.entries, .loop = services.loop},
                    SwayIpc::open(swaySocket())),
      hotkey_({.loop = services.loop,
               .descriptors = services.descriptors,
               .connection = *connection_,
               .socket = swaySocket()}),
      keys_({.loop = services.loop,
             .connection = *connection_,
             .windows = *windows_,
             .pasteboard = pasteboard_,
             .explain = services.explain}) {
  connection_->serve(services.loop, services.descriptors);
}

std::string WaylandSystem::limits() const {
  if (reachesApplications(*connection_)) return {};
  return "The desktop does not answer any more, so that Quillseal cannot read what is selected in "
         "other applications nor press keys there. Start Quillseal again.";
}

void WaylandSystem::bringToFront(QWidget& window) const {
  window.show();
  window.raise();
  window.activateWindow();
  windows_->activateOwn(window.windowTitle().toStdString());
}

}  // namespace quillseal::linux
