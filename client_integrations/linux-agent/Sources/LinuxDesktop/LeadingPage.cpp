#include "LinuxDesktop/LeadingPage.h"

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "LinuxDesktop/TabSocket.h"

namespace quillseal {
namespace {

constexpr std::string_view suffix = ".html";

bool writeAll(const FileDescriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

LeadingPage::LeadingPage(std::string_view url) {
  std::string path = TabSocket::folder() / ("page-XXXXXX" + std::string(suffix));
  const FileDescriptor file(::mkostemps(path.data(), static_cast<int>(suffix.size()), O_CLOEXEC));
  // No URL holds a quotation mark, an angle bracket or a backslash. What is replaced stays out of
  // the history.
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

LeadingPage::~LeadingPage() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

LeadingPage::LeadingPage(LeadingPage&& other) noexcept
    : path_(std::exchange(other.path_, std::filesystem::path())) {}

}  // namespace quillseal
