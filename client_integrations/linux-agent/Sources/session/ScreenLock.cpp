#include "session/ScreenLock.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillseal::linux {
namespace {

/// Parts of KWin that take the keys while the window below stays active: overview, grid of
/// desktops, windows side by side, the editor of tiles, and the choice of a window with Alt+Tab.
constexpr auto keyTakingEffects = std::to_array<std::string_view>(
    {"desktopgrid", "highlightwindow", "overview", "presentwindows", "tileseditor", "windowview"});

}  // namespace

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
  return bus.hasOwner(service).value_or(true);
}

bool isEffectTakingKeys(DesktopBus& bus) {
  constexpr const char* service = "org.kde.KWin";
  const DesktopBus::Message answer =
      bus.call(propertyOf(service, "/Effects"), "ss", "org.kde.kwin.Effects", "activeEffects");
  if (answer == nullptr || ::sd_bus_message_enter_container(answer.get(), 'v', "as") <= 0 ||
      ::sd_bus_message_enter_container(answer.get(), 'a', "s") <= 0)
    return bus.hasOwner(service).value_or(true);
  bool isFound = false;
  for (const char* effect = nullptr; ::sd_bus_message_read(answer.get(), "s", &effect) > 0;)
    isFound = isFound || std::ranges::find(keyTakingEffects, effect) != keyTakingEffects.end();
  return isFound;
}

}  // namespace quillseal::linux
