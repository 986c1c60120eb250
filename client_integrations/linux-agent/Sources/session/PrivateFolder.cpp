#include "session/PrivateFolder.h"

#include <cerrno>
#include <stdexcept>
#include <string>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "session/Environment.h"

namespace quillseal::linux {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& action, const fs::path& path) {
  throw std::runtime_error("could not " + action + " “" + path.string() +
                           "”: " + std::generic_category().message(errno) + ".");
}

void requireOwn(const fs::path& folder, mode_t forbidden) {
  struct stat status {};
  if (::lstat(folder.c_str(), &status) != 0) fail("examine", folder);
  if (!S_ISDIR(status.st_mode) || status.st_uid != ::geteuid() || (status.st_mode & forbidden) != 0)
    throw std::runtime_error("“" + folder.string() + "” is not a folder of this user alone.");
}

}  // namespace

fs::path privateFolderIn(const fs::path& parent) {
  requireOwn(parent, S_IWGRP | S_IWOTH);
  fs::path folder = parent / "quillseal";
  if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) fail("make", folder);
  requireOwn(folder, S_IRWXG | S_IRWXO);
  return folder;
}

fs::path runtimeFolder() {
  const fs::path runtime = environmentVariable("XDG_RUNTIME_DIR");
  if (!runtime.is_absolute()) throw std::runtime_error("XDG_RUNTIME_DIR names no folder.");
  return privateFolderIn(runtime);
}

}  // namespace quillseal::linux
