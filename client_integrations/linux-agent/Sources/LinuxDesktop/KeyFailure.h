#pragma once

#include <stdexcept>

namespace quillseal {

/// A key operation that failed. `what()` is a sentence or two for the user: what is wrong and what
/// to do about it. Never holds a secret.
class KeyFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quillseal
