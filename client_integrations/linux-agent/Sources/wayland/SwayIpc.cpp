#include "wayland/SwayIpc.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <cstring>
#include <map>
#include <set>
#include <sstream>

#include <nlohmann/json.hpp>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quillseal::linux {
namespace {

using nlohmann::json;
using std::chrono::milliseconds;

constexpr std::string_view magic = "i3-ipc";
constexpr std::size_t headerSize = magic.size() + 2 * sizeof(std::uint32_t);
constexpr std::size_t longestMessage = std::size_t{16} * 1024 * 1024;
constexpr std::chrono::seconds timeout{1};

std::string textOf(const json& object, const char* key) {
  const auto found = object.find(key);
  return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

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

std::string lowerCase(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

/// Returns one name for each key that has several.
std::string plainName(std::string_view key) {
  static const std::map<std::string, std::string, std::less<>> others = {
      {"ctrl", "control"}, {"alt", "mod1"}, {"super", "mod4"}, {"logo", "mod4"}};
  std::string name = lowerCase(key);
  const auto found = others.find(name);
  return found == others.end() ? name : found->second;
}

std::set<std::string> keysOf(std::string_view combination) {
  std::set<std::string> keys;
  std::istringstream parts{std::string(combination)};
  for (std::string part; std::getline(parts, part, '+');)
    keys.insert(plainName(part));
  return keys;
}

/// The variables of a configuration, "$mod" and the like, substituted in sway's order: the longest
/// name first.
class Variables {
 public:
  void set(const std::string& name, std::string value) { values_[name] = std::move(value); }

  [[nodiscard]] std::string resolved(std::string text) const {
    for (const auto& [name, value] : values_)
      for (std::size_t at = text.find(name); at != std::string::npos;
           at = text.find(name, at + value.size()))
        text.replace(at, name.size(), value);
    return text;
  }

 private:
  struct LongerFirst {
    bool operator()(const std::string& a, const std::string& b) const {
      return a.size() != b.size() ? a.size() > b.size() : a < b;
    }
  };
  std::map<std::string, std::string, LongerFirst> values_;
};

bool isBinding(std::string_view word) {
  return word == "bindsym" || word == "bindcode";
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

std::optional<SwayApplication> applicationIn(std::string_view tree, std::string_view title) {
  std::set<std::string> ids;
  std::set<std::uint32_t> processes;
  const json parsed = json::parse(tree, nullptr, false);
  std::vector<const json*> open = {&parsed};
  while (!open.empty()) {
    const json& node = *open.back();
    open.pop_back();
    if (!node.is_object()) continue;
    for (const char* children : {"nodes", "floating_nodes"})
      if (const auto list = node.find(children); list != node.end() && list->is_array())
        for (const json& child : *list)
          open.push_back(&child);
    const auto process = node.find("pid");
    if (process == node.end() || textOf(node, "name") != title) continue;
    const auto x11 = node.find("window_properties");
    ids.insert(x11 != node.end() ? textOf(*x11, "class") : textOf(node, "app_id"));
    processes.insert(process->is_number_unsigned() ? process->get<std::uint32_t>() : 0);
  }
  if (ids.size() != 1 || ids.begin()->empty()) return std::nullopt;
  return SwayApplication{.id = *ids.begin(),
                         .process = processes.size() == 1 ? *processes.begin() : 0};
}

bool bindsAlready(std::string_view configuration, const SwayChord& chord) {
  const std::set<std::string> modifiers = {"control", "mod1", "mod4"};
  std::set<std::string> bySymbol = modifiers;
  bySymbol.insert(lowerCase(chord.symbol));
  std::set<std::string> byCode = modifiers;
  byCode.insert(std::to_string(chord.code));

  Variables variables;
  std::vector<std::string> blocks;  // first words of the open blocks
  std::istringstream lines{std::string(configuration)};
  for (std::string line; std::getline(lines, line);) {
    while (line.ends_with('\\')) {
      std::string more;
      line.pop_back();
      if (!std::getline(lines, more)) break;
      line += more;
    }
    std::istringstream words(line);
    std::string word;
    if (!(words >> word)) continue;
    if (word == "}") {
      if (!blocks.empty()) blocks.pop_back();
      continue;
    }
    if (word == "set") {
      std::string name;
      std::string value;
      if (words >> name && std::getline(words >> std::ws, value))
        variables.set(name, variables.resolved(value));
      continue;
    }
    const bool isInBindings = !blocks.empty() && isBinding(blocks.back());
    const bool opens = line.find_last_not_of(" \t") != std::string::npos &&
                       line[line.find_last_not_of(" \t")] == '{';
    if (opens) {
      blocks.push_back(word);
      continue;
    }
    if (std::ranges::any_of(blocks, [](const std::string& block) { return !isBinding(block); }))
      continue;
    if (!isInBindings && !(isBinding(word) && words >> word)) continue;
    while (word.starts_with("--") && words >> word) {
    }
    const std::set<std::string> keys = keysOf(variables.resolved(word));
    if (keys == bySymbol || keys == byCode) return true;
  }
  return false;
}

}  // namespace quillseal::linux
