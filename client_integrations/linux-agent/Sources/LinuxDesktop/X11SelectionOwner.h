#pragma once

#include <chrono>

namespace quillseal {

enum class X11Selection { primary, clipboard };

/// Whether the program that owns `selection` answers a question for its formats within `patience`.
/// True as well when nobody owns it, and when the session has no X server to ask.
///
/// Qt waits five seconds, on the main thread, for every single format of a program that hangs.
/// REQUIRES: the owner is another program, since this one cannot answer while it waits.
[[nodiscard]] bool ownerAnswers(X11Selection selection, std::chrono::milliseconds patience);

}  // namespace quillseal
