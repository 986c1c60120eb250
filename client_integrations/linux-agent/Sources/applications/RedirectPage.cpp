#include "applications/RedirectPage.h"

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = "page-";
constexpr std::string_view suffix = ".html";

void removeLeftovers(const fs::path& folder) {
  std::error_code ignored;
  const auto now = fs::file_time_type::clock::now();
  for (const fs::directory_entry& file : fs::directory_iterator(folder, ignored)) {
    const std::string name = file.path().filename().string();
    if (!name.starts_with(prefix) || !name.ends_with(suffix)) continue;
    const fs::file_time_type written = file.last_write_time(ignored);
    if (!ignored && now - written > 2 * RedirectPage::life) ::unlink(file.path().c_str());
  }
}

}  // namespace

RedirectPage::RedirectPage(std::string_view url, const fs::path& folder) {
  removeLeftovers(folder);
  std::string path = folder / (std::string(prefix) + "XXXXXX" + std::string(suffix));
  const FileDescriptor file(::mkostemps(path.data(), static_cast<int>(suffix.size()), O_CLOEXEC));
  // No URL holds a quotation mark, an angle bracket or a backslash. location.replace keeps this
  // page out of the history.
  const std::string page =
      "<!DOCTYPE html><meta charset=\"utf-8\"><title>Quillseal</title><script>" +
      ("location.replace(\"" + std::string(url)) + "\")</script>\n";
  if (!file.isOpen() || !writeAll(file, page)) {
    const std::string reason = std::generic_category().message(errno);
    if (file.isOpen()) ::unlink(path.c_str());
    throw std::runtime_error("“" + path + "” could not be written: " + reason + ".");
  }
  path_ = std::move(path);
}

RedirectPage::~RedirectPage() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

RedirectPage::RedirectPage(RedirectPage&& other) noexcept
    : path_(std::exchange(other.path_, std::filesystem::path())) {}

}  // namespace quillseal::linux
