// Keeps text on the clipboard of an X server, such as Xwayland, which GNOME keeps equal to its own.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "clipboard/ClipboardFormats.h"
#include "clipboard/ClipboardKeeper.h"
#include "clipboard/KeeperProcess.h"
#include "session/PollLoop.h"
#include "x11/X11Selection.h"
#include "x11/XcbHandles.h"

namespace {

namespace x11 = quillseal::linux::x11;
namespace ClipboardFormats = quillseal::linux::ClipboardFormats;
namespace X11Selection = quillseal::linux::X11Selection;
using quillseal::desktop::PasteboardContent;
using quillseal::desktop::Ticket;
using quillseal::linux::Descriptors;

using std::chrono::steady_clock;

/// How long to wait for the offer of the agent to end. Its end may not be reported, and the desktop
/// needs a moment to put its own copy on the clipboard.
constexpr std::chrono::seconds longestEnd{10};
constexpr std::chrono::milliseconds pauseBetweenLooks{100};
/// Longer texts are sent in pieces (ICCCM, section 2.7.2). Every server takes requests of 256 KiB.
constexpr std::size_t longestPiece = std::size_t{64} * 1024;
constexpr std::uint8_t bits8 = 8;
constexpr std::uint8_t bits32 = 32;

/// Owner of the selection, by the conventions of the ICCCM, section 2.
class Offer final : public quillseal::linux::KeptOffer {
 public:
  Offer(x11::Connection connection, PasteboardContent content)
      : connection_(std::move(connection)), content_(std::move(content)) {}

  [[nodiscard]] bool make() override;
  [[nodiscard]] bool makeInPlace() override;
  [[nodiscard]] std::uint32_t window() const override { return window_; }

  void hold() override {
    const Ticket watch = loop_.loop().watch(xcb_get_file_descriptor(connection_.get()),
                                            Descriptors::Interest::reading,
                                            [this](Descriptors::Interest) { receive(); });
    receive();  // what has come with earlier answers
    loop_.loop().run();
  }

 private:
  /// Where an answer is to be stored.
  struct Place {
    xcb_window_t window;
    xcb_atom_t property;
    bool operator==(const Place&) const = default;
  };
  struct Transfer {
    Place place;
    xcb_atom_t type;
    std::string_view left;
  };

  [[nodiscard]] xcb_atom_t atom(std::string_view name) const {
    return x11::atomOf(connection_.get(), name);
  }
  void prepare();
  [[nodiscard]] bool take(xcb_timestamp_t time);
  [[nodiscard]] std::optional<std::string> textThere();
  [[nodiscard]] xcb_timestamp_t timeOfServer() const;
  void receive();
  void handle(const xcb_generic_event_t& event);
  void answer(const xcb_selection_request_event_t& request);
  void answerAll(const Place& pairs);
  [[nodiscard]] bool store(xcb_atom_t target, const Place& place);
  void storeText(std::string_view text, xcb_atom_t type, const Place& place);
  void storeNumbers(const std::vector<std::uint32_t>& numbers, xcb_atom_t type,
                    const Place& place) const;
  void sendPiece(const Place& place);
  void forget(xcb_window_t window);

  template <typename Event>
  static const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);  // all have the same 32 bytes
  }

  quillseal::linux::KeeperLoop loop_;
  x11::Connection connection_;
  PasteboardContent content_;
  xcb_window_t window_ = XCB_NONE;
  xcb_timestamp_t since_ = XCB_CURRENT_TIME;
  xcb_atom_t clipboard_ = XCB_ATOM_NONE;
  xcb_atom_t targets_ = XCB_ATOM_NONE;
  xcb_atom_t timestamp_ = XCB_ATOM_NONE;
  xcb_atom_t multiple_ = XCB_ATOM_NONE;
  xcb_atom_t pairs_ = XCB_ATOM_NONE;
  xcb_atom_t incremental_ = XCB_ATOM_NONE;
  std::map<xcb_atom_t, std::string_view> texts_;  ///< by target; parts of `content_`
  std::list<Transfer> transfers_;
};

bool Offer::make() {
  prepare();
  return take(timeOfServer());
}

