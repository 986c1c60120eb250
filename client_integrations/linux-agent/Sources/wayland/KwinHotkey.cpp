#include "wayland/KwinHotkey.h"

#include <array>
#include <cstdint>
#include <optional>
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

/// Whether the list that comes next names the agent's action.
bool namesAgent(sd_bus_message& message) {
  if (::sd_bus_message_enter_container(&message, 'a', "s") < 0) return false;
  std::vector<std::string> names;
  const char* name = nullptr;
  while (::sd_bus_message_read(&message, "s", &name) > 0)
    names.emplace_back(name);
  ::sd_bus_message_exit_container(&message);
  return names.size() >= 2 && names[0] == component && names[1] == action;
}

/// Reads a list of sequences and returns the first key, 0 for none; nothing when it is no list.
std::optional<int> firstKeyIn(sd_bus_message& sequences) {
  if (::sd_bus_message_enter_container(&sequences, 'a', "(ai)") < 0) return std::nullopt;
  int first = 0;
  while (::sd_bus_message_enter_container(&sequences, 'r', "ai") > 0) {
    if (::sd_bus_message_enter_container(&sequences, 'a', "i") < 0) break;
    for (int key = 0; ::sd_bus_message_read(&sequences, "i", &key) > 0;)
      if (first == 0) first = key;
    ::sd_bus_message_exit_container(&sequences);
    ::sd_bus_message_exit_container(&sequences);
  }
  return first;
}

/// Returns keys that Qt numbers in words: "Ctrl+Shift+F5".
std::string nameOfNumber(int number) {
  struct Modifier {
    int flag;
    const char* name;
  };
  static constexpr auto modifiers = std::to_array<Modifier>({{0x04000000, "Ctrl+"},
                                                             {0x08000000, "Alt+"},
                                                             {0x02000000, "Shift+"},
                                                             {0x10000000, "Super+"}});
  constexpr int keyBits = 0x01FFFFFF;
  constexpr int firstFunctionKey = 0x01000030;
  constexpr int lastFunctionKey = 0x01000052;
  const int key = number & keyBits;
  std::string result;
  for (const auto& [flag, name] : modifiers)
    if ((number & flag) != 0) result += name;
  if (key > ' ' && key <= '~') return result + static_cast<char>(key);
  if (key >= firstFunctionKey && key <= lastFunctionKey)
    return result + "F" + std::to_string(key - firstFunctionKey + 1);
  return unknownKeys;
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
    : ClaimedHotkey(services.notify),
      services_(services),
      onPress_([this](sd_bus_message& message) {
        if (isOfAgent(message) && held_.press(services_.loop.now())) services_.loop.post(pressed());
      }),
      onRelease_([this](sd_bus_message& message) {
        if (isOfAgent(message)) held_.release();  // older versions report none
      }),
      onChange_([this](sd_bus_message& message) {
        if (namesAgent(message)) takeKeys(firstKeyIn(message).value_or(0));
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
  return KwinKeyboard::isOfferedBy(connection) && bus.hasOwner(service).value_or(false);
}

void KwinHotkey::claim() {
  keys_ = numberOf(combination());
  presses_ = services_.bus.subscribe(signal("globalShortcutPressed"), onPress_);
  releases_ = services_.bus.subscribe(signal("globalShortcutReleased"), onRelease_);
  changes_ = services_.bus.subscribe({.sender = service,
                                      .path = "/kglobalaccel",
                                      .interface = "org.kde.KGlobalAccel",
                                      .name = "yourShortcutsChanged",
                                      .firstArgument = nullptr},
                                     onChange_);
  owners_ = services_.bus.subscribe(DesktopBus::ownerChangeOf(service), onOwner_);
  const Registration registration = request();
  // What is not answered in time may be done later.
  mayHaveKeys_ = registration.granted != 0 || !registration.isAnswered;
  if (registration.isTaken)
    fail(1, "Another program already uses " + nameOf(combination()) +
                ". Free it in the shortcut settings of your desktop and turn on the hotkey in the "
                "settings of Quillseal");
  if (registration.isAnswered && registration.granted == 0)
    fail(2, "The shortcut settings of your desktop give Quillseal no keys. Choose some there");
  if (registration.granted == 0 || presses_ == nullptr || releases_ == nullptr)
    fail(3, "The shortcuts of your desktop do not answer. Start Quillseal again");
}

/// Takes note of the keys that the desktop grants, 0 for none.
void KwinHotkey::takeKeys(int keys) {
  if (keys == 0) return turnOff();
  mayHaveKeys_ = true;
  setState({.otherKeys = keys == keys_ ? std::string() : nameOfNumber(keys), .isOff = false});
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
  const std::optional<int> granted = answer == nullptr ? std::nullopt : firstKeyIn(*answer);
  if (!granted) return registration;
  registration.isAnswered = true;
  registration.granted = *granted;
  takeKeys(*granted);
  if (*granted != 0) return registration;

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
