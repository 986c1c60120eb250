#include "session/DesktopBus.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>

#include "session/Environment.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

std::uint64_t inMicroseconds(std::chrono::milliseconds time) {
  return static_cast<std::uint64_t>(std::chrono::microseconds(time).count());
}

/// The session bus's place in the file system; empty when it has another kind of address.
std::filesystem::path addressOfBus() {
  const std::string address = environmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (address.empty()) {
    const std::string folder = environmentVariable("XDG_RUNTIME_DIR");
    return folder.empty() ? std::filesystem::path() : std::filesystem::path(folder) / "bus";
  }
  constexpr std::string_view prefix = "unix:path=";
  const std::string first = address.substr(0, address.find_first_of(",;"));
  // Addresses with escaped bytes are not supported: no bus has such a name.
  const bool isPath = first.starts_with(prefix) && first.find('%') == std::string::npos;
  return isPath ? first.substr(prefix.size()) : std::string();
}

/// A call that waits for its answer.
struct Pending {
  DesktopBus::Answered answered;
  DesktopBus::Subscription slot;
};

int answer(sd_bus_message* message, void* data, sd_bus_error* /*error*/) {
  // A copy: the completion may drop the ticket, and with it the call.
  const auto answered = std::exchange(static_cast<Pending*>(data)->answered, nullptr);
  if (answered) answered(message);
  return 0;
}

/// The other end of a subscription.
struct Listener {
  DesktopBus& bus;
  std::string sender;
  DesktopBus::Receiver& received;
};

/// Whether the service has sent the message. The library does not check that, and the bus delivers
/// whatever another program addresses to this connection, subscribed to or not.
bool isFrom(DesktopBus& bus, const std::string& service, sd_bus_message& message) {
  const char* sender = ::sd_bus_message_get_sender(&message);
  if (sender == nullptr) return false;
  if (service == busName) return service == sender;
  const DesktopBus::Message answer = bus.call(methodOfBus("GetNameOwner"), "s", service.c_str());
  const char* owner = nullptr;
  return answer != nullptr && ::sd_bus_message_read(answer.get(), "s", &owner) > 0 &&
         std::string_view(owner) == sender;
}

int receive(sd_bus_message* message, void* data, sd_bus_error* /*error*/) {
  const auto& listener = *static_cast<Listener*>(data);
  if (!isFrom(listener.bus, listener.sender, *message)) return 0;
  // A copy: the call may end the subscription, and its function with it.
  const DesktopBus::Receiver call = listener.received;
  call(*message);
  return 0;
}

}  // namespace

std::unique_ptr<DesktopBus> DesktopBus::open() {
  sd_bus* opened = nullptr;
  if (::sd_bus_open_user(&opened) < 0) return nullptr;
  // Also for what the library asks the bus by itself, such as for signals.
  ::sd_bus_set_method_call_timeout(opened, inMicroseconds(timeout));
  return std::unique_ptr<DesktopBus>(new DesktopBus(opened));
}

std::unique_ptr<DesktopBus> DesktopBus::openThrough(
    const std::vector<std::filesystem::path>& connectors) {
  const std::filesystem::path address = addressOfBus();
  if (address.empty()) return nullptr;
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  auto connector = Connector::connect(connectors, address, socket);
  sd_bus* made = nullptr;
  if (!connector || ::sd_bus_new(&made) < 0) return nullptr;
  std::unique_ptr<DesktopBus> bus(new DesktopBus(made));
  bus->connector_.emplace(std::move(*connector));
  ::sd_bus_set_method_call_timeout(made, inMicroseconds(timeout));
  ::sd_bus_set_bus_client(made, 1);
  const int file = ::fcntl(socket.get(), F_DUPFD_CLOEXEC, 0);  // which the bus closes
  if (::sd_bus_set_fd(made, file, file) < 0 || ::sd_bus_start(made) < 0) return nullptr;
  return bus;
}

DesktopBus::~DesktopBus() {
  watch_ = {};
}

