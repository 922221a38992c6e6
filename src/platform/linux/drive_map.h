#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace platform::host {

/// Which directory of the host each drive letter of the panel is. Z: is the root; where a Wine prefix exists,
/// its letters are the panel's too, so that a path means the same to the panel and to the Windows programs it
/// starts.
class DriveMap
{
public:
    /// `winePrefix` is the prefix's directory, empty for none.
    explicit DriveMap(QByteArray winePrefix);

    /// Reads the prefix's letters again; gives those that mean another directory by now, or none.
    QList<QChar> refresh();

    /// The drive texts in letter order, such as "c:".
    QStringList texts() const;

    bool contains(QChar drive) const { return roots_.contains(drive); }

    /// The host's directory of `drive` (upper-case letter), without a trailing slash: empty for the host's
    /// root.
    QByteArray root(QChar drive) const { return roots_.value(drive); }

    /// The host's absolute path in the path language, on the drive whose root is its longest prefix.
    QString toPanel(const QByteArray &hostPath) const;

    /// The host's absolute path in the path language, on `drive`, whose root it must lie below.
    QString toPanel(QChar drive, const QByteArray &hostPath) const;

    /// The host's path of an absolute path, every name as it is spelled.
    QByteArray toHost(const QString &path) const;

private:
    QByteArray winePrefix_;
    QMap<QChar, QByteArray> roots_;
};

} // namespace platform::host
