#pragma once

#include <QByteArray>
#include <QString>

namespace platform::host {

/// A name as the file system has it, in the panel's path language. Bytes that are no UTF-8, and the
/// characters that the path language needs for itself (backslash, colon, double quote), become characters of
/// a private area, so that every name has exactly one form and comes back unchanged.
QString fromHostName(QByteArrayView name);

/// Whether a name of the file system is ASCII and has the same form in the path language.
bool isPlain(QByteArrayView name);

/// The file system's bytes of a name, or of any text with such names in it.
QByteArray toHostName(QStringView name);

/// The file system's path of what is called `name` in a directory of the host, whose root may be written as
/// an empty path.
QByteArray hostPathBelow(const QByteArray &hostDirectory, const QString &name);

} // namespace platform::host
