#include "platform/linux/linux_file_system.h"

#include "platform/letter_case.h"
#include "platform/linux/directory_changes.h"
#include "platform/linux/host_names.h"
#include "platform/linux/regular_file.h"
#include "platform/linux/system_error.h"
#include "platform/text_decoding.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

QByteArray processDirectory()
{
    const std::unique_ptr<char, decltype(&std::free)> path(::getcwd(nullptr, 0), &std::free);
    // A directory that has been removed, or that lies outside of what the process may see, has no name.
    return path ? QByteArray(path.get()) : QByteArray("/");
}

ErrorNumber missing(const PathLookup::File &file)
{
    return file.directoryExists ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
}

// What a link leads to, so that writing there leaves the link; other names as they are. Raises PathFileAccess
// for a link that leads nowhere.
QByteArray behindLink(const QByteArray &hostPath)
{
    struct stat status = {};
    if (::lstat(hostPath.constData(), &status) != 0 || !S_ISLNK(status.st_mode))
        return hostPath;
    const std::unique_ptr<char, decltype(&std::free)> path(::realpath(hostPath.constData(), nullptr),
                                                           &std::free);
    if (!path)
        throw RuntimeError(ErrorNumber::PathFileAccess);
    return path.get();
}

class RegularFile : public OpenedFile
{
public:
    explicit RegularFile(FileDescriptor file) : file_(std::move(file)) {}

    QByteArray read(qsizetype most) override { return readFrom(file_, most); }

private:
    FileDescriptor file_;
};

} // namespace

LinuxFileSystem::LinuxFileSystem(const QByteArray &winePrefix, std::unique_ptr<SystemCalls> copying)
    : drives_(winePrefix), lookup_(drives_), copying_(std::move(copying))
{
    // A limit on the size of files is an error of the write and must not end the program.
    ::signal(SIGXFSZ, SIG_IGN);
    const QString start = adopt(processDirectory());
    current_.setDrive(start.at(0));
    current_.set(start);
}

QStringList LinuxFileSystem::drives()
{
    for (QChar drive : drives_.refresh())
        lookup_.forget(drive);
    return drives_.texts();
}

QString LinuxFileSystem::currentDirectory()
{
    return current_.current();
}

void LinuxFileSystem::changeDrive(const QString &drive)
{
    const QChar letter = drive.isEmpty() ? QChar() : QChar(upperCase(drive.at(0).unicode()));
    if (letter < u'A' || letter > u'Z')
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    if (!drives_.contains(letter))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    const auto directory = lookup_.find(current_.of(letter));
    if (!directory || ::chdir(directory->constData()) != 0) {
        // The drive's directory has gone; that must not keep anybody from the drive.
        if (::chdir(drives_.toHost(rootOf(letter)).constData()) != 0)
            raise(errno);
        current_.set(rootOf(letter));
    }
    current_.setDrive(letter);
}

void LinuxFileSystem::changeDirectory(const QString &path)
{
    const QString absolute = current_.absolute(path);
    const auto found = lookup_.find(absolute);
    if (!found)
        throw RuntimeError(ErrorNumber::PathNotFound);
    struct stat status = {};
    if (::stat(found->constData(), &status) != 0)
        raise(errno);
    if (!S_ISDIR(status.st_mode))
        throw RuntimeError(ErrorNumber::PathNotFound);
    const QChar drive = absolute.at(0);
    if (drive == current_.drive() ? ::chdir(found->constData()) != 0
                                  : ::access(found->constData(), X_OK) != 0)
        raise(errno);
    lookup_.remember(drive, *found);
    current_.set(drives_.toPanel(drive, *found));
}

std::shared_ptr<const Directory> LinuxFileSystem::directory(const QString &path, Reading reading)
{
    return lookup_.directory(current_.absolute(path), reading);
}

qint16 LinuxFileSystem::testReading(const QString &path) noexcept
{
    try {
        const PathLookup::File file =
            lookup_.findProgram(lookup_.isInLastDirectory(path) ? path : current_.absolute(path));
        if (!file.hostPath)
            return static_cast<qint16>(missing(file));
        openForReading(*file.hostPath);
        return 0;
    } catch (const RuntimeError &error) {
        return error.Number;
    } catch (const std::bad_alloc &) {
        return static_cast<qint16>(ErrorNumber::PathFileAccess);
    }
}

