#pragma once

#include <functional>

#import <Foundation/Foundation.h>

#include "Desktop/Error.h"

namespace quillseal::mac {

/// What the platform reported, with its words; without any words when it gave nothing.
[[nodiscard]] Error errorFrom(NSError* _Nullable error);

/// The same for a status code of the Security framework, Carbon or I/O Kit.
[[nodiscard]] Error errorFromStatus(OSStatus status);

/// Calls `work` where the caller is the system, which knows no C++ exceptions: one that comes out
/// of `work` is logged as a fault and goes no further.
void callGuarded(const std::function<void()>& work) noexcept;

}  // namespace quillseal::mac
