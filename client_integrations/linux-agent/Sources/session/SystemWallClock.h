#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "desktop/WallClock.h"

namespace quillseal::linux {

/// The system's date in the Gregorian calendar and its time zone.
class SystemWallClock final : public desktop::WallClock {
 public:
  [[nodiscard]] std::string today() const override;
  [[nodiscard]] desktop::TimeZone timeZone() const override;
};

/// The sources of the time zone's name.
struct TimeZoneSources {
  std::optional<std::string> variable;  ///< the environment's TZ
  std::filesystem::path localtime;      ///< target of the link /etc/localtime; may be empty
  std::string timezoneFile;             ///< the content of /etc/timezone; may be empty
  int secondsFromGmt = 0;               ///< of the current zone
  std::function<bool(const std::string&)> isInstalled;  ///< whether a zone of that name is
};

/// Returns the IANA name of the current time zone. If TZ is set, only TZ counts, unless it points
/// to /etc/localtime; otherwise the link, then the file. If no name is found, the fixed zone of the
/// same offset, or "UTC" if there is none.
[[nodiscard]] std::string timeZoneIdentifier(const TimeZoneSources& sources);

}  // namespace quillseal::linux
