// A person's keyboard and mouse under Wayland, by virtual-keyboard and wlr-virtual-pointer, or
// KWin's fake-input. Reads commands, one a line, from standard input and writes "done" for each:
//   down KEYSYM...   presses the keys in order and holds them
//   up               releases them, the last one first
//   type TEXT        types the rest of the line
//   click X Y W H    presses the left button there, on a display of that width and height
// usage: wayland-person LAYOUT, as xkeyboard-config(7) names it: us, de, fr, or ru,us for two, of
// which the first is active. KWin must have the same one.

#include <cstdint>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

#include "core/text/UniqueHandle.h"
#include "fake-input-client-protocol.h"
#include "virtual-keyboard-unstable-v1-client-protocol.h"
#include "wayland/WaylandConnection.h"
#include "wlr-virtual-pointer-unstable-v1-client-protocol.h"

namespace {

/// Null where it is not offered.
org_kde_kwin_fake_input* bindFakeInput(const quillseal::linux::WaylandConnection& connection) {
  constexpr std::uint32_t pressesKeys = 4;
  auto* input =
      connection.bind<org_kde_kwin_fake_input>(org_kde_kwin_fake_input_interface, pressesKeys);
  if (input != nullptr) org_kde_kwin_fake_input_authenticate(input, "person", "tests");
  return input;
}

class Keyboard {
 public:
  Keyboard(quillseal::linux::WaylandConnection& connection, const char* layout)
      : connection_(connection),
        context_(xkb_context_new(XKB_CONTEXT_NO_FLAGS)),
        fakeInput_(bindFakeInput(connection)) {
    const xkb_rule_names names{.rules = nullptr,
                               .model = nullptr,
                               .layout = layout,
                               .variant = nullptr,
                               .options = nullptr};
    keymap_.reset(xkb_keymap_new_from_names(context_.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    auto* manager = connection.bind<zwp_virtual_keyboard_manager_v1>(
        zwp_virtual_keyboard_manager_v1_interface, 1);
    if (keymap_ == nullptr) return;
    state_.reset(xkb_state_new(keymap_.get()));
    if (manager == nullptr) return;
    device_ = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(manager, connection.seat());
    char* const text = xkb_keymap_get_as_string(keymap_.get(), XKB_KEYMAP_FORMAT_TEXT_V1);
    const std::string layoutText(text);
    std::free(text);
    const int file = memfd_create("layout", MFD_CLOEXEC);
    const auto size = static_cast<std::uint32_t>(layoutText.size() + 1);
    if (write(file, layoutText.c_str(), size) == size)
      zwp_virtual_keyboard_v1_keymap(device_, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, size);
    close(file);
  }

  [[nodiscard]] bool isReady() {
    const bool hasDevice = device_ != nullptr || fakeInput_ != nullptr;
    return state_ != nullptr && hasDevice && connection_.roundTrip();
  }

  /// Returns false when no key gives the symbol.
  bool press(xkb_keysym_t symbol) {
    const std::optional<Place> place = find(symbol);
    if (!place) return false;
    if (place->isShifted) set(find(XKB_KEY_Shift_L)->key, true);
    set(place->key, true);
    return true;
  }

  void releaseAll() {
    while (!held_.empty())
      set(held_.back(), false);
  }

  [[nodiscard]] bool isDelivered() { return connection_.roundTrip(); }

 private:
  struct Place {
    xkb_keycode_t key;
    bool isShifted;
  };

  // Looks in the active layout first, since the person does not switch.
  [[nodiscard]] std::optional<Place> find(xkb_keysym_t symbol) const {
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap_.get()); ++layout)
      for (xkb_level_index_t level = 0; level < 2; ++level)
        for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap_.get());
             key <= xkb_keymap_max_keycode(keymap_.get()); ++key) {
          const xkb_keysym_t* symbols = nullptr;
          if (xkb_keymap_key_get_syms_by_level(keymap_.get(), key, layout, level, &symbols) == 1 &&
              *symbols == symbol)
            return Place{.key = key, .isShifted = level == 1};
        }
    return std::nullopt;
  }

  void set(xkb_keycode_t key, bool isDown) {
    constexpr std::uint32_t evdevOffset = 8;
    if (isDown)
      held_.push_back(key);
    else
      std::erase(held_, key);
    if (fakeInput_ != nullptr)
      return org_kde_kwin_fake_input_keyboard_key(fakeInput_, key - evdevOffset, isDown ? 1 : 0);
    zwp_virtual_keyboard_v1_key(
        device_, ++time_, key - evdevOffset,
        isDown ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    xkb_state_update_key(state_.get(), key, isDown ? XKB_KEY_DOWN : XKB_KEY_UP);
    zwp_virtual_keyboard_v1_modifiers(
        device_, xkb_state_serialize_mods(state_.get(), XKB_STATE_MODS_DEPRESSED),
        xkb_state_serialize_mods(state_.get(), XKB_STATE_MODS_LATCHED),
        xkb_state_serialize_mods(state_.get(), XKB_STATE_MODS_LOCKED),
        xkb_state_serialize_layout(state_.get(), XKB_STATE_LAYOUT_EFFECTIVE));
  }

  quillseal::linux::WaylandConnection& connection_;
  quillseal::UniqueHandle<xkb_context, ::xkb_context_unref> context_;
  quillseal::UniqueHandle<xkb_keymap, ::xkb_keymap_unref> keymap_;
  quillseal::UniqueHandle<xkb_state, ::xkb_state_unref> state_;
  zwp_virtual_keyboard_v1* device_ = nullptr;
  org_kde_kwin_fake_input* fakeInput_ = nullptr;
  std::vector<xkb_keycode_t> held_;
  std::uint32_t time_ = 0;
};

