#pragma once

#include "desktop/Wording.h"

namespace quillseal::mac {

/// The wording for macOS. Portable, so that the agent's tests can use it on every platform.
class MacWords final : public desktop::Words {
 public:
  [[nodiscard]] desktop::Wording current() const override;
};

}  // namespace quillseal::mac
