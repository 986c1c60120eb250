#pragma once

#include "desktop/WallClock.h"

namespace quillseal::mac {

/// Date and time zone of the system settings.
class MacWallClock final : public desktop::WallClock {
 public:
  [[nodiscard]] std::string today() const override;
  [[nodiscard]] desktop::TimeZone timeZone() const override;
};

}  // namespace quillseal::mac
