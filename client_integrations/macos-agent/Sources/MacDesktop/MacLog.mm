#import "MacDesktop/MacLog.h"

#include <string>

#import <os/log.h>

namespace quillseal::mac {
namespace {

std::string withoutControls(std::string_view line) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string result;
  result.reserve(line.size());
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7f) {
      result += c;
    } else {
      result += {'\\', 'x', digits[byte >> 4], digits[byte & 0xf]};
    }
  }
  return result;
}

}  // namespace

void MacLog::write(std::string_view line) {
  static const os_log_t log = ::os_log_create("ai.kestle.quillseal", "agent");
  os_log(log, "%{public}s", withoutControls(line).c_str());
}

}  // namespace quillseal::mac
