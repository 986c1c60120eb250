#pragma once

#include "desktop/MachineIdentity.h"

namespace quillseal::linux {

/// The machine by its machine-id, of which only a keyed digest is told (sd_id128_get_machine(3)):
/// the identifier is this application's own and does not lead back to the machine-id.
class SystemMachineIdentity final : public desktop::MachineIdentity {
 public:
  [[nodiscard]] std::optional<std::string> platformUuid() const override;
};

}  // namespace quillseal::linux
