#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "clipboard/ClipboardKeeper.h"
#include "clipboard/FetchingPasteboard.h"
#include "clipboard/TransferLimits.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "portal/PortalRemote.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// The clipboard through the Clipboard portal, in the session in which keys are pressed. Without a
/// session it is empty and does not change. The offer of what was written ends with the session,
/// and so with the agent: a keeper waits for that, and takes it over where there is an X server,
/// whose clipboard the desktop keeps equal to its own.
class PortalPasteboard : public FetchingPasteboard {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    Portal& portal;
    PortalRemote& remote;
    desktop::Log& log;
  };

  struct Limits : TransferLimits {
    /// For a session to open, about which the desktop may ask the user.
    std::chrono::milliseconds session{30000};
  };

  /// `keeper`: for X11.
  PortalPasteboard(const Services& services, ClipboardKeeper keeper)
      : PortalPasteboard(services, std::move(keeper), Limits()) {}
  PortalPasteboard(const Services& services, ClipboardKeeper keeper, Limits limits);
  ~PortalPasteboard() override;

  /// Opens a session if there is none.
  [[nodiscard]] desktop::Ticket prepareWrite(std::function<void()> ready) override;

  /// Returns once the portal has taken the offer, which it then passes on to the desktop.
  void write(const desktop::PasteboardContent& content) override;

  /// Whether the desktop has taken what was last written, and nobody else has copied since.
  [[nodiscard]] bool isWritten() const override;

 private:
  struct State;

  /// The result is empty when another program copies meanwhile.
  [[nodiscard]] desktop::Ticket read(const ClipboardFormats::Groups& groups,
                                     std::function<void(ClipboardFormats::Content)> done) override;

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
