#include "platform/linux/drive_map.h"

#include "platform/letter_case.h"
#include "platform/linux/host_names.h"
#include "platform/path_language.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace platform::host {

namespace {

bool isBelow(const QByteArray &path, const QByteArray &root)
{
    return root.isEmpty() || path == root || path.startsWith(root + '/');
}

// The true directory of a drive of the prefix; null where the link leads nowhere.
QByteArray resolvedDirectory(const QByteArray &link)
{
    char *resolved = ::realpath(link.constData(), nullptr);
    const QByteArray path(resolved);
    std::free(resolved); // NOLINT(cppcoreguidelines-no-malloc): realpath's own contract
    std::error_code ignored;
    return std::filesystem::is_directory(path.constData(), ignored) ? path : QByteArray();
}

} // namespace

DriveMap::DriveMap(QByteArray winePrefix) : winePrefix_(std::move(winePrefix))
{
    refresh();
}

QList<QChar> DriveMap::refresh()
{
    const QMap<QChar, QByteArray> before = std::exchange(roots_, {});
    if (!winePrefix_.isEmpty()) {
        const QByteArray devices = winePrefix_ + "/dosdevices";
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            const QByteArray root = resolvedDirectory(devices + '/' + letter + ':');
            if (!root.isEmpty())
                roots_.insert(QChar(upperCase(static_cast<char16_t>(letter))),
                              root == "/" ? QByteArray() : root);
        }
    }
    roots_.insert(u'Z', QByteArray());
    QList<QChar> changed;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!roots_.contains(it.key()) || roots_.value(it.key()) != it.value())
            changed.append(it.key());
    }
    return changed;
}

QStringList DriveMap::texts() const
{
    QStringList result;
    for (auto it = roots_.keyBegin(); it != roots_.keyEnd(); ++it)
        result.append(QChar(lowerCase(it->unicode())) + QLatin1String(":"));
    return result;
}

QString DriveMap::toPanel(const QByteArray &hostPath) const
{
    QChar best = u'Z';
    for (auto it = roots_.begin(); it != roots_.end(); ++it) {
        if (isBelow(hostPath, it.value()) && it.value().size() > root(best).size())
            best = it.key();
    }
    return toPanel(best, hostPath);
}

QString DriveMap::toPanel(QChar drive, const QByteArray &hostPath) const
{
    QStringList names;
    const QList<QByteArray> components = hostPath.mid(root(drive).size()).split('/');
    for (const QByteArray &component : components) {
        if (!component.isEmpty())
            names.append(fromHostName(component));
    }
    return rootOf(drive) + names.join(u'\\');
}

QByteArray DriveMap::toHost(const QString &path) const
{
    const PathParts parts = splitPath(path);
    QByteArray result = root(parts.Drive.value_or(u'Z'));
    for (const QString &name : parts.Names)
        result += '/' + toHostName(name);
    return result.isEmpty() ? QByteArray("/") : result;
}

} // namespace platform::host
