#pragma once

#include <functional>
#include <type_traits>

#import <Foundation/Foundation.h>

#include "core/text/Error.h"

namespace quillseal::mac {

/// What the platform reported, with its words; without any words when it gave nothing.
[[nodiscard]] Error errorFrom(NSError* _Nullable error);

/// The same for a status code of the Security framework, Carbon or I/O Kit.
[[nodiscard]] Error errorFromStatus(OSStatus status);

/// The same for an exception; its name is the domain.
[[nodiscard]] Error errorFromException(NSException* _Nonnull exception);

/// Gives what `work` gives, which calls the system; an NSException that comes out of it is thrown
/// as Error. Every port makes its calls to Foundation and AppKit in here: coroutines know C++
/// exceptions only. No `co_await` in `work`.
template <typename Work>
std::invoke_result_t<const Work&> callSystem(const Work& work) {
  @try {
    return work();
  } @catch (NSException* exception) {
    throw errorFromException(exception);
  }
}

/// Calls `work` where the caller is the system, which knows no exceptions of ours: one that comes
/// out of `work` is logged as a fault and goes no further.
void callGuarded(const std::function<void()>& work) noexcept;

}  // namespace quillseal::mac
