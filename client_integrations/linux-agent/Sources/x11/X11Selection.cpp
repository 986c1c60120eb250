#include "x11/X11Selection.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "clipboard/TransferLimits.h"
#include "x11/XcbHandles.h"

namespace quillseal::linux::X11Selection {
namespace {

constexpr TransferLimits limits;

using x11::Reply;

/// A separate connection, so that no event is taken from the toolkit. Closing it frees everything
/// made through it. Its calls wait only for the X server.
class Connection {
 public:
  Connection() : connection_(xcb_connect(nullptr, nullptr)) {
    if (!isUsable()) return;
    window_ = xcb_generate_id(connection_.get());
    const auto* setup = xcb_get_setup(connection_.get());
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window_,
                      xcb_setup_roots_iterator(setup).data->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
  }

  [[nodiscard]] bool isUsable() const { return xcb_connection_has_error(connection_.get()) == 0; }
  [[nodiscard]] int descriptor() const { return xcb_get_file_descriptor(connection_.get()); }

  [[nodiscard]] xcb_atom_t atom(std::string_view name) const {
    return x11::atomOf(connection_.get(), name);
  }

  /// Asks the owner to store `target` in the property of the same name.
  void convert(xcb_atom_t selection, xcb_atom_t target) const {
    xcb_convert_selection(connection_.get(), window_, selection, target, target, XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
  }

  struct Property {
    xcb_atom_t type = XCB_ATOM_NONE;
    std::string bytes;
    bool isWhole = true;
  };

  /// Reads and deletes the property. In an incremental transfer that requests the next piece.
  [[nodiscard]] Property take(xcb_atom_t property) const {
    constexpr std::uint8_t thenDelete = 1;
    constexpr std::uint32_t longest = limits.largest / 4;
    const auto cookie = xcb_get_property(connection_.get(), thenDelete, window_, property,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.get(), cookie, nullptr));
    if (reply == nullptr) return {};
    return {.type = reply->type,
            .bytes = {static_cast<const char*>(xcb_get_property_value(reply.get())),
                      static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))},
            .isWhole = reply->bytes_after == 0};
  }

  [[nodiscard]] Reply<xcb_generic_event_t> nextEvent() const {
    return Reply<xcb_generic_event_t>(xcb_poll_for_event(connection_.get()));
  }

 private:
  x11::Connection connection_;
  xcb_window_t window_ = XCB_NONE;
};

/// One read operation. Lives until its ticket is dropped.
class Reading : public std::enable_shared_from_this<Reading> {
 public:
  Reading(const Services& services, Request request, std::function<void(Content)> done)
      : services_(services), request_(std::move(request)), done_(std::move(done)) {}

  void begin() {
    if (!connection_.isUsable()) {
      timer_ = services_.loop.after({}, [this] { finish(); });
      return;
    }
    end_ = services_.loop.now() + limits.transfer;
    selection_ = connection_.atom(request_.selection == Name::primary ? "PRIMARY" : "CLIPBOARD");
    incremental_ = connection_.atom("INCR");
    watch_ = services_.descriptors.watch(connection_.descriptor(), Descriptors::Interest::reading,
                                         [this](Descriptors::Interest) { receive(); });
    ask({.name = {}, .atom = connection_.atom("TARGETS")});
  }

  void withdraw() {
    done_ = nullptr;
    timer_ = {};
    watch_ = {};
  }

 private:
  struct Format {
    std::string name;  ///< empty for the list of formats
    xcb_atom_t atom = XCB_ATOM_NONE;
  };

  void ask(Format format) {
    asked_ = std::move(format);
    bytes_.clear();
    isInPieces_ = false;
    connection_.convert(selection_, asked_.atom);
    awaitAnswer();
  }

  void awaitAnswer() {
    timer_ = services_.loop.after(limits.timeout(services_.loop.now(), end_), [this] { finish(); });
  }

  // Reads all queued events: earlier replies may have brought some.
  void receive() {
    const auto self = shared_from_this();
    while (done_ != nullptr) {
      const Reply<xcb_generic_event_t> event = connection_.nextEvent();
      if (event != nullptr) {
        handle(*event);
      } else {
        if (!connection_.isUsable()) finish();
        return;
      }
    }
  }

  void handle(const xcb_generic_event_t& event) {
    constexpr unsigned sentByProgram = 0x80;
    const unsigned type = event.response_type & ~sentByProgram;
    // Each kind of event has its own layout in the same 32 bytes.
    if (type == XCB_SELECTION_NOTIFY) {
      const auto& answer = reinterpret_cast<const xcb_selection_notify_event_t&>(event);
      if (answer.target != asked_.atom || isInPieces_) return;
      if (answer.property == XCB_ATOM_NONE) {
        accept({});
      } else {
        takeAnswer();
      }
    } else if (type == XCB_PROPERTY_NOTIFY) {
      const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
      if (isInPieces_ && change.atom == asked_.atom && change.state == XCB_PROPERTY_NEW_VALUE)
        takePiece();
    }
  }

  void takeAnswer() {
    Connection::Property property = connection_.take(asked_.atom);
    if (property.type == incremental_) {
      isInPieces_ = true;
      awaitAnswer();
    } else if (property.isWhole) {
      accept(std::move(property.bytes));
    } else {
      finish();
    }
  }

  void takePiece() {
    const Connection::Property piece = connection_.take(asked_.atom);
    if (piece.bytes.empty()) return accept(std::move(bytes_));
    bytes_ += piece.bytes;
    if (!piece.isWhole || bytes_.size() > limits.largest) return finish();
    awaitAnswer();
  }

  void accept(std::string bytes) {
    if (asked_.name.empty()) {
      choose(bytes);
    } else {
      content_.insert_or_assign(asked_.name, std::move(bytes));
    }
    if (chosen_.empty() || (request_.isEnough && request_.isEnough(content_))) return finish();
    Format next = std::move(chosen_.back());
    chosen_.pop_back();
    ask(std::move(next));
  }

  void choose(std::string_view list) {
    std::vector<xcb_atom_t> offered(list.size() / sizeof(xcb_atom_t));
    if (!offered.empty())
      std::memcpy(offered.data(), list.data(), offered.size() * sizeof(xcb_atom_t));
    for (const std::vector<std::string>& group : request_.formats) {
      for (const std::string& name : group) {
        const xcb_atom_t atom = connection_.atom(name);
        if (std::ranges::find(offered, atom) == offered.end()) continue;
        chosen_.push_back({.name = name, .atom = atom});
        break;
      }
    }
    std::ranges::reverse(chosen_);  // the next one is the last
  }

  void finish() {
    const auto self = shared_from_this();  // the completion may drop the ticket
    const auto done = std::exchange(done_, nullptr);
    withdraw();
    if (done) done(std::move(content_));
  }

  Services services_;
  Request request_;
  std::function<void(Content)> done_;
  Connection connection_;
  xcb_atom_t selection_ = XCB_ATOM_NONE;
  xcb_atom_t incremental_ = XCB_ATOM_NONE;
  desktop::MainLoop::TimePoint end_;
  std::vector<Format> chosen_;
  Format asked_;
  std::string bytes_;  // of an incremental transfer
  bool isInPieces_ = false;
  Content content_;
  desktop::Ticket timer_;
  desktop::Ticket watch_;  // last: destroyed before the connection
};

}  // namespace

desktop::Ticket read(const Services& services, Request request, std::function<void(Content)> done) {
  const auto reading = std::make_shared<Reading>(services, std::move(request), std::move(done));
  reading->begin();
  return desktop::Ticket([reading] { reading->withdraw(); });
}

}  // namespace quillseal::linux::X11Selection
