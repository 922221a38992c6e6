#pragma once

#include "platform/linux/file_descriptor.h"

#include <QByteArray>

namespace platform::host {

/// Refuses what is no regular file before anything opens it: opening a pipe would wait, opening a device may
/// act on it. Raises FileNotFound, PathFileAccess, PermissionDenied.
void requireRegularFile(const QByteArray &hostPath);

/// Opens a regular file for reading. Raises as requireRegularFile does.
FileDescriptor openForReading(const QByteArray &hostPath);

} // namespace platform::host
