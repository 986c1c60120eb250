#include "portal/Portal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>

#include <unistd.h>

#include "core/tasks/Async.h"
#include "portal/InstalledPortals.h"

namespace quillseal::linux {
namespace {

constexpr const char* requestInterface = "org.freedesktop.portal.Request";
constexpr const char* sessionInterface = "org.freedesktop.portal.Session";
constexpr std::uint32_t keyboard = 1;

constexpr DesktopBus::Signal ownerChanged = DesktopBus::ownerChangeOf(Portal::service);

/// The time until which the portal is waited for.
class Deadline {
 public:
  explicit Deadline(std::chrono::milliseconds timeout) : end_(Clock::now() + timeout) {}

  [[nodiscard]] std::chrono::milliseconds left() const {
    return std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point end_;
};

std::uint32_t numberOf(DesktopBus& bus, const Deadline& deadline, const char* interface,
                       const char* name) {
  const DesktopBus::Message answer = bus.callWithin(
      deadline.left(), propertyOf(Portal::service, Portal::path), "ss", interface, name);
  std::uint32_t value = 0;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "v", "u", &value) <= 0) return 0;
  return value;
}

int appendValue(sd_bus_message& message, std::uint32_t value) {
  return ::sd_bus_message_append(&message, "v", "u", value);
}

int appendValue(sd_bus_message& message, const std::string& value) {
  return ::sd_bus_message_append(&message, "v", "s", value.c_str());
}

int appendValue(sd_bus_message& message, const std::vector<std::string>& values) {
  int result = ::sd_bus_message_open_container(&message, 'v', "as");
  if (result >= 0) result = ::sd_bus_message_open_container(&message, 'a', "s");
  for (const std::string& value : values)
    if (result >= 0) result = ::sd_bus_message_append(&message, "s", value.c_str());
  if (result >= 0) result = ::sd_bus_message_close_container(&message);
  return result < 0 ? result : ::sd_bus_message_close_container(&message);
}

/// Programs outside of a sandbox have to say who they are before anything else. Older portals find
/// it out by themselves, as soon as a method is called.
Portal::Message introduction(DesktopBus& bus) {
  Portal::Message call = bus.newCall({.service = Portal::service,
                                      .path = Portal::path,
                                      .interface = "org.freedesktop.host.portal.Registry",
                                      .name = "Register"});
  if (call == nullptr ||
      ::sd_bus_message_append(call.get(), "sa{sv}", Portal::applicationId, 0) < 0)
    return nullptr;
  return call;
}

void introduce(DesktopBus& bus, const Deadline& deadline, const PortalOffer& offer) {
  const Portal::Message registration = introduction(bus);
  if (registration == nullptr || bus.send(*registration, deadline.left()) != nullptr) return;
  constexpr const char* noSession = "/";
  const DesktopBus::Method harmless{
      .service = Portal::service,
      .path = Portal::path,
      .interface = offer.remoteDesktop > 0 ? "org.freedesktop.portal.RemoteDesktop"
                                           : "org.freedesktop.portal.GlobalShortcuts",
      .name = offer.remoteDesktop > 0 ? "SelectDevices" : "ListShortcuts"};
  static_cast<void>(bus.callWithin(deadline.left(), harmless, "oa{sv}", noSession, 0));
}

}  // namespace

PortalOffer offerOfPortal(DesktopBus& bus, std::chrono::milliseconds timeout) {
  const Deadline deadline(timeout);
  const auto isSilent = [&deadline] { return deadline.left().count() <= 0; };
  const std::optional<bool> isRunning = bus.hasOwner(Portal::service);
  if (!isRunning || (!*isRunning && !isUsefulPortalInstalled())) return {};
  if (!*isRunning && !bus.start(Portal::service, deadline.left())) return {.isSilent = isSilent()};
  PortalOffer offer;
  const auto version = [&](const char* interface) {
    return numberOf(bus, deadline, interface, "version");
  };
  constexpr const char* remoteDesktop = "org.freedesktop.portal.RemoteDesktop";
  if ((numberOf(bus, deadline, remoteDesktop, "AvailableDeviceTypes") & keyboard) != 0)
    offer.remoteDesktop = version(remoteDesktop);
  offer.globalShortcuts = version("org.freedesktop.portal.GlobalShortcuts");
  offer.clipboard = version("org.freedesktop.portal.Clipboard");
  if (offer != PortalOffer{}) introduce(bus, deadline, offer);
  // With only a part of the versions, the agent would be set up for another kind of desktop.
  return isSilent() ? PortalOffer{.isSilent = true} : offer;
}

