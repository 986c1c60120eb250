#pragma once

#include "desktop/MachineIdentity.h"

namespace quillseal::linux {

/// Identifies the machine by a keyed digest of its machine-id
/// (sd_id128_get_machine_app_specific(3)). The identifier is specific to this application and does
/// not reveal the machine-id.
class SystemMachineIdentity final : public desktop::MachineIdentity {
 public:
  [[nodiscard]] std::optional<std::string> platformUuid() const override;
};

}  // namespace quillseal::linux
