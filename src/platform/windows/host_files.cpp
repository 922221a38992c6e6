#include "platform/windows/host_files.h"

#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/windows/system_error.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cstring>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Names that mean a device in every directory, whatever their extension.
bool isDeviceName(const QString &name)
{
    const QString base = UCase(name.section(u'.', 0, 0).trimmed());
    const bool isNumbered = base.size() == 4 && (base.startsWith(u"COM") || base.startsWith(u"LPT"))
                            && QStringView(u"0123456789\u00B9\u00B2\u00B3").contains(base[3]);
    return isNumbered
           || QStringList{u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s, u"CONIN$"_s, u"CONOUT$"_s}.contains(base);
}

bool isWildcard(QChar c)
{
    return QStringView(u"*?<>\"").contains(c);
}

/// A pass over names of a directory.
class Finding
{
public:
    explicit Finding(const std::wstring &pattern)
        : handle_(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found_, FindExSearchNameMatch,
                                     nullptr, FIND_FIRST_EX_LARGE_FETCH))
    {}
    ~Finding()
    {
        if (handle_ != INVALID_HANDLE_VALUE)
            ::FindClose(handle_);
    }
    Finding(const Finding &) = delete;
    Finding &operator=(const Finding &) = delete;

    bool isValid() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool next() { return ::FindNextFileW(handle_, &found_) != 0; }
    DWORD attributes() const { return found_.dwFileAttributes; }
    DWORD reparseTag() const
    {
        return (attributes() & FILE_ATTRIBUTE_REPARSE_POINT) != 0 ? found_.dwReserved0 : 0;
    }
    QStringView name() const { return {found_.cFileName}; }

private:
    WIN32_FIND_DATAW found_ = {};
    HANDLE handle_;
};

bool isLinkTag(DWORD tag)
{
    // Files that are kept elsewhere, such as those of a cloud, have a tag as well and are no links.
    constexpr DWORD StandsForAnother = 0x20000000;
    return (tag & StandsForAnother) != 0;
}

bool leadsNowhere(const QString &link)
{
    return !Handle(::CreateFileW(systemPath(link).c_str(), FILE_READ_ATTRIBUTES, ShareAll, nullptr,
                                 OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr))
                .isValid();
}

Directory::Kind kindOf(const Finding &found, const QString &directory)
{
    const bool isDevice = (found.attributes() & FILE_ATTRIBUTE_DEVICE) != 0;
    if (isDevice
        || (isLinkTag(found.reparseTag()) && leadsNowhere(joinPath(directory, found.name().toString()))))
        return Directory::Kind::Other;
    return isDirectory(found.attributes()) ? Directory::Kind::Folder : Directory::Kind::File;
}

// Counted from the year in which the system's own count, in tenths of a microsecond, would not overflow.
qint64 nanoseconds(qint64 systemTime)
{
    constexpr qint64 Year1970 = 116'444'736'000'000'000;
    return (systemTime - Year1970) * 100;
}

qint64 join(DWORD high, DWORD low)
{
    return static_cast<qint64>((quint64(high) << 32U) | low);
}

// What tells a file of a volume from the others. Not every file system numbers its files; where one does not,
// the path does.
quint64 nodeOf(const Handle &file, const QString &path, const BY_HANDLE_FILE_INFORMATION &information)
{
    constexpr quint64 Unknown = ~quint64(0);
    FILE_ID_INFO whole = {};
    std::array<quint64, 2> parts{
        static_cast<quint64>(join(information.nFileIndexHigh, information.nFileIndexLow)), 0};
    if (::GetFileInformationByHandleEx(file.get(), FileIdInfo, &whole, sizeof whole) != 0)
        std::memcpy(parts.data(), &whole.FileId, sizeof parts);
    const quint64 node = parts[0] ^ parts[1];
    if (node != 0 && parts[0] != Unknown)
        return node;
    return qHash(UCase(trueSpelling(path)));
}

} // namespace

QString withoutEndOfName(const QString &name)
{
    qsizetype end = name.size();
    while (end > 0 && (name[end - 1] == u' ' || name[end - 1] == u'.'))
        --end;
    return end == 0 ? name : name.left(end);
}

std::wstring systemPath(const QString &path)
{
    const PathParts parts = splitPath(path);
    QString result = u"\\\\?\\"_s + rootOf(parts.Drive.value_or(u'C'));
    QStringList names;
    for (const QString &name : parts.Names)
        names.append(withoutEndOfName(name));
    return wide(result + names.join(u'\\'));
}

