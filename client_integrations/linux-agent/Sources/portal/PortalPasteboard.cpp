#include "portal/PortalPasteboard.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "clipboard/ClipboardFormats.h"
#include "core/tasks/Async.h"
#include "core/text/Error.h"
#include "portal/TaskTicket.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

using ClipboardFormats::Content;

constexpr const char* interface = "org.freedesktop.portal.Clipboard";

constexpr std::size_t mostFormats = 1000;
constexpr int mostTransfers = 20;

DesktopBus::Signal signal(const char* name) {
  return {.sender = Portal::service,
          .path = Portal::path,
          .interface = interface,
          .name = name,
          .firstArgument = nullptr};
}

const std::vector<std::string>& offeredFormats() {
  static const std::vector<std::string> formats = [] {
    std::vector<std::string> all(ClipboardFormats::ofBlockAsText.begin(),
                                 ClipboardFormats::ofBlockAsText.end());
    all.emplace_back(ClipboardFormats::html);
    return all;
  }();
  return formats;
}

/// Takes over the descriptor of a message, whose own copy ends with it.
FileDescriptor fileIn(sd_bus_message* message) {
  int file = -1;
  if (message == nullptr || ::sd_bus_message_read(message, "h", &file) <= 0) return {};
  FileDescriptor copy(::fcntl(file, F_DUPFD_CLOEXEC, 0));
  ::fcntl(copy.get(), F_SETFL, ::fcntl(copy.get(), F_GETFL) | O_NONBLOCK);
  return copy;
}

/// Returns a ticket that drops both.
desktop::Ticket both(desktop::Ticket one, desktop::Ticket other) {
  const auto pair = std::make_shared<std::pair<desktop::Ticket, desktop::Ticket>>(std::move(one),
                                                                                  std::move(other));
  return desktop::Ticket([pair] { *pair = {}; });
}

/// The names that follow in the message: some portals put them into a structure of their own.
std::vector<std::string> formatsIn(sd_bus_message& signal) {
  std::vector<std::string> formats;
  const bool isPlain = enterOption(signal, {.name = "mime_types", .type = "as", .before = "o"});
  if (!isPlain && (!enterOption(signal, {.name = "mime_types", .type = "(as)", .before = "o"}) ||
                   ::sd_bus_message_enter_container(&signal, 'r', "as") <= 0))
    return formats;
  if (::sd_bus_message_enter_container(&signal, 'a', "s") <= 0) return formats;
  const char* name = nullptr;
  while (formats.size() < mostFormats && ::sd_bus_message_read(&signal, "s", &name) > 0)
    formats.emplace_back(name);
  return formats;
}

}  // namespace

struct PortalPasteboard::State {
  State(PortalPasteboard& owningPasteboard, const Services& usedServices,
        ClipboardKeeper keeperForX11, Limits readingLimits)
      : pasteboard(owningPasteboard),
        services(usedServices),
        keeper(std::move(keeperForX11)),
        limits(readingLimits),
        onOwner([this](sd_bus_message& message) { ownerChanged(message); }),
        onTransfer([this](sd_bus_message& message) { transfer(message); }) {
    DesktopBus& bus = services.portal.bus();
    owners = bus.subscribe(signal("SelectionOwnerChanged"), onOwner);
    requests = bus.subscribe(signal("SelectionTransfer"), onTransfer);
    services.remote.onEnd([this] {
      isOwner = false;
      waiting = {};  // the keeper takes over
    });
  }

