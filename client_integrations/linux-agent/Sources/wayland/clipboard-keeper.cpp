// Keeps text on the clipboard of a Wayland compositor.

#include <cerrno>
#include <list>
#include <memory>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "clipboard/ClipboardFormats.h"
#include "clipboard/KeeperProcess.h"
#include "session/FileDescriptor.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandDataControl.h"

namespace {

namespace wayland = quillseal::linux::wayland;
namespace ClipboardFormats = quillseal::linux::ClipboardFormats;
using quillseal::desktop::PasteboardContent;
using quillseal::desktop::Ticket;
using quillseal::linux::Descriptors;
using quillseal::linux::WaylandConnection;

class Offer final : public quillseal::linux::KeptOffer {
 public:
  Offer(std::unique_ptr<WaylandConnection> connection, PasteboardContent content)
      : connection_(std::move(connection)),
        content_(std::move(content)),
        manager_(wayland::bindDataControl(*connection_)) {}

  [[nodiscard]] bool make() override;

  void hold() override {
    quillseal::linux::PollLoop& loop = loop_.loop();
    connection_->onEnd([&loop] { loop.stop(); });
    connection_->serve(loop, loop);
    loop.run();
  }

 private:
  struct Transfer {
    quillseal::linux::FileDescriptor file;
    std::string_view left;
    Ticket watch;
  };

  void send(std::string_view format, int file) {
    fcntl(file, F_SETFL, fcntl(file, F_GETFL) | O_NONBLOCK);
    const bool isHtml = format == ClipboardFormats::html;
    Transfer& transfer =
        transfers_.emplace_back(Transfer{.file = quillseal::linux::FileDescriptor(file),
                                         .left = isHtml ? content_.html : content_.plainText,
                                         .watch = {}});
    transfer.watch =
        loop_.loop().watch(file, Descriptors::Interest::writing,
                           [this, &transfer](Descriptors::Interest) { goOn(transfer); });
  }

  void goOn(Transfer& transfer) {
    const ssize_t written = write(transfer.file.get(), transfer.left.data(), transfer.left.size());
    if (written > 0) transfer.left.remove_prefix(static_cast<std::size_t>(written));
    if (written >= 0 && !transfer.left.empty()) return;
    if (written < 0 && (errno == EAGAIN || errno == EINTR)) return;
    transfer.watch = {};
    transfers_.remove_if([&](const Transfer& other) { return &other == &transfer; });
    loop_.transferEnded(transfers_.empty());
  }

  void replaced() { loop_.replaced(transfers_.empty()); }

  static Offer& of(void* data) { return *static_cast<Offer*>(data); }
  struct Listeners;

  quillseal::linux::KeeperLoop loop_;
  std::unique_ptr<WaylandConnection> connection_;
  PasteboardContent content_;
  wayland::DataControlManager manager_;
  wayland::DataControlDevice device_;
  wayland::DataControlSource source_;
  wayland::DataControlOffer
      latest_;  ///< the newest offer of any program; a later event refers to it
  bool isOffered_ = false;
  bool isTaken_ = false;
  std::list<Transfer> transfers_;
};

struct Offer::Listeners {
  static constexpr zwlr_data_control_source_v1_listener ofSource = {
      .send = [](void* data, zwlr_data_control_source_v1*, const char* format,
                 std::int32_t file) { of(data).send(format, file); },
      .cancelled = [](void* data, zwlr_data_control_source_v1*) { of(data).replaced(); }};
  static constexpr zwlr_data_control_device_v1_listener ofDevice = {
      .data_offer = [](void* data, zwlr_data_control_device_v1*,
                       zwlr_data_control_offer_v1* offer) { of(data).latest_.reset(offer); },
      .selection =
          [](void* data, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1* offer) {
            of(data).isTaken_ = of(data).isTaken_ || (of(data).isOffered_ && offer != nullptr);
          },
      .finished = [](void* data, zwlr_data_control_device_v1*) { of(data).replaced(); },
      .primary_selection = [](void*, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1*) {}};
};

bool Offer::make() {
  if (manager_ == nullptr) return false;
  device_.reset(zwlr_data_control_manager_v1_get_data_device(manager_.get(), connection_->seat()));
  zwlr_data_control_device_v1_add_listener(device_.get(), &Listeners::ofDevice, this);
  source_.reset(zwlr_data_control_manager_v1_create_data_source(manager_.get()));
  zwlr_data_control_source_v1_add_listener(source_.get(), &Listeners::ofSource, this);
  for (const char* format : ClipboardFormats::ofBlockAsText)
    zwlr_data_control_source_v1_offer(source_.get(), format);
  zwlr_data_control_source_v1_offer(source_.get(), ClipboardFormats::html);
  if (!connection_->roundTrip()) return false;
  isOffered_ = true;
  zwlr_data_control_device_v1_set_selection(device_.get(), source_.get());
  return connection_->roundTrip() && isTaken_ && !loop_.isReplaced();
}

}  // namespace

int main() {
  return quillseal::linux::runKeeper([](PasteboardContent content) -> std::unique_ptr<Offer> {
    auto connection = WaylandConnection::open();
    if (connection == nullptr) return nullptr;
    return std::make_unique<Offer>(std::move(connection), std::move(content));
  });
}
