#include "platform/path_language.h"

#include "platform/letter_case.h"
#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr QChar Backslash = u'\\';

bool isLetter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool startsWithDrive(QStringView path)
{
    return path.size() >= 2 && isLetter(path[0]) && path[1] == u':';
}

// The length of the label of a drive text, from behind the colon: " [label]" or " \\server\share"; 0 where
// there is none. A label ends at a "]" that ends the text or stands before a backslash, so that it may hold a
// "]" of its own.
qsizetype labelLength(QStringView behindColon)
{
    if (behindColon.startsWith(u" [")) {
        for (qsizetype i = 2; i < behindColon.size(); ++i) {
            const bool last = i + 1 == behindColon.size();
            if (behindColon[i] == u']' && (last || behindColon[i + 1] == Backslash))
                return i + 1;
        }
    }
    if (behindColon.startsWith(u" \\\\")) {
        const qsizetype share = behindColon.indexOf(Backslash, 3);
        if (share > 3) {
            const qsizetype end = behindColon.indexOf(Backslash, share + 1);
            return end < 0 ? behindColon.size() : end;
        }
    }
    return 0;
}

// Whether `path` is in its final form, as most paths are: nothing to be taken apart.
bool isAbsoluteAlready(QStringView path)
{
    if (path.size() < 4 || path[0] < u'A' || path[0] > u'Z' || path[1] != u':' || path[2] != Backslash)
        return false;
    QChar before = Backslash;
    for (QChar c : path.mid(3)) {
        // A dot behind a backslash may be "." or "..".
        if (c == u':' || c == u'\0' || (before == Backslash && (c == Backslash || c == u'.')))
            return false;
        before = c;
    }
    return before != Backslash;
}

} // namespace

PathParts splitPath(const QString &path)
{
    PathParts parts;
    QStringView rest(path);
    if (startsWithDrive(rest)) {
        parts.Drive = QChar(upperCase(rest[0].unicode()));
        rest = rest.mid(2);
        const qsizetype label = labelLength(rest);
        rest = rest.mid(label);
        // Behind a label the backslash joins a name to the drive's current directory.
        parts.Rooted = label == 0 && rest.startsWith(Backslash);
    } else {
        parts.Network = rest.startsWith(u"\\\\");
        parts.Rooted = rest.startsWith(Backslash);
    }
    if (rest.contains(u':') || rest.contains(QChar(u'\0')))
        throw RuntimeError(ErrorNumber::BadFileName);
    const auto names = rest.split(Backslash, Qt::SkipEmptyParts);
    for (QStringView name : names)
        parts.Names.append(name.toString());
    return parts;
}

bool isDriveText(const QString &path)
{
    return startsWithDrive(path) && 2 + labelLength(QStringView(path).mid(2)) == path.size();
}

QString rootOf(QChar drive)
{
    return drive + u":\\"_s;
}

QString joinPath(const QString &directory, const QString &name)
{
    return directory.endsWith(Backslash) ? directory + name : directory + Backslash + name;
}

QString parentOf(const QString &path)
{
    const qsizetype last = path.lastIndexOf(Backslash);
    return last <= 2 ? path.left(3) : path.left(last);
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(Backslash) + 1);
}

QString shortFormOf(const QString &directory)
{
    return nameOf(directory.endsWith(Backslash) ? directory.chopped(1) : directory);
}

QString CurrentDirectories::absolute(const QString &path) const
{
    if (isAbsoluteAlready(path))
        return path;
    const PathParts parts = splitPath(path);
    if (path.isEmpty() || parts.Network)
        throw RuntimeError(ErrorNumber::PathNotFound);

    const QChar drive = parts.Drive.value_or(drive_);
    QStringList names;
    if (!parts.Rooted)
        names = splitPath(of(drive)).Names;
    for (const QString &name : parts.Names) {
        if (name == u".")
            continue;
        if (name != u"..")
            names.append(name);
        else if (!names.isEmpty())
            names.removeLast();
    }
    return rootOf(drive) + names.join(Backslash);
}

} // namespace platform
