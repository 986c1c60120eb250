#include "portal/InstalledPortals.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "session/Environment.h"

namespace quillseal::linux {
namespace {

std::vector<std::filesystem::path> portalFolders() {
  // For systems that keep their files elsewhere; the portal then reads nothing else.
  if (const std::string only = environmentVariable("XDG_DESKTOP_PORTAL_DIR"); !only.empty())
    return {only};
  const std::string home = environmentVariable("XDG_DATA_HOME");
  const std::string system = environmentVariable("XDG_DATA_DIRS");
  std::string folders = home.empty() ? environmentVariable("HOME") + "/.local/share" : home;
  folders += ':' + (system.empty() ? "/usr/local/share:/usr/share" : system) + ':';
  std::vector<std::filesystem::path> result;
  for (std::size_t end = 0; (end = folders.find(':')) != std::string::npos;
       folders.erase(0, end + 1))
    if (end > 0)
      result.push_back(std::filesystem::path(folders.substr(0, end)) / "xdg-desktop-portal" /
                       "portals");
  return result;
}

/// Whether a line of a key file sets this key. There may be blanks before and after the "=".
bool isOf(std::string_view line, std::string_view key) {
  if (!line.starts_with(key)) return false;
  const std::size_t sign = line.find_first_not_of(" \t", key.size());
  return sign != std::string_view::npos && line[sign] == '=';
}

bool offersKeysOrHotkey(const std::filesystem::path& file) {
  const auto offers = [](std::string_view line, std::string_view interface) {
    return line.find(interface) != std::string_view::npos;
  };
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);)
    if (isOf(line, "Interfaces") && (offers(line, "org.freedesktop.impl.portal.RemoteDesktop") ||
                                     offers(line, "org.freedesktop.impl.portal.GlobalShortcuts")))
      return true;
  return false;
}

}  // namespace

bool isUsefulPortalInstalled() {
  return std::ranges::any_of(portalFolders(), [](const std::filesystem::path& folder) {
    std::error_code none;
    const std::filesystem::directory_iterator files(folder, none);
    return std::any_of(begin(files), end(files), [](const auto& file) {
      return file.path().extension() == ".portal" && offersKeysOrHotkey(file.path());
    });
  });
}

}  // namespace quillseal::linux