  ~State() { services.remote.onEnd({}); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  [[nodiscard]] bool isMeantBy(sd_bus_message& message) const {
    const char* session = nullptr;
    return services.remote.hasClipboard() && ::sd_bus_message_read(&message, "o", &session) > 0 &&
           services.remote.session() == session;
  }

  void ownerChanged(sd_bus_message& message) {
    if (!isMeantBy(message)) return;
    int isOurs = 0;
    if (enterOption(message, {.name = "session_is_owner", .type = "b", .before = "o"}))
      ::sd_bus_message_read(&message, "b", &isOurs);
    ++owner;
    // A report from before `write` finds the agent no owner yet.
    if (isOwner && isOurs == 0) waiting.dismiss();
    isOwner = isOurs != 0;
    formats = isOurs != 0 ? std::vector<std::string>() : formatsIn(message);
    // `write` has counted its own change.
    if (!formats.empty()) pasteboard.change();
  }

  // Reading

  Task<Content> contentOf(const ClipboardFormats::Groups& groups) {
    const std::uint64_t readOwner = owner;
    const auto end = services.loop.now() + limits.transfer;
    Content content;
    for (const std::string& format : ClipboardFormats::chosen(groups, formats)) {
      if (ClipboardFormats::isSecret(content)) break;
      std::optional<std::string> bytes = co_await bytesOf(format, end);
      if (!bytes) break;
      content.insert_or_assign(format, *std::move(bytes));
    }
    // A program that ends while it writes looks like one that has finished; its going is reported.
    if (readOwner != owner) content.clear();
    co_return content;
  }

  Task<std::optional<std::string>> bytesOf(const std::string& format,
                                           desktop::MainLoop::TimePoint end) {
    Portal::Message call =
        services.portal.newCall(interface, "SelectionRead", services.remote.session());
    if (call == nullptr || ::sd_bus_message_append(call.get(), "s", format.c_str()) < 0)
      co_return std::nullopt;
    const FileDescriptor file = co_await fileOf(*call, end);
    std::string bytes;
    std::vector<char> piece(std::size_t{64} * 1024);
    while (file.isOpen()) {
      const ssize_t count = ::read(file.get(), piece.data(), piece.size());
      if (count == 0) co_return bytes;
      if (count > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(count));
        if (bytes.size() > limits.largest) break;
      } else if (errno != EAGAIN && errno != EINTR) {
        break;
      }
      const bool isReady = co_await waitFor(file, Descriptors::Interest::reading, end);
      if (!isReady) break;
    }
    co_return std::nullopt;
  }

  /// The file that the portal answers with; none when it does not within the limits.
  Task<FileDescriptor> fileOf(sd_bus_message& call, desktop::MainLoop::TimePoint end) {
    co_return co_await completionOf<FileDescriptor>(
        [this, &call, end](const std::function<void(FileDescriptor)>& done) {
          return both(services.portal.bus().callLater(
                          call, [done](sd_bus_message* message) { done(fileIn(message)); }),
                      services.loop.after(timeoutBefore(end), [done] { done(FileDescriptor()); }));
        });
  }

  /// False when the file is not ready within the limits.
  Task<bool> waitFor(const FileDescriptor& file, Descriptors::Interest interest,
                     desktop::MainLoop::TimePoint end) {
    co_return co_await completionOf<bool>(
        [this, &file, interest, end](const std::function<void(bool)>& done) {
          return both(services.descriptors.watch(file.get(), interest,
                                                 [done](Descriptors::Interest) { done(true); }),
                      services.loop.after(timeoutBefore(end), [done] { done(false); }));
        });
  }

  [[nodiscard]] std::chrono::milliseconds timeoutBefore(desktop::MainLoop::TimePoint end) const {
    return limits.timeout(services.loop.now(), end);
  }

  // Writing

  void transfer(sd_bus_message& message) {
    const char* format = nullptr;
    std::uint32_t serial = 0;
    if (!isMeantBy(message) || ::sd_bus_message_read(&message, "su", &format, &serial) <= 0) return;
    if (transferCount < mostTransfers)
      transfers.start(send(format, serial));
    else
      finish(serial, false);
  }

  Task<> send(std::string format, std::uint32_t serial) {
    ++transferCount;
    std::string text = format == ClipboardFormats::html ? written.html : written.plainText;
    Portal::Message call =
        services.portal.newCall(interface, "SelectionWrite", services.remote.session());
    bool isDone = false;
    if (call != nullptr && ::sd_bus_message_append(call.get(), "u", serial) >= 0) {
      const auto end = services.loop.now() + limits.transfer;
      const FileDescriptor file = co_await fileOf(*call, end);
      isDone = co_await writeTo(file, std::move(text), end);
    }
    --transferCount;
    finish(serial, isDone);
  }

  void finish(std::uint32_t serial, bool isDone) const {
    const Portal::Message end =
        services.portal.newCall(interface, "SelectionWriteDone", services.remote.session());
    if (end != nullptr &&
        ::sd_bus_message_append(end.get(), "ub", serial, static_cast<int>(isDone)) >= 0)
      services.portal.bus().post(*end);
  }

