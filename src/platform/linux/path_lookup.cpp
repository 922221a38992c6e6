#include "platform/linux/path_lookup.h"

#include "platform/letter_case.h"
#include "platform/linux/host_names.h"
#include "platform/linux/system_error.h"
#include "platform/path_language.h"

#include <sys/stat.h>
#include <unistd.h>

namespace platform::host {

namespace {

// The data directory, the program directory with its graphs, and their ancestors.
constexpr qsizetype MostReadings = 24;

bool exists(const QByteArray &hostPath)
{
    struct stat status
    {};
    return ::stat(hostPath.constData(), &status) == 0;
}

bool isExecutableFile(const QByteArray &hostPath)
{
    struct stat status
    {};
    return ::stat(hostPath.constData(), &status) == 0 && S_ISREG(status.st_mode)
           && ::access(hostPath.constData(), X_OK) == 0;
}

// The host's root may be written as an empty path, to which names are joined.
QByteArray joined(const QByteArray &hostDirectory, const QString &name)
{
    return (hostDirectory == "/" ? QByteArray() : hostDirectory) + '/' + toHostName(name);
}

} // namespace

std::optional<QByteArray> PathLookup::find(const QString &path)
{
    requireDrive(path);
    const QByteArray literal = drives_.toHost(path);
    if (exists(literal))
        return literal;

    const QChar drive = path.at(0);
    const QStringList names = splitPath(path).Names;
    QString known = path;
    for (qsizetype below = 0; below < names.size(); ++below, known = parentOf(known)) {
        const auto remembered = remembered_.constFind(UCase(known));
        if (remembered != remembered_.constEnd() && exists(*remembered))
            return findBelow(drive, *remembered, names.last(below));
    }
    return findBelow(drive, drives_.root(drive), names);
}

PathLookup::File PathLookup::findFile(const QString &path)
{
    requireDrive(path);
    const QString directory = parentOf(path);
    const auto remembered = remembered_.constFind(UCase(directory));
    if (remembered != remembered_.constEnd() && directory.size() < path.size()) {
        try {
            const QByteArray hostDirectory = *remembered;
            const QString name = listing(path.at(0), hostDirectory, Reading::WhenChanged)->find(nameOf(path));
            return {name.isNull() ? std::nullopt : std::optional(joined(hostDirectory, name))};
        } catch (const RuntimeError &) {
            // Gone, or not to be listed: the long way may still find it.
        }
    }
    const auto found = find(path);
    return {found, found || find(directory)};
}

PathLookup::File PathLookup::findProgram(const QString &path)
{
    const File found = findFile(path);
    if (found.hostPath || !path.endsWith(QLatin1String(".EXE"), Qt::CaseInsensitive))
        return found;
    const File native = findFile(path.chopped(4));
    return native.hostPath && isExecutableFile(*native.hostPath) ? native : found;
}

std::shared_ptr<const Directory> PathLookup::directory(const QString &path, Reading reading)
{
    const auto found = find(path);
    if (!found)
        throw RuntimeError(ErrorNumber::PathNotFound);
    const QChar drive = path.at(0);
    auto result = listing(drive, *found, reading);
    remember(drive, *found);
    return result;
}

void PathLookup::remember(QChar drive, const QByteArray &hostDirectory)
{
    remembered_.insert(UCase(drives_.toPanel(drive, hostDirectory)), hostDirectory);
}

void PathLookup::requireDrive(const QString &path) const
{
    if (!drives_.contains(path.at(0)))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
}

// A listing carries its path on one drive; a directory that two drives reach is read for each.
std::shared_ptr<const Directory> PathLookup::listing(QChar drive, const QByteArray &hostDirectory,
                                                     Reading reading)
{
    const QByteArray readable = hostDirectory.isEmpty() ? QByteArray("/") : hostDirectory;
    const QString path = drives_.toPanel(drive, hostDirectory);
    const auto known = readings_.constFind(path);
    if (reading == Reading::WhenChanged && known != readings_.constEnd() && known->settled
        && known->stamp == stampOf(readable))
        return known->directory;

    DirectoryReading fresh = readDirectory(readable, path);
    recentlyRead_.removeOne(path);
    recentlyRead_.append(path);
    if (recentlyRead_.size() > MostReadings)
        readings_.remove(recentlyRead_.takeFirst());
    readings_.insert(path, fresh);
    return fresh.directory;
}

std::optional<QByteArray> PathLookup::findBelow(QChar drive, QByteArray hostDirectory,
                                                const QStringList &names)
{
    for (const QString &name : names) {
        QString spelled;
        try {
            spelled = listing(drive, hostDirectory, Reading::WhenChanged)->find(name);
        } catch (const RuntimeError &) {
            // A directory that cannot be listed may still be passed through by the exact name.
            spelled = name;
        }
        if (spelled.isNull())
            return std::nullopt;
        hostDirectory = joined(hostDirectory, spelled);
    }
    return exists(hostDirectory) ? std::optional(hostDirectory) : std::nullopt;
}

} // namespace platform::host