// Calls -------------------------------------------------------------------------------------------

Portal::Portal(DesktopBus& bus)
    : bus_(bus), onOwner_([this](sd_bus_message&) {
        const Message registration = introduction(bus_);
        if (registration == nullptr) return;
        ::sd_bus_message_set_auto_start(registration.get(), 0);  // the portal may just have ended
        bus_.post(*registration);
      }) {
  owners_ = bus_.subscribe(ownerChanged, onOwner_);
}

Portal::Message Portal::newCall(const char* interface, const char* method) const {
  return bus_.newCall({.service = service, .path = path, .interface = interface, .name = method});
}

Portal::Message Portal::newCall(const char* interface, const char* method,
                                const std::string& session) const {
  Message call = newCall(interface, method);
  if (call == nullptr || ::sd_bus_message_append(call.get(), "o", session.c_str()) < 0)
    return nullptr;
  return call;
}

bool Portal::append(sd_bus_message& message, const Options& options) {
  int result = ::sd_bus_message_open_container(&message, 'a', "{sv}");
  for (const auto& [name, option] : options) {
    if (result >= 0) result = ::sd_bus_message_open_container(&message, 'e', "sv");
    if (result >= 0) result = ::sd_bus_message_append(&message, "s", name);
    if (result >= 0)
      result =
          std::visit([&message](const auto& value) { return appendValue(message, value); }, option);
    if (result >= 0) result = ::sd_bus_message_close_container(&message);
  }
  return result >= 0 && ::sd_bus_message_close_container(&message) >= 0;
}

std::string Portal::newToken() {
  return "quillseal" + std::to_string(++lastToken_);
}

Task<Portal::Message> Portal::call(Message call) {
  if (call == nullptr) co_return nullptr;
  co_return co_await completionOf<Message>([this, &call](std::function<void(Message)> done) {
    return bus_.callLater(*call, [done = std::move(done)](sd_bus_message* answer) {
      const bool isError =
          answer == nullptr || ::sd_bus_message_is_method_error(answer, nullptr) > 0;
      done(Message(isError ? nullptr : ::sd_bus_message_ref(answer)));
    });
  });
}

/// A request under way.
struct Portal::Request {
  DesktopBus& bus;
  std::string path;
  std::function<void(PortalAnswer)> answered;
  DesktopBus::Receiver onResponse{};
  DesktopBus::Receiver onOwner{};
  DesktopBus::Subscription response{};
  DesktopBus::Subscription owners{};
  desktop::Ticket call{};
  bool isAnswered = false;

  void answer(PortalAnswer with) {
    isAnswered = true;
    // The completion may drop the request.
    if (const auto done = std::exchange(answered, nullptr)) done(std::move(with));
  }

  void withdraw() {
    if (isAnswered) return;
    const Message close = bus.newCall({.service = Portal::service,
                                       .path = path.c_str(),
                                       .interface = requestInterface,
                                       .name = "Close"});
    if (close != nullptr) bus.post(*close);
  }
};

Task<PortalAnswer> Portal::request(Message call, Options options) {
  const std::string token = newToken();
  options.emplace_back("handle_token", token);
  if (call == nullptr || !append(*call, options)) co_return PortalAnswer{};

  std::string sender = bus_.ownName();
  std::ranges::replace(sender, '.', '_');
  if (sender.starts_with(':')) sender.erase(0, 1);
  const std::string handle = std::string(path) + "/request/" + sender + "/" + token;
  co_return co_await completionOf<PortalAnswer>(
      [this, &call, &handle](std::function<void(PortalAnswer)> done) {
        const auto request = std::make_shared<Request>(
            Request{.bus = bus_, .path = handle, .answered = std::move(done)});
        // It outlives its receivers, which it owns.
        Request& self = *request;
        self.onResponse = [&self](sd_bus_message& signal) {
          std::uint32_t code = 2;
          PortalAnswer answer;
          if (::sd_bus_message_read(&signal, "u", &code) > 0 && code < 2)
            answer.outcome =
                code == 0 ? PortalAnswer::Outcome::granted : PortalAnswer::Outcome::refused;
          answer.message.reset(::sd_bus_message_ref(&signal));
          self.answer(std::move(answer));
        };
        self.response = bus_.subscribe({.sender = service,
                                        .path = self.path.c_str(),
                                        .interface = requestInterface,
                                        .name = "Response",
                                        .firstArgument = nullptr},
                                       self.onResponse);
        self.onOwner = [&self](sd_bus_message& signal) {
          const char* name = nullptr;
          const char* before = nullptr;
          // A portal that has ended never answers; one that the call starts had no owner before.
          if (::sd_bus_message_read(&signal, "ss", &name, &before) > 0 && *before != '\0')
            self.answer({});
        };
        self.owners = bus_.subscribe(ownerChanged, self.onOwner);
        desktop::Ticket ticket([request] { request->withdraw(); });
        self.call = bus_.callLater(*call, [&self](sd_bus_message* answer) {
          if (answer == nullptr || ::sd_bus_message_is_method_error(answer, nullptr) > 0)
            self.answer({});
        });
        return ticket;
      });
}

