#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/MainLoop.h"
#include "keyboard/ClaimedHotkey.h"
#include "keyboard/HeldHotkey.h"
#include "session/Descriptors.h"
#include "wayland/SwayIpc.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandLayout.h"

namespace quillseal::linux {

/// The global hotkey as a binding in sway that does nothing; sway reports its use. Any other
/// binding of the same keys takes precedence. Without sway there is no hotkey.
class SwayHotkey : public ClaimedHotkey {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    WaylandConnection& connection;
    std::string socket;  ///< SWAYSOCK; empty where sway does not run
    Notify notify;
  };

  explicit SwayHotkey(Services services);
  ~SwayHotkey() override;

 private:
  void claim() override;
  /// Has sway run a command; false when sway did not confirm it.
  [[nodiscard]] bool command(const std::string& text);
  [[nodiscard]] std::uint32_t keyInLayout() const;
  [[nodiscard]] std::string chord() const;
  [[nodiscard]] bool bind();
  void bindAgain();
  void unbind();
  void followLayout();
  void receive();
  void handle(const SwayIpc::Message& message);

  Services services_;
  std::unique_ptr<SwayIpc> commands_;
  std::unique_ptr<SwayIpc> events_;
  std::uint32_t key_ = 0;
  bool isBound_ = false;
  HeldHotkey held_;
  std::unique_ptr<WaylandLayout> layout_;
  desktop::Ticket following_;
  desktop::Ticket watch_;
};

}  // namespace quillseal::linux
