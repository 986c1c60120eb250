#include "keys/PrivateFile.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "keys/KeyFailure.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

namespace {

constexpr std::size_t maximumSize = 64UL * 1024;

std::string quoted(const std::filesystem::path& path) {
  return "“" + path.string() + "”";
}

std::string reasonOf(int error) {
  return std::generic_category().message(error);
}

[[noreturn]] void fail(const std::string& action, const std::filesystem::path& path, int error) {
  throw KeyFailure("could not " + action + " " + quoted(path) + ": " + reasonOf(error) + ".");
}

void createFolders(const std::filesystem::path& folder) {
  if (::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return;
  if (errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder) {
    createFolders(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return;
  }
  fail("create the folder", folder, errno);
}

// Returns a negative number, with errno set, when the folder does not exist or cannot be opened.
int openFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0 && (errno == ENOTDIR || errno == ELOOP))
    throw KeyFailure(quoted(folder) +
                     " is a link or not a folder. Move it away, then enrol again in Settings.");
  return descriptor;
}

// The folder is opened once and its files are named relative to it, so that nobody can replace it
// between check and use.
void checkFolder(const FileDescriptor& folder, const std::filesystem::path& path) {
  struct stat status {};
  if (::fstat(folder.get(), &status) != 0) fail("examine", path, errno);
  if (status.st_uid != ::geteuid())
    throw KeyFailure("the folder " + quoted(path) +
                     " belongs to another user. Move it away, then enrol again in Settings.");
  if ((status.st_mode & 077U) != 0 && ::fchmod(folder.get(), 0700) != 0)
    fail("protect the folder", path, errno);
}

std::string readAll(const FileDescriptor& file, const std::filesystem::path& path) {
  std::string contents(maximumSize + 1, '\0');
  std::size_t length = 0;
  while (length < contents.size()) {
    const ssize_t got = ::read(file.get(), contents.data() + length, contents.size() - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail("read", path, errno);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
  }
  if (length > maximumSize)
    throw KeyFailure("the file " + quoted(path) +
                     " is far too large for a key. Move it away, then enrol again in Settings.");
  contents.resize(length);
  return contents;
}

}  // namespace

PrivateFile::PrivateFile(std::filesystem::path path) : path_(std::move(path)) {}

bool PrivateFile::exists() const noexcept {
  struct stat status {};
  return ::lstat(path_.c_str(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

std::optional<std::string> PrivateFile::read() const {
  const std::filesystem::path folderPath = path_.parent_path();
  const FileDescriptor folder(openFolder(folderPath));
  if (!folder.isOpen()) {
    if (errno == ENOENT) return std::nullopt;
    fail("open the folder", folderPath, errno);
  }
  checkFolder(folder, folderPath);

  const std::string name = path_.filename().string();
  // Without O_NONBLOCK, opening a named pipe in the file's place would hang.
  const FileDescriptor file(
      ::openat(folder.get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file.isOpen()) {
    if (errno == ENOENT) return std::nullopt;
    if (errno == ELOOP)
      throw KeyFailure(
          "the file " + quoted(path_) +
          " is only a link to another one. Remove the link, then enrol again in Settings.");
    fail("open", path_, errno);
  }
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) fail("examine", path_, errno);
  if (!S_ISREG(status.st_mode))
    throw KeyFailure(quoted(path_) + " is not a file. Move it away, then enrol again in Settings.");
  if (status.st_uid != ::geteuid())
    throw KeyFailure("the file " + quoted(path_) +
                     " belongs to another user. Move it away, then enrol again in Settings.");
  if ((status.st_mode & 077U) != 0)
    throw KeyFailure(
        "the file " + quoted(path_) +
        " can be opened by other users. If they may have copied it, enrol again in Settings; "
        "otherwise run: chmod 600 '" +
        path_.string() + "'");
  return readAll(file, path_);
}

void PrivateFile::requireWritable() const {
  const std::filesystem::path folderPath = path_.parent_path();
  createFolders(folderPath);
  const FileDescriptor folder(openFolder(folderPath));
  if (!folder.isOpen()) fail("open the folder", folderPath, errno);
  checkFolder(folder, folderPath);
  if (::faccessat(folder.get(), ".", W_OK | X_OK, 0) != 0) fail("write in", folderPath, errno);
}

void PrivateFile::replace(std::string_view contents) const {
  const std::filesystem::path folderPath = path_.parent_path();
  createFolders(folderPath);
  const FileDescriptor folder(openFolder(folderPath));
  if (!folder.isOpen()) fail("open the folder", folderPath, errno);
  checkFolder(folder, folderPath);

  const std::string name = path_.filename().string();
  const std::string fresh = "." + name + ".new";
  // An interrupted run may have left one; O_EXCL then guarantees a new file.
  ::unlinkat(folder.get(), fresh.c_str(), 0);
  try {
    {
      const FileDescriptor file(::openat(
          folder.get(), fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
      if (!file.isOpen()) fail("create", folderPath / fresh, errno);
      if (!writeAll(file, contents) || ::fsync(file.get()) != 0) fail("write", path_, errno);
    }
    if (::renameat(folder.get(), fresh.c_str(), folder.get(), name.c_str()) != 0)
      fail("replace", path_, errno);
  } catch (...) {
    ::unlinkat(folder.get(), fresh.c_str(), 0);
    throw;
  }
  if (::fsync(folder.get()) != 0) fail("write the folder", folderPath, errno);
}

void PrivateFile::remove() const noexcept {
  ::unlink(path_.c_str());
}

}  // namespace quillseal::linux
