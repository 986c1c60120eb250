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

  /// Waits for workers that still run; false when some do after `patience`. What they would have
  /// run on the main thread afterwards is left out when the loop ends meanwhile.
  [[nodiscard]] bool waitForWorkers(std::chrono::milliseconds patience);

  void post(std::function<void()> work) override;
  [[nodiscard]] desktop::Ticket after(std::chrono::milliseconds delay,
                                      std::function<void()> work) override;
  [[nodiscard]] TimePoint now() const override;
  [[nodiscard]] desktop::Ticket runBlocking(std::function<void()> work,
                                            std::function<void()> finished) override;

 private:
  QObject receiver_;  // work posted to it goes with it
  QThreadPool workers_;
  QTimer idle_;
};

}  // namespace quillseal::linux