void DesktopBus::serve(desktop::MainLoop& loop, Descriptors& descriptors) {
  loop_ = &loop;
  watch_ = descriptors.watch(::sd_bus_get_fd(bus_.get()), Descriptors::Interest::reading,
                             [this](Descriptors::Interest) { process(); });
  // Handles messages that arrived before the watch.
  later_ = loop.after({}, [this] { process(); });
}

std::optional<bool> DesktopBus::hasOwner(const char* name) {
  const Message answer = call(methodOfBus("NameHasOwner"), "s", name);
  int has = 0;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "b", &has) <= 0) return std::nullopt;
  return has != 0;
}

bool DesktopBus::start(const char* name, std::chrono::milliseconds limit) {
  return callWithin(limit, methodOfBus("StartServiceByName"), "su", name, 0U) != nullptr;
}

desktop::Ticket DesktopBus::callLater(sd_bus_message& request, Answered answered) {
  const auto pending =
      std::make_shared<Pending>(Pending{.answered = std::move(answered), .slot = {}});
  sd_bus_slot* slot = nullptr;
  const int sent =
      ::sd_bus_call_async(bus_.get(), &slot, &request, answer, pending.get(), UINT64_MAX);
  pending->slot.reset(slot);
  if (sent >= 0) return desktop::Ticket([pending] { *pending = {}; });
  answer(nullptr, pending.get(), nullptr);
  return {};
}

void DesktopBus::post(sd_bus_message& request) {
  ::sd_bus_message_set_expect_reply(&request, 0);
  ::sd_bus_send(bus_.get(), &request, nullptr);
}

std::string DesktopBus::ownName() const {
  const char* name = nullptr;
  return ::sd_bus_get_unique_name(bus_.get(), &name) < 0 ? std::string() : std::string(name);
}

DesktopBus::Message DesktopBus::send(sd_bus_message& request, std::chrono::milliseconds limit) {
  if (limit <= std::chrono::milliseconds{0}) return nullptr;
  ::sd_bus_message_set_auto_start(&request, 0);
  sd_bus_message* answer = nullptr;
  const int result = ::sd_bus_call(bus_.get(), &request, inMicroseconds(limit), nullptr, &answer);
  processQueued();
  return Message(result < 0 ? nullptr : answer);
}

DesktopBus::Subscription DesktopBus::subscribe(const Signal& signal, Receiver& received) {
  std::string rule = std::string("type='signal',sender='") + signal.sender + "',path='" +
                     signal.path + "',interface='" + signal.interface + "',member='" + signal.name +
                     "'";
  if (signal.firstArgument != nullptr) rule.append(",arg0='").append(signal.firstArgument) += '\'';
  sd_bus_slot* slot = nullptr;
  auto listener = std::make_unique<Listener>(
      Listener{.bus = *this, .sender = signal.sender, .received = received});
  if (::sd_bus_add_match(bus_.get(), &slot, rule.c_str(), receive, listener.get()) < 0)
    return nullptr;
  // The slot owns it from here on, and outlives a call that ends the subscription.
  ::sd_bus_slot_set_destroy_callback(slot, [](void* data) {
    const std::unique_ptr<Listener> ended(static_cast<Listener*>(data));
  });
  static_cast<void>(listener.release());
  processQueued();
  return Subscription(slot);
}

void DesktopBus::processQueued() {
  // Messages that came while an answer was waited for are already in memory, so the descriptor does
  // not become readable for them.
  std::uint64_t waiting = 0;
  if (loop_ != nullptr && ::sd_bus_get_n_queued_read(bus_.get(), &waiting) >= 0 && waiting > 0)
    later_ = loop_->after({}, [this] { process(); });
}

void DesktopBus::process() {
  int handled = 1;
  while (handled > 0)
    handled = ::sd_bus_process(bus_.get(), nullptr);
  if (handled < 0) watch_ = {};  // the bus has closed the connection
}

}  // namespace quillseal::linux
