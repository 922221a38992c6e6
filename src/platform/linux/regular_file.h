#pragma once

#include "platform/linux/file_descriptor.h"

#include <QByteArray>

namespace platform::host {

/// Refuses what is no regular file before anything opens it: opening a pipe would wait, opening a device may
/// act on it. Raises FileNotFound, PathFileAccess, PermissionDenied.
void requireRegularFile(const QByteArray &hostPath);

/// The same for a file that is open: another one may have taken its name in between.
void requireRegularFile(int descriptor);

/// Raises the error of a call on a file: what is missing is the file.
[[noreturn]] void raiseForFile(int systemError);

/// Opens a regular file for reading. Raises as requireRegularFile does.
FileDescriptor openForReading(const QByteArray &hostPath);

/// The next `most` bytes of an open file, fewer only at its end. Raises DeviceError and the like.
QByteArray readFrom(const FileDescriptor &file, qsizetype most);

} // namespace platform::host
