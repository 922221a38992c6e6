#include "platform/windows/windows_file_system.h"

#include "platform/letter_case.h"
#include "platform/text_decoding.h"
#include "platform/windows/directory_changes.h"
#include "platform/windows/drives.h"
#include "platform/windows/host_files.h"
#include "platform/windows/system_error.h"

#include <memory>
#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class RegularFile : public OpenedFile
{
public:
    explicit RegularFile(Handle file) : file_(std::move(file)) {}

    QByteArray read(qsizetype most) override { return readFrom(file_, most); }

private:
    Handle file_;
};

// A handle that only asks about a file; what another program keeps for itself can be asked about as well.
Handle askedAbout(const QString &path)
{
    return Handle(::CreateFileW(systemPath(path).c_str(), FILE_READ_ATTRIBUTES, ShareAll, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// The path of what a link leads to; nothing for a network name, which the path language cannot spell.
std::optional<QString> finalPath(const Handle &file)
{
    const QString path = textOf([&file](wchar_t *buffer, DWORD size) {
        return ::GetFinalPathNameByHandleW(file.get(), buffer, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    });
    const QString prefix = u"\\\\?\\"_s;
    if (!path.startsWith(prefix) || path.mid(prefix.size() + 1, 1) != u":")
        return std::nullopt;
    return path.mid(prefix.size());
}

// Whether the user may go there.
void requireEnterable(const QString &directory)
{
    const Handle handle(::CreateFileW(systemPath(directory).c_str(), FILE_TRAVERSE | SYNCHRONIZE, ShareAll,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!handle.isValid())
        raiseForDirectory(::GetLastError());
    if (!isDirectory(attributesOf(directory)))
        throw RuntimeError(ErrorNumber::PathNotFound);
}

} // namespace

WindowsFileSystem::WindowsFileSystem(std::unique_ptr<SystemCalls> copying) : copying_(std::move(copying))
{
    const QuietDrives quiet;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const QString directory = inheritedDirectory(letter);
        try {
            if (!directory.isEmpty())
                current_.set(current_.absolute(directory));
        } catch (const RuntimeError &) {
            // No directory of this name can be.
            continue;
        }
    }
    const QString start = trueSpelling(current_.absolute(startDirectory()));
    current_.setDrive(start.at(0));
    current_.set(start);
    stayInSystemDirectory();
}

QStringList WindowsFileSystem::drives()
{
    return driveTexts();
}

QString WindowsFileSystem::currentDirectory()
{
    return current_.current();
}

void WindowsFileSystem::changeDrive(const QString &drive)
{
    const QChar letter = drive.isEmpty() ? QChar() : QChar(upperCase(drive.at(0).unicode()));
    if (letter < u'A' || letter > u'Z')
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    if (!hasDrive(letter))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    const QuietDrives quiet;
    if (!isDirectory(attributesOf(current_.of(letter)))) {
        // The drive's directory has gone; that must not keep anybody from the drive.
        requireEnterable(rootOf(letter));
        current_.set(rootOf(letter));
        bequeathDirectory(rootOf(letter));
    }
    current_.setDrive(letter);
}

void WindowsFileSystem::changeDirectory(const QString &path)
{
    const QuietDrives quiet;
    const QString directory = absolute(path);
    requireEnterable(directory);
    current_.set(trueSpelling(directory));
    bequeathDirectory(current_.of(directory.at(0)));
}

std::shared_ptr<const Directory> WindowsFileSystem::directory(const QString &path, Reading reading)
{
    const QuietDrives quiet;
    const QString wanted = absolute(path);
    const bool isCurrent = moments_ > 0 && readAt_ == moment_ && sameIgnoringCase(lastRead_->path(), wanted);
    if (!isCurrent || reading == Reading::Anew) {
        lastRead_ = readDirectory(wanted);
        readAt_ = moment_;
    }
    return lastRead_;
}

qint16 WindowsFileSystem::testReading(const QString &path) noexcept
{
    try {
        opened(path);
        return 0;
    } catch (const RuntimeError &error) {
        return error.Number;
    } catch (const std::bad_alloc &) {
        return static_cast<qint16>(ErrorNumber::PathFileAccess);
    }
}

std::unique_ptr<OpenedFile> WindowsFileSystem::openFile(const QString &path)
{
    return std::make_unique<RegularFile>(opened(path));
}

QString WindowsFileSystem::firstLine(const QString &path)
{
    return firstLineOf(readFrom(opened(path), LongestFirstLine));
}

QString WindowsFileSystem::shortName(const QString &path)
{
    const QuietDrives quiet;
    const QString whole = absolute(path);
    if (isDirectory(attributesOf(whole)))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    if (!askedAbout(whole).isValid())
        raiseForReading(::GetLastError());
    const std::wstring name = systemPath(whole);
    const QString shortPath = textOf(
        [&name](wchar_t *buffer, DWORD size) { return ::GetShortPathNameW(name.c_str(), buffer, size); });
    return nameOf(shortPath.isEmpty() ? whole : shortPath);
}

std::optional<FileStamp> WindowsFileSystem::stamp(const QString &path)
{
    try {
        const QuietDrives quiet;
        const QString whole = absolute(path);
        const Handle file = askedAbout(whole);
        if (!file.isValid())
            return std::nullopt;
        return stampOf(file, whole);
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

std::optional<QString> WindowsFileSystem::existingFile(const QString &path)
{
    const QuietDrives quiet;
    const QString whole = absolute(path);
    const DWORD attributes = attributesOf(whole);
    if (attributes == INVALID_FILE_ATTRIBUTES || isDirectory(attributes))
        return std::nullopt;
    const QString spelled = trueSpelling(whole);
    if (!isLink(whole))
        return spelled;
    const Handle file = askedAbout(whole);
    return file.isValid() ? finalPath(file).value_or(spelled) : spelled;
}

void WindowsFileSystem::copyFile(const QString &source, const QString &destination, Replacing replacing)
{
    nextMoment();
    const QuietDrives quiet;
    const QString from = absolute(source);
    const QString to = absolute(destination);
    copyWholeFile(from, existingFile(to).value_or(to), replacing, *copying_);
    nextMoment();
}

void WindowsFileSystem::makeDirectory(const QString &path)
{
    nextMoment();
    const QuietDrives quiet;
    makeHostDirectory(current_, path);
}

void WindowsFileSystem::removeDirectory(const QString &path)
{
    nextMoment();
    const QuietDrives quiet;
    removeHostDirectory(current_, path);
}

void WindowsFileSystem::beginMoment()
{
    ++moment_;
    ++moments_;
}

// A dialog may have taken the process along to the directory that it showed.
void WindowsFileSystem::nextMoment()
{
    ++moment_;
    stayInSystemDirectory();
}

QString WindowsFileSystem::hostForm(const QString &directory)
{
    try {
        return existingDirectory(directory).value_or(QString()).replace(u'\\', u'/');
    } catch (const RuntimeError &) {
        return {};
    }
}

QString WindowsFileSystem::panelForm(const QString &hostFile)
{
    return QString(hostFile).replace(u'/', u'\\');
}

QString WindowsFileSystem::absolute(const QString &path) const
{
    QString result = current_.absolute(path);
    if (!hasDrive(result.at(0)))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    return result;
}

std::optional<QString> WindowsFileSystem::existingDirectory(const QString &path) const
{
    const QuietDrives quiet;
    QString directory = absolute(path);
    if (!isDirectory(attributesOf(directory)))
        return std::nullopt;
    return trueSpelling(directory);
}

Handle WindowsFileSystem::opened(const QString &path) const
{
    const QuietDrives quiet;
    return openForReading(absolute(path));
}

} // namespace platform::host
