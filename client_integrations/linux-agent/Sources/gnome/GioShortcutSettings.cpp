#include "gnome/GioShortcutSettings.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <gio/gio.h>

#include "core/text/UniqueHandle.h"
#include "keyboard/Accelerator.h"

namespace quillseal::linux {
namespace {

using Schema = UniqueHandle<GSettingsSchema, ::g_settings_schema_unref>;
using Settings = UniqueHandle<GSettings, ::g_object_unref>;
using Value = UniqueHandle<GVariant, ::g_variant_unref>;

constexpr const char* mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* custom = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* customList = "custom-keybindings";
constexpr const char* ownPath =
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/quillseal/";
constexpr auto schemasWithKeys = std::to_array<const char*>(
    {mediaKeys, "org.gnome.desktop.wm.keybindings", "org.gnome.mutter.keybindings",
     "org.gnome.mutter.wayland.keybindings", "org.gnome.shell.keybindings"});

/// Null where the schema is not installed, for which GSettings would end the program.
Settings settingsOf(const char* id, const char* path = nullptr) {
  GSettingsSchemaSource* const source = g_settings_schema_source_get_default();
  if (source == nullptr) return nullptr;
  const Schema schema(g_settings_schema_source_lookup(source, id, TRUE));
  if (schema == nullptr) return nullptr;
  return Settings(g_settings_new_full(schema.get(), nullptr, path));
}

std::vector<std::string> textsIn(GVariant* value) {
  std::vector<std::string> texts;
  if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING))
    texts.emplace_back(g_variant_get_string(value, nullptr));
  if (!g_variant_is_of_type(value, G_VARIANT_TYPE_STRING_ARRAY)) return texts;
  for (gsize index = 0; index < g_variant_n_children(value); ++index) {
    const Value child(g_variant_get_child_value(value, index));
    texts.emplace_back(g_variant_get_string(child.get(), nullptr));
  }
  return texts;
}

std::vector<std::string> textsOf(GSettings* settings, const char* key) {
  return textsIn(Value(g_settings_get_value(settings, key)).get());
}

bool usesKeys(const std::vector<std::string>& candidates, const std::string& keys) {
  return std::ranges::any_of(
      candidates, [&](const std::string& candidate) { return isSameAccelerator(candidate, keys); });
}

bool isTakenInSchema(const char* id, const std::string& keys) {
  const Settings settings = settingsOf(id);
  if (settings == nullptr) return false;
  GSettingsSchema* found = nullptr;
  g_object_get(settings.get(), "settings-schema", &found, nullptr);
  const Schema schema(found);
  const UniqueHandle<char*, ::g_strfreev> names(g_settings_schema_list_keys(schema.get()));
  for (char** name = names.get(); *name != nullptr; ++name)
    if (usesKeys(textsOf(settings.get(), *name), keys)) return true;
  return false;
}

bool isTakenByOwnShortcut(const std::vector<std::string>& paths, const std::string& keys) {
  return std::ranges::any_of(paths, [&](const std::string& path) {
    // GSettings ends the program for an invalid path, and users may write anything.
    if (!path.starts_with('/') || !path.ends_with('/') || path.find("//") != std::string::npos)
      return false;
    const Settings settings = settingsOf(custom, path.c_str());
    return usesKeys(textsOf(settings.get(), "binding"), keys);
  });
}

}  // namespace

ShortcutState GioShortcutSettings::stateOf(const CustomShortcut& shortcut) {
  const Settings list = settingsOf(mediaKeys);
  const Settings own = settingsOf(custom, ownPath);
  if (list == nullptr || own == nullptr) return ShortcutState::unsupported;
  const std::vector<std::string> paths = textsOf(list.get(), customList);
  if (!keys().empty()) return ShortcutState::present;
  if (g_settings_is_writable(list.get(), customList) == FALSE ||
      g_settings_is_writable(own.get(), "binding") == FALSE)
    return ShortcutState::locked;
  const bool isTaken = isTakenByOwnShortcut(paths, shortcut.keys) ||
                       std::ranges::any_of(schemasWithKeys, [&](const char* id) {
                         return isTakenInSchema(id, shortcut.keys);
                       });
  return isTaken ? ShortcutState::taken : ShortcutState::missing;
}

std::string GioShortcutSettings::keys() {
  const Settings list = settingsOf(mediaKeys);
  const Settings own = settingsOf(custom, ownPath);
  if (list == nullptr || own == nullptr) return {};
  const std::vector<std::string> paths = textsOf(list.get(), customList);
  if (std::ranges::find(paths, ownPath) == paths.end()) return {};
  return textsOf(own.get(), "binding").front();
}

bool GioShortcutSettings::add(const CustomShortcut& shortcut) {
  const ShortcutState state = stateOf(shortcut);
  if (state != ShortcutState::missing) return state == ShortcutState::present;
  const Settings own = settingsOf(custom, ownPath);
  const Settings list = settingsOf(mediaKeys);
  std::vector<std::string> paths = textsOf(list.get(), customList);
  // If the user has only removed its keys, it is still in the list.
  if (std::ranges::find(paths, ownPath) == paths.end()) paths.emplace_back(ownPath);
  std::vector<const char*> pointers;
  pointers.reserve(paths.size() + 1);
  for (const std::string& path : paths)
    pointers.push_back(path.c_str());
  pointers.push_back(nullptr);
  // The list comes last: GNOME reads the shortcut as soon as it is in there.
  const bool isWritten =
      g_settings_set_string(own.get(), "name", shortcut.name.c_str()) != FALSE &&
      g_settings_set_string(own.get(), "command", shortcut.command.c_str()) != FALSE &&
      g_settings_set_string(own.get(), "binding", shortcut.keys.c_str()) != FALSE &&
      g_settings_set_strv(list.get(), customList, pointers.data()) != FALSE;
  g_settings_sync();
  return isWritten;
}

}  // namespace quillseal::linux
