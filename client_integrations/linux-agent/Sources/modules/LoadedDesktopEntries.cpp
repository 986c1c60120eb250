#include "modules/LoadedDesktopEntries.h"

#include <stdexcept>
#include <utility>

#include "core/text/Error.h"
#include "modules/EntriesModule.h"

namespace quillseal::linux {

LoadedDesktopEntries::LoadedDesktopEntries(LoadedModule module) : module_(std::move(module)) {}

DesktopEntries& LoadedDesktopEntries::entries() {
  try {
    if (entries_ == nullptr) module_.function<EntriesModule::Make>(EntriesModule::make)(entries_);
  } catch (const std::runtime_error& error) {
    throw Error({.domain = "DesktopEntries", .code = 1, .description = error.what()});
  }
  return *entries_;
}

std::optional<DesktopEntry> LoadedDesktopEntries::forWindow(const WindowTraits& traits) {
  return entries().forWindow(traits);
}

std::optional<DesktopEntry> LoadedDesktopEntries::withId(std::string_view id) {
  return entries().withId(id);
}

std::optional<DesktopEntry> LoadedDesktopEntries::defaultFor(const std::string& url) {
  return entries().defaultFor(url);
}

bool LoadedDesktopEntries::open(const std::string& url, std::string_view id) {
  return entries().open(url, id);
}

}  // namespace quillseal::linux
