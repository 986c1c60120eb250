#include "wayland/WaylandPasteboard.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "session/FileDescriptor.h"
#include "wayland/WaylandDataControl.h"

namespace quillseal::linux {
namespace {

constexpr std::size_t mostFormats = 1000;

/// A data offer of a program.
struct Offer {
  wayland::DataControlOffer offer;
  std::vector<std::string> formats;
};

}  // namespace

struct WaylandPasteboard::State {
  WaylandPasteboard& pasteboard;
  Services services;
  ClipboardKeeper keeper;
  TransferLimits limits;
  wayland::DataControlManager manager{};
  wayland::DataControlDevice device{};
  std::shared_ptr<Offer> latest{};  ///< not yet assigned to a selection
  std::shared_ptr<Offer> clipboard{};
  std::shared_ptr<Offer> primary{};
  std::uint64_t primaryWindow = 0;  ///< the active window when `primary` was made; 0 when not known
  bool isPrimaryKnown = false;      ///< a selection from before the start has been reported, if any
  desktop::Ticket starting{};
  /// The window whose primary selection counts as the last copy.
  std::optional<std::uint64_t> takenFrom{};
  std::chrono::steady_clock::time_point lastWrite{};
  std::optional<std::string> written{};  ///< the text of the last write
  std::optional<bool> isWritten = true;  ///< nothing when the clipboard has changed since
  desktop::Ticket comparing{};

  [[nodiscard]] std::shared_ptr<Offer> current() const {
    if (!takenFrom) return clipboard;
    return primaryWindow == *takenFrom ? primary : nullptr;
  }

  std::shared_ptr<Offer> taken(zwlr_data_control_offer_v1* offer) {
    const bool isLatest = offer != nullptr && latest != nullptr && latest->offer.get() == offer;
    return isLatest ? std::exchange(latest, nullptr) : nullptr;
  }

  /// Reads the text that programs would paste now.
  void compare();

  static State& of(void* data) { return *static_cast<State*>(data); }

  static void named(void* data, zwlr_data_control_offer_v1* /*offer*/, const char* format) {
    auto& formats = static_cast<Offer*>(data)->formats;
    if (formats.size() < mostFormats) formats.emplace_back(format);
  }
  static constexpr zwlr_data_control_offer_v1_listener ofOffer = {.offer = named};

  static void offered(void* data, zwlr_data_control_device_v1* /*device*/,
                      zwlr_data_control_offer_v1* offer) {
    of(data).latest = std::make_shared<Offer>();
    of(data).latest->offer.reset(offer);
    zwlr_data_control_offer_v1_add_listener(offer, &ofOffer, of(data).latest.get());
  }
  static void copied(void* data, zwlr_data_control_device_v1* /*device*/,
                     zwlr_data_control_offer_v1* offer) {
    State& state = of(data);
    state.clipboard = state.taken(offer);
    state.takenFrom.reset();
    if (state.written) state.isWritten.reset();
    if (state.clipboard != nullptr) state.pasteboard.change();
  }
  static void selected(void* data, zwlr_data_control_device_v1* /*device*/,
                       zwlr_data_control_offer_v1* offer) {
    State& state = of(data);
    state.primary = state.taken(offer);
    // The first event describes a selection from before this program's start, of an unknown window.
    const bool isNew = std::exchange(state.isPrimaryKnown, true);
    const auto window = state.services.windows.active();
    state.primaryWindow = isNew && window ? window->id : 0;
  }
  static void finished(void* data, zwlr_data_control_device_v1* /*device*/) {
    of(data).clipboard = nullptr;
    of(data).primary = nullptr;
  }
  static constexpr zwlr_data_control_device_v1_listener ofDevice = {.data_offer = offered,
                                                                    .selection = copied,
                                                                    .finished = finished,
                                                                    .primary_selection = selected};
};

/// One fetch. Lives until its ticket is dropped.
class WaylandPasteboard::Reading : public std::enable_shared_from_this<Reading> {
 public:
  using Done = std::function<void(ClipboardFormats::Content)>;

  [[nodiscard]] static desktop::Ticket start(State& state, const ClipboardFormats::Groups& wanted,
                                             Done done) {
    const auto reading = std::make_shared<Reading>(state, wanted, std::move(done));
    reading->begin();
    return desktop::Ticket([reading] { reading->withdraw(); });
  }

  Reading(State& state, const ClipboardFormats::Groups& wanted, Done done)
      : state_(state),
        wanted_(wanted),
        done_(std::move(done)),
        end_(loop().now() + state.limits.transfer) {}

 private:
  void begin() {
    offer_ = state_.current();
    content_.clear();
    chosen_.clear();
    if (offer_ == nullptr) return finishLater();
    chosen_ = ClipboardFormats::chosen(wanted_, offer_->formats);
    std::ranges::reverse(chosen_);  // the next one is the last
    ask();
  }

  void withdraw() {
    done_ = nullptr;
    timer_ = {};
    closePipe();
  }

