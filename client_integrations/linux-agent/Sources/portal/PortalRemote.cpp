#include "portal/PortalRemote.h"

#include <algorithm>
#include <utility>

#include "keyboard/KeyChords.h"
#include "keys/KeyFailure.h"

namespace quillseal::linux {
namespace {

constexpr const char* interface = "org.freedesktop.portal.RemoteDesktop";
constexpr const char* clipboardInterface = "org.freedesktop.portal.Clipboard";

constexpr std::uint32_t keyboard = 1;
constexpr std::uint32_t untilRevoked = 2;     // a persist_mode
constexpr std::uint32_t firstWithTokens = 2;  // a version of the interface

constexpr const char* refusal =
    "Your desktop did not let Quillseal press keys or use the clipboard, which it needs to sign "
    "the text that you select. Try again, and allow it when the desktop asks.";
constexpr const char* ending =
    "Your desktop has ended the permission for Quillseal to press keys. Quillseal asks for it "
    "again at the next signature.";
constexpr const char* silence =
    "The portal of your desktop, through which Quillseal presses keys, does not answer. Sign again "
    "in a moment. If that does not help, log out and in.";
constexpr const char* absence =
    "The portal of your desktop does not accept Quillseal. Install the Debian package of Quillseal "
    "if it is not installed, or start Quillseal again.";

}  // namespace

PortalRemote::PortalRemote(Services services) : services_(std::move(services)) {}

bool PortalRemote::mayOpenUnasked() const {
  return services_.offer.remoteDesktop >= firstWithTokens && services_.token.exists();
}

std::string PortalRemote::session() const {
  return isOpen() ? session_->handle() : std::string();
}

desktop::Ticket PortalRemote::open(std::function<void(bool)> done) {
  if (isOpen()) {
    done(true);
    return {};
  }
  const std::uint64_t id = ++lastWaiting_;
  waiting_[id] = std::move(done);
  if (state_ == State::closed) {
    state_ = State::opening;
    opening_.emplace();
    opening_->start(openSession());
  }
  return desktop::Ticket([this, id] { waiting_.erase(id); });
}

Task<> PortalRemote::openSession() {
  const std::string token = storedToken();
  giveUp_ = services_.loop.after(services_.timeout, [this] { stopOpening(silence); });
  bool isReady = co_await chooseDevices(token);
  if (!isReady && !token.empty()) {
    // The portal refuses a token that it cannot read, instead of asking the user.
    keepToken({});
    isReady = co_await chooseDevices({});
  }
  if (isReady) {
    co_await requestClipboard();
    giveUp_ = {};  // the user may take any time
    isReady = co_await start();
  }
  if (isReady)
    finish({});
  else
    finish(session_ == nullptr ? absence : refusal);
}

Task<bool> PortalRemote::chooseDevices(std::string token) {
  session_ = nullptr;  // its end must not end this attempt
  session_ = co_await PortalSession::open(services_.portal, interface,
                                          [this](PortalSession::End) { closed(); });
  if (session_ == nullptr) co_return false;
  Portal::Options options{{"types", keyboard}};
  if (services_.offer.remoteDesktop >= firstWithTokens) {
    options.emplace_back("persist_mode", untilRevoked);
    if (!token.empty()) options.emplace_back("restore_token", std::move(token));
  }
  Portal::Message call = services_.portal.newCall(interface, "SelectDevices", session_->handle());
  const PortalAnswer answer =
      co_await services_.portal.request(std::move(call), std::move(options));
  co_return answer.outcome == PortalAnswer::Outcome::granted;
}

Task<> PortalRemote::requestClipboard() {
  hasClipboard_ = false;
  if (services_.offer.clipboard == 0) co_return;
  Portal::Message call =
      services_.portal.newCall(clipboardInterface, "RequestClipboard", session_->handle());
  if (call == nullptr || !Portal::append(*call, {})) co_return;
  const Portal::Message answer = co_await services_.portal.call(std::move(call));
  hasClipboard_ = answer != nullptr;
}

Task<bool> PortalRemote::start() {
  Portal::Message call = services_.portal.newCall(interface, "Start", session_->handle());
  constexpr const char* noWindow = "";
  if (call == nullptr || ::sd_bus_message_append(call.get(), "s", noWindow) < 0) co_return false;
  Portal::Options none;
  const PortalAnswer answer = co_await services_.portal.request(std::move(call), std::move(none));
  if (answer.outcome == PortalAnswer::Outcome::refused) keepToken({});
  if (answer.outcome != PortalAnswer::Outcome::granted) co_return false;

  sd_bus_message& results = *answer.message;
  int isEnabled = 0;
  if (enterOption(results, {.name = "clipboard_enabled", .type = "b", .before = "u"}))
    ::sd_bus_message_read(&results, "b", &isEnabled);
  hasClipboard_ = hasClipboard_ && isEnabled != 0;
  std::uint32_t devices = 0;
  if (enterOption(results, {.name = "devices", .type = "u", .before = "u"}))
    ::sd_bus_message_read(&results, "u", &devices);
  const bool isEnough =
      (devices & keyboard) != 0 && (hasClipboard_ || services_.offer.clipboard == 0);
  // Each token holds for one session, and with one that allows too little the desktop would not ask
  // again.
  keepToken(isEnough ? textOption(results, {.name = "restore_token", .before = "u"}).value_or("")
                     : "");
  co_return isEnough;
}

std::string PortalRemote::storedToken() const {
  try {
    return services_.token.read().value_or("");
  } catch (const KeyFailure&) {
    return {};  // the desktop asks instead
  }
}

void PortalRemote::keepToken(const std::string& token) const {
  if (token.empty()) return services_.token.remove();
  try {
    services_.token.replace(token);
  } catch (const KeyFailure& failure) {
    services_.notify(
        std::string("Quillseal may press keys now, but your desktop will ask you again next time, "
                    "because your answer could not be stored: ") +
        failure.what());
  }
}

void PortalRemote::stopOpening(const char* obstacle) {
  opening_.reset();
  finish(obstacle);
}

void PortalRemote::finish(std::string obstacle) {
  giveUp_ = {};
  obstacle_ = std::move(obstacle);
  state_ = obstacle_.empty() ? State::open : State::closed;
  if (!isOpen()) session_ = nullptr;
  reporting_ = services_.loop.after({}, [this] {
    // A copy: a call may drop others or open again.
    for (const auto& [id, unused] : std::map(waiting_))
      if (const auto one = waiting_.extract(id); !one.empty()) one.mapped()(isOpen());
  });
}

void PortalRemote::closed() {
  session_ = nullptr;
  obstacle_ = ending;
  if (std::exchange(state_, State::closed) == State::opening) {
    stopOpening(refusal);
  } else if (ended_) {
    ended_();
  }
}

void PortalRemote::tap(const std::vector<Keysym>& chord) {
  for (const Keysym symbol : chord)
    notify(symbol, 1);
  std::vector<Keysym> pressed = chord;
  std::ranges::reverse(pressed);
  for (const Keysym symbol : pressed)
    notify(symbol, 0);
}

void PortalRemote::notify(Keysym symbol, std::uint32_t state) const {
  if (!isOpen()) return;
  const std::optional<std::uint32_t> key = fixedKeyOf(symbol);
  const char* method = key ? "NotifyKeyboardKeycode" : "NotifyKeyboardKeysym";
  const Portal::Message call = services_.portal.newCall(interface, method, session_->handle());
  if (call == nullptr || !Portal::append(*call, {}) ||
      ::sd_bus_message_append(call.get(), "iu", static_cast<std::int32_t>(key.value_or(symbol)),
                              state) < 0)
    return;
  services_.portal.bus().post(*call);
}

}  // namespace quillseal::linux
