#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::testing {

/// A program on a message bus that owns some names and answers every call, on its own thread.
class BusServices {
 public:
  /// Replies to the call of a method, notes it, and returns what sd_bus_message_handler_t demands.
  using Answer = std::function<int(sd_bus_message*, const std::string& method, sd_bus_error*)>;

  /// `open`: sd_bus_open_user or sd_bus_open_system.
  BusServices(int (*open)(sd_bus**), std::initializer_list<const char*> names, Answer answer)
      : answer_(std::move(answer)) {
    sd_bus* opened = nullptr;
    open(&opened);
    bus_.reset(opened);
    ::sd_bus_add_fallback(bus_.get(), nullptr, "/", handle, this);
    // An earlier program may not be gone yet.
    constexpr std::uint64_t atOnce = SD_BUS_NAME_ALLOW_REPLACEMENT | SD_BUS_NAME_REPLACE_EXISTING;
    for (const char* name : names)
      ::sd_bus_request_name(bus_.get(), name, atOnce);
    thread_ = std::jthread([this](const std::stop_token& stop) {
      while (!stop.stop_requested()) {
        while (::sd_bus_process(bus_.get(), nullptr) > 0) {
        }
        std::vector<std::function<void(sd_bus*)>> signals;
        std::unique_lock lock(mutex_);
        signals.swap(signals_);
        lock.unlock();
        for (const auto& emit : signals)
          emit(bus_.get());
        ::sd_bus_flush(bus_.get());
        ::sd_bus_wait(bus_.get(), 2000);
      }
    });
  }
  BusServices(const BusServices&) = delete;
  BusServices& operator=(const BusServices&) = delete;

  /// Has a signal emitted.
  void post(std::function<void(sd_bus*)> emit) {
    const std::lock_guard lock(mutex_);
    signals_.push_back(std::move(emit));
  }
  /// Returns what was noted so far, in order.
  [[nodiscard]] std::vector<std::string> calls() {
    const std::lock_guard lock(mutex_);
    return calls_;
  }
  /// The same, with those that nobody waits for; the services answer no more.
  [[nodiscard]] std::vector<std::string> end() {
    thread_ = {};
    while (::sd_bus_process(bus_.get(), nullptr) > 0) {
    }
    return calls();
  }

 protected:
  void note(const std::string& call) {
    const std::lock_guard lock(mutex_);
    calls_.push_back(call);
  }

 private:
  static int handle(sd_bus_message* message, void* self, sd_bus_error* error) {
    return static_cast<BusServices*>(self)->answer_(message, ::sd_bus_message_get_member(message),
                                                    error);
  }

  Answer answer_;
  UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> bus_;
  std::mutex mutex_;
  std::vector<std::string> calls_;                     // guarded by mutex_
  std::vector<std::function<void(sd_bus*)>> signals_;  // guarded by mutex_
  std::jthread thread_;
};

}  // namespace quillseal::testing
