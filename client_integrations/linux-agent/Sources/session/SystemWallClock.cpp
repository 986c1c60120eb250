#include "session/SystemWallClock.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string_view>
#include <system_error>

#include "core/text/UnicodeText.h"

namespace quillseal::linux {
namespace {

constexpr std::string_view zoneFolder = "zoneinfo/";
constexpr std::string_view systemZone = "/etc/localtime";
constexpr const char* zoneRoot = "/usr/share/zoneinfo";

std::tm localTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  // localtime_r alone keeps using the zone from the start of the process.
  tzset();
  localtime_r(&now, &local);
  return local;
}

/// Returns the zone, such as "Europe/Berlin", from a path or a relative name; empty when it names
/// none.
std::string zoneNameOf(std::string_view path) {
  const std::size_t folder = path.rfind(zoneFolder);
  if (folder != std::string_view::npos) path.remove_prefix(folder + zoneFolder.size());
  for (const std::string_view variant : {"posix/", "right/"}) {
    if (path.starts_with(variant)) path.remove_prefix(variant.size());
  }
  constexpr std::string_view characters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_+-/";
  if (path.starts_with('/') || path.find_first_not_of(characters) != std::string_view::npos) {
    return "";
  }
  return std::string(path);
}

/// Returns the fixed zone with this offset, a whole number of hours, or "UTC". The signs of the
/// database's names are inverted: "Etc/GMT-1" is ahead of UTC.
std::string fixedZone(int secondsFromGmt) {
  constexpr int hour = 3600;
  const int hours = secondsFromGmt / hour;
  if (secondsFromGmt % hour != 0 || hours == 0 || hours < -12 || hours > 14) return "UTC";
  return std::string("Etc/GMT") + (hours > 0 ? "-" : "+") + std::to_string(std::abs(hours));
}

bool isInstalledZone(const std::string& name) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(std::filesystem::path(zoneRoot) / name, ignored);
}

}  // namespace

std::string timeZoneIdentifier(const TimeZoneSources& sources) {
  std::string_view value = sources.variable ? std::string_view(*sources.variable) : systemZone;
  if (value.starts_with(':')) value.remove_prefix(1);
  if (value != systemZone) {
    std::string name = zoneNameOf(value);
    if (!name.empty() && sources.isInstalled(name)) return name;
    return fixedZone(sources.secondsFromGmt);
  }
  const std::string linked = sources.localtime.string();
  const std::string_view line =
      std::string_view(sources.timezoneFile).substr(0, sources.timezoneFile.find('\n'));
  for (const std::string_view candidate : {std::string_view(linked), unicode::trimmed(line)}) {
    std::string name = zoneNameOf(candidate);
    if (!name.empty() && sources.isInstalled(name)) return name;
  }
  return fixedZone(sources.secondsFromGmt);
}

std::string SystemWallClock::today() const {
  const std::tm local = localTime();
  std::array<char, 16> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d", &local);
  return {text.data(), length};
}

desktop::TimeZone SystemWallClock::timeZone() const {
  TimeZoneSources sources;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): no thread of this program changes the environment
  if (const char* variable = std::getenv("TZ")) sources.variable = variable;
  std::error_code ignored;
  sources.localtime = std::filesystem::read_symlink(systemZone, ignored);
  std::ifstream file("/etc/timezone");
  std::getline(file, sources.timezoneFile);
  sources.secondsFromGmt = static_cast<int>(localTime().tm_gmtoff);
  sources.isInstalled = isInstalledZone;
  return {.identifier = timeZoneIdentifier(sources), .secondsFromGmt = sources.secondsFromGmt};
}

}  // namespace quillseal::linux