  Task<bool> writeTo(const FileDescriptor& file, std::string text,
                     desktop::MainLoop::TimePoint end) {
    std::string_view left = text;
    while (file.isOpen()) {
      const ssize_t count = ::write(file.get(), left.data(), left.size());
      if (count < 0 && errno != EAGAIN && errno != EINTR) break;
      if (count > 0) left.remove_prefix(static_cast<std::size_t>(count));
      if (left.empty()) co_return true;
      const bool isReady = co_await waitFor(file, Descriptors::Interest::writing, end);
      if (!isReady) break;
    }
    co_return false;
  }

  /// Without a keeper the desktop keeps the plain text at most.
  void keepLater(const desktop::PasteboardContent& content) {
    waiting.dismiss();
    try {
      waiting = keeper.keepLater(content);
    } catch (const Error& error) {
      services.log.write(std::string("[inject] ") + error.what());
    }
  }

  /// Why nothing could be written, and what to do, for the user.
  [[nodiscard]] std::string obstacle() const {
    if (isAsking)
      return "Your desktop has not answered yet whether Quillseal may use the clipboard. Allow it "
             "there first.";
    if (!services.remote.obstacle().empty()) return services.remote.obstacle();
    return "Your desktop did not take the signed text.";
  }

  PortalPasteboard& pasteboard;
  Services services;
  ClipboardKeeper keeper;
  Limits limits;
  ClipboardKeeper::Waiting waiting{};
  bool isAsking = false;    ///< the last attempt to open a session has not ended
  std::uint64_t owner = 0;  ///< changes with the owner, also where there is none
  bool isOwner = false;     ///< whether that is the agent, with what was last written
  std::vector<std::string> formats{};
  desktop::PasteboardContent written{};
  int transferCount = 0;
  DesktopBus::Receiver onOwner;
  DesktopBus::Receiver onTransfer;
  DesktopBus::Subscription owners{};
  DesktopBus::Subscription requests{};
  TaskScope transfers{};
};

PortalPasteboard::PortalPasteboard(const Services& services, ClipboardKeeper keeper, Limits limits)
    : FetchingPasteboard(services.loop),
      state_(std::make_unique<State>(*this, services, std::move(keeper), limits)) {
  // The reader of the block may close its pipe. A handler, since programs that the agent starts
  // would keep ignoring the signal.
  static_cast<void>(std::signal(SIGPIPE, [](int) {}));
}

PortalPasteboard::~PortalPasteboard() = default;

desktop::Ticket PortalPasteboard::read(const ClipboardFormats::Groups& groups,
                                       std::function<void(Content)> done) {
  return runTask<Content>(state_->services.loop, state_->contentOf(groups), std::move(done));
}

desktop::Ticket PortalPasteboard::prepareWrite(std::function<void()> ready) {
  const auto opening = std::make_shared<desktop::Ticket>();
  const auto timer = std::make_shared<desktop::Ticket>();
  state_->isAsking = true;
  const auto end = [state = state_.get(), opening, timer, ready = std::move(ready)](bool isAsking) {
    state->isAsking = isAsking;
    *opening = {};
    *timer = {};
    ready();
  };
  *timer = state_->services.loop.after(state_->limits.session, [end] { end(true); });
  *opening = state_->services.remote.open([end](bool) { end(false); });
  return desktop::Ticket([opening, timer] {
    *opening = {};
    *timer = {};
  });
}

void PortalPasteboard::write(const desktop::PasteboardContent& content) {
  const Services& services = state_->services;
  const Portal::Message call =
      services.remote.hasClipboard()
          ? services.portal.newCall(interface, "SetSelection", services.remote.session())
          : nullptr;
  desktop::PasteboardContent before = std::exchange(state_->written, content);
  const bool wasOwner = std::exchange(state_->isOwner, false);
  const bool isTaken = call != nullptr &&
                       Portal::append(*call, {{"mime_types", offeredFormats()}}) &&
                       services.portal.bus().send(*call) != nullptr;
  if (isTaken) {
    state_->keepLater(content);
    return change();
  }
  state_->written = std::move(before);
  state_->isOwner = wasOwner;
  throw Error({.domain = "PortalPasteboard",
               .code = 1,
               .description = "The clipboard could not be written. " + state_->obstacle()});
}

bool PortalPasteboard::isWritten() const {
  return state_->isOwner;
}

}  // namespace quillseal::linux
