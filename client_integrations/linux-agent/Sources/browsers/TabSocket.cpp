#include "browsers/TabSocket.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "session/PrivateFolder.h"

namespace quillseal::linux::TabSocket {
namespace {

namespace fs = std::filesystem;

constexpr int waitingConnections = 16;
constexpr std::size_t largestPiece = 4096;

[[noreturn]] void fail(const std::string& action, const fs::path& path) {
  throw std::runtime_error("could not " + action + " “" + path.string() +
                           "”: " + std::generic_category().message(errno) + ".");
}

FileDescriptor newSocket() {
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!socket.isOpen()) fail("make", "socket");
  return socket;
}

using AddressCall = int (*)(int, const sockaddr*, socklen_t);

bool callWithAddress(AddressCall call, const FileDescriptor& socket, const fs::path& path) {
  sockaddr_un address{};
  const std::string& text = path.native();
  if (text.size() >= sizeof address.sun_path)
    throw std::runtime_error("“" + text + "” is too long for the name of a socket.");
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, text.data(), text.size());
  // The socket API takes every kind of address as a sockaddr.
  return call(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace

FileDescriptor listen() {
  if (connect()) throw std::runtime_error("another agent of this user listens already.");
  const fs::path place = runtimeFolder();
  const fs::path final = place / name;
  const fs::path provisional = place / (std::string(name) + "." + std::to_string(::getpid()));
  FileDescriptor socket = newSocket();
  ::unlink(provisional.c_str());
  if (!callWithAddress(&::bind, socket, provisional)) fail("listen at", provisional);
  if (::chmod(provisional.c_str(), S_IRUSR | S_IWUSR) != 0 ||
      ::listen(socket.get(), waitingConnections) != 0 ||
      ::rename(provisional.c_str(), final.c_str()) != 0) {
    const int error = errno;
    ::unlink(provisional.c_str());
    errno = error;
    fail("listen at", final);
  }
  return socket;
}

std::optional<FileDescriptor> connect() {
  FileDescriptor socket = newSocket();
  if (!callWithAddress(&::connect, socket, runtimeFolder() / name)) return std::nullopt;
  if (!isPeerThisUser(socket)) return std::nullopt;
  return socket;
}

std::optional<FileDescriptor> accept(const FileDescriptor& listening) {
  FileDescriptor socket(::accept4(listening.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
  if (!socket.isOpen()) {
    if (errno == EAGAIN || errno == EINTR || errno == ECONNABORTED) return std::nullopt;
    fail("accept a connection at", name);
  }
  if (!isPeerThisUser(socket)) return std::nullopt;
  return socket;
}

bool isPeerThisUser(const FileDescriptor& socket) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return ::getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         peer.uid == ::geteuid();
}

bool send(const FileDescriptor& socket, std::string_view bytes) {
  const ssize_t sent =
      ::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  return sent >= 0 && static_cast<std::size_t>(sent) == bytes.size();
}

std::string receive(const FileDescriptor& readable) {
  std::array<char, largestPiece> piece{};
  ssize_t count = -1;
  do {
    count = ::read(readable.get(), piece.data(), piece.size());
  } while (count < 0 && errno == EINTR);
  return {piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

}  // namespace quillseal::linux::TabSocket
