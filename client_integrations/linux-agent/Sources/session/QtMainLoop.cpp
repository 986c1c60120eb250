#include "session/QtMainLoop.h"

#include <chrono>
#include <memory>
#include <utility>

#include "session/IdleMemory.h"

namespace quillseal::linux {
namespace {

// Workers mostly wait, for the user (a PIN) and for the network.
constexpr int workers = 16;
constexpr std::chrono::seconds untilIdle{2};

}  // namespace

QtMainLoop::QtMainLoop() {
  workers_.setMaxThreadCount(workers);
  // Returns memory to the system when the agent becomes idle.
  idle_.setSingleShot(true);
  idle_.setInterval(untilIdle);
  QObject::connect(&idle_, &QTimer::timeout, &receiver_,
                   [this] { workers_.start(giveBackUnusedMemory); });
}

QtMainLoop::~QtMainLoop() {
  workers_.waitForDone();
}

bool QtMainLoop::waitForWorkers(std::chrono::milliseconds timeout) {
  return workers_.waitForDone(static_cast<int>(timeout.count()));
}

void QtMainLoop::post(std::function<void()> work) {
  QMetaObject::invokeMethod(&receiver_, std::move(work), Qt::QueuedConnection);
}

desktop::Ticket QtMainLoop::after(std::chrono::milliseconds delay, std::function<void()> work) {
  auto timer = std::make_shared<std::unique_ptr<QTimer>>(std::make_unique<QTimer>());
  (*timer)->setSingleShot(true);
  (*timer)->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer->get(), &QTimer::timeout, &receiver_, [work = std::move(work)] {
    // A copy: the call may drop the ticket, and with it the timer that owns this function.
    const std::function<void()> call = work;
    call();
  });
  (*timer)->start(delay);
  return desktop::Ticket([timer] {
    (*timer)->stop();
    timer->release()->deleteLater();
  });
}

QtMainLoop::TimePoint QtMainLoop::now() const {
  return std::chrono::steady_clock::now();
}

desktop::Ticket QtMainLoop::runBlocking(std::function<void()> work,
                                        std::function<void()> finished) {
  const auto wanted = std::make_shared<std::function<void()>>(std::move(finished));
  workers_.start([this, work = std::move(work), wanted] {
    work();
    post([this, wanted] {
      idle_.start();
      if (const std::function<void()> call = std::exchange(*wanted, nullptr)) call();
    });
  });
  return desktop::Ticket([wanted] { *wanted = nullptr; });
}

}  // namespace quillseal::linux
