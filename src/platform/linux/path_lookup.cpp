#include "platform/linux/path_lookup.h"

#include "platform/letter_case.h"
#include "platform/linux/host_names.h"
#include "platform/linux/system_error.h"
#include "platform/path_language.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace platform::host {

namespace {

// The data directory, the program directory with its graphs, and their ancestors.
constexpr qsizetype MostReadings = 24;

/// Whether something is there, and whether some answer was refused.
class Existence
{
public:
    bool of(const QByteArray &hostPath)
    {
        struct stat status = {};
        if (::stat(hostPath.constData(), &status) == 0)
            return true;
        refused_ = refused_ || errno == EACCES;
        return false;
    }

    bool wasRefused() const { return refused_; }

private:
    bool refused_ = false;
};

bool isExecutableFile(const QByteArray &hostPath)
{
    struct stat status = {};
    return ::stat(hostPath.constData(), &status) == 0 && S_ISREG(status.st_mode)
           && ::access(hostPath.constData(), X_OK) == 0;
}

QByteArray keyOf(QChar drive, const QByteArray &hostDirectory)
{
    return static_cast<char>(drive.unicode()) + hostDirectory;
}

bool namesProgram(QStringView path)
{
    return path.size() > 4 && path[path.size() - 4] == u'.' && sameIgnoringCase(path.last(3), u"exe");
}

// A directory that cannot be listed may still be passed through by an exact name. Where no more files can be
// open, though, nothing is known of what it holds.
void requireDescriptors(const RuntimeError &error)
{
    if (error.Number == static_cast<qint16>(ErrorNumber::TooManyFiles))
        throw error;
}

} // namespace

std::optional<QByteArray> PathLookup::find(const QString &path)
{
    requireDrive(path);
    Existence existence;
    QByteArray literal = drives_.toHost(path);
    if (existence.of(literal))
        return literal;

    const QChar drive = path.at(0);
    const QStringList names = splitPath(path).Names;
    QByteArray from = drives_.root(drive);
    qsizetype below = 0;
    QString known = path;
    for (; below < names.size(); ++below, known = parentOf(known)) {
        const auto remembered = remembered_.constFind(UCase(known));
        if (remembered != remembered_.constEnd() && existence.of(*remembered)) {
            from = *remembered;
            break;
        }
    }
    QByteArray found = findBelow(drive, from, names.last(below));
    if (existence.of(found))
        return found;
    if (existence.wasRefused())
        throw RuntimeError(ErrorNumber::PermissionDenied);
    return std::nullopt;
}

PathLookup::File PathLookup::findFile(const QString &path)
{
    requireDrive(path);
    const qsizetype name = path.lastIndexOf(u'\\') + 1;
    // A name directly in a root is looked for the long way.
    if (const auto reading = name > 3 ? usedDirectory(QStringView(path).left(name - 1)) : nullptr) {
        const QString spelled = reading->read.directory->find(QStringView(path).mid(name));
        return {spelled.isNull() ? std::nullopt : std::optional(hostPathBelow(reading->hostPath, spelled))};
    }
    const auto found = find(path);
    return {found, found || find(parentOf(path))};
}

// The reading of a directory that the panel has used, brought up to date; null where it is not one, is gone
// or cannot be listed.
std::shared_ptr<PathLookup::Reading> PathLookup::usedDirectory(QStringView directory)
{
    if (lastReading_ && directory == lastDirectory_ && isCurrent(*lastReading_))
        return lastReading_;
    lastReading_ = nullptr;
    const QString path = directory.toString();
    const QString upper = UCase(path);
    const auto remembered = remembered_.constFind(upper);
    // A spelling of its own may mean another directory than the one that was used.
    if (remembered == remembered_.constEnd()
        || (path != upper && path != drives_.toPanel(path.at(0), *remembered)))
        return nullptr;
    try {
        lastReading_ = listing(path.at(0), *remembered);
        lastDirectory_ = path;
    } catch (const RuntimeError &error) {
        requireDescriptors(error);
        // Gone, or not to be listed: the long way may still find the file.
    }
    return lastReading_;
}

