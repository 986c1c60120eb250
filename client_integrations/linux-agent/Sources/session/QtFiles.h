#pragma once

#include "desktop/Files.h"

namespace quillseal::linux {

class QtFiles : public desktop::Files {
 public:
  [[nodiscard]] std::string homeDirectory() const override;
  bool replace(const std::string& path, std::string_view contents) override;
};

}  // namespace quillseal::linux