  [[nodiscard]] desktop::MainLoop& loop() const { return state_.services.loop; }

  void ask() {
    if (chosen_.empty() || ClipboardFormats::isSecret(content_)) return check();
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return check();
    pipe_ = FileDescriptor(ends[0]);
    const FileDescriptor otherEnd(ends[1]);
    fcntl(pipe_.get(), F_SETFL, O_NONBLOCK);  // the writing end stays blocking, as programs expect
    bytes_.clear();
    zwlr_data_control_offer_v1_receive(offer_->offer.get(), chosen_.back().c_str(), otherEnd.get());
    state_.services.connection.flush();
    watch_ = state_.services.descriptors.watch(pipe_.get(), Descriptors::Interest::reading,
                                               [this](Descriptors::Interest) { receive(); });
    awaitAnswer();
  }

  void awaitAnswer() {
    timer_ = loop().after(state_.limits.timeout(loop().now(), end_), [this] {
      closePipe();
      check();
    });
  }

  void receive() {
    const auto self = shared_from_this();
    std::array<char, std::size_t{64} * 1024> piece{};
    const ssize_t count = ::read(pipe_.get(), piece.data(), piece.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (count > 0) {
      bytes_.append(piece.data(), static_cast<std::size_t>(count));
      if (bytes_.size() <= state_.limits.largest) return awaitAnswer();
      closePipe();
      return check();
    }
    closePipe();
    content_.insert_or_assign(std::move(chosen_.back()), std::move(bytes_));
    chosen_.pop_back();
    ask();
  }

  // A program that ends while it writes looks like one that has finished; only the compositor
  // reports that it has gone.
  void check() {
    timer_ = state_.services.connection.catchUp([this] {
      const auto self = shared_from_this();
      if (state_.current() == offer_) return finish();
      if (state_.current() != nullptr && loop().now() < end_) return begin();
      content_.clear();
      finish();
    });
  }

  void finishLater() {
    timer_ = loop().after({}, [this] { finish(); });
  }

  void finish() {
    const auto self = shared_from_this();  // the completion may drop the ticket
    const auto done = std::exchange(done_, nullptr);
    withdraw();
    if (done) done(std::move(content_));
  }

  void closePipe() {
    watch_ = {};
    pipe_ = {};
  }

  State& state_;
  const ClipboardFormats::Groups& wanted_;
  Done done_;
  desktop::MainLoop::TimePoint end_;
  std::shared_ptr<Offer> offer_;
  std::vector<std::string> chosen_;
  ClipboardFormats::Content content_;
  std::string bytes_;
  FileDescriptor pipe_;
  desktop::Ticket watch_;
  desktop::Ticket timer_;
};

void WaylandPasteboard::State::compare() {
  isWritten = false;
  comparing = Reading::start(*this, ClipboardFormats::wantedForText(),
                             [this](const ClipboardFormats::Content& content) {
                               isWritten = ClipboardFormats::plainTextOf(content) == written;
                             });
}

WaylandPasteboard::WaylandPasteboard(const Services& services, ClipboardKeeper keeper,
                                     TransferLimits limits)
    : FetchingPasteboard(services.loop),
      state_(new State{.pasteboard = *this,
                       .services = services,
                       .keeper = std::move(keeper),
                       .limits = limits}) {
  state_->manager = wayland::bindDataControl(services.connection);
  if (state_->manager == nullptr) return;
  state_->device.reset(zwlr_data_control_manager_v1_get_data_device(state_->manager.get(),
                                                                    services.connection.seat()));
  zwlr_data_control_device_v1_add_listener(state_->device.get(), &State::ofDevice, state_.get());
  // Some compositors send no event when there is no primary selection.
  state_->starting = services.loop.after({}, [state = state_.get()] {
    state->starting = state->services.connection.catchUp([state] { state->isPrimaryKnown = true; });
  });
}

WaylandPasteboard::~WaylandPasteboard() = default;

desktop::Ticket WaylandPasteboard::read(const ClipboardFormats::Groups& groups,
                                        std::function<void(ClipboardFormats::Content)> done) {
  return Reading::start(*state_, groups, std::move(done));
}

void WaylandPasteboard::write(const desktop::PasteboardContent& content) {
  static_cast<void>(state_->keeper.keep(content));  // no window owns a Wayland clipboard
  state_->lastWrite = std::chrono::steady_clock::now();
  state_->written = content.plainText;
  state_->isWritten = false;  // until the compositor reports it
}

bool WaylandPasteboard::isWritten() const {
  if (!state_->isWritten) state_->compare();
  return *state_->isWritten;
}

void WaylandPasteboard::takePrimarySelectionOf(std::uint64_t window) {
  if (state_->primary == nullptr || state_->primaryWindow != window) return;
  state_->takenFrom = window;
  change();
}

std::chrono::steady_clock::time_point WaylandPasteboard::lastWrite() const {
  return state_->lastWrite;
}

}  // namespace quillseal::linux
