#import "MacDesktop/MacFiles.h"

#include <cerrno>
#include <cstdio>

#include <unistd.h>

#import <Foundation/Foundation.h>

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

}  // namespace

std::string MacFiles::homeDirectory() const { return utf8(NSHomeDirectory()); }

bool MacFiles::replace(const std::string& path, std::string_view contents) {
  NSString* folder = nsString(path).stringByDeletingLastPathComponent;
  if (![NSFileManager.defaultManager createDirectoryAtPath:folder
                               withIntermediateDirectories:YES
                                                attributes:nil
                                                     error:nil]) {
    return false;
  }
  // mkstemp makes a file that only its owner can read, which NSData's atomic writing does not.
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
