#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Desktop/Defaults.h"
#include "Desktop/Log.h"
#include "Desktop/MainLoop.h"

namespace quillseal::mac {

/// The standard user defaults of the application.
class MacDefaults final : public desktop::Defaults {
 public:
  struct Services {
    desktop::MainLoop& loop;
    desktop::Log& log;
  };

  /// Changes that other programs make are noticed for `watchedKeys` only: the system announces them
  /// key by key. The services outlive this object and its observers.
  MacDefaults(Services services, std::vector<std::string> watchedKeys)
      : services_(services), watchedKeys_(std::move(watchedKeys)) {}

  [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
  [[nodiscard]] bool boolean(std::string_view key) const override;
  void setString(std::string_view key, std::string_view value) override;
  [[nodiscard]] desktop::Ticket observe(std::function<void()> changed) override;

 private:
  Services services_;
  std::vector<std::string> watchedKeys_;
};

}  // namespace quillseal::mac
