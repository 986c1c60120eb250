#pragma once

#include "desktop/Wording.h"

namespace quillseal::mac {

/// The words of macOS. Portable, so that tests of the agent read them on every platform.
class MacWords final : public desktop::Words {
 public:
  [[nodiscard]] desktop::Wording current() const override;
};

}  // namespace quillseal::mac
