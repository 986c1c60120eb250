#pragma once

#include <cstddef>

namespace quillseal::testing {

/// Makes one allocation of this thread fail: the one after `succeeding` others. One object at a
/// time.
class FailingAllocation {
 public:
  explicit FailingAllocation(std::size_t succeeding);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  [[nodiscard]] bool happened() const;
};

}  // namespace quillseal::testing
