#pragma once

#include "platform/file_system.h"
#include "platform/linux/directory_reader.h"
#include "platform/linux/drive_map.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace platform::host {

/// Finds files on a host that tells letter case apart, for a panel that does not. All paths are absolute
/// paths of the path language. Every call raises DeviceUnavailable for an absent drive.
class PathLookup
{
public:
    explicit PathLookup(DriveMap &drives) : drives_(drives) {}

    /// The host's path of the directory (or whatever else) called `path`: the path as it stands first, then
    /// the spelling in which the panel has used it, then each name against the folded index of its directory.
    /// Nothing where there is no such thing. Raises PermissionDenied and TooManyFiles where that cannot be
    /// known.
    std::optional<QByteArray> find(const QString &path);

    /// The host's path of a file, and where there is none, what is missing.
    struct File
    {
        std::optional<QByteArray> hostPath;
        bool directoryExists = true;
    };

    /// The file called `path`. Where the panel has used its directory, the index of that directory alone
    /// decides, so that a missing file costs one call.
    File findFile(const QString &path);

    /// Whether `path` is a plain name in the directory of the file that was looked up last, written in the
    /// same way: then it is absolute as it stands.
    bool isInLastDirectory(QStringView path) const;

    /// The same for a program: one named ".exe" that is not there is looked for without its extension, as a
    /// regular executable file, so that a native program or a script may take its place.
    File findProgram(const QString &path);

    /// What the directory `path` holds, kept while the directory is unchanged. Raises PathNotFound,
    /// PermissionDenied.
    std::shared_ptr<const Directory> directory(const QString &path, platform::Reading reading);

    /// Moments within which no change of a directory is noticed; they may lie within each other.
    void beginMoment()
    {
        ++moment_;
        ++moments_;
    }
    void endMoment() { --moments_; }
    void nextMoment() { ++moment_; }

    /// Remembers the true spelling of a directory that the panel has used, so that its upper-case form is
    /// found again even below a directory that cannot be listed, and is never mistaken for another one's.
    void remember(QChar drive, const QByteArray &hostDirectory);

    /// Forgets what is known of a drive: its letter means another directory by now.
    void forget(QChar drive);

private:
    /// A directory that was read. It carries its path on one drive; one that two drives reach is read for
    /// each.
    struct Reading
    {
        QByteArray hostPath;
        DirectoryReading read;
        quint64 moment = 0; ///< the last moment for which it was known to be current
    };

    void requireDrive(const QString &path) const;
    bool isCurrent(Reading &reading) const;
    std::shared_ptr<Reading> readAnew(QChar drive, const QByteArray &hostDirectory);
    std::shared_ptr<Reading> listing(QChar drive, const QByteArray &hostDirectory);
    std::shared_ptr<Reading> usedDirectory(QStringView directory);
    QByteArray findBelow(QChar drive, QByteArray hostDirectory, const QStringList &names);

    DriveMap &drives_;
    QHash<QString, QByteArray> remembered_; ///< upper-case path of a directory: its path on the host
    QHash<QByteArray, std::shared_ptr<Reading>> readings_; ///< by drive letter and host path
    QList<QByteArray> recentlyRead_;                       ///< of readings_, the oldest first
    QString lastDirectory_;                ///< of the last file that was looked up, as it was written
    std::shared_ptr<Reading> lastReading_; ///< its reading
    quint64 moment_ = 0;
    int moments_ = 0; ///< how many lie within each other now
};

} // namespace platform::host
