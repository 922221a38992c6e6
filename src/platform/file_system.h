#pragma once

#include "platform/directory.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace platform {

/// Whether a directory that was read before may be served again while it is unchanged, or is read anew.
enum class Reading { WhenChanged, Anew };

/// What tells one state of a file from another: equal stamps mean that nothing has written the file in
/// between.
struct FileStamp
{
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds
    qint64 changed = 0;  ///< nanoseconds

    bool operator==(const FileStamp &other) const = default;

    /// Whether both are states of one file, whatever it was called.
    bool isOfSameFile(const FileStamp &other) const { return device == other.device && node == other.node; }
};

/// Whether the user has agreed that a copy takes the place of the file that is there.
enum class Replacing { Refused, Agreed };

/// A file that is open for reading; it is closed when it is destroyed.
class OpenedFile
{
public:
    virtual ~OpenedFile() = default;

    /// The next `most` bytes, fewer only at the end of the file. Raises DeviceError and the like.
    virtual QByteArray read(qsizetype most) = 0;
};

/// Files and directories in the panel's path language. Letter case does not count in any name. A drive text
/// ("c: [label]") is accepted wherever a path is, also in front of one. Calls raise RuntimeError; opening a
/// pipe or a device is refused and never waits.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// The drive texts in letter order: "c: [label]" (fixed), "x: \\server\share" (network), "d:" (no label).
    virtual QStringList drives() = 0;

    /// The current directory of the current drive; a trailing backslash only at a root. Never raises.
    virtual QString currentDirectory() = 0;

    /// Makes the drive named by the first character of `drive` the current one. Raises InvalidProcedureCall
    /// for what is no letter, DeviceUnavailable for an absent drive.
    virtual void changeDrive(const QString &drive) = 0;

    /// Makes `path` the current directory of its drive; the current drive stays. Raises PathNotFound,
    /// PermissionDenied, DeviceUnavailable.
    virtual void changeDirectory(const QString &path) = 0;

    /// What the directory `path` holds, with its true spelling. Raises as changeDirectory does.
    virtual std::shared_ptr<const Directory> directory(const QString &path, Reading reading) = 0;

    /// Opens the file for reading and closes it at once. 0 when that worked, otherwise the number of the
    /// error: FileNotFound, PathNotFound, BadFileName, PermissionDenied, PathFileAccess (a directory, a pipe,
    /// a device), TooManyFiles where no more can be open. A missing file is an answer here, so this call
    /// never raises.
    virtual qint16 testReading(const QString &path) noexcept = 0;

    /// Opens the file for reading. Raises what testReading answers.
    virtual std::unique_ptr<OpenedFile> openFile(const QString &path) = 0;

    /// The first line of the file without its end, at most 64 Ki characters of it; text is UTF-8 where it is
    /// valid, otherwise code page 1252. Raises what testReading answers, and InputPastEnd for an empty file.
    virtual QString firstLine(const QString &path) = 0;

    /// The short (8.3) form of the name of an existing file, or the name itself on a system without short
    /// names.
    virtual QString shortName(const QString &path) = 0;

    /// The present state of a file; nothing where there is none.
    virtual std::optional<FileStamp> stamp(const QString &path) = 0;

    /// The full path, in its true spelling, of the file that writing to `path` would change; links are
    /// followed. Nothing where there is no such file. Raises as changeDirectory does.
    virtual std::optional<QString> existingFile(const QString &path) = 0;

    /// Copies the file `source` to `destination`, whole or not at all: whatever fails, and even if the
    /// program is killed, the destination is what it was or the complete copy. A file that is there in
    /// another case is the one that is replaced, and keeps its spelling. Begins the next moment. Raises what
    /// testReading answers for the source; for the destination FileAlreadyExists where `replacing` is
    /// refused, FileAlreadyOpen where another program keeps it open and the system cannot replace it,
    /// PathFileAccess for what is no file, PermissionDenied, PathNotFound; DiskFull and DeviceError.
    virtual void copyFile(const QString &source, const QString &destination, Replacing replacing) = 0;

    /// Makes the directory `path`, and nothing above it. Begins the next moment. Raises PathFileAccess where
    /// something of this name is there already, in any case; BadFileName for what cannot be a name;
    /// PathNotFound, PermissionDenied, DeviceUnavailable, DiskFull.
    virtual void makeDirectory(const QString &path) = 0;

    /// Removes the directory `path` where it is empty, and never anything else: no file, no root, nothing
    /// that a link stands for. A drive text, "." and ".." are refused, and letter case counts here: another
    /// directory must not go in its place. Begins the next moment. Raises PathFileAccess, PathNotFound,
    /// BadFileName, PermissionDenied, DeviceUnavailable; the description is the reason.
    virtual void removeDirectory(const QString &path) = 0;

    /// Begins a moment, and ends it: in between all questions are answered for that moment, so that whether a
    /// directory has changed is looked up once and not for each of them. The dispatcher gives every handler
    /// its moment.
    virtual void beginMoment() = 0;
    virtual void endMoment() = 0;

    /// Events have run meanwhile: another moment begins.
    virtual void nextMoment() = 0;
};

} // namespace platform
