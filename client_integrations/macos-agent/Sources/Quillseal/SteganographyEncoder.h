#pragma once

namespace quillseal {

/// Reserved for a mark hidden in the text itself; a signed block shows its mark openly.
class SteganographyEncoder {};

}  // namespace quillseal
