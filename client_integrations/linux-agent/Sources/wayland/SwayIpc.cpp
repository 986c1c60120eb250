#include "wayland/SwayIpc.h"

#include <array>
#include <chrono>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quillseal::linux {
namespace {

using std::chrono::milliseconds;

constexpr std::string_view magic = "i3-ipc";
constexpr std::size_t headerSize = magic.size() + 2 * sizeof(std::uint32_t);
constexpr std::size_t longestMessage = std::size_t{16} * 1024 * 1024;
constexpr std::chrono::seconds timeout{1};

template <typename Number>
void append(std::string& message, Number number) {
  std::array<char, sizeof number> bytes{};
  std::memcpy(bytes.data(), &number, sizeof number);
  message.append(bytes.data(), bytes.size());
}

std::uint32_t numberAt(std::string_view message, std::size_t place) {
  std::uint32_t number = 0;
  std::memcpy(&number, message.data() + place, sizeof number);
  return number;
}

/// Not open when no process accepts there.
FileDescriptor connectedTo(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path) return {};
  path.copy(address.sun_path, path.size());
  // Else connecting would wait while a sway that hangs has too many connections to accept.
  FileDescriptor descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  const auto* generic = reinterpret_cast<const sockaddr*>(&address);
  if (connect(descriptor.get(), generic, sizeof address) != 0) return {};
  return descriptor;
}

}  // namespace

std::unique_ptr<SwayIpc> SwayIpc::open(const std::string& path) {
  FileDescriptor descriptor = connectedTo(path);
  if (!descriptor.isOpen()) return nullptr;
  return std::unique_ptr<SwayIpc>(new SwayIpc(path, std::move(descriptor)));
}

std::optional<std::string> SwayIpc::ask(Request request, std::string_view text) {
  if (!answers_) {
    // On the former connection a late answer would be taken for the next one.
    socket_ = connectedTo(path_);
    received_.clear();
    if (!socket_.isOpen()) return std::nullopt;
  }
  std::string message(magic);
  append(message, static_cast<std::uint32_t>(text.size()));
  append(message, static_cast<std::uint32_t>(request));
  message += text;
  answers_ = send(socket_.get(), message.data(), message.size(), MSG_NOSIGNAL) ==
             static_cast<ssize_t>(message.size());
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  while (answers_) {
    if (auto answer = next()) return std::move(answer->text);
    const auto left =
        std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now()).count();
    pollfd ready{.fd = socket_.get(), .events = POLLIN, .revents = 0};
    answers_ = left > 0 && poll(&ready, 1, static_cast<int>(left)) > 0 && read();
  }
  return std::nullopt;
}

std::optional<std::vector<SwayIpc::Message>> SwayIpc::receive() {
  if (!read()) return std::nullopt;
  std::vector<Message> messages;
  while (auto message = next())
    messages.push_back(*std::move(message));
  return messages;
}

bool SwayIpc::read() {
  std::array<char, std::size_t{16} * 1024> piece{};
  const ssize_t count = recv(socket_.get(), piece.data(), piece.size(), MSG_DONTWAIT);
  if (count < 0) return errno == EAGAIN || errno == EINTR;
  received_.append(piece.data(), static_cast<std::size_t>(count));
  const bool isSane =
      received_.size() < headerSize ||
      (received_.starts_with(magic) && numberAt(received_, magic.size()) <= longestMessage);
  return count > 0 && isSane;
}

std::optional<SwayIpc::Message> SwayIpc::next() {
  if (received_.size() < headerSize) return std::nullopt;
  const std::size_t size = numberAt(received_, magic.size());
  if (received_.size() - headerSize < size) return std::nullopt;
  Message message{.type = numberAt(received_, magic.size() + sizeof(std::uint32_t)),
                  .text = received_.substr(headerSize, size)};
  received_.erase(0, headerSize + size);
  return message;
}

}  // namespace quillseal::linux