std::unique_ptr<OpenedFile> LinuxFileSystem::openFile(const QString &path)
{
    return std::make_unique<RegularFile>(openForReading(openable(path)));
}

QString LinuxFileSystem::firstLine(const QString &path)
{
    return firstLineOf(readFrom(openForReading(openable(path)), LongestFirstLine));
}

QString LinuxFileSystem::shortName(const QString &path)
{
    requireRegularFile(openable(path));
    return nameOf(current_.absolute(path));
}

std::optional<FileStamp> LinuxFileSystem::stamp(const QString &path)
{
    try {
        const auto found = lookup_.findFile(current_.absolute(path)).hostPath;
        struct stat status = {};
        if (!found || ::stat(found->constData(), &status) != 0)
            return std::nullopt;
        const auto nanoseconds = [](const timespec &time) {
            return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
        };
        return FileStamp{status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
                         nanoseconds(status.st_ctim)};
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

std::optional<QString> LinuxFileSystem::existingFile(const QString &path)
{
    const QString absolute = current_.absolute(path);
    const auto found = hostDocument(absolute);
    struct stat status = {};
    if (!found || ::stat(found->constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const QByteArray written = behindLink(*found);
    return written == *found ? drives_.toPanel(absolute.at(0), written) : drives_.toPanel(written);
}

void LinuxFileSystem::copyFile(const QString &source, const QString &destination, Replacing replacing)
{
    lookup_.nextMoment();
    const QByteArray from = openable(source);
    const auto to = hostDocument(destination);
    if (!to)
        throw RuntimeError(ErrorNumber::PathNotFound);
    copyWholeFile(from, behindLink(*to), replacing, *copying_);
    lookup_.nextMoment();
}

void LinuxFileSystem::makeDirectory(const QString &path)
{
    lookup_.nextMoment();
    makeHostDirectory(lookup_, current_, path);
    // On the way to a directory through a link that directory itself may have been read.
    lookup_.nextMoment();
}

void LinuxFileSystem::removeDirectory(const QString &path)
{
    lookup_.nextMoment();
    removeHostDirectory(drives_, current_, path);
}

QString LinuxFileSystem::hostForm(const QString &directory)
{
    try {
        return QFile::decodeName(hostDirectory(directory).value_or(QByteArray()));
    } catch (const RuntimeError &) {
        return {};
    }
}

QString LinuxFileSystem::panelForm(const QString &hostFile)
{
    const QByteArray path = QFile::encodeName(hostFile);
    const qsizetype slash = path.lastIndexOf('/');
    return joinPath(adopt(path.left(std::max<qsizetype>(slash, 1))), fromHostName(path.mid(slash + 1)));
}

// "*.cfb" becomes "*.[cC][fF][bB]".
QString LinuxFileSystem::anyCase(const QString &pattern) const
{
    QString result;
    for (QChar c : pattern) {
        const QChar both[]{QChar(lowerCase(c.unicode())), QChar(upperCase(c.unicode()))};
        result += both[0] == both[1] ? QString(c) : u'[' + QString(both, 2) + u']';
    }
    return result;
}

QString LinuxFileSystem::adopt(const QByteArray &hostDirectory)
{
    QString path = drives_.toPanel(hostDirectory);
    lookup_.remember(path.at(0), hostDirectory);
    return path;
}

std::optional<QByteArray> LinuxFileSystem::hostDirectory(const QString &path)
{
    const auto found = lookup_.find(current_.absolute(path));
    std::error_code ignored;
    return found && std::filesystem::is_directory(found->constData(), ignored) ? found : std::nullopt;
}

std::optional<QByteArray> LinuxFileSystem::hostProgram(const QString &path)
{
    return lookup_.findProgram(current_.absolute(path)).hostPath;
}

std::optional<QByteArray> LinuxFileSystem::hostDocument(const QString &path)
{
    const QString absolute = current_.absolute(path);
    if (auto found = lookup_.findFile(absolute).hostPath)
        return found;
    const auto directory = lookup_.find(parentOf(absolute));
    if (!directory)
        return std::nullopt;
    return hostPathBelow(*directory, nameOf(absolute));
}

QByteArray LinuxFileSystem::openable(const QString &path)
{
    const PathLookup::File file = lookup_.findProgram(current_.absolute(path));
    if (!file.hostPath)
        throw RuntimeError(missing(file));
    return *file.hostPath;
}

} // namespace platform::host