// The system's own check does not see a "/" that other programs would take for a separator.
void requirePossibleNames(const QString &absolutePath)
{
    const auto isNoEnd = [](QChar c) { return c != u' ' && c != u'.'; };
    const auto isForbidden = [](QChar c) { return c < u' ' || QStringView(u"<>\"/|?*").contains(c); };
    const QStringList names = splitPath(absolutePath).Names;
    for (const QString &name : names) {
        if (std::any_of(name.begin(), name.end(), isForbidden) || isDeviceName(name)
            || std::none_of(name.begin(), name.end(), isNoEnd))
            throw RuntimeError(ErrorNumber::BadFileName);
    }
}

DWORD attributesOf(const QString &path)
{
    return ::GetFileAttributesW(systemPath(path).c_str());
}

bool isDirectory(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

DWORD reparseTagOf(const QString &path)
{
    const Finding found(systemPath(path));
    return found.isValid() ? found.reparseTag() : 0;
}

bool isLink(const QString &path)
{
    return isLinkTag(reparseTagOf(path));
}

QString trueSpelling(const QString &path)
{
    const PathParts parts = splitPath(path);
    QString result = rootOf(parts.Drive.value_or(u'C'));
    for (const QString &written : parts.Names) {
        const QString name = withoutEndOfName(written);
        const QString whole = joinPath(result, name);
        if (std::any_of(name.begin(), name.end(), isWildcard)) {
            result = whole;
            continue;
        }
        const Finding found(systemPath(whole));
        result = found.isValid() ? joinPath(result, found.name().toString()) : whole;
    }
    return result;
}

Handle openForReading(const QString &path)
{
    Handle file(::CreateFileW(systemPath(path).c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isValid()) {
        const DWORD error = ::GetLastError();
        if (isDirectory(attributesOf(path)))
            throw RuntimeError(ErrorNumber::PathFileAccess);
        raiseForReading(error);
    }
    // A pipe or a device would wait, or act on what it is asked.
    if (::GetFileType(file.get()) != FILE_TYPE_DISK)
        throw RuntimeError(ErrorNumber::PathFileAccess);
    return file;
}

QByteArray readFrom(const Handle &file, qsizetype most)
{
    QByteArray bytes(most, Qt::Uninitialized);
    qsizetype size = 0;
    while (size < most) {
        constexpr qsizetype Largest = 1 << 30;
        DWORD count = 0;
        if (::ReadFile(file.get(), bytes.data() + size, static_cast<DWORD>(std::min(most - size, Largest)),
                       &count, nullptr)
            == 0)
            raiseForReading(::GetLastError());
        if (count == 0)
            break;
        size += static_cast<qsizetype>(count);
    }
    bytes.truncate(size);
    return bytes;
}

FileStamp stampOf(const Handle &file, const QString &path)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    FILE_BASIC_INFO basic = {};
    if (::GetFileInformationByHandle(file.get(), &information) == 0)
        raise(::GetLastError());
    const auto timeOf = [](const FILETIME &time) {
        return nanoseconds(join(time.dwHighDateTime, time.dwLowDateTime));
    };
    FileStamp stamp{information.dwVolumeSerialNumber, nodeOf(file, path, information),
                    join(information.nFileSizeHigh, information.nFileSizeLow),
                    timeOf(information.ftLastWriteTime), 0};
    // Not every file system keeps this one.
    if (::GetFileInformationByHandleEx(file.get(), FileBasicInfo, &basic, sizeof basic) != 0)
        stamp.changed = nanoseconds(basic.ChangeTime.QuadPart);
    return stamp;
}

std::shared_ptr<const Directory> readDirectory(const QString &path)
{
    // What is no directory may still have names found below it: the root of a drive that holds nothing has
    // none.
    const DWORD attributes = attributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        raiseForDirectory(::GetLastError());
    if (!isDirectory(attributes))
        throw RuntimeError(ErrorNumber::PathNotFound);
    const auto directory = Directory::create(trueSpelling(path));
    Finding found(systemPath(path) + (path.endsWith(u'\\') ? L"*" : L"\\*"));
    if (!found.isValid()) {
        if (::GetLastError() == ERROR_FILE_NOT_FOUND)
            return directory;
        raiseForDirectory(::GetLastError());
    }
    do {
        if (found.name() != u"." && found.name() != u"..")
            directory->add(found.name(), kindOf(found, directory->path()),
                           (found.attributes() & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0);
    } while (found.next());
    if (::GetLastError() != ERROR_NO_MORE_FILES)
        raiseForDirectory(::GetLastError());
    return directory;
}

QuietDrives::QuietDrives()
{
    ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_);
}

QuietDrives::~QuietDrives()
{
    ::SetThreadErrorMode(before_, nullptr);
}

} // namespace platform::host
