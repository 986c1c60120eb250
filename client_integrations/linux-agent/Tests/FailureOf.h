#pragma once

#include <string>

#include "keys/KeyFailure.h"

namespace quillseal::testing {

/// What a key store says when the action fails.
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
