#pragma once

#include "platform/directory.h"
#include "platform/file_system.h"
#include "platform/windows/windows_api.h"

#include <QByteArray>
#include <QString>

#include <memory>

// The system's calls on single files and directories. All paths are absolute paths of the path language,
// which is the system's own.

namespace platform::host {

/// A name without the blanks and dots at its end, which do not count; one of nothing else as it is.
QString withoutEndOfName(const QString &name);

/// A path as the system takes it whatever its length. It means exactly what is written: no device, and
/// nothing outside of it. Blanks and dots at the end of a name do not count, as everywhere on this system.
std::wstring systemPath(const QString &path);

/// Raises BadFileName where a name of the absolute path is none that this system has.
void requirePossibleNames(const QString &absolutePath);

/// The attributes of whatever is called `path`; INVALID_FILE_ATTRIBUTES where there is nothing, the system's
/// last error being the reason.
DWORD attributesOf(const QString &path);

/// Whether `attributes` are a directory's.
bool isDirectory(DWORD attributes);

/// What the system does with whatever is called `path` in a way of its own; 0 for what is just there.
DWORD reparseTagOf(const QString &path);

/// Whether `path` stands for another file or directory.
bool isLink(const QString &path);

/// `path` as it is spelled on disk. Names that cannot be looked up stay as they are.
QString trueSpelling(const QString &path);

/// Opens a regular file for reading; other programs may go on writing, renaming and removing it. Raises
/// FileNotFound, PathNotFound, PathFileAccess for what is no file, PermissionDenied and the like.
Handle openForReading(const QString &path);

/// The next `most` bytes of an open file, fewer only at its end. Raises DeviceError and the like.
QByteArray readFrom(const Handle &file, qsizetype most);

/// The present state of the open file or directory `path`.
FileStamp stampOf(const Handle &file, const QString &path);

/// Reads the directory `path` in one pass. Raises PathNotFound, PermissionDenied and the like.
std::shared_ptr<const Directory> readDirectory(const QString &path);

/// Turns off the system's own boxes about drives that are not ready while it lives.
class QuietDrives
{
public:
    QuietDrives();
    ~QuietDrives();
    QuietDrives(const QuietDrives &) = delete;
    QuietDrives &operator=(const QuietDrives &) = delete;

private:
    DWORD before_ = 0;
};

} // namespace platform::host
