#pragma once

#include "desktop/MachineIdentity.h"

namespace quillseal::mac {

/// The platform UUID of the I/O registry.
class MacMachineIdentity final : public desktop::MachineIdentity {
 public:
  [[nodiscard]] std::optional<std::string> platformUuid() const override;
};

}  // namespace quillseal::mac
