#include "wayland/KwinHotkey.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "core/text/Error.h"
#include "keyboard/KeyChords.h"
#include "wayland/KwinKeyboard.h"

namespace quillseal::linux {
namespace {

constexpr const char* service = "org.kde.kglobalaccel";
constexpr const char* component = "quillseal";
constexpr const char* componentPath = "/component/quillseal";
constexpr const char* action = "sign";
constexpr const char* componentName = "Quillseal";
constexpr const char* actionName = "Sign Selected Text";

// Flags of setShortcut.
constexpr std::uint32_t asPresent = 2;
constexpr std::uint32_t asDefault = 8;

constexpr DesktopBus::Method method(const char* name) {
  return {.service = service,
          .path = "/kglobalaccel",
          .interface = "org.kde.KGlobalAccel",
          .name = name};
}

constexpr DesktopBus::Signal signal(const char* name) {
  return {.sender = service,
          .path = componentPath,
          .interface = "org.kde.kglobalaccel.Component",
          .name = name,
          .firstArgument = component};
}

/// Returns the key and modifiers as Qt 5 and 6 number them.
int numberOf(desktop::KeyPress press) {
  int number = 0;
  for (const Keysym symbol : chordOf(press)) {
    switch (symbol) {
      case XKB_KEY_Control_L:
        number |= 0x04000000;
        break;
      case XKB_KEY_Alt_L:
        number |= 0x08000000;
        break;
      case XKB_KEY_Super_L:
        number |= 0x10000000;
        break;
      default:
        number |= static_cast<int>(symbol - XKB_KEY_a + XKB_KEY_A);
    }
  }
  return number;
}

bool isOfAgent(sd_bus_message& message) {
  const char* ofComponent = nullptr;
  const char* ofAction = nullptr;
  return ::sd_bus_message_read(&message, "ss", &ofComponent, &ofAction) > 0 &&
         std::string_view(ofAction) == action;
}

/// Reads a sequence and returns whether it has a key.
bool hasKey(sd_bus_message& sequence) {
  if (::sd_bus_message_enter_container(&sequence, 'a', "i") < 0) return false;
  bool isFound = false;
  for (int key = 0; ::sd_bus_message_read(&sequence, "i", &key) > 0;)
    isFound = isFound || key != 0;
  ::sd_bus_message_exit_container(&sequence);
  return isFound;
}

[[noreturn]] void fail(int code, const std::string& problem) {
  throw Error({.domain = "KwinHotkey",
               .code = code,
               .description = problem +
                              ", or bind the command “quillseal --sign” to another shortcut there. "
                              "The menu item works in any case."});
}

}  // namespace

KwinHotkey::KwinHotkey(const Services& services)
    : services_(services),
      onPress_([this](sd_bus_message& message) {
        if (isOfAgent(message) && held_.press(services_.loop.now())) services_.loop.post(pressed_);
      }),
      onRelease_([this](sd_bus_message& message) {
        if (isOfAgent(message)) held_.release();  // older versions report none
      }),
      onOwner_([this](sd_bus_message& message) {
        const char* name = nullptr;
        const char* before = nullptr;
        const char* now = nullptr;
        const bool isBack =
            ::sd_bus_message_read(&message, "sss", &name, &before, &now) > 0 && *now != '\0';
        if (isBack) again_ = services_.loop.after({}, [this] { static_cast<void>(request()); });
      }) {}

KwinHotkey::~KwinHotkey() {
  // Else the keys would do nothing in any program until the agent starts again.
  if (mayHaveKeys_)
    static_cast<void>(services_.bus.call(method("setInactive"), "as", 4, component, action,
                                         componentName, actionName));
}

bool KwinHotkey::isOfferedBy(const WaylandConnection& connection, DesktopBus& bus) {
  return KwinKeyboard::isOfferedBy(connection) && bus.knows(service).value_or(false);
}

void KwinHotkey::registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) {
  pressed_ = std::move(pressed);
  keys_ = numberOf(combination);
  presses_ = services_.bus.subscribe(signal("globalShortcutPressed"), onPress_);
  releases_ = services_.bus.subscribe(signal("globalShortcutReleased"), onRelease_);
  const Registration registration = request();
  // What is not answered in time may be done later.
  mayHaveKeys_ = registration.isGranted || !registration.isAnswered;
  if (registration.isTaken)
    fail(1, "Another program already uses " + nameOf(combination) +
                ". Free it in the shortcut settings of your desktop and start Quillseal again");
  if (registration.isAnswered && !registration.isGranted)
    fail(2,
         "The shortcut settings of your desktop give Quillseal no keys. Choose some there and "
         "start Quillseal again");
  if (!registration.isGranted || presses_ == nullptr || releases_ == nullptr)
    fail(3, "The shortcuts of your desktop do not answer. Start Quillseal again");
  owners_ = services_.bus.subscribe({.sender = "org.freedesktop.DBus",
                                     .path = "/org/freedesktop/DBus",
                                     .interface = "org.freedesktop.DBus",
                                     .name = "NameOwnerChanged",
                                     .firstArgument = service},
                                    onOwner_);
}

KwinHotkey::Registration KwinHotkey::request() {
  DesktopBus& bus = services_.bus;
  held_.release();
  static_cast<void>(
      bus.call(method("doRegister"), "as", 4, component, action, componentName, actionName));
  const auto set = [&](std::uint32_t flags) {
    // A shortcut is a sequence of up to four presses; 0 means none.
    return bus.call(method("setShortcutKeys"), "asa(ai)u", 4, component, action, componentName,
                    actionName, 1, 4, keys_, 0, 0, 0, flags);
  };
  static_cast<void>(set(asDefault));
  const DesktopBus::Message answer = set(asPresent);
  Registration registration;
  if (answer == nullptr || ::sd_bus_message_enter_container(answer.get(), 'a', "(ai)") < 0)
    return registration;
  registration.isAnswered = true;
  while (::sd_bus_message_enter_container(answer.get(), 'r', "ai") > 0) {
    registration.isGranted = hasKey(*answer) || registration.isGranted;
    ::sd_bus_message_exit_container(answer.get());
  }
  if (registration.isGranted) return registration;

  const DesktopBus::Message owner = bus.call(method("actionList"), "(ai)", 4, keys_, 0, 0, 0);
  const char* ofComponent = nullptr;
  registration.isTaken = owner != nullptr &&
                         ::sd_bus_message_enter_container(owner.get(), 'a', "s") > 0 &&
                         ::sd_bus_message_read(owner.get(), "s", &ofComponent) > 0 &&
                         std::string_view(ofComponent) != component;
  // Otherwise KGlobalAccel would store the refusal as the user's choice of no keys.
  if (registration.isTaken)
    static_cast<void>(bus.call(method("unregister"), "ss", component, action));
  return registration;
}

}  // namespace quillseal::linux
