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

/// What tells the name of the time zone.
struct TimeZoneSources {
  std::optional<std::string> variable;  ///< the environment's TZ
  std::filesystem::path localtime;      ///< where the link /etc/localtime leads; may be empty
  std::string timezoneFile;             ///< the content of /etc/timezone; may be empty
  int secondsFromGmt = 0;               ///< of the zone in force
  std::function<bool(const std::string&)> isInstalled;  ///< whether a zone of that name is
};

/// The IANA name of the zone in force. TZ decides where it is set, whether or not it names a zone,
/// unless it only points to /etc/localtime; else the link does, else the file. Where none of them
/// names a zone, a fixed one of the same offset stands for it, or "UTC" where there is none.
[[nodiscard]] std::string timeZoneIdentifier(const TimeZoneSources& sources);

}  // namespace quillseal::linux
