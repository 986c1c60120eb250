#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

/// Reads a selection of another program without blocking the main loop. The toolkit's clipboard
/// blocks for up to five seconds for each format while the owner does not answer.
namespace quillseal::linux::X11Selection {

enum class Name { primary, clipboard };

/// Maps the name of a format to its bytes; empty for one that was offered but refused.
using Content = std::map<std::string, std::string>;

struct Request {
  Name selection;
  /// Reads the first offered format of each group, in this order.
  std::vector<std::vector<std::string>> formats;
  /// If set, called after each format; reading stops once it returns true.
  std::function<bool(const Content&)> isEnough;
};

struct Services {
  desktop::MainLoop& loop;
  Descriptors& descriptors;
};

/// Reads the formats of `request` one after the other. Stops at the usual `TransferLimits`.
/// REQUIRES: the program runs on an X server.
[[nodiscard]] desktop::Ticket read(const Services& services, Request request,
                                   std::function<void(Content)> done);

}  // namespace quillseal::linux::X11Selection
