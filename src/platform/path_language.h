#pragma once

#include <QChar>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

// The panel's one language of paths: a drive letter, a colon and backslashes, on every system. Only the
// platform's own implementations know the host's form.

namespace platform {

/// The parts of a path as it is written. `Names` are the components below `Rooted`'s root or, where the path
/// is not rooted, below a current directory.
struct PathParts
{
    std::optional<QChar> Drive; ///< upper-case letter, where the path names a drive
    bool Network = false;       ///< begins with two backslashes: a network name without a drive letter
    bool Rooted = false;
    QStringList Names;
};

/// Splits `path`. A drive text ("c:", "c: [label]", "x: \\server\share") is accepted as a path and in front
/// of one, and means that drive's current directory. Raises BadFileName for a second colon or a NUL
/// character.
PathParts splitPath(const QString &path);

/// Whether `path` is a drive text and nothing more: "c:", "c: [label]" or "x: \\server\share".
bool isDriveText(const QString &path);

/// The root of a drive: "C:\".
QString rootOf(QChar drive);

/// `directory` + "\" + `name`, with no second backslash behind a root.
QString joinPath(const QString &directory, const QString &name);

/// The directory that holds the absolute path `path`; a root holds itself.
QString parentOf(const QString &path);

/// The last name of an absolute path; empty for a root.
QString nameOf(const QString &path);

/// What stands for a directory where there is little room: its last name, or the drive of a root.
QString shortFormOf(const QString &directory);

/// The current drive, and the current directory of every drive that has one (the root where none is kept).
class CurrentDirectories
{
public:
    /// The current directory of the current drive, such as "C:\DATA".
    QString current() const { return of(drive_); }

    /// The current directory of `drive` (upper-case letter).
    QString of(QChar drive) const { return directories_.value(drive, rootOf(drive)); }

    QChar drive() const { return drive_; }
    void setDrive(QChar drive) { drive_ = drive; }

    /// Makes the absolute path `directory` the current directory of its own drive; the current drive stays.
    void set(const QString &directory) { directories_.insert(directory.at(0), directory); }

    /// `path` as an absolute path without "." and "..", and without a trailing backslash except at a root.
    /// Raises BadFileName as splitPath does, and PathNotFound for a network name or an empty path.
    QString absolute(const QString &path) const;

private:
    QChar drive_ = u'C';
    QMap<QChar, QString> directories_;
};

} // namespace platform
