#include "session/SystemMachineIdentity.h"

#include <array>

#include <systemd/sd-id128.h>

#include "core/text/UnicodeText.h"

namespace quillseal::linux {
namespace {

/// Must never change: enrolled devices are identified by the digest made with it.
constexpr sd_id128_t applicationId =
    SD_ID128_MAKE(6e, 1b, 0d, 8c, 52, f4, 4a, 7d, 9a, 3e, c1, 77, 20, 5b, e8, 94);

}  // namespace

std::optional<std::string> SystemMachineIdentity::platformUuid() const {
  sd_id128_t id{};
  if (sd_id128_get_machine_app_specific(applicationId, &id) < 0) return std::nullopt;
  std::array<char, SD_ID128_UUID_STRING_MAX> text{};
  return unicode::uppercased(sd_id128_to_uuid_string(id, text.data()));
}

}  // namespace quillseal::linux
