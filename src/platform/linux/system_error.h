#pragma once

#include "platform/runtime_error.h"

namespace platform::host {

/// The classic error of a system call's `errno`; what is missing is a path unless the caller knows better.
ErrorNumber errorNumber(int systemError);

/// Raises the classic error of `systemError`.
[[noreturn]] void raise(int systemError);

} // namespace platform::host
