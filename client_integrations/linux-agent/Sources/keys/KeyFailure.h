#pragma once

#include <string>

#include "core/text/Error.h"

namespace quillseal::linux {

/// A key operation that failed: what is wrong and what to do about it, in sentences for the user.
/// Never holds a secret.
class KeyFailure : public Error {
 public:
  explicit KeyFailure(const std::string& description)
      : Error({.domain = "Quillseal.Key", .code = 0, .description = description}) {}
};

}  // namespace quillseal::linux
