#pragma once

#include <string>

#include <sys/types.h>

namespace quillseal::testing {

/// A message bus in a process of its own, which this process takes for the one that `variable` of
/// the environment names while the object lives. Nobody is on it at first.
class PrivateBus {
 public:
  explicit PrivateBus(const char* variable);
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

 private:
  std::string variable_;
  pid_t process_ = 0;
};

}  // namespace quillseal::testing
