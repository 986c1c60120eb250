#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

/// What another program offers to paste, read in turns of the main loop: the toolkit's clipboard
/// holds up the whole program, five seconds for each format, while the other one does not answer.
namespace quillseal::linux::X11Selection {

enum class Name { primary, clipboard };

/// Bytes by the names of their formats; empty for one that is offered but refused.
using Content = std::map<std::string, std::string>;

struct Wish {
  Name selection;
  /// Of each group the first format that is offered, in this order.
  std::vector<std::vector<std::string>> formats;
  /// Asked after each format, unless empty; nothing more is read once it holds.
  std::function<bool(const Content&)> isEnough;
};

struct Services {
  desktop::MainLoop& loop;
  Descriptors& descriptors;
};

/// Reads `wish`, one format after the other. Once the owner has been silent for five seconds it is
/// asked for nothing more; nor after twenty seconds, or for what exceeds 64 MiB. REQUIRES: the
/// program runs on an X server.
[[nodiscard]] desktop::Ticket read(const Services& services, Wish wish,
                                   std::function<void(Content)> done);

}  // namespace quillseal::linux::X11Selection
