#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "portal/PortalRemote.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// The clipboard through the Clipboard portal, in the session in which keys are pressed. Without a
/// session it is empty and does not change. What was written is lost with the session, and so with
/// the agent. The loss of the clipboard's owner does not count as a change: it may be the first
/// step of the next copy.
class PortalPasteboard : public desktop::Pasteboard {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    Portal& portal;
    PortalRemote& remote;
  };

  /// Limits of a fetch: the owner's silence, the whole time, and the size.
  struct Patience {
    /// A word processor may take seconds to render a long document for each format.
    std::chrono::milliseconds silence{5000};
    std::chrono::milliseconds transfer{20000};
    std::size_t largest = std::size_t{64} * 1024 * 1024;  ///< bytes
  };

  explicit PortalPasteboard(const Services& services) : PortalPasteboard(services, Patience()) {}
  PortalPasteboard(const Services& services, Patience patience);
  ~PortalPasteboard() override;

  [[nodiscard]] std::int64_t changeCount() const override;
  [[nodiscard]] desktop::Ticket onNextChange(std::function<void()> changed) override;

  /// Requests one format after the other while the owner keeps within `Patience`. The result is
  /// empty when another program copies meanwhile.
  [[nodiscard]] desktop::Ticket fetch(std::function<void()> fetched) override;
  [[nodiscard]] bool isConcealed() const override;
  [[nodiscard]] std::optional<std::string> plainText() const override;
  [[nodiscard]] std::optional<std::string> html() const override;
  [[nodiscard]] desktop::Ticket fetchRtf(
      std::function<void(std::optional<std::string>)> done) override;

  /// Returns once the portal has taken the offer, which it then passes on to the desktop.
  void write(const desktop::PasteboardContent& content) override;

  /// Whether the desktop has taken what was last written, and nobody else has copied since.
  [[nodiscard]] bool isWritten() const override;

 private:
  struct State;

  std::unique_ptr<State> state_;
};

}  // namespace quillseal::linux
