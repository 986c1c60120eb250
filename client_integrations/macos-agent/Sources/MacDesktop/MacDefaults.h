#pragma once

#include <string>
#include <utility>
#include <vector>

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Defaults.h"
#include "desktop/Log.h"

namespace quillseal::mac {

/// The standard user defaults of the application.
class MacDefaults final : public desktop::Defaults {
 public:
  struct Services {
    const MacMainLoop& loop;
    desktop::Log& log;
  };

  /// Changes by other programs are noticed only for `watchedKeys`, because the system reports them
  /// for single keys. The log outlives this object.
  MacDefaults(Services services, std::vector<std::string> watchedKeys)
      : poster_(services.loop.poster()), log_(services.log), watchedKeys_(std::move(watchedKeys)) {}

  [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
  [[nodiscard]] bool boolean(std::string_view key) const override;
  void setString(std::string_view key, std::string_view value) override;
  [[nodiscard]] desktop::Ticket observe(std::function<void()> changed) override;

 private:
  MacMainLoop::Poster poster_;
  desktop::Log& log_;
  std::vector<std::string> watchedKeys_;
};

}  // namespace quillseal::mac
