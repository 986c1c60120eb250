#include "session/JournalLog.h"

#define SD_JOURNAL_SUPPRESS_LOCATION
#include <array>
#include <cstdio>
#include <string>

#include <poll.h>
#include <sys/uio.h>
#include <syslog.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

namespace quillseal::linux {
namespace {

constexpr auto journalSocket = "/run/systemd/journal/socket";

std::string printable(std::string_view line) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string result;
  result.reserve(line.size());
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7F) {
      result += c;
    } else {
      result += "\\x";
      result += digits[byte >> 4];
      result += digits[byte & 0xF];
    }
  }
  return result;
}

// Writing to a stopped terminal or to a full pipe would block.
bool takesOutput(int descriptor) {
  pollfd output{.fd = descriptor, .events = POLLOUT, .revents = 0};
  return poll(&output, 1, 0) > 0;
}

iovec field(std::string& text) {
  return {.iov_base = text.data(), .iov_len = text.size()};
}

}  // namespace

void JournalLog::write(std::string_view line) {
  const std::string text = printable(line);
  if (echo_ == Echo::standardError && takesOutput(STDERR_FILENO))
    static_cast<void>(std::fprintf(stderr, "%s\n", text.c_str()));
  if (access(journalSocket, W_OK) != 0) {
    syslog(LOG_USER | LOG_INFO, "%s", text.c_str());
    return;
  }
  std::string message = "MESSAGE=" + text;
  std::string identifier = "SYSLOG_IDENTIFIER=quillseal";
  std::string priority = "PRIORITY=6";
  const std::array fields = {field(message), field(identifier), field(priority)};
  sd_journal_sendv(fields.data(), static_cast<int>(fields.size()));
}

}  // namespace quillseal::linux
