#include <string>
#include <string_view>
#include <vector>

#include "Fuzzer.h"
#include "browsers/TabMessages.h"

namespace {

using namespace quillseal::linux::TabMessages;

/// The messages of a stream in pieces of this size, and whether it was valid.
struct Received {
  std::vector<std::string> messages;
  bool isSound = true;
  bool operator==(const Received&) const = default;
};

Received received(std::string_view stream, std::size_t piece) {
  Received result;
  Deframer deframer;
  try {
    for (std::size_t at = 0; at < stream.size(); at += piece) {
      deframer.append(stream.substr(at, piece));
      while (auto message = deframer.next())
        result.messages.push_back(*std::move(message));
    }
  } catch (const ProtocolError&) {
    result.isSound = false;
  }
  return result;
}

/// An accepted message can be written again, and reads the same.
template <typename Read>
void pass(const std::string& message, Read read) {
  std::string passed;
  try {
    passed = written(read(message));
  } catch (const ProtocolError&) {
    return;
  }
  quillseal::fuzz::require(written(read(passed)) == passed);
}

}  // namespace

/// A stream gives the same messages in pieces of any size. Each message is refused, or passes
/// through the relay unchanged.
void quillseal::fuzz::check(std::string_view stream) {
  const Received whole = received(stream, stream.size() + 1);
  require(received(stream, 1) == whole && received(stream, 7) == whole);
  for (const std::string& message : whole.messages) {
    require(!message.empty() && message.size() <= longestMessage);
    pass(message, readRequest);
    pass(message, readAnswer);
    pass(message, readGreeting);
  }
}
