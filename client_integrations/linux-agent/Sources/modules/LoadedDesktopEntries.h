#pragma once

#include <memory>

#include "applications/DesktopEntries.h"
#include "session/LoadedModule.h"

namespace quillseal::linux {

/// The entries of `EntriesModule`. Loads the module at the first lookup.
class LoadedDesktopEntries final : public DesktopEntries {
 public:
  explicit LoadedDesktopEntries(LoadedModule module);

  [[nodiscard]] std::optional<DesktopEntry> forWindow(const WindowTraits& traits) override;
  [[nodiscard]] std::optional<DesktopEntry> withId(std::string_view id) override;
  [[nodiscard]] std::optional<DesktopEntry> defaultFor(const std::string& url) override;
  [[nodiscard]] bool open(const std::string& url, std::string_view id) override;

 private:
  [[nodiscard]] DesktopEntries& entries();

  LoadedModule module_;
  std::unique_ptr<DesktopEntries> entries_;
};

}  // namespace quillseal::linux
