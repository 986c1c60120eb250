#include "wayland/KwinKeyboard.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "desktop/SigningHotkey.h"
#include "fake-input-client-protocol.h"
#include "keyboard/KeyChords.h"
#include "session/ScreenLock.h"
#include "wayland/ProxyHandle.h"

namespace quillseal::linux {
namespace {

// The first version that presses keys. From version 5 on KWin releases only keys that the same
// program has pressed: the keys of the hotkey, which the person may still hold, would then take
// part in the chords below.
constexpr std::uint32_t version = 4;

// XKB key codes are evdev's plus 8.
constexpr std::uint32_t evdevOffset = 8;

// The keys that change the meaning of another key, among them the modifiers of the hotkey. Caps
// Lock is here because some people use it as another modifier.
constexpr std::array holdable = {KEY_LEFTCTRL,  KEY_RIGHTCTRL,  KEY_LEFTALT,
                                 KEY_RIGHTALT,  KEY_LEFTMETA,   KEY_RIGHTMETA,
                                 KEY_LEFTSHIFT, KEY_RIGHTSHIFT, KEY_CAPSLOCK};

/// Returns the key of the hotkey's letter, where it usually is.
std::uint32_t keyOfHotkey() {
  return usualKeyOf(chordOf(desktop::signingHotkey).back()) - evdevOffset;
}

/// Returns the index of the layout in use; nothing when KDE's keyboard service does not answer.
std::optional<std::uint32_t> layoutInUse(DesktopBus& bus) {
  const DesktopBus::Message answer = bus.call({.service = "org.kde.keyboard",
                                               .path = "/Layouts",
                                               .interface = "org.kde.KeyboardLayouts",
                                               .name = "getLayout"},
                                              "");
  std::uint32_t number = 0;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "u", &number) <= 0)
    return std::nullopt;
  return number;
}

}  // namespace

struct KwinKeyboard::Device {
  wayland::ProxyHandle<org_kde_kwin_fake_input> input;

  void press(std::uint32_t key) const {
    org_kde_kwin_fake_input_keyboard_key(input.get(), key, WL_KEYBOARD_KEY_STATE_PRESSED);
  }
  void release(std::uint32_t key) const {
    org_kde_kwin_fake_input_keyboard_key(input.get(), key, WL_KEYBOARD_KEY_STATE_RELEASED);
  }
};

KwinKeyboard::KwinKeyboard(WaylandConnection& connection, DesktopBus* bus)
    : connection_(connection), bus_(bus), layout_(connection, [this] { known_.clear(); }) {}

KwinKeyboard::~KwinKeyboard() = default;

bool KwinKeyboard::isOfferedBy(const WaylandConnection& connection) {
  return connection.versionOf(org_kde_kwin_fake_input_interface.name) == version;
}

void KwinKeyboard::prepare() {
  isCovered_ = bus_ == nullptr || isScreenLocked(*bus_) || isEffectTakingKeys(*bus_);
  layoutInUse_ = isCovered_ ? std::nullopt : layoutInUse(*bus_);
}

std::optional<std::uint32_t> KwinKeyboard::keyFor(Keysym symbol) {
  if (const auto key = fixedKeyOf(symbol)) return key;
  auto found = known_.find(symbol);
  if (found == known_.end()) found = known_.emplace(symbol, layout_.keysFor(symbol)).first;
  const std::vector<std::optional<std::uint32_t>>& keys = found->second;
  const auto first = std::ranges::find_if(keys, [](const auto& key) { return key.has_value(); });
  if (first == keys.end()) return std::nullopt;
  // For a layout without the letter, applications use the key of one that has it.
  const bool isOne =
      std::ranges::all_of(keys, [&](const auto& key) { return !key.has_value() || key == *first; });
  if (isOne) return **first - evdevOffset;
  if (!layoutInUse_ || *layoutInUse_ >= keys.size()) return std::nullopt;
  return keys[*layoutInUse_].value_or(**first) - evdevOffset;
}

std::vector<std::uint32_t> KwinKeyboard::keysFor(std::span<const Keysym> chord) {
  std::vector<std::uint32_t> keys;
  for (const Keysym symbol : chord) {
    if (const auto key = keyFor(symbol)) {
      keys.push_back(*key);
      continue;
    }
    if (symbol == XKB_KEY_c) return {KEY_LEFTCTRL, KEY_INSERT};
    if (symbol == XKB_KEY_v) return {KEY_LEFTSHIFT, KEY_INSERT};
    // If no layout has Latin letters, the key has no other meaning.
    const bool isNowhere = std::ranges::none_of(
        known_[symbol], [](const auto& candidate) { return candidate.has_value(); });
    if (!isNowhere || symbol != XKB_KEY_a) return {};
    keys.push_back(KEY_A);
  }
  return keys;
}

KwinKeyboard::Device* KwinKeyboard::device() {
  if (device_ != nullptr) return device_.get();
  auto* const input =
      connection_.bind<org_kde_kwin_fake_input>(org_kde_kwin_fake_input_interface, version);
  if (input == nullptr) return nullptr;
  device_ = std::make_unique<Device>();
  device_->input.reset(input);
  org_kde_kwin_fake_input_authenticate(input, "Quillseal",
                                       "copies the selection and pastes the signed text");
  return device_.get();
}

void KwinKeyboard::releaseHeldKeys() {
  Device* const keyboard = device();
  if (keyboard == nullptr) return;
  keyboard->release(keyOfHotkey());
  for (const int key : holdable)
    keyboard->release(static_cast<std::uint32_t>(key));
  connection_.flush();
}

void KwinKeyboard::tap(std::span<const Keysym> chord) {
  Device* const keyboard = device();
  if (keyboard == nullptr) return;
  std::vector<std::uint32_t> keys = keysFor(chord);
  for (const std::uint32_t key : keys)
    keyboard->press(key);
  std::ranges::reverse(keys);
  for (const std::uint32_t key : keys)
    keyboard->release(key);
  connection_.flush();
}

}  // namespace quillseal::linux
