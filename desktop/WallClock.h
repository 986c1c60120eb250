#pragma once

#include <string>

namespace quillseal::desktop {

struct TimeZone {
  std::string identifier;  ///< IANA name, for example "Europe/Berlin"
  int secondsFromGmt = 0;  ///< at the present instant, east positive
};

/// Date and zone as the user's settings have them at the moment of the call. Any thread.
class WallClock {
 public:
  virtual ~WallClock() = default;

  /// Today as the pattern "yyyy-MM-dd" gives it in the user's time zone and locale.
  [[nodiscard]] virtual std::string today() const = 0;

  [[nodiscard]] virtual TimeZone timeZone() const = 0;
};

}  // namespace quillseal::desktop
