#pragma once

#include <chrono>
#include <map>

#include "MacDesktop/MacMainLoop.h"
#include "desktop/HttpTransport.h"

@class NSURLSession;

namespace quillseal::mac {

/// HTTP over the URL loading system. An answer of more than 8 MiB fails with
/// `dataLengthExceedsMaximum`.
class MacHttpTransport final : public desktop::HttpTransport {
 public:
  explicit MacHttpTransport(const MacMainLoop& loop);
  ~MacHttpTransport() override;
  MacHttpTransport(const MacHttpTransport&) = delete;
  MacHttpTransport& operator=(const MacHttpTransport&) = delete;

  [[nodiscard]] desktop::Ticket send(
      const desktop::HttpPost& post,
      std::function<void(Outcome<desktop::HttpResponse>)> done) override;
  [[nodiscard]] Error error(desktop::transport::ErrorCode code) const override;

 private:
  /// Returns the session for this limit: the time limit of a whole exchange is a property of its
  /// session.
  [[nodiscard]] NSURLSession* sessionFor(std::chrono::seconds limit);

  MacMainLoop::Poster poster_;
  std::map<std::chrono::seconds, NSURLSession*> sessions_;
};

}  // namespace quillseal::mac
