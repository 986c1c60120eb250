#pragma once

#include <string>

#include <sys/types.h>

namespace quillseal::testing {

/// A private dbus-daemon. While the object lives, the environment's `variable` names it. It has no
/// services at first.
class PrivateBus {
 public:
  explicit PrivateBus(const char* variable);
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

  /// From now on it answers nothing.
  void hang() const;

 private:
  std::string variable_;
  pid_t process_ = 0;
};

}  // namespace quillseal::testing
