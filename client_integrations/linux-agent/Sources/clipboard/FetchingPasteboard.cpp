#include "clipboard/FetchingPasteboard.h"

#include <utility>

namespace quillseal::linux {

desktop::Ticket FetchingPasteboard::onNextChange(std::function<void()> changed) {
  const std::uint64_t id = ++lastWatch_;
  watches_[id] = std::move(changed);
  return desktop::Ticket([this, id] { watches_.erase(id); });
}

void FetchingPasteboard::change() {
  ++changeCount_;
  fetched_.clear();
  reporting_ = loop_.after({}, [this] {
    // A copy: a watch may drop others or add new ones.
    for (auto& [id, unused] : std::map(watches_))
      if (const auto watch = watches_.extract(id); !watch.empty()) watch.mapped()();
  });
}

desktop::Ticket FetchingPasteboard::fetch(std::function<void()> fetched) {
  fetched_.clear();
  return read(ClipboardFormats::wanted(),
              [this, fetched = std::move(fetched)](ClipboardFormats::Content content) {
                fetched_ = std::move(content);
                fetched();
              });
}

bool FetchingPasteboard::isConcealed() const {
  return ClipboardFormats::isSecret(fetched_);
}

std::optional<std::string> FetchingPasteboard::plainText() const {
  return ClipboardFormats::plainTextOf(fetched_);
}

std::optional<std::string> FetchingPasteboard::html() const {
  return ClipboardFormats::htmlOf(fetched_);
}

desktop::Ticket FetchingPasteboard::fetchRtf(std::function<void(std::optional<std::string>)> done) {
  return read(ClipboardFormats::wantedForRtf(),
              [done = std::move(done)](const ClipboardFormats::Content& content) {
                done(ClipboardFormats::rtfOf(content));
              });
}

}  // namespace quillseal::linux
