#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillseal {

/// The sources of the images of an HTML fragment, in document order, duplicates kept, as written
/// (no entity decoding). Takes linear time, whatever the markup.
[[nodiscard]] std::vector<std::string> imageReferences(std::string_view html);

}  // namespace quillseal