// Sessions ----------------------------------------------------------------------------------------

Task<std::unique_ptr<PortalSession>> PortalSession::open(Portal& portal, const char* interface,
                                                         Ended ended) {
  Portal::Options options{{"session_handle_token", portal.newToken()}};
  Portal::Message call = portal.newCall(interface, "CreateSession");
  const PortalAnswer answer = co_await portal.request(std::move(call), std::move(options));
  if (answer.outcome != PortalAnswer::Outcome::granted) co_return nullptr;
  const std::string handle =
      textOption(*answer.message, {.name = "session_handle", .before = "u"}).value_or("");
  if (::sd_bus_object_path_is_valid(handle.c_str()) <= 0) co_return nullptr;
  co_return std::make_unique<PortalSession>(portal, handle, std::move(ended));
}

PortalSession::PortalSession(Portal& portal, std::string handle, Ended ended)
    : portal_(portal),
      handle_(std::move(handle)),
      ended_(std::move(ended)),
      onClosed_([this](sd_bus_message&) { end(End::closed); }),
      onOwner_([this](sd_bus_message&) { end(End::withPortal); }) {
  closing_ = portal_.bus().subscribe({.sender = Portal::service,
                                      .path = handle_.c_str(),
                                      .interface = sessionInterface,
                                      .name = "Closed",
                                      .firstArgument = nullptr},
                                     onClosed_);
  owners_ = portal_.bus().subscribe(ownerChanged, onOwner_);
}

PortalSession::~PortalSession() {
  if (!ended_) return;
  const DesktopBus::Message close = portal_.bus().newCall({.service = Portal::service,
                                                           .path = handle_.c_str(),
                                                           .interface = sessionInterface,
                                                           .name = "Close"});
  if (close != nullptr) portal_.bus().post(*close);
}

void PortalSession::end(End how) {
  // The call may destroy this object.
  if (const auto ended = std::exchange(ended_, nullptr)) ended(how);
}

bool PortalSession::isMeantBy(sd_bus_message& signal) const {
  const char* session = nullptr;
  return ::sd_bus_message_read(&signal, "o", &session) > 0 && handle_ == session;
}

// Options -----------------------------------------------------------------------------------------

bool enterOption(sd_bus_message& message, const PortalOption& option) {
  if (option.before != nullptr && (::sd_bus_message_rewind(&message, 1) < 0 ||
                                   ::sd_bus_message_skip(&message, option.before) < 0))
    return false;
  if (::sd_bus_message_enter_container(&message, 'a', "{sv}") <= 0) return false;
  while (::sd_bus_message_enter_container(&message, 'e', "sv") > 0) {
    const char* key = nullptr;
    if (::sd_bus_message_read(&message, "s", &key) <= 0) return false;
    if (std::string_view(key) == option.name)
      return ::sd_bus_message_enter_container(&message, 'v', option.type) > 0;
    if (::sd_bus_message_skip(&message, "v") < 0 || ::sd_bus_message_exit_container(&message) < 0)
      return false;
  }
  return false;
}

std::optional<std::string> textOption(sd_bus_message& message, const PortalOption& option) {
  const char* text = nullptr;
  if (!enterOption(message, option) || ::sd_bus_message_read(&message, "s", &text) <= 0)
    return std::nullopt;
  return text;
}

}  // namespace quillseal::linux