class Mouse {
 public:
  explicit Mouse(quillseal::linux::WaylandConnection& connection)
      : connection_(connection), fakeInput_(bindFakeInput(connection)) {
    auto* manager = connection.bind<zwlr_virtual_pointer_manager_v1>(
        zwlr_virtual_pointer_manager_v1_interface, 1);
    if (manager != nullptr)
      device_ = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, connection.seat());
  }

  [[nodiscard]] bool click(std::istream& place) {
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (!(place >> x >> y >> width >> height)) return false;
    if (fakeInput_ != nullptr) {
      org_kde_kwin_fake_input_pointer_motion_absolute(fakeInput_,
                                                      wl_fixed_from_int(static_cast<int>(x)),
                                                      wl_fixed_from_int(static_cast<int>(y)));
      for (const std::uint32_t state : {1U, 0U})
        org_kde_kwin_fake_input_button(fakeInput_, BTN_LEFT, state);
      return connection_.roundTrip();
    }
    if (device_ == nullptr) return false;
    zwlr_virtual_pointer_v1_motion_absolute(device_, ++time_, x, y, width, height);
    zwlr_virtual_pointer_v1_frame(device_);
    for (const auto state : {WL_POINTER_BUTTON_STATE_PRESSED, WL_POINTER_BUTTON_STATE_RELEASED}) {
      zwlr_virtual_pointer_v1_button(device_, ++time_, BTN_LEFT, state);
      zwlr_virtual_pointer_v1_frame(device_);
    }
    return connection_.roundTrip();
  }

 private:
  quillseal::linux::WaylandConnection& connection_;
  zwlr_virtual_pointer_v1* device_ = nullptr;
  org_kde_kwin_fake_input* fakeInput_ = nullptr;
  std::uint32_t time_ = 0;
};

bool obey(Keyboard& keyboard, Mouse& mouse, const std::string& line) {
  std::istringstream words(line);
  std::string command;
  words >> command;
  bool isKnown = true;
  if (command == "click") return mouse.click(words);
  if (command == "down") {
    for (std::string name; words >> name;)
      isKnown = keyboard.press(xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS)) && isKnown;
  } else if (command == "up") {
    keyboard.releaseAll();
  } else if (command == "type" && line.size() > command.size()) {
    for (const char character : line.substr(command.size() + 1)) {
      isKnown =
          keyboard.press(xkb_utf32_to_keysym(static_cast<unsigned char>(character))) && isKnown;
      keyboard.releaseAll();
    }
  } else {
    return false;
  }
  return isKnown && keyboard.isDelivered();
}

}  // namespace

int main(int argc, char** argv) {
  const auto connection = argc == 2 ? quillseal::linux::WaylandConnection::open() : nullptr;
  if (connection == nullptr) {
    std::cerr << "usage: wayland-person LAYOUT, in a Wayland session\n";
    return 2;
  }
  Keyboard keyboard(*connection, argv[1]);
  Mouse mouse(*connection);
  if (!keyboard.isReady()) {
    std::cerr << "wayland-person: the compositor takes no keyboard of this layout\n";
    return 1;
  }
  std::cout << "ready" << std::endl;
  for (std::string line; std::getline(std::cin, line);)
    std::cout << (obey(keyboard, mouse, line) ? "done" : "failed") << std::endl;
  return 0;
}
