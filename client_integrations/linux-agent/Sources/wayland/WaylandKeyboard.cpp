#include "wayland/WaylandKeyboard.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <vector>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "core/text/UniqueHandle.h"
#include "session/FileDescriptor.h"
#include "virtual-keyboard-unstable-v1-client-protocol.h"

namespace quillseal::linux {
namespace {

struct KnownKey {
  Keysym symbol;
  std::uint32_t code;  ///< of evdev
  std::uint32_t modifier;
};

// The keys have their places in a Latin layout, since some applications look at the key code.
constexpr std::uint32_t shiftModifier = 1;
constexpr std::uint32_t controlModifier = 4;
constexpr std::array knownKeys = {
    KnownKey{XKB_KEY_Control_L, KEY_LEFTCTRL, controlModifier},
    KnownKey{XKB_KEY_Shift_L, KEY_LEFTSHIFT, shiftModifier},
    KnownKey{XKB_KEY_a, KEY_A, 0},
    KnownKey{XKB_KEY_c, KEY_C, 0},
    KnownKey{XKB_KEY_v, KEY_V, 0},
    KnownKey{XKB_KEY_Insert, KEY_INSERT, 0},
};

constexpr std::string_view layoutName = "Quillseal";

// XKB key codes are evdev's plus 8.
constexpr std::string_view layout = R"(xkb_keymap {
xkb_keycodes "quillseal" {
  minimum = 8; maximum = 255;
  <LCTL> = 37; <AC01> = 38; <LFSH> = 50; <AB03> = 54; <AB04> = 55; <INS> = 118;
};
xkb_types "quillseal" { include "complete" };
xkb_compatibility "quillseal" { include "complete" };
xkb_symbols "quillseal" {
  name[Group1] = "Quillseal";
  key <LCTL> { [ Control_L ] };
  key <LFSH> { [ Shift_L ] };
  key <AC01> { [ a, A ] };
  key <AB03> { [ c, C ] };
  key <AB04> { [ v, V ] };
  key <INS> { [ Insert ] };
  modifier_map Control { <LCTL> };
  modifier_map Shift { <LFSH> };
};
};
)";

std::uint32_t now() {
  using std::chrono::milliseconds;
  const auto time = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<milliseconds>(time).count());
}

}  // namespace

struct WaylandKeyboard::Device {
  UniqueHandle<zwp_virtual_keyboard_manager_v1, zwp_virtual_keyboard_manager_v1_destroy> manager;
  UniqueHandle<zwp_virtual_keyboard_v1, zwp_virtual_keyboard_v1_destroy> keyboard;

  void setLayout() const {
    const std::size_t size = layout.size() + 1;  // including the terminating NUL
    const FileDescriptor file(memfd_create("quillseal-layout", MFD_CLOEXEC));
    if (writeAll(file, {layout.data(), size}))
      zwp_virtual_keyboard_v1_keymap(keyboard.get(), WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.get(),
                                     static_cast<std::uint32_t>(size));
  }

  void set(const KnownKey& key, wl_keyboard_key_state state, std::uint32_t modifiers) const {
    zwp_virtual_keyboard_v1_key(keyboard.get(), now(), key.code, state);
    if (key.modifier != 0) zwp_virtual_keyboard_v1_modifiers(keyboard.get(), modifiers, 0, 0, 0);
  }
};

WaylandKeyboard::WaylandKeyboard(WaylandConnection& connection) : connection_(connection) {}
WaylandKeyboard::~WaylandKeyboard() = default;

bool WaylandKeyboard::isOfferedBy(const WaylandConnection& connection) {
  return connection.versionOf(zwp_virtual_keyboard_manager_v1_interface.name) > 0;
}

bool WaylandKeyboard::isOwnLayout(std::string_view text) {
  return text.find(layoutName) != std::string_view::npos;
}

void WaylandKeyboard::tap(std::span<const Keysym> chord) {
  std::vector<KnownKey> keys;
  for (const Keysym symbol : chord)
    keys.push_back(*std::ranges::find(knownKeys, symbol, &KnownKey::symbol));
  if (device_ == nullptr) {
    device_ = std::make_unique<Device>();
    device_->manager.reset(connection_.bind<zwp_virtual_keyboard_manager_v1>(
        zwp_virtual_keyboard_manager_v1_interface, 1));
    if (device_->manager == nullptr) return device_.reset();
    device_->keyboard.reset(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(
        device_->manager.get(), connection_.seat()));
    device_->setLayout();
  }
  std::uint32_t modifiers = 0;
  for (const KnownKey& key : keys) {
    modifiers |= key.modifier;
    device_->set(key, WL_KEYBOARD_KEY_STATE_PRESSED, modifiers);
  }
  std::ranges::reverse(keys);
  for (const KnownKey& key : keys) {
    modifiers &= ~key.modifier;
    device_->set(key, WL_KEYBOARD_KEY_STATE_RELEASED, modifiers);
  }
  connection_.flush();
}

}  // namespace quillseal::linux
