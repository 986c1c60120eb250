#import "MacDesktop/MacFiles.h"

#include <cerrno>
#include <cstdio>

#include <unistd.h>

#import <Foundation/Foundation.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

bool writeAll(int file, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t written = ::write(file, contents.data(), contents.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    contents.remove_prefix(static_cast<std::size_t>(written));
  }
  return ::fsync(file) == 0;
}

bool createFolderOf(const std::string& path) {
  NSString* folder = nsString(path).stringByDeletingLastPathComponent;
  return [NSFileManager.defaultManager createDirectoryAtPath:folder
                                 withIntermediateDirectories:YES
                                                  attributes:nil
                                                       error:nil];
}

}  // namespace

std::string MacFiles::homeDirectory() const {
  return callSystem([] { return utf8(NSHomeDirectory()); });
}

bool MacFiles::replace(const std::string& path, std::string_view contents) {
  if (!callSystem([&] { return createFolderOf(path); })) return false;
  // mkstemp makes a file that only its owner can read; NSData's atomic write does not.
  std::string temporary = path + ".XXXXXX";
  const int file = ::mkstemp(temporary.data());
  if (file < 0) return false;
  const bool written = writeAll(file, contents);
  const bool closed = ::close(file) == 0;
  if (written && closed && ::rename(temporary.c_str(), path.c_str()) == 0) return true;
  ::unlink(temporary.c_str());
  return false;
}

}  // namespace quillseal::mac
