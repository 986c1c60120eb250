#pragma once

#include <optional>
#include <string>

namespace quillseal::desktop {

/// Who this machine is. Any thread.
class MachineIdentity {
 public:
  virtual ~MachineIdentity() = default;

  /// The platform's identifier of the machine, an upper-case hyphenated UUID that stays the same
  /// over restarts; nothing when the platform has none.
  [[nodiscard]] virtual std::optional<std::string> platformUuid() const = 0;
};

}  // namespace quillseal::desktop
