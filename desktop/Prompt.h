#pragma once

#include <string>

namespace quillseal::desktop {

/// What the system's own prompt tells the user about the act they are asked to prove presence for.
struct Prompt {
  std::string reason;  ///< a phrase that begins with a verb; never empty
  std::string medium;  ///< where the text is going, for prompts that have room for it; may be empty
};

}  // namespace quillseal::desktop
