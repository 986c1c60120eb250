#include "presence/LinuxPresence.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "presence/FingerprintReader.h"
#include "presence/PolkitAuthority.h"
#include "presence/PresenceError.h"

namespace quillseal::linux {

namespace {

using desktop::MainLoop;
using desktop::PresencePolicy;
using desktop::Ticket;

/// The state of one evaluation that the worker and the main thread share.
struct Exchange {
  Interrupt interrupt;
  Outcome<bool> outcome = false;
};

/// One evaluation, on the main thread. It lives until the ticket is dropped.
class Evaluation : public std::enable_shared_from_this<Evaluation> {
 public:
  using Done = std::function<void(Outcome<bool>)>;

  Evaluation(MainLoop& loop, PresencePrompt& prompt, Done done)
      : loop_(loop), prompt_(prompt), done_(std::move(done)) {}

  void askForFinger(const desktop::Prompt& prompt) {
    window_ = prompt_.open({.reason = prompt.reason,
                            .medium = prompt.medium,
                            .instruction = "Touch the fingerprint reader.",
                            .needsConsent = false},
                           [this](bool) { finish(presenceCancelled()); });
    const auto instruct = [this, weak = weak_from_this()](std::string_view instruction) {
      loop_.post([weak, text = std::string(instruction)] {
        const auto self = weak.lock();
        if (self && self->window_) self->window_->setInstruction(text);
      });
    };
    work([exchange = exchange_, instruct] {
      return FingerprintReader::verify(exchange->interrupt, instruct);
    });
  }

  void askForPassword(const desktop::Prompt& prompt) {
    window_ = prompt_.open(
        {.reason = prompt.reason,
         .medium = prompt.medium,
         .instruction = "You will be asked for your password.",
         .needsConsent = true},
        [this](bool goOn) {
          if (!goOn) return finish(presenceCancelled());
          window_ = nullptr;
          work([exchange = exchange_] { return PolkitAuthority::ask(exchange->interrupt); });
        });
  }

  /// No callback runs afterwards.
  void withdraw() {
    done_ = nullptr;
    exchange_->interrupt.raise();
    window_ = nullptr;
    worker_ = {};
  }

 private:
  void work(std::function<bool()> check) {
    worker_ = loop_.runBlocking(
        [exchange = exchange_, check = std::move(check)] {
          try {
            exchange->outcome = check();
          } catch (const Error& error) {
            exchange->outcome = error;
          }
        },
        [this] { finish(std::move(exchange_->outcome)); });
  }

  void finish(Outcome<bool> outcome) {
    const auto self = shared_from_this();  // the completion may drop the ticket
    const Done done = std::exchange(done_, nullptr);
    withdraw();
    if (done) done(std::move(outcome));
  }

  MainLoop& loop_;
  PresencePrompt& prompt_;
  Done done_;
  std::shared_ptr<Exchange> exchange_ = std::make_shared<Exchange>();
  std::unique_ptr<PresenceWindow> window_;
  Ticket worker_;
};

}  // namespace

desktop::PresenceCapability LinuxPresence::canEvaluate(PresencePolicy policy) const {
  const bool available =
      FingerprintReader::isEnrolled() ||
      (policy == PresencePolicy::biometricsOrPassword && PolkitAuthority::canAsk());
  return {.available = available, .reason = std::nullopt};
}

desktop::Biometry LinuxPresence::biometry() const {
  return FingerprintReader::isEnrolled() ? desktop::Biometry::touchId : desktop::Biometry::none;
}

Ticket LinuxPresence::evaluate(PresencePolicy policy, const desktop::Prompt& prompt,
                               std::function<void(Outcome<bool>)> done) {
  const auto evaluation = std::make_shared<Evaluation>(loop_, prompt_, std::move(done));
  if (policy == PresencePolicy::biometrics) {
    evaluation->askForFinger(prompt);
  } else {
    evaluation->askForPassword(prompt);
  }
  return Ticket([evaluation] { evaluation->withdraw(); });
}

}  // namespace quillseal::linux
