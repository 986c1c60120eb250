#include "applications/GioDesktopEntries.h"

#include <algorithm>
#include <filesystem>

#include <gio/gdesktopappinfo.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::linux {
namespace {

constexpr std::chrono::minutes answerHolds{5};

void releaseAll(GList* objects) {
  g_list_free_full(objects, g_object_unref);
}

using AppInfo = UniqueHandle<GDesktopAppInfo, ::g_object_unref>;
using AppInfos = UniqueHandle<GList, releaseAll>;

std::string text(const char* value) {
  return value == nullptr ? std::string() : std::string(value);
}

bool sameIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::ranges::equal(a, b, {}, g_ascii_tolower, g_ascii_tolower);
}

std::string_view idOf(GDesktopAppInfo* info) {
  constexpr std::string_view suffix = ".desktop";
  const char* id = g_app_info_get_id(G_APP_INFO(info));
  std::string_view result = id == nullptr ? "" : id;
  if (result.ends_with(suffix)) result.remove_suffix(suffix.size());
  return result;
}

std::string value(GDesktopAppInfo* info, const char* key) {
  const UniqueHandle<char, ::g_free> found(g_desktop_app_info_get_string(info, key));
  return text(found.get());
}

DesktopEntry entryOf(GDesktopAppInfo* info) {
  return {.id = std::string(idOf(info)),
          .name = text(g_app_info_get_name(G_APP_INFO(info))),
          .categories = text(g_desktop_app_info_get_categories(info)),
          .executable = std::filesystem::path(text(g_app_info_get_executable(G_APP_INFO(info))))
                            .filename()
                            .string(),
          .snap = value(info, "X-SnapInstanceName"),
          // With this option, `flatpak run` exports each file on the command line to the program
          // through the document portal.
          .seesOurFiles = value(info, "X-Flatpak").empty() ||
                          value(info, "Exec").find("--file-forwarding") != std::string::npos};
}

AppInfo infoWithId(std::string_view id) {
  if (id.empty()) return nullptr;
  return AppInfo(g_desktop_app_info_new((std::string(id) + ".desktop").c_str()));
}

std::optional<DesktopEntry> bestMatch(const WindowTraits& traits) {
  std::optional<DesktopEntry> best;
  int bestRank = 4;
  const AppInfos all(g_app_info_get_all());
  for (const GList* item = all.get(); item != nullptr; item = item->next) {
    auto* const info = G_DESKTOP_APP_INFO(item->data);
    const char* startupClass = g_desktop_app_info_get_startup_wm_class(info);
    const auto matches = [](std::string_view wanted, std::string_view offered) {
      return !wanted.empty() && sameIgnoringCase(wanted, offered);
    };
    const std::string_view id = idOf(info);
    int rank = 4;
    if (startupClass != nullptr && matches(traits.windowClass, startupClass))
      rank = 0;
    else if (matches(traits.gtkApplicationId, id))
      rank = 1;
    else if (matches(traits.windowClass, id))
      rank = 2;
    else if (matches(traits.executable, id))
      rank = 3;
    if (rank < bestRank) {
      bestRank = rank;
      best = entryOf(info);
    }
  }
  return best;
}

}  // namespace

std::optional<DesktopEntry> GioDesktopEntries::forWindow(const WindowTraits& traits) {
  const auto now = std::chrono::steady_clock::now();
  if (!lastAnswer_ || lastAnswer_->traits != traits || now - lastAnswer_->when > answerHolds)
    lastAnswer_ = Answer{.traits = traits, .entry = bestMatch(traits), .when = now};
  return lastAnswer_->entry;
}

std::optional<DesktopEntry> GioDesktopEntries::withId(std::string_view id) {
  const AppInfo info = infoWithId(id);
  if (info == nullptr) return std::nullopt;
  return entryOf(info.get());
}

std::optional<DesktopEntry> GioDesktopEntries::defaultFor(const std::string& url) {
  const std::string scheme = url.substr(0, url.find(':'));
  const UniqueHandle<GAppInfo, ::g_object_unref> info(
      g_app_info_get_default_for_uri_scheme(scheme.c_str()));
  if (info == nullptr || !G_IS_DESKTOP_APP_INFO(info.get())) return std::nullopt;
  return entryOf(G_DESKTOP_APP_INFO(info.get()));
}

bool GioDesktopEntries::open(const std::string& url, std::string_view id) {
  const AppInfo info = infoWithId(id);
  if (info == nullptr) return false;
  std::string argument = url;
  GList uris{.data = argument.data(), .next = nullptr, .prev = nullptr};
  return g_app_info_launch_uris(G_APP_INFO(info.get()), &uris, nullptr, nullptr) != FALSE;
}

}  // namespace quillseal::linux
