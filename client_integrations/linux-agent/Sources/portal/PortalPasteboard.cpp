#include "portal/PortalPasteboard.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <map>
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
using std::chrono::milliseconds;

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
  static const std::vector<std::string> formats{ClipboardFormats::plainText, "text/plain",
                                                "UTF8_STRING", ClipboardFormats::html};
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

/// The names that follow in the message: some portals put them into a structure of their own.
std::vector<std::string> formatsIn(sd_bus_message& signal) {
  std::vector<std::string> formats;
  const bool isPlain = enterOption(signal, "o", "mime_types", "as");
  if (!isPlain && (!enterOption(signal, "o", "mime_types", "(as)") ||
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
  State(const Services& with, Patience limits)
      : services(with),
        patience(limits),
        onOwner([this](sd_bus_message& message) { ownerChanged(message); }),
        onTransfer([this](sd_bus_message& message) { transfer(message); }) {
    DesktopBus& bus = services.portal.bus();
    owners = bus.subscribe(signal("SelectionOwnerChanged"), onOwner);
    requests = bus.subscribe(signal("SelectionTransfer"), onTransfer);
  }

  [[nodiscard]] bool isMeantBy(sd_bus_message& message) const {
    const char* session = nullptr;
    return services.remote.hasClipboard() && ::sd_bus_message_read(&message, "o", &session) > 0 &&
           services.remote.session() == session;
  }

  void ownerChanged(sd_bus_message& message) {
    if (!isMeantBy(message)) return;
    int isOurs = 0;
    if (enterOption(message, "o", "session_is_owner", "b"))
      ::sd_bus_message_read(&message, "b", &isOurs);
    ++owner;
    isOwner = isOurs != 0;
    formats = isOurs != 0 ? std::vector<std::string>() : formatsIn(message);
    // `write` has counted its own change.
    if (!formats.empty()) change();
  }

  void change() {
    ++changeCount;
    fetched.clear();
    telling = services.loop.after({}, [this] {
      // A copy: a watch may drop others or add new ones.
      for (auto& [id, unused] : std::map(watches))
        if (const auto watch = watches.extract(id); !watch.empty()) watch.mapped()();
    });
  }

  // Reading

  [[nodiscard]] desktop::Ticket read(const ClipboardFormats::Groups& groups,
                                     std::function<void(Content)> done) {
    return runTask<Content>(services.loop, contentOf(groups), std::move(done));
  }

  Task<Content> contentOf(const ClipboardFormats::Groups& groups) {
    const std::uint64_t readOwner = owner;
    const auto end = services.loop.now() + patience.transfer;
    const std::vector<std::string> offered = formats;
    Content content;
    for (const std::vector<std::string>& group : groups) {
      const auto found = std::ranges::find_if(group, [&offered](const std::string& format) {
        return std::ranges::find(offered, format) != offered.end();
      });
      if (found == group.end()) continue;
      if (ClipboardFormats::isSecret(content)) break;
      std::optional<std::string> bytes = co_await bytesOf(*found, end);
      if (!bytes) break;
      content.insert_or_assign(*found, *std::move(bytes));
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
        if (bytes.size() > patience.largest) break;
      } else if (errno != EAGAIN && errno != EINTR) {
        break;
      }
      const bool isReady = co_await waitFor(file, Descriptors::Interest::reading, end);
      if (!isReady) break;
    }
    co_return std::nullopt;
  }

  /// The file that the portal answers with; none when it does not within the patience.
  Task<FileDescriptor> fileOf(sd_bus_message& call, desktop::MainLoop::TimePoint end) {
    co_return co_await completionOf<FileDescriptor>(
        [this, &call, end](const std::function<void(FileDescriptor)>& done) {
          const auto answer = std::make_shared<desktop::Ticket>(services.portal.bus().callLater(
              call, [done](sd_bus_message* message) { done(fileIn(message)); }));
          const auto timer = std::make_shared<desktop::Ticket>(
              services.loop.after(silenceUntil(end), [done] { done(FileDescriptor()); }));
          return desktop::Ticket([answer, timer] {
            *answer = {};
            *timer = {};
          });
        });
  }

  /// False when the file is not ready within the patience.
  Task<bool> waitFor(const FileDescriptor& file, Descriptors::Interest interest,
                     desktop::MainLoop::TimePoint end) {
    co_return co_await completionOf<bool>(
        [this, &file, interest, end](const std::function<void(bool)>& done) {
          const auto watch = std::make_shared<desktop::Ticket>(services.descriptors.watch(
              file.get(), interest, [done](Descriptors::Interest) { done(true); }));
          const auto timer = std::make_shared<desktop::Ticket>(
              services.loop.after(silenceUntil(end), [done] { done(false); }));
          return desktop::Ticket([watch, timer] {
            *watch = {};
            *timer = {};
          });
        });
  }

  [[nodiscard]] milliseconds silenceUntil(desktop::MainLoop::TimePoint end) const {
    const auto left = std::chrono::ceil<milliseconds>(end - services.loop.now());
    return std::clamp<milliseconds>(left, milliseconds{0}, patience.silence);
  }

  // Writing

  void transfer(sd_bus_message& message) {
    const char* format = nullptr;
    std::uint32_t serial = 0;
    if (!isMeantBy(message) || ::sd_bus_message_read(&message, "su", &format, &serial) <= 0) return;
    if (transferCount < mostTransfers) transfers.start(send(format, serial));
  }

  Task<> send(std::string format, std::uint32_t serial) {
    ++transferCount;
    std::string text = format == ClipboardFormats::html ? written.html : written.plainText;
    Portal::Message call =
        services.portal.newCall(interface, "SelectionWrite", services.remote.session());
    bool isDone = false;
    if (call != nullptr && ::sd_bus_message_append(call.get(), "u", serial) >= 0) {
      const auto end = services.loop.now() + patience.transfer;
      const FileDescriptor file = co_await fileOf(*call, end);
      isDone = co_await writeTo(file, std::move(text), end);
    }
    --transferCount;
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

  Services services;
  Patience patience;
  std::uint64_t owner = 0;  ///< changes with the owner, also where there is none
  bool isOwner = false;     ///< whether that is the agent, with what was last written
  std::vector<std::string> formats{};
  desktop::Ticket opening{};
  std::int64_t changeCount = 0;
  std::map<std::uint64_t, std::function<void()>> watches{};
  std::uint64_t lastWatch = 0;
  desktop::Ticket telling{};
  Content fetched{};
  desktop::PasteboardContent written{};
  int transferCount = 0;
  DesktopBus::Receiver onOwner;
  DesktopBus::Receiver onTransfer;
  DesktopBus::Subscription owners{};
  DesktopBus::Subscription requests{};
  TaskScope transfers{};
};

PortalPasteboard::PortalPasteboard(const Services& services, Patience patience)
    : state_(std::make_unique<State>(services, patience)) {
  // The reader of the block may close its pipe. A handler, since programs that the agent starts
  // would keep ignoring the signal.
  static_cast<void>(std::signal(SIGPIPE, [](int) {}));
}

PortalPasteboard::~PortalPasteboard() = default;

std::int64_t PortalPasteboard::changeCount() const {
  return state_->changeCount;
}

desktop::Ticket PortalPasteboard::onNextChange(std::function<void()> changed) {
  const std::uint64_t id = ++state_->lastWatch;
  state_->watches[id] = std::move(changed);
  return desktop::Ticket([this, id] { state_->watches.erase(id); });
}

desktop::Ticket PortalPasteboard::fetch(std::function<void()> fetched) {
  state_->fetched.clear();
  return state_->read(ClipboardFormats::wanted(),
                      [this, fetched = std::move(fetched)](Content content) {
                        state_->fetched = std::move(content);
                        fetched();
                      });
}

bool PortalPasteboard::isConcealed() const {
  return ClipboardFormats::isSecret(state_->fetched);
}

std::optional<std::string> PortalPasteboard::plainText() const {
  return ClipboardFormats::plainTextOf(state_->fetched);
}

std::optional<std::string> PortalPasteboard::html() const {
  return ClipboardFormats::htmlOf(state_->fetched);
}

desktop::Ticket PortalPasteboard::fetchRtf(std::function<void(std::optional<std::string>)> done) {
  return state_->read(
      ClipboardFormats::wantedForRtf(),
      [done = std::move(done)](const Content& content) { done(ClipboardFormats::rtfOf(content)); });
}

void PortalPasteboard::write(const desktop::PasteboardContent& content) {
  const Portal::Message call =
      state_->services.remote.hasClipboard()
          ? state_->services.portal.newCall(interface, "SetSelection",
                                            state_->services.remote.session())
          : nullptr;
  desktop::PasteboardContent before = std::exchange(state_->written, content);
  state_->isOwner = false;
  const bool isTaken = call != nullptr &&
                       Portal::append(*call, {{"mime_types", offeredFormats()}}) &&
                       state_->services.portal.bus().send(*call) != nullptr;
  if (isTaken) return state_->change();
  // The user may try again. Where the session has ended, there is another by then.
  state_->opening = state_->services.remote.open([](bool) {});
  state_->written = std::move(before);
  throw Error({.domain = "PortalPasteboard",
               .code = 1,
               .description =
                   "The clipboard could not be written: your desktop did not take the signed "
                   "text."});
}

bool PortalPasteboard::isWritten() const {
  return state_->isOwner;
}

}  // namespace quillseal::linux
