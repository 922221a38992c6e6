#pragma once

#include <QString>

// What a directory may be called that is to be made or removed, the same on every system.

namespace platform {

/// Whether `path` ends with a name of its own: a drive, "." and ".." mean another directory as soon as the
/// current one does. Raises as splitPath does.
bool endsWithName(const QString &path);

/// Refuses to remove what is called by a drive, "." or "..". Raises PathFileAccess with the reason.
void requireOwnName(const QString &path);

/// Raises PathFileAccess: the name of a directory that is to be made is taken.
[[noreturn]] void raiseTaken();

/// Raises PathFileAccess: the root of a drive is not removed, by whatever path it was reached.
[[noreturn]] void raiseDrive();

} // namespace platform
