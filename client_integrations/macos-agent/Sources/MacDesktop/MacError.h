#pragma once

#include <functional>
#include <type_traits>

#import <Foundation/Foundation.h>

#include "core/text/Error.h"

namespace quillseal::mac {

/// Converts a platform error, with its description; empty when there was none.
[[nodiscard]] Error errorFrom(NSError* _Nullable error);

/// Converts a status code of the Security framework, Carbon or I/O Kit.
[[nodiscard]] Error errorFromStatus(OSStatus status);

/// Converts an exception; its name becomes the domain.
[[nodiscard]] Error errorFromException(NSException* _Nonnull exception);

/// Returns the result of `work` and rethrows an NSException as Error. Every port calls Foundation
/// and AppKit inside this function, since coroutines handle only C++ exceptions. No `co_await` in
/// `work`.
template <typename Work>
std::invoke_result_t<const Work&> callSystem(const Work& work) {
  @try {
    return work();
  } @catch (NSException* exception) {
    throw errorFromException(exception);
  }
}

/// Calls `work` in a callback from the system, which cannot handle C++ exceptions. Logs an
/// exception as a fault and does not pass it on.
void callGuarded(const std::function<void()>& work) noexcept;

}  // namespace quillseal::mac
