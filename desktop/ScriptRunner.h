#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/text/Error.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// Runs AppleScript. Main thread; scripts may take long (the system asks the user the first time),
/// so the adapter runs them elsewhere, one after the other.
class ScriptRunner {
 public:
  virtual ~ScriptRunner() = default;

  /// Compiles and runs `source`. `done` gets the result's text (nothing when it has none) or the
  /// system's description of the failure.
  [[nodiscard]] virtual Ticket run(
      const std::string& source, std::function<void(Outcome<std::optional<std::string>>)> done) = 0;
};

}  // namespace quillseal::desktop
