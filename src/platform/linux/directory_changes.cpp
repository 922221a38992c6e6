#include "platform/linux/directory_changes.h"

#include "platform/directory_names.h"
#include "platform/linux/directory_reader.h"
#include "platform/linux/host_names.h"
#include "platform/linux/system_error.h"
#include "platform/runtime_error.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

// A name that its directory would show in another spelling (a quote stands for itself in no name) or that
// leads elsewhere is not the name of what would be made or removed.
void requireTrueSpelling(const QString &absolutePath)
{
    const QStringList names = splitPath(absolutePath).Names;
    for (const QString &name : names) {
        if (name.contains(u'/') || fromHostName(toHostName(name)) != name)
            throw RuntimeError(ErrorNumber::BadFileName);
    }
}

// A quote, or a colon behind the last backslash, that was typed means itself; within names the path language
// has other characters for them.
QString spelledAsTyped(const QString &path)
{
    const qsizetype name = path.lastIndexOf(u'\\') + 1;
    QString last = path.mid(name);
    if (name > 0)
        last.replace(u':', fromHostName(":"));
    return QString(path.left(name) + last).replace(u'"', fromHostName("\""));
}

// Whether a directory holds anything of this name, in any case, a link that leads nowhere included.
bool isTaken(const QByteArray &directory, const QString &path, const QString &name)
{
    try {
        return !readDirectory(directory, path).directory->find(name).isNull();
    } catch (const RuntimeError &error) {
        // It cannot be listed; the system still knows whether the exact name is taken.
        if (error.Number != static_cast<qint16>(ErrorNumber::PermissionDenied))
            throw;
        return false;
    }
}

// Whether a directory is the root of a drive, by whatever path it was reached.
bool isRoot(const DriveMap &drives, const struct stat &directory)
{
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        struct stat root = {};
        if (drives.contains(letter) && ::stat(drives.toHost(rootOf(letter)).constData(), &root) == 0
            && root.st_dev == directory.st_dev && root.st_ino == directory.st_ino)
            return true;
    }
    return false;
}

} // namespace

void makeHostDirectory(PathLookup &lookup, const CurrentDirectories &current, const QString &path)
{
    const QString spelled = spelledAsTyped(path);
    const QString absolute = current.absolute(spelled);
    requireTrueSpelling(absolute);
    const QString above = parentOf(absolute);
    const QString name = nameOf(absolute);
    const auto parent = lookup.find(above);
    if (!parent)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (!endsWithName(spelled) || isTaken(*parent, above, name))
        raiseTaken();
    if (::mkdir(hostPathBelow(*parent, name).constData(), 0777) != 0) {
        if (errno == EEXIST)
            raiseTaken();
        // FAT and its like refuse a name in this way.
        if (errno == EINVAL)
            throw RuntimeError(ErrorNumber::BadFileName);
        raise(errno);
    }
}

void removeHostDirectory(const DriveMap &drives, const CurrentDirectories &current, const QString &path)
{
    const QString absolute = current.absolute(path);
    if (!drives.contains(absolute.at(0)))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    requireOwnName(path);
    requireTrueSpelling(absolute);
    const QByteArray directory = drives.toHost(absolute);
    struct stat status = {};
    if (::lstat(directory.constData(), &status) != 0)
        raise(errno);
    if (S_ISLNK(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It is a link to another directory"_s);
    if (!S_ISDIR(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not a directory"_s);
    if (isRoot(drives, status))
        raiseDrive();
    // Whatever has taken the name since, this follows no link and removes nothing but an empty directory.
    if (::rmdir(directory.constData()) != 0) {
        if (errno == ENOTEMPTY || errno == EEXIST)
            throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not empty"_s);
        if (errno == EBUSY)
            throw RuntimeError(ErrorNumber::PathFileAccess, u"The system uses it"_s);
        raise(errno);
    }
}

} // namespace platform::host
