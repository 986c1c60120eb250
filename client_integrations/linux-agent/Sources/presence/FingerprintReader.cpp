#include "presence/FingerprintReader.h"

#include <deque>
#include <exception>

#include "presence/PresenceError.h"

namespace quillseal::linux::FingerprintReader {

namespace {

constexpr const char* service = "net.reactivated.Fprint";
constexpr const char* deviceInterface = "net.reactivated.Fprint.Device";
constexpr const char* thisUser = "";
constexpr int tries = 3;
constexpr SystemBus::Seconds timeout{60};

std::string defaultDevice(SystemBus& bus) {
  const BusMessage reply = bus.call({.service = service,
                                     .path = "/net/reactivated/Fprint/Manager",
                                     .interface = "net.reactivated.Fprint.Manager"},
                                    "GetDefaultDevice", "");
  const char* path = nullptr;
  SystemBus::check(::sd_bus_message_read(reply.get(), "o", &path));
  return path;
}

/// The reader, claimed for this process and released when this object is destroyed.
class ClaimedReader {
 public:
  ClaimedReader(SystemBus& bus, std::string path) : bus_(bus), path_(std::move(path)) {
    try {
      bus_.call(target(), "Claim", "s", thisUser);
    } catch (const Error& error) {
      if (error.domain().ends_with(".AlreadyInUse"))
        throw presenceError(
            "The fingerprint reader is in use by another program. Try again in a moment.");
      throw;
    }
  }
  ClaimedReader(const ClaimedReader&) = delete;
  ClaimedReader& operator=(const ClaimedReader&) = delete;
  ~ClaimedReader() { tryCall("Release"); }

  [[nodiscard]] SystemBus::Target target() const noexcept {
    return {.service = service, .path = path_.c_str(), .interface = deviceInterface};
  }

  /// Starts a verification, and stops it when this object is destroyed.
  class Verification {
   public:
    explicit Verification(ClaimedReader& reader) : reader_(reader) {
      reader_.bus_.call(reader_.target(), "VerifyStart", "s", "any");
    }
    Verification(const Verification&) = delete;
    Verification& operator=(const Verification&) = delete;
    ~Verification() { reader_.tryCall("VerifyStop"); }

   private:
    ClaimedReader& reader_;
  };

 private:
  // Errors do not matter: a reader that was unplugged needs no release.
  void tryCall(const char* method) noexcept {
    try {
      bus_.call(target(), method, "");
    } catch (const std::exception&) {
    }
  }

  SystemBus& bus_;
  std::string path_;
};

}  // namespace

bool isEnrolled() {
  try {
    SystemBus bus;
    const std::string path = defaultDevice(bus);
    const BusMessage reply =
        bus.call({.service = service, .path = path.c_str(), .interface = deviceInterface},
                 "ListEnrolledFingers", "s", thisUser);
    SystemBus::check(::sd_bus_message_enter_container(reply.get(), 'a', "s"));
    return ::sd_bus_message_at_end(reply.get(), 0) == 0;
  } catch (const Error&) {
    return false;
  }
}

Touch touchOf(std::string_view status) noexcept {
  struct Row {
    std::string_view status;
    Touch touch;
  };
  constexpr Row rows[] = {
      {"verify-match", {Touch::Kind::match, ""}},
      {"verify-no-match",
       {Touch::Kind::noMatch, "This finger was not recognised. Touch the reader again."}},
      {"verify-retry-scan", {Touch::Kind::again, "Touch the reader again."}},
      {"verify-swipe-too-short", {Touch::Kind::again, "Swipe again, more slowly."}},
      {"verify-too-fast", {Touch::Kind::again, "Touch the reader again, for a little longer."}},
      {"verify-finger-not-centered",
       {Touch::Kind::again, "Put the middle of the fingertip on the reader."}},
      {"verify-remove-and-retry",
       {Touch::Kind::again, "Take the finger off, then touch the reader again."}},
      {"verify-disconnected", {Touch::Kind::failure, "The fingerprint reader was unplugged."}},
  };
  for (const Row& row : rows)
    if (row.status == status) return row.touch;
  return {Touch::Kind::failure, "The fingerprint reader failed. Try again."};
}

bool verify(const Interrupt& interrupt, const Instruct& instruct) {
  SystemBus bus;
  ClaimedReader reader(bus, defaultDevice(bus));

  std::deque<std::string> statuses;
  const auto keep = [](sd_bus_message* message, void* into, sd_bus_error*) {
    const char* status = nullptr;
    if (::sd_bus_message_read(message, "s", &status) > 0)
      static_cast<std::deque<std::string>*>(into)->emplace_back(status);
    return 0;
  };
  const SystemBus::Target target = reader.target();
  sd_bus_slot* slot = nullptr;
  SystemBus::check(::sd_bus_match_signal(bus.get(), &slot, target.service, target.path,
                                         target.interface, "VerifyStatus", keep, &statuses));
  const BusSlot owner(slot);
  const auto nextTouch = [&] {
    const auto hasStatus = [&statuses] { return !statuses.empty(); };
    if (!bus.wait({.interrupt = interrupt, .limit = timeout, .isDone = hasStatus})) {
      if (interrupt.isRaised()) throw presenceCancelled();
      throw presenceError("Nobody touched the fingerprint reader.");
    }
    const Touch touch = touchOf(statuses.front());
    statuses.pop_front();
    return touch;
  };
  // fprintd ends a verification after one touch, whether or not it recognised the finger.
  const auto verifyOnce = [&] {
    const ClaimedReader::Verification verification(reader);
    Touch touch = nextTouch();
    for (; touch.kind == Touch::Kind::again; touch = nextTouch())
      instruct(touch.instruction);
    if (touch.kind == Touch::Kind::failure) throw presenceError(touch.instruction);
    return touch;
  };
  for (int attempt = 1; attempt <= tries; ++attempt) {
    const Touch touch = verifyOnce();
    if (touch.kind == Touch::Kind::match) return true;
    statuses.clear();
    if (attempt < tries) instruct(touch.instruction);
  }
  return false;
}

}  // namespace quillseal::linux::FingerprintReader
