#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// The user's settings: values by key, kept over restarts. A value of another type than asked for
/// counts as absent, but texts that plainly mean a boolean ("true", "YES", "1") are read as such.
/// Reading: any thread. Writing and observing: main thread.
class Defaults {
 public:
  virtual ~Defaults() = default;

  [[nodiscard]] virtual std::optional<std::string> string(std::string_view key) const = 0;

  /// False when absent.
  [[nodiscard]] virtual bool boolean(std::string_view key) const = 0;

  /// Stores the value for good before it returns. A failure to do so is logged by the adapter; the
  /// value holds for this process all the same.
  virtual void setString(std::string_view key, std::string_view value) = 0;

  /// Calls `changed` on the main thread, soon, after any change of any key, by this process or
  /// another.
  [[nodiscard]] virtual Ticket observe(std::function<void()> changed) = 0;
};

}  // namespace quillseal::desktop
