#include "platform/linux/linux_environment.h"

#include "platform/linux/host_names.h"
#include "platform/runtime_error.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstdlib>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

bool isRegularFile(const QByteArray &hostPath)
{
    struct stat status = {};
    return ::stat(hostPath.constData(), &status) == 0 && S_ISREG(status.st_mode);
}

QByteArray directoryPart(const QByteArray &hostPath)
{
    const qsizetype slash = hostPath.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : hostPath.left(std::max<qsizetype>(slash, 1));
}

// The absolute path of something that is there; empty where it is not.
QByteArray realPath(const QByteArray &hostPath)
{
    char *resolved = ::realpath(hostPath.constData(), nullptr);
    QByteArray path(resolved);
    std::free(resolved); // NOLINT(cppcoreguidelines-no-malloc): realpath's own contract
    return path;
}

// The absolute path of a file of the host, whose directory exists; null where it does not.
QString adoptFile(const QByteArray &hostPath, LinuxFileSystem &files)
{
    const QByteArray directory = realPath(directoryPart(hostPath));
    if (directory.isEmpty())
        return {};
    return joinPath(files.adopt(directory), fromHostName(hostPath.mid(hostPath.lastIndexOf('/') + 1)));
}

// A path as the panel writes it, such as data\run1.dg, below a directory that exists.
QString absolutePanelPath(const QString &argument, LinuxFileSystem &files)
{
    const qsizetype backslash = argument.lastIndexOf(u'\\');
    if (backslash <= 0 || argument.startsWith(u'-') || argument.contains(u':'))
        return {};
    try {
        return joinPath(files.directory(argument.left(backslash), Reading::WhenChanged)->path(),
                        argument.mid(backslash + 1));
    } catch (const RuntimeError &) {
        return {};
    }
}

// A file name, with or without directories, and not an absolute path, a switch, or one of the two names that
// ask for a start without a splash.
bool isRelative(const QByteArray &argument)
{
    const bool isSpecial = argument.isEmpty() || argument == ";" || argument == "?";
    return !isSpecial && !argument.startsWith('/') && !argument.startsWith('-') && !argument.endsWith('/')
           && !argument.contains('\\') && !argument.contains(':');
}

QString panelForm(const QByteArray &argument, LinuxFileSystem &files)
{
    if (isRegularFile(argument))
        return adoptFile(argument, files);
    if (isRelative(argument)) {
        QString path = adoptFile(argument, files);
        if (!path.isNull())
            return path;
    }
    QString text = QString::fromUtf8(argument);
    QString path = absolutePanelPath(text, files);
    return path.isNull() ? text : path;
}

} // namespace

QString commandLineOf(const QList<QByteArray> &arguments, LinuxFileSystem &files)
{
    QStringList texts;
    for (const QByteArray &argument : arguments) {
        const QString text = panelForm(argument, files);
        const bool quoted = text.contains(u' ') || text.contains(u'\t') || text.isEmpty();
        texts.append(quoted ? u'"' + text + u'"' : text);
    }
    return texts.join(u' ');
}

LinuxEnvironment::LinuxEnvironment(const QList<QByteArray> &arguments, LinuxFileSystem &files)
    : files_(files), commandLine_(commandLineOf(arguments, files))
{}

QString LinuxEnvironment::variable(const QString &name)
{
    QByteArray value = qgetenv(name.toUtf8().constData());
    const bool isPanelPath = value.contains(':') || value.contains('\\');
    const qsizetype root = isPanelPath ? 3 : 1;
    while (value.size() > root && (value.endsWith('/') || value.endsWith('\\')))
        value.chop(1);
    if (value.startsWith('/'))
        return files_.adopt(value);
    const QByteArray directory = isPanelPath ? QByteArray() : realPath(value);
    return directory.isEmpty() ? QString::fromUtf8(value) : files_.adopt(directory);
}

QString LinuxEnvironment::programFolder()
{
    return files_.adopt(QFile::encodeName(QCoreApplication::applicationDirPath()));
}

void LinuxEnvironment::endProgram()
{
    QCoreApplication::exit(0);
}

} // namespace platform::host