bool PathLookup::isInLastDirectory(QStringView path) const
{
    const qsizetype length = lastDirectory_.size();
    if (!lastReading_ || path.size() <= length + 1 || path[length] != u'\\'
        || !path.startsWith(lastDirectory_))
        return false;
    const QStringView name = path.mid(length + 1);
    return name[0] != u'.' && std::none_of(name.begin(), name.end(), [](QChar c) {
               return c == u'\\' || c == u':' || c == u'\0';
           });
}

PathLookup::File PathLookup::findProgram(const QString &path)
{
    File found = findFile(path);
    if (found.hostPath || !namesProgram(path))
        return found;
    File native = findFile(path.chopped(4));
    return native.hostPath && isExecutableFile(*native.hostPath) ? native : found;
}

std::shared_ptr<const Directory> PathLookup::directory(const QString &path, platform::Reading reading)
{
    const auto found = find(path);
    if (!found)
        throw RuntimeError(ErrorNumber::PathNotFound);
    const QChar drive = path.at(0);
    const auto result = reading == platform::Reading::Anew ? readAnew(drive, *found) : listing(drive, *found);
    remember(drive, *found);
    return result->read.directory;
}

void PathLookup::remember(QChar drive, const QByteArray &hostDirectory)
{
    remembered_.insert(UCase(drives_.toPanel(drive, hostDirectory)), hostDirectory);
    lastReading_ = nullptr;
}

void PathLookup::forget(QChar drive)
{
    const QString root = rootOf(drive);
    remembered_.removeIf([&root](const auto &entry) { return entry.key().startsWith(root); });
    const char letter = static_cast<char>(drive.unicode());
    readings_.removeIf([letter](const auto &entry) { return entry.key().startsWith(letter); });
    recentlyRead_.removeIf([letter](const QByteArray &key) { return key.startsWith(letter); });
    lastReading_ = nullptr;
}

void PathLookup::requireDrive(const QString &path) const
{
    if (!drives_.contains(path.at(0)))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
}

bool PathLookup::isCurrent(Reading &reading) const
{
    if (moments_ > 0 && reading.moment == moment_)
        return true;
    const auto now = stampOf(reading.hostPath);
    if (!reading.read.settled || now != reading.read.stamp)
        return false;
    reading.moment = moment_;
    return true;
}

std::shared_ptr<PathLookup::Reading> PathLookup::listing(QChar drive, const QByteArray &hostDirectory)
{
    const auto known = readings_.constFind(keyOf(drive, hostDirectory));
    return known != readings_.constEnd() && isCurrent(**known) ? *known : readAnew(drive, hostDirectory);
}

std::shared_ptr<PathLookup::Reading> PathLookup::readAnew(QChar drive, const QByteArray &hostDirectory)
{
    auto reading = std::make_shared<Reading>();
    reading->hostPath = hostDirectory.isEmpty() ? QByteArray("/") : hostDirectory;
    reading->read = readDirectory(reading->hostPath, drives_.toPanel(drive, hostDirectory));
    reading->moment = moment_;

    const QByteArray key = keyOf(drive, hostDirectory);
    recentlyRead_.removeOne(key);
    recentlyRead_.append(key);
    if (recentlyRead_.size() > MostReadings)
        readings_.remove(recentlyRead_.takeFirst());
    readings_.insert(key, reading);
    return reading;
}

// The host's path of `names` below a directory, as they are spelled there; empty where one is missing.
QByteArray PathLookup::findBelow(QChar drive, QByteArray hostDirectory, const QStringList &names)
{
    for (const QString &name : names) {
        QString spelled;
        try {
            spelled = listing(drive, hostDirectory)->read.directory->find(name);
        } catch (const RuntimeError &error) {
            requireDescriptors(error);
            spelled = name;
        }
        if (spelled.isNull())
            return {};
        hostDirectory = hostPathBelow(hostDirectory, spelled);
    }
    return hostDirectory;
}

} // namespace platform::host
