// Asks GNOME Shell's extension as the agent does. Reads commands, one a line, from standard input
// and answers each with a line:
//   front        window, "keys" or "-", "held" or "-", desktop file, class, executable, document,
//               changes of the clipboard
//   activate ID  asks for the window
//   open FILE    asks for a window of the application with this desktop file
//   leave        gives the agent's name on the bus up

#include <cstdint>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"
#include "gnome/ShellExtension.h"
#include "session/DesktopBus.h"

namespace {

constexpr const char* agentName = "com.quillseal.Agent";

std::string described(const std::optional<quillseal::linux::ShellFront>& front) {
  if (!front) return "no answer";
  std::ostringstream words;
  words << front->window << (front->hasKeys ? " keys" : " -")
        << (front->holdsModifiers ? " held" : " -");
  for (const std::string& part : {front->traits.gtkApplicationId, front->traits.windowClass,
                                  front->traits.executable, front->document})
    words << ' ' << (part.empty() ? "-" : part);
  words << ' ' << front->clipboardChanges;
  return words.str();
}

}  // namespace

int main() {
  // As in the agent, another connection than the one that asks has the name.
  sd_bus* opened = nullptr;
  ::sd_bus_open_user(&opened);
  const quillseal::UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> named(opened);
  const auto bus = quillseal::linux::DesktopBus::open();
  if (bus == nullptr || ::sd_bus_request_name(opened, agentName, 0) < 0) return 1;
  const quillseal::linux::ShellExtension extension(*bus);
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string command;
    std::string argument;
    words >> command >> argument;
    std::string answer = "done";
    if (command == "leave") ::sd_bus_release_name(opened, agentName);
    if (command == "activate") extension.activate(std::stoull(argument));
    if (command == "front") answer = described(extension.front());
    if (command == "open" && !extension.activateApplication(argument).value()) answer = "none";
    std::cout << answer << std::endl;
  }
  return 0;
}
