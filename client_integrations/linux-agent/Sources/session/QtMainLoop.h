#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <chrono>

#include "desktop/MainLoop.h"

namespace quillseal::linux {

/// The main loop on Qt's event loop. REQUIRES: a QCoreApplication lives longer.
class QtMainLoop : public desktop::MainLoop {
 public:
  QtMainLoop();
  ~QtMainLoop() override;

  /// Waits for running workers; false when some still run after `timeout`. Their completions do
  /// not run if the loop ends meanwhile.
  [[nodiscard]] bool waitForWorkers(std::chrono::milliseconds timeout);

  void post(std::function<void()> work) override;
  [[nodiscard]] desktop::Ticket after(std::chrono::milliseconds delay,
                                      std::function<void()> work) override;
  [[nodiscard]] TimePoint now() const override;
  [[nodiscard]] desktop::Ticket runBlocking(std::function<void()> work,
                                            std::function<void()> finished) override;

 private:
  QObject receiver_;  // destroying it discards posted work
  QThreadPool workers_;
  QTimer idle_;
};

}  // namespace quillseal::linux
