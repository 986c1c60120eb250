#include "modules/LoadedShortcutSettings.h"

#include <stdexcept>
#include <utility>

#include "core/text/Error.h"
#include "modules/EntriesModule.h"

namespace quillseal::linux {

LoadedShortcutSettings::LoadedShortcutSettings(LoadedModule module) : module_(std::move(module)) {}

LoadedModule LoadedShortcutSettings::usualModule() {
  return LoadedModule({.places = LoadedModule::usualPlaces(EntriesModule::fileName),
                       .version = QUILLSEAL_VERSION,
                       .duty = "knows the desktop's settings"});
}

ShortcutSettings& LoadedShortcutSettings::settings() {
  try {
    if (settings_ == nullptr)
      module_.function<EntriesModule::MakeShortcuts>(EntriesModule::makeShortcuts)(settings_);
  } catch (const std::runtime_error& error) {
    throw Error({.domain = "ShortcutSettings", .code = 1, .description = error.what()});
  }
  return *settings_;
}

ShortcutState LoadedShortcutSettings::stateOf(const CustomShortcut& shortcut) {
  return settings().stateOf(shortcut);
}

std::string LoadedShortcutSettings::keys() {
  return settings().keys();
}

bool LoadedShortcutSettings::add(const CustomShortcut& shortcut) {
  return settings().add(shortcut);
}

}  // namespace quillseal::linux
