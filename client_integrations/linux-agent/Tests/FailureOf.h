#pragma once

#include <string>

#include "keys/KeyFailure.h"

namespace quillseal::testing {

/// Returns the message of the KeyFailure that the action throws.
std::string failureOf(const auto& action) {
  try {
    action();
  } catch (const Cancelled& cancelled) {
    return cancelled.what();
  } catch (const linux::KeyFailure& failure) {
    return failure.what();
  }
  return "(no failure)";
}

}  // namespace quillseal::testing
