// Holds keys down as a person does: on the X server's own keyboard device, not on the one for
// synthesised keys. First waits until no key of any device is down.
// usage: held-keys MILLISECONDS [KEYSYM...]   presses in order, waits, releases in reverse order

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <span>
#include <string_view>
#include <thread>
#include <vector>

#include <X11/Xlib.h>
#include <X11/extensions/XInput.h>
#include <X11/extensions/XTest.h>

#include "core/text/UniqueHandle.h"

namespace {

struct CloseDevice {
  Display* display;
  void operator()(XDevice* device) const { XCloseDevice(display, device); }
};
using Keyboard = std::unique_ptr<XDevice, CloseDevice>;

// Opens the keyboard that every server has beside XTEST's; on Xvfb it is "Xvfb keyboard".
Keyboard openKeyboard(Display* display) {
  int count = 0;
  XDeviceInfo* const devices = XListInputDevices(display, &count);
  Keyboard keyboard(nullptr, CloseDevice{display});
  for (const XDeviceInfo& device : std::span(devices, static_cast<std::size_t>(count)))
    if (keyboard == nullptr && device.use == IsXExtensionKeyboard &&
        std::string_view(device.name).find("XTEST") == std::string_view::npos)
      keyboard.reset(XOpenDevice(display, device.id));
  XFreeDeviceList(devices);
  return keyboard;
}

bool waitForRest(Display* display) {
  constexpr std::chrono::seconds timeout(10);
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  while (std::chrono::steady_clock::now() < deadline) {
    std::array<char, 32> down{};
    XQueryKeymap(display, down.data());
    if (std::ranges::all_of(down, [](char keys) { return keys == 0; })) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  const quillseal::UniqueHandle<Display, ::XCloseDisplay> display(XOpenDisplay(nullptr));
  if (arguments.size() < 2 || display == nullptr) {
    std::cerr << "usage: held-keys MILLISECONDS [KEYSYM...], with an X server\n";
    return 2;
  }
  const Keyboard keyboard = openKeyboard(display.get());
  if (keyboard == nullptr) {
    std::cerr << "held-keys: the X server has no keyboard of its own\n";
    return 1;
  }
  const std::chrono::milliseconds duration(std::strtol(arguments[1], nullptr, 10));
  std::vector<unsigned> keys;
  for (const char* name : arguments.subspan(2)) {
    const KeyCode key = XKeysymToKeycode(display.get(), XStringToKeysym(name));
    if (key == 0) {
      std::cerr << "held-keys: no key gives " << name << '\n';
      return 1;
    }
    keys.push_back(key);
  }
  if (!waitForRest(display.get())) {
    std::cerr << "held-keys: a key stays down\n";
    return 1;
  }
  for (const unsigned key : keys)
    XTestFakeDeviceKeyEvent(display.get(), keyboard.get(), key, True, nullptr, 0, CurrentTime);
  XSync(display.get(), False);
  std::cout << "pressed" << std::endl;
  std::this_thread::sleep_for(duration);
  while (!keys.empty()) {
    XTestFakeDeviceKeyEvent(display.get(), keyboard.get(), keys.back(), False, nullptr, 0,
                            CurrentTime);
    keys.pop_back();
  }
  XSync(display.get(), False);
  return 0;
}
