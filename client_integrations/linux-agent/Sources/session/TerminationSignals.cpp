#include "session/TerminationSignals.h"

#include <QObject>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <initializer_list>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace quillseal::linux {
namespace {

constexpr std::initializer_list<int> endingSignals = {SIGHUP, SIGINT, SIGTERM};

// Global, because a signal handler has no other access.
std::atomic<int> signalled = -1;

void handle(int) {
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(signalled.load(), &one, sizeof one);
}

void setHandlers(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int signal : endingSignals)
    sigaction(signal, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> terminate)
    : event_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  signalled = event_.get();
  notifier_ = std::make_unique<QSocketNotifier>(event_.get(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, terminate = std::move(terminate)] {
                     notifier_->setEnabled(false);
                     terminate();
                   });
  setHandlers(handle);
}

TerminationSignals::~TerminationSignals() {
  setHandlers(SIG_DFL);
  signalled = -1;
}

}  // namespace quillseal::linux
