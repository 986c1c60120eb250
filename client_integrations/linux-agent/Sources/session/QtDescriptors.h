#pragma once

#include "session/Descriptors.h"

namespace quillseal::linux {

/// Watches descriptors in Qt's event loop. REQUIRES: a QCoreApplication lives longer.
class QtDescriptors final : public Descriptors {
 public:
  [[nodiscard]] desktop::Ticket watch(int descriptor, Interest interest,
                                      std::function<void(Interest)> ready) override;
};

}  // namespace quillseal::linux