bool Offer::makeInPlace() {
  prepare();
  const auto end = steady_clock::now() + longestEnd;
  bool wasEmpty = false;
  while (steady_clock::now() < end && xcb_connection_has_error(connection_.get()) == 0) {
    // The server refuses a selection to anybody who names a time before its last change: what is
    // copied after this moment stays.
    const xcb_timestamp_t time = timeOfServer();
    const bool isEmpty = x11::ownerOf(connection_.get(), clipboard_) == XCB_NONE;
    const std::optional<std::string> text = isEmpty ? std::nullopt : textThere();
    const bool isOurs = text == content_.plainText;
    if (!isOurs && text && !text->empty()) return false;
    // An empty clipboard may be about to get the desktop's own copy.
    const bool mayTake = isOurs || (isEmpty && wasEmpty);
    if (mayTake && take(time)) return true;
    wasEmpty = isEmpty;
    const Ticket pause = loop_.loop().after(pauseBetweenLooks, [this] { loop_.loop().stop(); });
    loop_.loop().run();
  }
  return false;
}

/// Returns the plain text on the clipboard, nothing when there is none or its owner does not
/// answer.
std::optional<std::string> Offer::textThere() {
  std::optional<std::string> text;
  const Ticket reading =
      X11Selection::read({.loop = loop_.loop(), .descriptors = loop_.loop()},
                         {.selection = X11Selection::Name::clipboard,
                          .formats = {{"UTF8_STRING", ClipboardFormats::plainText}},
                          .isEnough = {}},
                         [this, &text](const X11Selection::Content& content) {
                           if (!content.empty()) text = content.begin()->second;
                           loop_.loop().stop();
                         });
  loop_.loop().run();
  return text;
}

void Offer::prepare() {
  xcb_connection_t* const connection = connection_.get();
  window_ = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_,
                    xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  clipboard_ = atom("CLIPBOARD");
  targets_ = atom("TARGETS");
  timestamp_ = atom("TIMESTAMP");
  multiple_ = atom("MULTIPLE");
  pairs_ = atom("ATOM_PAIR");
  incremental_ = atom("INCR");
  for (const char* format : ClipboardFormats::ofBlockAsText)
    texts_[atom(format)] = content_.plainText;
  texts_[atom(ClipboardFormats::html)] = content_.html;
  // The instance and the class.
  const std::string name = std::string(quillseal::linux::ClipboardKeeper::programForX11) + '\0';
  const std::string both = name + name;
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS,
                      XCB_ATOM_STRING, bits8, static_cast<std::uint32_t>(both.size()), both.data());
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(connection, window_, XCB_CW_EVENT_MASK, &events);
}

bool Offer::take(xcb_timestamp_t time) {
  since_ = time;
  xcb_set_selection_owner(connection_.get(), window_, clipboard_, time);
  return x11::ownerOf(connection_.get(), clipboard_) == window_;
}

/// Returns the server's time, with which the ICCCM demands that a selection is taken: the server
/// reports it with each change of a property.
xcb_timestamp_t Offer::timeOfServer() const {
  xcb_change_property(connection_.get(), XCB_PROP_MODE_APPEND, window_, XCB_ATOM_WM_CLASS,
                      XCB_ATOM_STRING, bits8, 0, nullptr);
  xcb_flush(connection_.get());
  // Events of an earlier attempt to read the selection may come first.
  while (const x11::Reply<xcb_generic_event_t> event{xcb_wait_for_event(connection_.get())})
    if (event->response_type == XCB_PROPERTY_NOTIFY)
      return as<xcb_property_notify_event_t>(*event).time;
  return XCB_CURRENT_TIME;
}

void Offer::receive() {
  while (const x11::Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())})
    handle(*event);
  xcb_flush(connection_.get());
  if (xcb_connection_has_error(connection_.get()) != 0) loop_.loop().stop();
}

void Offer::handle(const xcb_generic_event_t& event) {
  constexpr unsigned sentByProgram = 0x80;
  switch (event.response_type & ~sentByProgram) {
    case XCB_SELECTION_REQUEST:
      return answer(as<xcb_selection_request_event_t>(event));
    case XCB_SELECTION_CLEAR:
      return loop_.replaced(transfers_.empty());
    case XCB_PROPERTY_NOTIFY:
      if (const auto& change = as<xcb_property_notify_event_t>(event);
          change.state == XCB_PROPERTY_DELETE)
        sendPiece({.window = change.window, .property = change.atom});
      return;
    case XCB_DESTROY_NOTIFY:
      return forget(as<xcb_destroy_notify_event_t>(event).window);
    default:  // errors too, of windows that have closed
      return;
  }
}

