#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "session/BusMessage.h"
#include "session/Connector.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// A private connection to the D-Bus session bus, for services of the desktop. Main thread.
class DesktopBus {
 public:
  using Message = BusMessage;
  using Method = BusMethod;
  /// What is listened for, for as long as this is kept.
  using Subscription = BusSlot;

  struct Signal {
    const char* sender;
    const char* path;
    const char* interface;
    const char* name;
    const char* firstArgument;  ///< null when any will do
  };

  /// Returns the signal of the bus that the owner of this name has changed. Its arguments are the
  /// name, the former owner and the new one, each empty for none.
  [[nodiscard]] static constexpr Signal ownerChangeOf(const char* name) {
    return {.sender = busName,
            .path = busPath,
            .interface = busName,
            .name = "NameOwnerChanged",
            .firstArgument = name};
  }

  /// How long a call waits for its answer.
  static constexpr std::chrono::milliseconds timeout{1000};

  /// Null where there is no session bus.
  [[nodiscard]] static std::unique_ptr<DesktopBus> open();

  /// The same for services that look at the connecting process: a program connects for the agent
  /// (see Connector) and stays as long as this object. Null also where that is missing, or the bus
  /// has no address in the file system.
  [[nodiscard]] static std::unique_ptr<DesktopBus> openThrough(
      const std::vector<std::filesystem::path>& connectors);

  ~DesktopBus();
  DesktopBus(const DesktopBus&) = delete;
  DesktopBus& operator=(const DesktopBus&) = delete;

  /// Starts delivering signals. Both outlive this object.
  void serve(desktop::MainLoop& loop, Descriptors& descriptors);

  /// Whether some program owns this name; nothing when the bus does not answer.
  [[nodiscard]] std::optional<bool> hasOwner(const char* name);

  /// Starts a service that does not run. Returns whether it runs in the end, and blocks for `limit`
  /// at most.
  [[nodiscard]] bool start(const char* name, std::chrono::milliseconds limit);

  /// Calls a method and returns the answer; null when there is none within a second, or an error.
  /// Starts no service. `types` and `arguments` as for sd_bus_message_append.
  template <typename... Arguments>
  [[nodiscard]] Message call(const Method& method, const char* types, Arguments... arguments) {
    return callWithin(timeout, method, types, arguments...);
  }

  /// The same with another time limit, of which only a positive one is waited for.
  template <typename... Arguments>
  [[nodiscard]] Message callWithin(std::chrono::milliseconds limit, const Method& method,
                                   const char* types, Arguments... arguments) {
    const Message request = newCall(method);
    if (request == nullptr || ::sd_bus_message_append(request.get(), types, arguments...) < 0)
      return nullptr;
    return send(*request, limit);
  }

  /// Makes a call for `callLater`. Null when the bus is gone.
  [[nodiscard]] Message newCall(const Method& method) { return linux::newCall(bus_.get(), method); }

  /// Sends the call and returns at once. `answered` gets the answer, which may take any time and is
  /// an error when the bus has gone meanwhile; null when the call could not be sent. Starts the
  /// service if needed. REQUIRES: `serve` was called.
  using Answered = std::function<void(sd_bus_message*)>;
  [[nodiscard]] desktop::Ticket callLater(sd_bus_message& request, Answered answered);

  /// Sends the call and asks for no answer.
  void post(sd_bus_message& request);

  /// Sends the call and returns the answer, as `call`.
  [[nodiscard]] Message send(sd_bus_message& request) { return send(request, timeout); }
  [[nodiscard]] Message send(sd_bus_message& request, std::chrono::milliseconds limit);

  /// The name of this connection on the bus, such as ":1.42"; empty when there is none.
  [[nodiscard]] std::string ownName() const;

  /// Calls `received` for each such signal that comes from the owner of the sender's name, from
  /// inside the bus's events. The function outlives the subscription. Null when subscribing failed.
  using Receiver = std::function<void(sd_bus_message&)>;
  [[nodiscard]] Subscription subscribe(const Signal& signal, Receiver& received);

 private:
  explicit DesktopBus(sd_bus* bus) : bus_(bus) {}
  void processQueued();
  void process();

  std::optional<Connector> connector_;
  UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> bus_;
  desktop::MainLoop* loop_ = nullptr;
  desktop::Ticket watch_;
  desktop::Ticket later_;
};

}  // namespace quillseal::linux
