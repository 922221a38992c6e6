#pragma once

#include "platform/runtime_error.h"

#include <QString>

namespace platform::host {

/// The classic error of a system error code.
ErrorNumber errorNumber(quint32 systemError);

/// Raises the classic error of `systemError`.
[[noreturn]] void raise(quint32 systemError);

/// Raises the error of a call on a directory: what is missing is a path.
[[noreturn]] void raiseForDirectory(quint32 systemError);

/// Raises the error of opening a file for reading: a file that another program keeps for itself may not be
/// read.
[[noreturn]] void raiseForReading(quint32 systemError);

/// The system's own sentence about an error, without its full stop.
QString systemText(quint32 systemError);

} // namespace platform::host