void Offer::answer(const xcb_selection_request_event_t& request) {
  // Obsolete clients name no property (ICCCM, section 2.2).
  const Place place{
      .window = request.requestor,
      .property = request.property == XCB_ATOM_NONE ? request.target : request.property};
  bool isStored = request.selection == clipboard_ && request.owner == window_;
  if (isStored && request.target == multiple_)
    answerAll(place);
  else
    isStored = isStored && store(request.target, place);
  xcb_selection_notify_event_t notice{};
  notice.response_type = XCB_SELECTION_NOTIFY;
  notice.time = request.time;
  notice.requestor = request.requestor;
  notice.selection = request.selection;
  notice.target = request.target;
  notice.property = isStored ? place.property : xcb_atom_t{XCB_ATOM_NONE};
  xcb_send_event(connection_.get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&notice));
}

/// Stores each of the targets that are listed at `pairs`, and marks there those that are not
/// offered.
void Offer::answerAll(const Place& pairs) {
  constexpr std::uint32_t longestList = 256;
  const x11::Reply<xcb_get_property_reply_t> list(xcb_get_property_reply(
      connection_.get(),
      xcb_get_property(connection_.get(), 0, pairs.window, pairs.property, pairs_, 0, longestList),
      nullptr));
  if (list == nullptr || list->format != bits32) return;
  std::vector<std::uint32_t> atoms(
      static_cast<std::size_t>(xcb_get_property_value_length(list.get())) / sizeof(std::uint32_t));
  if (atoms.empty()) return;
  std::memcpy(atoms.data(), xcb_get_property_value(list.get()),
              atoms.size() * sizeof(std::uint32_t));
  for (std::size_t target = 0; target + 1 < atoms.size(); target += 2) {
    std::uint32_t& property = atoms[target + 1];
    if (!store(atoms[target], {.window = pairs.window, .property = property}))
      property = XCB_ATOM_NONE;
  }
  storeNumbers(atoms, pairs_, pairs);
}

/// Returns whether the target is offered.
bool Offer::store(xcb_atom_t target, const Place& place) {
  if (target == targets_) {
    std::vector<std::uint32_t> offered{targets_, timestamp_, multiple_};
    for (const auto& [format, text] : texts_)
      offered.push_back(format);
    storeNumbers(offered, XCB_ATOM_ATOM, place);
  } else if (target == timestamp_) {
    storeNumbers({since_}, XCB_ATOM_INTEGER, place);
  } else if (const auto text = texts_.find(target); text != texts_.end()) {
    storeText(text->second, target, place);
  } else {
    return false;
  }
  return true;
}

void Offer::storeNumbers(const std::vector<std::uint32_t>& numbers, xcb_atom_t type,
                         const Place& place) const {
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, place.window, place.property, type,
                      bits32, static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void Offer::storeText(std::string_view text, xcb_atom_t type, const Place& place) {
  transfers_.remove_if([&](const Transfer& earlier) { return earlier.place == place; });
  if (text.size() <= longestPiece) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, place.window, place.property,
                        type, bits8, static_cast<std::uint32_t>(text.size()), text.data());
    return;
  }
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_.get(), place.window, XCB_CW_EVENT_MASK, &events);
  transfers_.push_back({.place = place, .type = type, .left = text});
  storeNumbers({static_cast<std::uint32_t>(text.size())}, incremental_, place);
}

/// Sends the next piece of a transfer, once the reader has deleted the one before. An empty one
/// ends it.
void Offer::sendPiece(const Place& place) {
  const auto transfer = std::ranges::find(transfers_, place, &Transfer::place);
  if (transfer == transfers_.end()) return;
  const std::string_view piece = transfer->left.substr(0, longestPiece);
  transfer->left.remove_prefix(piece.size());
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, place.window, place.property,
                      transfer->type, bits8, static_cast<std::uint32_t>(piece.size()),
                      piece.data());
  if (!piece.empty()) return;
  transfers_.erase(transfer);
  loop_.transferEnded(transfers_.empty());
}

void Offer::forget(xcb_window_t window) {
  transfers_.remove_if([&](const Transfer& one) { return one.place.window == window; });
  loop_.transferEnded(transfers_.empty());
}

}  // namespace

int main(int argc, char** argv) {
  const auto offerOf = [](PasteboardContent content) -> std::unique_ptr<Offer> {
    x11::Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) return nullptr;
    return std::make_unique<Offer>(std::move(connection), std::move(content));
  };
  if (argc > 1 && argv[1] == quillseal::linux::ClipboardKeeper::waiting)
    return quillseal::linux::runWaitingKeeper(offerOf);
  return quillseal::linux::runKeeper(offerOf);
}
